// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <map>

namespace zel::test {
namespace {

struct Group {
    const char* name;
    const char* group;
    std::map<int, const char*> captions;
};

TEST(Snowtam, DecodesEachFieldByItself) {
    const Group cases[] = {
        {"all runways, wet, good",
         "88290140",
         {{1, "All RWY"},
          {2, "Wet / Water Patches"},
          {4, "51% - 100%"},
          {6, "01 mm"},
          {7, "0.40"},
          {8, "Good"}}},
        {"right-hand runway, estimated braking",
         "59450295",
         {{1, "09R"},
          {2, "Dry Snow"},
          {4, "26% - 50%"},
          {6, "02 mm"},
          {7, "0.40 - 1.00"},
          {8, "Good"}}},
        {"not reported",
         "27//////",
         {{1, "27"},
          {2, "(not reported)"},
          {4, "(not reported)"},
          {6, "(not relevant)"},
          {7, ""},
          {8, "(not reported)"}}},
        {"previous report, closed",
         "99319912",
         {{1, "Previous Report"}, {6, "RWY closed"}, {7, "0.12"}, {8, "Poor"}}},
        {"bad extent code", "0773//25", {{1, "07"}, {2, "Ice"}, {4, "(invalid entry)"}}},
        {"depth code kept as typed", "10519029", {{6, "90 mm"}, {7, "0.29"}, {8, "Medium-Poor"}}},
        {"unreliable braking", "01000099", {{7, "(unreliable)"}, {8, "(not reported)"}}},
        {"codes 96 to 98 say nothing", "01000097", {{7, ""}, {8, ""}}},
        {"estimated medium", "01009393", {{6, "150 mm"}, {7, "0.30 - 0.35"}, {8, "Medium"}}},
    };
    for (const auto& c : cases) {
        Calculator calc(Dot, page::Snowtam);
        calc.type(c.group);
        calc.menu.Form_KeyUp(key::Enter);
        for (const auto& [row, caption] : c.captions) {
            EXPECT_EQ(calc.caption(row), caption) << c.name << ", row " << row;
        }
    }
}

TEST(Snowtam, LongCaptionsAreSmall) {
    Calculator calc(Dot, page::Snowtam);
    calc.type("01360000");
    calc.menu.LabValue_Click(1);
    EXPECT_EQ(calc.caption(2), "Rime - Frost < 1mm");
    EXPECT_EQ(calc.menu.row(2).fontSize, 9);
    calc.menu.LabC_Click();
    calc.type("01600000");
    calc.menu.LabValue_Click(5);
    EXPECT_EQ(calc.caption(2), "Slush");
    EXPECT_EQ(calc.menu.row(2).fontSize, 12);
}

TEST(Snowtam, KeyboardTakesEightCodeCharacters) {
    Calculator calc(Dot, page::Snowtam);
    calc.type("12a34//56");
    EXPECT_EQ(calc.menu.display(), "1234//56");
    calc.type("7");
    EXPECT_EQ(calc.lastEvent(), "beep");
    calc.menu.Form_KeyPress(key::Backspace);
    EXPECT_EQ(calc.menu.display(), "1234//5");
    calc.menu.Form_KeyUp(key::Enter);
    EXPECT_EQ(calc.lastEvent(), "exclamation Snowtam: Snowtam must be 8 digits...");
    for (int i = 0; i < 9; ++i) {
        calc.menu.Form_KeyPress(key::Backspace);
    }
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "");
}

} // namespace
} // namespace zel::test
