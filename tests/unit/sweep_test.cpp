// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Every page, every ordered pair of rows, every pair of hard entries: nothing
// crashes, nothing non-finite is stored or shown, and a click that changes
// nothing says so with a beep or a message.
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zel::test {
namespace {

const std::string Big = "99999999999999"; // 1E+14, as many digits as an entry takes

/// Keys of an entry: characters are typed, "=" releases Enter.
const std::pair<const char*, std::string> Entries[] = {
    {"zero", "0"},
    {"tiny", "0.00000000000001"},
    {"negative", "-7.5"},
    {"long decimal", "3.14159265358979323846"},
    // Squared four times: about 1E+224; then multiplied on to about 1E+308,
    // which no row can be multiplied from without leaving the double range.
    {"huge", Big + "*=*=*=*="},
    {"huger",
     Big + "*=*=*=*=*" + Big + "*" + Big + "*" + Big + "*" + Big + "*" + Big + "*" + Big + "="},
};

void press(Calculator& calc, const std::string& keys) {
    for (char c : keys) {
        if (c == '=') {
            calc.menu.keyUp({.key = Key::Enter});
        } else {
            calc.menu.type(static_cast<unsigned char>(c));
        }
    }
}

/// What a user can see change: every row's value, in full and as drawn.
std::vector<std::string> rowsOf(const Menu& menu) {
    std::vector<std::string> rows;
    for (const RowView& shown : menu.view().rows) {
        rows.push_back(shown.full + '|' + shown.value);
    }
    return rows;
}

TEST(Sweep, EveryPairOfEntriesOnEveryPairOfRows) {
    for (int page = 1; page <= pageCatalogue().count(); ++page) {
        const PageTable& table = pageCatalogue().page(page);
        for (int first = 1; first <= PageSheet::Rows; ++first) {
            for (int second = 1; second <= PageSheet::Rows; ++second) {
                for (const auto& [a, aKeys] : Entries) {
                    for (const auto& [b, bKeys] : Entries) {
                        Calculator calc(Dot, page);
                        press(calc, aKeys);
                        const bool typed = calc.menu.scratchPad().inputValue() != 0;
                        const std::size_t told = calc.ui.events.size();
                        calc.menu.clickRow(first);
                        const std::string where =
                            std::string(table.name) + ": " + a + " on row " + std::to_string(first);
                        // A first click that takes a value changes a row or says why not.
                        if (second == 1 && typed && table.row(first).unit.size() &&
                            !table.isText()) {
                            EXPECT_TRUE(rowsOf(calc.menu) != rowsOf(Calculator(Dot, page).menu) ||
                                        calc.ui.events.size() > told)
                                << "silent refusal: " << where;
                        }
                        press(calc, bKeys);
                        calc.menu.clickRow(second);
                        EXPECT_EQ(nonFinite(calc.menu), "")
                            << where << ", then " << b << " on row " << second;
                        if (HasFailure()) {
                            return;
                        }
                    }
                }
            }
        }
    }
}

TEST(Sweep, EveryPairOfEntriesOnEveryPairOfSheetCells) {
    // The shipped C172S with an empty weight of its own, its taxi fuel, its
    // combined baggage limit and its utility category's conditions.
    Calculator base(Dot, 28);
    const View view = base.menu.view();
    const auto& shown = *view.loading;
    int cells = shown.target.entry;
    for (const auto& line : shown.lines) {
        cells = std::max({cells, line.volume.entry, line.weight.entry, line.arm.entry});
    }
    ASSERT_GE(cells,
              11); // empty weight and arm, five stations, fuel and burn both ways, the target
    for (int first = 1; first <= cells; ++first) {
        for (int second = 1; second <= cells; ++second) {
            for (const auto& [a, aKeys] : Entries) {
                for (const auto& [b, bKeys] : {Entries[2], Entries[4]}) {
                    Calculator calc(Dot, 28);
                    press(calc, "1642");
                    calc.menu.clickRow(1);
                    press(calc, "39.7");
                    calc.menu.clickRow(2);
                    press(calc, "240");
                    calc.menu.clickRow(8);
                    press(calc, aKeys);
                    calc.menu.clickRow(first);
                    press(calc, bKeys);
                    calc.menu.clickRow(second);
                    EXPECT_EQ(nonFinite(calc.menu), "")
                        << a << " in cell " << first << ", then " << b << " in cell " << second;
                    if (HasFailure()) {
                        return;
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace zel::test
