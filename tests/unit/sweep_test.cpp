// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Every page, every ordered pair of rows, every pair of hard entries: nothing
// crashes, nothing non-finite is stored or shown, and a click that changes
// nothing says so with a beep or a message.
#include "app/catalogue.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zel::test {
namespace {

/// Keys of an entry: characters are typed, "=" releases Enter.
struct Entry {
    const char* name;
    std::string keys;
};

std::string repeat(const std::string& keys, int times) {
    std::string out;
    for (int i = 0; i < times; ++i) {
        out += keys;
    }
    return out;
}

const std::string Big = "99999999999999"; // 1E+14, as many digits as an entry takes

const Entry Entries[] = {
    {"zero", "0"},
    {"tiny", "0.00000000000001"},
    {"negative", "-7.5"},
    {"long decimal", "3.14159265358979323846"},
    // Squared four times: about 1E+224; then multiplied on to about 1E+308,
    // which no row can be multiplied from without leaving the double range.
    {"huge", Big + "*=*=*=*="},
    {"huger", Big + "*=*=*=*=" + repeat("*" + Big, 6) + "="},
};

void press(Calculator& calc, const std::string& keys) {
    for (char c : keys) {
        if (c == '=') {
            calc.menu.Form_KeyUp(key::Enter);
        } else {
            calc.menu.Form_KeyPress(static_cast<unsigned char>(c));
        }
    }
}

bool showsNonFinite(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
}

/// What a user can see change: every row's tag and caption.
std::vector<std::string> rowsOf(const Menu& menu) {
    std::vector<std::string> rows;
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        rows.push_back(menu.row(row).tag + '|' + menu.row(row).caption);
    }
    return rows;
}

void expectFinite(const Calculator& calc, const std::string& where) {
    const ScratchPad& pad = calc.menu.scratchPad();
    EXPECT_TRUE(std::isfinite(pad.inputValue()) && std::isfinite(pad.accumulator()) &&
                std::isfinite(pad.memory()))
        << where;
    EXPECT_FALSE(showsNonFinite(calc.menu.display())) << where;
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        EXPECT_FALSE(showsNonFinite(calc.menu.row(row).tag) ||
                     showsNonFinite(calc.menu.row(row).caption))
            << where << ": row " << row;
    }
}

std::string where(int page, const Entry& entry, int row) {
    return std::string(pageCatalogue().page(page).name) + ": " + entry.name + " on row " +
           std::to_string(row);
}

TEST(Sweep, EveryEntryOnAFreshPageConvertsOrSaysWhyNot) {
    for (int page = 1; page <= pageCatalogue().count(); ++page) {
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            for (const Entry& entry : Entries) {
                Calculator calc(Dot, page);
                press(calc, entry.keys);
                const std::size_t events = calc.ui.events.size();
                const bool typed = calc.menu.scratchPad().inputValue() != 0;
                calc.menu.LabValue_Click(row);
                const bool changed = rowsOf(calc.menu) != rowsOf(Calculator(Dot, page).menu);
                if (typed && calc.menu.row(row).unit.size() && page != page::Snowtam) {
                    EXPECT_TRUE(changed || calc.ui.events.size() > events)
                        << "silent refusal: " << where(page, entry, row);
                }
                expectFinite(calc, where(page, entry, row));
            }
        }
    }
}

TEST(Sweep, EveryPairOfEntriesOnEveryPairOfRows) {
    for (int page = 1; page <= pageCatalogue().count(); ++page) {
        for (int first = 1; first <= PageSheet::Rows; ++first) {
            for (int second = 1; second <= PageSheet::Rows; ++second) {
                for (const Entry& a : Entries) {
                    for (const Entry& b : Entries) {
                        Calculator calc(Dot, page);
                        press(calc, a.keys);
                        calc.menu.LabValue_Click(first);
                        press(calc, b.keys);
                        calc.menu.LabValue_Click(second);
                        expectFinite(calc,
                                     where(page, a, first) + ", then " + where(page, b, second));
                        if (HasFailure()) {
                            return;
                        }
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace zel::test
