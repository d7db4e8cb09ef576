// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

// How a key press travels to the screen
// -------------------------------------
// A front end (the Qt window or the console) turns each user action into one
// event handler of Menu: a typed character into Form_KeyPress, a released key
// into Form_KeyUp, a click on a value cell into LabValue_Click, and so on.
//
// Typing "75" on the Weight page: Form_KeyPress appends each digit to the entry
// (ScratchPad: InputText/InputValue) and DisplayValue refreshes the display
// caption. Clicking row 2 ("pound - lbs") calls LabValue_Click(2): the entry is
// taken into that row and the page's converter (Convert_Standard here) rewrites
// every row's tag, the full-precision number text of its value. DisplayTags then
// renders each tag into the caption the user reads, with the chosen number of
// decimals and the page's own forms (h:mm, "090", "R 11.31"), and clears the
// entry; SetButtonColor marks row 2 as the input row.
//
// The front end then reads Menu's state (face, title, display, panels, key
// captions and highlights, the eight rows) and draws it. Everything the platform
// does for Menu (message boxes, beep, regional symbols) goes through Platform.

#include "app/pagesheet.h"
#include "app/platform.h"
#include "currency/modcurrency.h"
#include "entry/fault.h"
#include "entry/scratchpad.h"

#include <array>
#include <string>

namespace zel {

/// Key codes of Form_KeyUp and the characters of Form_KeyPress.
namespace key {
inline constexpr int Backspace = 8, Enter = 13, Escape = 27, F1 = 112, F12 = 123;
}

enum class Face { Menu, Page };

/// The state of the one window and its event handlers.
class Menu {
  public:
    explicit Menu(Platform& platform);

    // Window events.
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload();
    void Form_KeyPress(char32_t keyAscii);
    void Form_KeyUp(int keyCode);

    // Control events.
    void LabMenu_Click(int index);
    void LabelMenu_Click();
    void LabValue_Click(int index);
    void LabOP_Click(int index);
    void LabC_Click();
    void LabMEM_Click(int index);
    void LabDEC_Click();

    // What the window shows.
    Face face() const { return m_face; }
    int currentPage() const { return m_currentPage; }
    const std::string& title() const { return m_sheet.title(); }
    const std::string& display() const { return m_pad.display(); }
    int displaySize() const { return m_pad.displaySize(); }
    const std::string& digitsCaption() const { return m_digitsCaption; }
    /// The memory, digits and operator panels are shown and hidden together.
    bool panelsVisible() const { return m_panelsVisible; }
    const std::string& memoryCaption(int key) const {
        return m_memoryCaptions.at(static_cast<std::size_t>(key));
    }
    /// MRC lights up amber while the memory holds a value.
    bool memoryLit(int key) const { return key == 0 && m_pad.memoryLit(); }
    const std::string& operatorCaption(int key) const;
    bool operatorLit(int key) const { return m_pad.operatorLit(key); }
    const RowCell& row(int row) const { return m_sheet[row]; }
    const Symbols& symbols() const { return m_symbols; }
    const ScratchPad& scratchPad() const { return m_pad; }
    /// While rates are downloading the window repaints but takes no action.
    bool busy() const { return m_currency.downloading(); }

  private:
    void LoadUnits();
    void ResetPage();
    void SetButtonColor(int index);
    void DisplayTags();
    void ResetScratchPad() { m_pad.reset(m_currentPage == 14); }
    void runConverter(int& inputRow);
    void pressOperator(int index);
    void report(const ArithmeticFault& fault);
    std::string digitsCaptionFor(const std::string& tag) const;
    void keyPressCode(char32_t keyAscii);
    void keyPressNumber(char32_t keyAscii);

    Platform& m_platform;
    ModCurrency m_currency{m_platform};
    Symbols m_symbols;
    ScratchPad m_pad{m_symbols};
    PageSheet m_sheet{m_platform.ui, m_symbols};
    Face m_face = Face::Menu;
    int m_currentPage = 0;
    std::string m_digitsTag = "0.00";
    std::string m_digitsCaption;
    bool m_panelsVisible = true;
    std::array<std::string, 3> m_memoryCaptions{"MRC", "M+", "M-"};
};

} // namespace zel
