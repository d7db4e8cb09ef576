// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

// How a key press travels to the screen
// -------------------------------------
// A face (the Qt window, the console, the web page) turns each thing the user
// does into one call of Menu, named for what the user did: a key into
// keyDown or keyUp (or type, for a character), a click on a row into
// clickRow, a page button into openPage, and so on.
//
// Typing "75" on the Weight page: each digit reaches the entry (ScratchPad),
// which keeps the number as text and value and shows it the way a pocket
// calculator does. Clicking row 2 ("pound - lbs") calls clickRow(2): the
// entry is taken into that row and the converter that the page's table names
// (convertByFactor here) writes every row's value as a number, and reports
// what it refused: nothing, the bell, or a warning, which Menu rings or opens
// as a box. Row 2 becomes the input row. A converter that meets a division by
// zero or an overflow stops there: Menu says so, and the rows stay as they
// were before the click.
//
// The face then asks for view(): one plain value with everything it draws
// (the face, title, display, keys, each row's unit name and symbol and its
// value formatted with the regional symbols and the digits chosen, the
// menu's buttons, the keys' help, the boxes open). Menu decides every rule;
// the face only maps the view to widgets, elements or text. Everything the
// platform does for Menu (the bell, regional symbols, files, HTTP, the date)
// goes through Platform; the boxes go to the face through Interaction::open.
//
// Menu never waits. A question, an input box or an HTTP transfer is a request:
// the flow that makes it (the rates offered on opening the Currency page,
// "Rates", "Set") hands over what to do with the answer and returns, and the
// answer comes back later as an event (answer, or the end of a transfer),
// after which the face draws the view again. While a box is open or a
// download runs, Menu takes no other action of the user's.
//
// Where the handlers live: menu.cpp has the page switch, the rows, the
// calculator's keys and the boxes; keyboard.cpp the keys; view.cpp the view;
// clipboard.cpp pasting and copying.

#include "app/catalogue.h"
#include "app/keys.h"
#include "app/requests.h"
#include "app/view.h"
#include "balance/weightbalance.h"
#include "currency/ratestore.h"
#include "entry/coordinate.h"
#include "entry/scratchpad.h"
#include "host/platform.h"
#include "page/pagesheet.h"

#include <array>
#include <string>

namespace zel {

/// What the digits key shows the rows with; each press moves to the next.
enum class Digits { Two, All, Whole };

/// The state of the one window and what the user does to it.
class Menu {
  public:
    /// The window with every page of `pages` (the program's own catalogue, or
    /// one a test makes).
    explicit Menu(Platform& platform, const PageCatalogue& pages = pageCatalogue());
    Menu(const Menu&) = delete; // holds references to its own members
    Menu& operator=(const Menu&) = delete;

    // The window.
    /// It is shown: the menu face; no page is open until one is chosen.
    void start();
    /// It becomes the active window again: the regional symbols are read
    /// afresh, and a clash of decimal and grouping symbol is pointed out.
    void activate();
    /// It closes: the program ends.
    void close();

    // What the user does (menu.cpp; the keys in keyboard.cpp).
    /// Opens the page with this number; false for none.
    bool openPage(int number);
    /// Opens the page a text names: its number or its name ("fuel uplift").
    bool openPage(std::string_view numberOrName);
    /// Back to the menu face; the page keeps what it shows.
    void goBack();
    /// Types one character into the entry (a digit, a decimal symbol, an
    /// operator, or a letter of a report).
    void type(char32_t character);
    /// A key goes down or comes up. What the calculator does with it is done;
    /// what is the face's own to do (copy, zoom, move the focus) is returned.
    FaceAction keyDown(const Chord& chord);
    FaceAction keyUp(const Chord& chord);
    /// A click on a row: takes the entry into it, or selects it.
    void clickRow(int row);
    void pressOperator(Operator key);
    /// The memory keys; on the Currency page "Rates", "Set" and "i".
    void pressMemory(MemoryKey key);
    /// The digits key: two decimals, all digits, whole numbers.
    void pressDigits();
    /// The clear key: the entry (and then the calculation) and the rows.
    void clear();
    /// Text pasted into the entry (clipboard.cpp): on a number page one
    /// number ("." or "," for the decimal symbol, grouping and a unit word
    /// left out), else a message; on a report page the report. False when
    /// the text was refused (the user is told why) or nothing could take it.
    bool paste(std::string_view text);
    /// A report written whole (in a text field, by a screen's keyboard that
    /// composes words) replaces the one typed, each character taken as its
    /// key would type it.
    void writeReport(std::string_view text);
    /// The same, then decoded as Enter decodes it: the same report again
    /// shows its next runway.
    void enterReport(std::string_view text);
    /// The user's answer to the box `request`.
    void answer(int request, const Answer& answer);

    // The Weight & Balance page (loadingpage.cpp). A row click there takes
    // the typed number into the sheet's cell of that entry number.
    void chooseAircraft(int index);
    /// The stations (counted from 1, 0 for none) weight is moved between.
    void chooseShift(int from, int to);
    void chooseBallast(int station);
    /// The loadings saved by name: save the one shown (a name is asked),
    /// recall or delete the `index`th of the view's savedLoadings.
    void saveLoading();
    void recallLoading(int index);
    void deleteLoading(int index);
    void newProfile();
    void duplicateProfile();
    void editProfile();
    void renameProfile();
    void deleteProfile();
    /// A profile file the user chose to import, as it was read.
    void importProfile(std::string_view bytes);
    /// The aircraft shown as a profile file, for the user to export; its
    /// name is the view's loading.exportName.
    std::string exportProfile() const;
    void editField(std::string_view field, std::string_view text);
    void pressFormButton(const balance::FormAction& action);

    // What the window shows.
    /// Everything a face draws (view.cpp).
    View view() const;
    Face face() const { return m_face; }
    /// The table of the page shown; nothing before a page is chosen.
    const PageTable* page() const { return m_table; }
    int currentPage() const { return m_pages.numberOf(m_table); }
    const PageCatalogue& pages() const { return m_pages; }
    const Symbols& symbols() const { return m_symbols; }
    const ScratchPad& scratchPad() const { return m_pad; }
    const RowCell& row(int row) const { return m_sheet[row]; }
    /// While rates are downloading, or a box is open, the window takes no action.
    bool busy() const { return m_rates.downloading(); }

    // The clipboard (clipboard.cpp).
    /// The number in the display: regional decimal symbol, no grouping.
    std::string displayNumber() const;
    /// A row's value as shown, without grouping symbols; empty for none.
    std::string rowText(int row) const;
    /// The page as text for a flight log: its title, then "unit<TAB>value"
    /// for every row the page has.
    std::string pageText() const;

    /// The settings file and the day and source of the stored rates.
    std::string settingsFile() { return m_rates.settings().path(); }
    std::string ratesNote() { return m_rates.ratesNote(); }

  private:
    /// A box is open or a download runs: the user's actions wait.
    bool blocked() const { return busy() || !m_requests.empty(); }
    bool textPage() const { return m_table != nullptr && m_table->isText(); }
    bool loadingPage() const {
        return m_face == Face::Page && m_table != nullptr && m_table->loading;
    }
    /// Does what the loading sheet was asked, while it is shown and no box is open.
    template <class Act> void onLoadingSheet(Act act) {
        if (!blocked() && loadingPage()) {
            act();
        }
    }
    /// A click on a cell of the loading sheet.
    void clickEntry(int entry);
    void loadUnits();
    void markInputRow(int row);
    void clearEntry() { m_pad.reset(textPage()); }
    /// Runs the page's converter on `entry`; false when a fault stopped it.
    bool convert(int& inputRow, double entry);
    void decode();
    void operate(Operator key);
    void press(Key key);
    void release(Key key);
    void typeText(char32_t c);
    /// A report into the entry, as a paste takes it; false, having said
    /// why, when the page refuses it.
    bool takeReport(std::string_view text);
    /// Coordinates pasted on a page of places: one into the entry, a pair
    /// into a latitude row and its longitude row; false for other text.
    bool pasteCoordinates(const std::vector<Coordinate>& coordinates);
    /// A pasted number's keys ("-0.5"), replacing the entry.
    void typePasted(std::string_view keys);
    void typeNumber(char32_t c);
    /// Rings the bell or shows the warning a converter reported.
    void show(const Report& report);
    void show(Faulted fault);
    /// The title of the window: the page's name, or the program's.
    std::string title() const;
    std::vector<HelpLine> help() const;
    void rowView(int row, RowView& shown) const;

    Platform& m_platform;
    const PageCatalogue& m_pages;
    RequestQueue m_requests{m_platform.ui};
    RateStore m_rates{m_platform, m_requests};
    Symbols m_symbols;
    ScratchPad m_pad{m_symbols};
    PageSheet m_sheet{m_symbols};
    balance::WeightBalance m_balance{m_platform.storage, m_requests};
    const PageTable* m_table = nullptr;
    Face m_face = Face::Menu;
    Digits m_digits = Digits::Two;
    bool m_shiftF1 = false; ///< F1 went down with Shift: About when it is let go
    /// Why the last value typed was refused, until the user's next action.
    std::string m_refusal;
    std::string m_reportDecoded; ///< the report text last decoded
    int m_reportShown = 0;       ///< which of its runways is shown
};

} // namespace zel
