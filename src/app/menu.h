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
// taken into that row and the converter that the page's table names
// (Convert_Standard here) rewrites every row's tag, the full-precision number
// text of its value, and reports what it refused: nothing, the bell, or a
// warning, which Menu rings or shows. DisplayTags then renders each tag into
// the caption the user reads, in the form the page's table gives the row (a
// number with the chosen decimals, h:mm, "090", "R 11.31"), and clears the
// entry; SetButtonColor marks row 2 as the input row. A converter that meets a
// division by zero or an overflow stops there: Menu shows the fault, and the
// rows and the entry stay as they were left.
//
// The front end then reads Menu's state (face, title, display, panels, key
// highlights, the eight rows with their forms) and draws it in its own way:
// its own symbols for the operator keys, its own type sizes. Everything the
// platform does for Menu (message boxes, beep, regional symbols, files, HTTP)
// goes through Platform.
//
// Menu never waits. A question, an input box or an HTTP transfer is a request:
// the flow that makes it (the rates offered on opening the Currency page,
// "Rates", "Set") hands over what to do with the answer and returns, and the
// answer comes back later as an event of the front end, which then draws Menu
// again. Until it has, busy() is true and Menu takes no other action; the
// window's boxes are modal, so keys go to the box.
//
// Where the handlers live: menu.cpp has the window's and the controls' events
// and the page switch, keyboard.cpp Form_KeyPress and Form_KeyUp, rowrender.cpp
// DisplayTags.

#include "app/catalogue.h"
#include "currency/modcurrency.h"
#include "entry/scratchpad.h"
#include "host/platform.h"

#include <array>
#include <string>

namespace zel {

/// Key codes of Form_KeyUp and the characters of Form_KeyPress.
namespace key {
inline constexpr int Backspace = 8, Enter = 13, Escape = 27, F1 = 112, F12 = 123;
}

enum class Face { Menu, Page };

/// What the digits key shows the rows with; each press moves to the next.
enum class Digits { Two, All, Whole };

/// The state of the one window and its event handlers.
class Menu {
  public:
    /// The window with every page of `pages` (the program's own catalogue, or
    /// one a test makes).
    explicit Menu(Platform& platform, const PageCatalogue& pages = pageCatalogue());
    Menu(const Menu&) = delete; // holds references to its own members
    Menu& operator=(const Menu&) = delete;

    // Window events (menu.cpp; the keys in keyboard.cpp).
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload();
    void Form_KeyPress(char32_t keyAscii);
    void Form_KeyUp(int keyCode);

    // Control events (menu.cpp).
    void LabMenu_Click(int index);
    void LabelMenu_Click();
    void LabValue_Click(int index);
    void LabOP_Click(int index);
    void LabC_Click();
    void LabMEM_Click(int index);
    void LabDEC_Click();

    // The clipboard (clipboard.cpp).
    /// Text pasted into the entry, typed as its keys would be: on a number
    /// page a number ("." or "," for the decimal symbol, grouping and blanks
    /// left out, a leading "-" kept), else the bell; on a text page the report.
    void Form_Paste(std::string_view text);
    /// The number in the display: regional decimal symbol, no grouping.
    std::string displayNumber() const;
    /// A row's value as shown, without grouping symbols; empty for none.
    std::string rowText(int row) const;
    /// The page as text for a flight log: its title, then "unit<TAB>value"
    /// for every row the page has.
    std::string pageText() const;

    /// The settings file and the day and source of the stored rates.
    std::string settingsFile() { return m_currency.settingsFile(); }
    std::string ratesNote() { return m_currency.ratesNote(); }

    // What the window shows.
    Face face() const { return m_face; }
    int currentPage() const { return m_table ? m_table->number : 0; }
    /// The table of the page shown; nothing before a page is chosen.
    const PageTable* page() const { return m_table; }
    const PageCatalogue& pages() const { return m_pages; }
    const std::string& title() const { return m_title; }
    const std::string& display() const { return m_pad.display(); }
    /// A long display is drawn smaller.
    bool displayCompact() const { return m_pad.displayCompact(); }
    Digits digits() const { return m_digits; }
    /// The digits key's caption in the regional form: "0.00", "0.…", "0".
    const std::string& digitsCaption() const { return m_digitsCaption; }
    /// The memory, digits and operator panels are shown and hidden together.
    bool panelsVisible() const { return m_panelsVisible; }
    const std::string& memoryCaption(int key) const {
        return m_memoryCaptions.at(static_cast<std::size_t>(key));
    }
    /// MRC lights up amber while the memory holds a value.
    bool memoryLit(int key) const { return key == 0 && m_pad.memoryLit(); }
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
    void DisplayTags(); // rowrender.cpp
    void ResetScratchPad() { m_pad.reset(textPage()); }
    bool textPage() const { return m_table != nullptr && m_table->isText(); }
    /// Runs the page's converter on `entry`; false when a fault stopped it.
    bool convert(int& inputRow, double entry);
    void decode();
    void pressOperator(int index);
    /// Rings the bell or shows the warning a converter reported.
    void show(const Report& report);
    void show(Faulted fault);
    void showDigits();
    void keyPressText(char32_t keyAscii);
    void keyPressNumber(char32_t keyAscii);

    Platform& m_platform;
    const PageCatalogue& m_pages;
    ModCurrency m_currency{m_platform};
    Symbols m_symbols;
    ScratchPad m_pad{m_symbols};
    PageSheet m_sheet{m_symbols};
    const PageTable* m_table = nullptr;
    std::string m_title;
    Face m_face = Face::Menu;
    Digits m_digits = Digits::Two;
    std::string m_digitsCaption;
    bool m_panelsVisible = true;
    std::array<std::string, 3> m_memoryCaptions{"MRC", "M+", "M-"};
    std::string m_reportDecoded; ///< the report text last decoded
    int m_reportShown = 0;       ///< which of its runways is shown
};

} // namespace zel
