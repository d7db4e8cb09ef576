// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(Window, StartsOnTheMenuFace) {
    Calculator calc;
    EXPECT_EQ(calc.menu.face(), Face::Menu);
    EXPECT_EQ(calc.menu.view().title, "zelFLIGHTAB");
    EXPECT_EQ(calc.menu.view().display, "0.");
    EXPECT_EQ(calc.menu.view().digits, "0.00");
    EXPECT_TRUE(calc.ui.events.empty());

    Calculator comma(Comma);
    EXPECT_EQ(comma.menu.view().display, "0,");
    EXPECT_EQ(comma.menu.view().digits, "0,00");
}

TEST(Window, WarnsOnEveryActivationWhileTheSymbolsClash) {
    Calculator calc(Symbols{",", ","});
    const std::string expected =
        "information Format Numbers: The 'decimal symbol' and the 'digit grouping symbol'  on "
        "this computer are set-up the same.\r\r(e.g. standard atmosphere is displayed as "
        "1,013,25)\r\rThis causes calculations";
    ASSERT_EQ(calc.ui.events.size(), 1u);
    EXPECT_EQ(calc.ui.events[0].substr(0, expected.size()), expected);
    calc.menu.activate();
    EXPECT_EQ(calc.ui.events.size(), 2u);
    calc.regional.value = Comma;
    calc.menu.activate();
    EXPECT_EQ(calc.ui.events.size(), 2u);
}

TEST(Window, FunctionKeysOpenPagesFromTheMenuFace) {
    // F1 to F10 the first ten pages, F11 Snowtam, F12 Wind Comp.
    const int pages[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 17};
    for (int f = 1; f <= 12; ++f) {
        Calculator calc;
        calc.release(*functionKey(f));
        EXPECT_EQ(calc.menu.currentPage(), pages[f - 1]) << "F" << f;
        EXPECT_EQ(calc.menu.face(), Face::Page);
    }
    // The key drawn on a button is the key that opens its page.
    Calculator calc;
    const View view = calc.view();
    EXPECT_EQ(view.pages[17 - 1].key, "F12"); // Wind Comp
    EXPECT_EQ(view.pages[18 - 1].key, "");    // Currency has none
}

TEST(Window, CtrlOneToEightClickTheirRows) {
    for (char32_t c = '1'; c <= '8'; ++c) {
        Calculator calc(Dot, page::Weight);
        calc.type("2");
        calc.menu.keyDown({.character = c, .ctrl = true});
        const int row = static_cast<int>(c - '0');
        EXPECT_TRUE(calc.shown(row).input) << row;
    }
}

TEST(Window, EscapeEndsOnTheMenuAndClearsOnAPage) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "5");
    calc.menu.keyUp({.key = Key::Escape});
    EXPECT_EQ(calc.tag(1), "0");
    EXPECT_TRUE(calc.ui.events.empty());
    calc.menu.goBack();
    calc.menu.keyUp({.key = Key::Escape});
    EXPECT_EQ(calc.lastEvent(), "quit");
}

TEST(Window, PagesSetTheirPanelsAndMemoryKeys) {
    Calculator calc(Dot, page::Snowtam);
    EXPECT_FALSE(calc.menu.view().panels);
    EXPECT_EQ(calc.menu.view().display, "");
    calc.menu.openPage(page::Currency);
    EXPECT_TRUE(calc.menu.view().panels);
    EXPECT_EQ(calc.menu.view().memory[0].caption, "Rates");
    EXPECT_EQ(calc.menu.view().memory[1].caption, "Set");
    EXPECT_EQ(calc.menu.view().memory[2].caption, "i");
    calc.menu.openPage(page::Weight);
    EXPECT_EQ(calc.menu.view().memory[0].caption, "MRC");
}

TEST(Window, ReopeningAPageBlanksItAndBackToMenuKeepsIt) {
    Calculator calc(Dot, page::Weight);
    calc.enter(2, "165");
    calc.type("5");
    calc.menu.goBack();
    EXPECT_EQ(calc.caption(1), "74.83");
    calc.menu.clickRow(1); // no row is clicked on the menu face
    EXPECT_EQ(calc.caption(1), "74.83");
    calc.menu.openPage(page::Weight);
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(calc.tag(row), "0");
        EXPECT_EQ(calc.caption(row), "");
        EXPECT_FALSE(calc.menu.row(row).input);
    }
}

TEST(Window, TypingIsIgnoredOnTheMenuFace) {
    Calculator calc;
    calc.type("12");
    EXPECT_EQ(calc.menu.scratchPad().inputValue(), 0);
}

TEST(InputRow, ClickTakesTheEntryOrSelectsTheRow) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "12");
    EXPECT_TRUE(calc.menu.row(1).input);
    EXPECT_EQ(calc.menu.view().display, "0.");
    // Typing what the row already holds only selects it.
    calc.enter(1, "12");
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "12");
    EXPECT_EQ(calc.menu.view().display, "12.");
    // A zero entry selects a row and loads its value.
    calc.menu.clear();
    calc.enter(1, "5");
    calc.menu.clickRow(2);
    EXPECT_TRUE(calc.menu.row(2).input);
    EXPECT_FALSE(calc.menu.row(1).input);
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "11.025");
}

TEST(InputRow, RowsWithoutAUnitDoNothing) {
    Calculator calc(Dot, page::Angle);
    calc.type("5+3");
    calc.menu.clickRow(7);
    EXPECT_EQ(calc.menu.scratchPad().pendingOperator(), Operator::Add);
    EXPECT_EQ(calc.tag(7), "0");
}

TEST(RowRendering, DigitsKeyCyclesAndRerendersEveryRow) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "1");
    const std::pair<const char*, const char*> cycle[] = {
        {"0....", "35.27396584"}, {"0", "35"}, {"0.00", "35.27"}};
    for (const auto& [caption, ounces] : cycle) {
        calc.menu.pressDigits();
        EXPECT_EQ(calc.menu.view().digits, caption);
        EXPECT_EQ(calc.caption(6), ounces) << caption;
    }
}

TEST(RowRendering, TinyValuesRoundAndLongCaptionsAreSmall) {
    Calculator calc(Dot, page::Weight);
    calc.enter(8, "1");
    EXPECT_EQ(calc.caption(3), "0.00"); // a real 0.000001 still shows its rounding
    calc.enter(1, "123456");
    EXPECT_EQ(calc.caption(8), "123,456,000,000.00"); // 18 characters
    EXPECT_EQ(calc.shown(8).emphasis, emphasis::SmallRow);
    EXPECT_EQ(calc.shown(1).emphasis, emphasis::Row);
}

// A page whose converter doubles the entry into the other of rows 1 and 2;
// row 3 is never written.
Report doubleIntoTheOtherRow(PageSheet& page, double x, int& row) {
    page.setValue(row, x);
    page.setValue(3 - row, 2 * x);
    return {};
}

TEST(InputRow, ATypedZeroIsAValueOnEveryPage) {
    struct Case {
        const char* name;
        const char* typed;
        std::array<const char*, 3> captions;
        const char* display;
    };
    const Case cases[] = {
        {"a typed 0 is stored and shown", "0", {"0.00", "0.00", ""}, "0."},
        {"a typed 5 is stored", "5", {"5.00", "10.00", ""}, "0."},
        {"nothing typed only selects the row", "", {"", "", ""}, "0."},
        {"a typed -0.5 is stored", "-0.5", {"-0.50", "-1.00", ""}, "0."},
    };
    const PageTable table{
        .name = "Test", .rows = {{{"a"}, {"b"}, {"c"}}}, .convert = doubleIntoTheOtherRow};
    const std::array<const PageTable*, 1> list{&table};
    const PageCatalogue pages{list};
    for (const Case& c : cases) {
        Calculator calc(Dot, 1, pages);
        calc.enter(1, c.typed);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_EQ(calc.caption(row), c.captions[static_cast<std::size_t>(row - 1)])
                << c.name << ", row " << row;
        }
        EXPECT_TRUE(calc.menu.row(1).input) << c.name;
        EXPECT_EQ(calc.view().display, c.display) << c.name;
    }
    // A row click with nothing typed loads the row's value, 0 too.
    Calculator calc(Dot, 1, pages);
    calc.enter(1, "0");
    calc.menu.clickRow(2);
    EXPECT_TRUE(calc.menu.row(2).input);
    EXPECT_EQ(calc.caption(2), "0.00");
    EXPECT_FALSE(calc.menu.scratchPad().typed());
}

TEST(Clipboard, PastesANumberAsTyped) {
    const Symbols swiss{".", "'"};
    const std::tuple<const char*, Symbols, const char*, const char*> cases[] = {
        {"plain", Dot, "1234.5", "1,234.5"},
        {"grouped", Dot, "1,234.5", "1,234.5"},
        {"the regional grouping before three digits", Dot, "1,234", "1,234."},
        {"a lone comma is the decimal symbol", Dot, "1,5", "1.5"},
        {"German", Comma, "1.234,5", "1.234,5"},
        {"a point typed in Germany", Comma, "12.5", "12,5"},
        {"a German thousand", Comma, "1.234", "1.234,"},
        {"negative", Dot, "-42", "-42."},
        {"blanks and line ends", Dot, " 1 000\r\n", "1,000."},
        {"apostrophes group in Switzerland", swiss, "1'234.5", "1'234.5"},
        {"a unit word after the number is left out", Dot, "74.83 kg", "74.83"},
        {"German millions", Comma, "1.000.000", "1.000.000,"},
        {"nothing", Dot, "", "beep"},
        {"a sign alone", Dot, "-", "exclamation Weight: Not a number: -"},
        {"two decimal symbols", Dot, "3.4.5", "exclamation Weight: Not a number: 3.4.5"},
        {"a date", Comma, "30.10.2024", "exclamation Weight: Not a number: 30.10.2024"},
        {"two numbers", Dot, "12 kg 5", "exclamation Weight: Not a number: 12 kg 5"},
        {"words before it", Dot, "about 12", "exclamation Weight: Not a number: about 12"},
    };
    for (const auto& [name, symbols, text, shown] : cases) {
        Calculator calc(symbols, page::Weight);
        calc.type("5"); // replaced by a number, kept when the paste is refused
        calc.menu.paste(text);
        if (std::string_view(shown).find(' ') != std::string_view::npos ||
            shown == std::string("beep")) {
            EXPECT_EQ(calc.lastEvent(), shown) << name;
            EXPECT_EQ(calc.menu.view().display, symbols.decimal == "." ? "5." : "5,") << name;
            continue;
        }
        EXPECT_EQ(std::string(shown) == "beep" ? calc.lastEvent() : calc.menu.view().display, shown)
            << name;
    }
}

TEST(Report, AFieldsTextIsTakenWholeAsItsKeysWouldTypeIt) {
    Calculator calc(Dot, page::RwyCondition);
    // A screen's keyboard that composes words sends the word again and again.
    for (const char* composing : {"r", "r2", "r24", "r24l/290140 r06/451295"}) {
        calc.menu.writeReport(composing);
    }
    EXPECT_EQ(calc.view().display, "R24L/290140 R06/451295");
    calc.menu.enterReport("r24l/290140 r06/451295");
    EXPECT_EQ(calc.caption(1), "24L (1 of 2)");
    calc.menu.enterReport("R24L/290140 R06/451295"); // the same report: its next runway
    EXPECT_EQ(calc.caption(1), "06 (2 of 2)");
    calc.menu.openPage(page::Snowtam);
    calc.menu.enterReport("8829/0140x"); // figures and slashes, eight of them
    EXPECT_EQ(calc.view().display, "8829/014");
    EXPECT_EQ(calc.ui.events, (std::vector<std::string>{"beep"}));
}

TEST(Hint, HoursAndMinutesRowsSayHowTheyAreTyped) {
    Calculator calc(Comma, page::Endurance);
    EXPECT_EQ(calc.shown(7).hint, "1,30 = 1:30");
    EXPECT_EQ(calc.shown(8).hint, "");
    EXPECT_EQ(calc.view().hint, "");
    calc.menu.clickRow(7); // the input row now
    EXPECT_EQ(calc.view().hint, "1,30 = 1:30");
    calc.enter(7, "1,60");
    EXPECT_EQ(calc.lastEvent(), "beep");
    EXPECT_EQ(calc.view().hint, "1,60 refused: minutes under 60");
    calc.type("1");
    EXPECT_EQ(calc.view().hint, "1,30 = 1:30");
}

TEST(Clipboard, CopiesTheDisplayAndThePage) {
    Calculator calc(Comma, page::Wind);
    calc.enter(1, "90");
    calc.type("1234,5");
    EXPECT_EQ(calc.menu.displayNumber(), "1234,5");
    EXPECT_EQ(calc.menu.pageText(), "Wind\nHeading - °\t090\nTAS - kt\t\nCourse - °\t\n"
                                    "Ground Speed - kt\t\nWind Direction - °\t\n"
                                    "Wind Velocity - kt\t\nDrift - °\t\nWind Comp. - kt\t\n");
    calc.enter(2, "");
    EXPECT_EQ(calc.menu.rowText(2), "1234,50"); // without grouping
}

} // namespace
} // namespace zel::test
