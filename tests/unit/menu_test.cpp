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
    EXPECT_EQ(calc.menu.title(), "zelFLIGHTAB");
    EXPECT_EQ(calc.menu.display(), "0.");
    EXPECT_EQ(calc.menu.digitsCaption(), "0.00");
    EXPECT_TRUE(calc.ui.events.empty());

    Calculator comma(Comma);
    EXPECT_EQ(comma.menu.display(), "0,");
    EXPECT_EQ(comma.menu.digitsCaption(), "0,00");
}

TEST(Window, WarnsOnEveryActivationWhileTheSymbolsClash) {
    Calculator calc(Symbols{",", ","});
    const std::string expected =
        "information Format Numbers: The 'decimal symbol' and the 'digit grouping symbol'  on "
        "this computer are set-up the same.\r\r(e.g. standard atmosphere is displayed as "
        "1,013,25)\r\rThis causes calculations";
    ASSERT_EQ(calc.ui.events.size(), 1u);
    EXPECT_EQ(calc.ui.events[0].substr(0, expected.size()), expected);
    calc.menu.Form_Activate();
    EXPECT_EQ(calc.ui.events.size(), 2u);
    calc.regional.value = Comma;
    calc.menu.Form_Activate();
    EXPECT_EQ(calc.ui.events.size(), 2u);
}

TEST(Window, FunctionKeysOpenPagesFromTheMenuFace) {
    // F1 to F10 the first ten pages, F11 Snowtam, F12 Wind Comp.
    const int pages[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 17};
    for (int f = 1; f <= 12; ++f) {
        Calculator calc;
        calc.menu.Form_KeyUp(key::F1 + f - 1);
        EXPECT_EQ(calc.menu.currentPage(), pages[f - 1]) << "F" << f;
        EXPECT_EQ(calc.menu.face(), Face::Page);
    }
    EXPECT_EQ(pageCatalogue().page(18).keyCaption, "F12"); // drawn on Currency, opens Wind Comp
    EXPECT_EQ(pageCatalogue().page(17).keyCaption, "");
}

TEST(Window, EscapeEndsOnTheMenuAndClearsOnAPage) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "5");
    calc.menu.Form_KeyUp(key::Escape);
    EXPECT_EQ(calc.tag(1), "0");
    EXPECT_TRUE(calc.ui.events.empty());
    calc.menu.LabelMenu_Click();
    calc.menu.Form_KeyUp(key::Escape);
    EXPECT_EQ(calc.lastEvent(), "quit");
}

TEST(Window, PagesSetTheirPanelsAndMemoryKeys) {
    Calculator calc(Dot, page::Snowtam);
    EXPECT_FALSE(calc.menu.panelsVisible());
    EXPECT_EQ(calc.menu.display(), "");
    calc.menu.LabMenu_Click(page::Currency);
    EXPECT_TRUE(calc.menu.panelsVisible());
    EXPECT_EQ(calc.menu.memoryCaption(0), "Rates");
    EXPECT_EQ(calc.menu.memoryCaption(1), "Set");
    EXPECT_EQ(calc.menu.memoryCaption(2), "i");
    calc.menu.LabMenu_Click(page::Weight);
    EXPECT_EQ(calc.menu.memoryCaption(0), "MRC");
}

TEST(Window, ReopeningAPageBlanksItAndBackToMenuKeepsIt) {
    Calculator calc(Dot, page::Weight);
    calc.enter(2, "165");
    calc.type("5");
    calc.menu.LabelMenu_Click();
    EXPECT_EQ(calc.caption(1), "74.83");
    calc.menu.LabValue_Click(1); // no row is clicked on the menu face
    EXPECT_EQ(calc.caption(1), "74.83");
    calc.menu.LabMenu_Click(page::Weight);
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
    EXPECT_EQ(calc.menu.display(), "0.");
    // Typing what the row already holds only selects it.
    calc.enter(1, "12");
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "12");
    EXPECT_EQ(calc.menu.display(), "12.");
    // A zero entry selects a row and loads its value.
    calc.menu.LabC_Click();
    calc.enter(1, "5");
    calc.menu.LabValue_Click(2);
    EXPECT_TRUE(calc.menu.row(2).input);
    EXPECT_FALSE(calc.menu.row(1).input);
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "11.025");
}

TEST(InputRow, RowsWithoutAUnitDoNothing) {
    Calculator calc(Dot, page::Angle);
    calc.type("5+3");
    calc.menu.LabValue_Click(7);
    EXPECT_EQ(calc.menu.scratchPad().pendingOperator(), 1);
    EXPECT_EQ(calc.tag(7), "0");
}

TEST(RowRendering, DigitsKeyCyclesAndRerendersEveryRow) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "1");
    const std::pair<const char*, const char*> cycle[] = {
        {"0....", "35.27396584"}, {"0", "35"}, {"0.00", "35.27"}};
    for (const auto& [caption, ounces] : cycle) {
        calc.menu.LabDEC_Click();
        EXPECT_EQ(calc.menu.digitsCaption(), caption);
        EXPECT_EQ(calc.caption(6), ounces) << caption;
    }
}

TEST(RowRendering, TinyValuesRoundAndLongCaptionsAreSmall) {
    Calculator calc(Dot, page::Weight);
    calc.enter(8, "1");
    EXPECT_EQ(calc.caption(3), "0.00"); // a real 0.000001 still shows its rounding
    calc.enter(1, "123456");
    EXPECT_EQ(calc.caption(8), "123,456,000,000.00"); // 18 characters
    EXPECT_TRUE(calc.menu.row(8).compact);
    EXPECT_FALSE(calc.menu.row(1).compact);
}

// A page of the kind where a typed zero is a value: the converter doubles the
// entry into the other of rows 1 and 2; row 3 is never written.
Report doubleIntoTheOtherRow(PageSheet& page, double x, int& row) {
    page.setValue(row, x);
    page.setValue(3 - row, 2 * x);
    return {};
}

TEST(InputRow, ATypedZeroIsAValueWhereThePageSaysSo) {
    struct Case {
        const char* name;
        bool zeroIsValue;
        const char* typed;
        std::array<const char*, 3> captions;
    };
    const Case cases[] = {
        {"a typed 0 is stored and shown", true, "0", {"0.00", "0.00", ""}},
        {"a typed 5 is stored as everywhere", true, "5", {"5.00", "10.00", ""}},
        {"nothing typed only selects the row", true, "", {"", "", ""}},
        {"elsewhere a typed 0 only selects", false, "0", {"", "", ""}},
        {"elsewhere a typed 5 is stored", false, "5", {"5.00", "10.00", ""}},
    };
    for (const Case& c : cases) {
        std::array<PageTable, 1> table{{{.number = 1,
                                         .name = "Test",
                                         .rows = {{{"a"}, {"b"}, {"c"}}},
                                         .convert = doubleIntoTheOtherRow,
                                         .zeroIsValue = c.zeroIsValue}}};
        const PageCatalogue pages{table};
        Calculator calc(Dot, 1, pages);
        calc.enter(1, c.typed);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_EQ(calc.caption(row), c.captions[static_cast<std::size_t>(row - 1)])
                << c.name << ", row " << row;
        }
        EXPECT_TRUE(calc.menu.row(1).input) << c.name;
    }
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
        calc.menu.Form_Paste(text);
        if (std::string_view(shown).find(' ') != std::string_view::npos ||
            shown == std::string("beep")) {
            EXPECT_EQ(calc.lastEvent(), shown) << name;
            EXPECT_EQ(calc.menu.display(), symbols.decimal == "." ? "5." : "5,") << name;
            continue;
        }
        EXPECT_EQ(std::string(shown) == "beep" ? calc.lastEvent() : calc.menu.display(), shown)
            << name;
    }
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
