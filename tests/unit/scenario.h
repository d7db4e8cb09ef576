// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zel::test {

/// Values typed into rows on a page, one after the other, and what the page
/// then holds. `entries` reads "1000@1 2000@3": type 1000, click row 1, and so
/// on; "@4" clicks row 4 with nothing typed, and in what is typed "{mrc}"
/// presses MRC and "{bs}" Backspace. `expect` is a list split by "|": "2=2205" row 2's tag,
/// "7:R 11.31" row 7's caption ("8:" an empty one), "!beep" what the user was told, in order
/// (nothing, when no such item is given), ">4" the input row, "#300." the display,
/// "~Caution: ..." the page's note, "?..." the hint.
struct Scenario {
    const char* name;
    int page;
    const char* entries;
    const char* expect;
    Symbols symbols = Dot;
};

inline std::string trimmed(std::string text) {
    const auto first = text.find_first_not_of(' ');
    const auto last = text.find_last_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

/// The row N of "N=..." or "N:...", or 0 when the item names no row 1..8.
inline int rowOf(const std::string& item, std::size_t mark) {
    if (mark == 0 || mark == std::string::npos || item.find_first_not_of("0123456789") != mark) {
        return 0;
    }
    const int row = std::stoi(item.substr(0, mark));
    return row >= 1 && row <= PageSheet::Rows ? row : 0;
}

inline void check(const Scenario& c) {
    const std::string name = std::string(c.name) + " [" + c.entries + "]";
    Calculator calc(c.symbols, c.page);
    std::istringstream entries(c.entries);
    for (std::string entry; entries >> entry;) {
        const auto at = entry.rfind('@');
        const std::string rowText = at == std::string::npos ? "" : entry.substr(at + 1) + "=";
        const int row = rowOf(rowText, rowText.size() - 1);
        if (row == 0) {
            ADD_FAILURE() << name << ": cannot read the entry \"" << entry << '"';
            return;
        }
        const std::string keys = entry.substr(0, at);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (keys.compare(i, 5, "{mrc}") == 0) {
                calc.menu.pressMemory(MemoryKey::Recall);
                i += 4;
            } else if (keys.compare(i, 4, "{bs}") == 0) {
                calc.menu.keyDown({.key = Key::Backspace});
                i += 3;
            } else {
                calc.menu.type(static_cast<unsigned char>(keys[i]));
            }
        }
        calc.menu.clickRow(row);
    }
    std::vector<std::string> events;
    std::istringstream expect(c.expect);
    for (std::string item; std::getline(expect, item, '|');) {
        item = trimmed(item);
        const auto mark = item.find_first_of("=:");
        if (item.starts_with('!')) {
            events.push_back(item.substr(1));
        } else if (item.starts_with('>')) {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                EXPECT_EQ(calc.menu.row(row).input, row == std::stoi(item.substr(1)))
                    << name << ", input row " << row;
            }
        } else if (item.starts_with('?')) {
            EXPECT_EQ(calc.view().hint, item.substr(1)) << name;
        } else if (item.starts_with('~')) {
            EXPECT_EQ(calc.view().note, item.substr(1)) << name;
        } else if (item.starts_with('#')) {
            EXPECT_EQ(calc.view().display, item.substr(1)) << name;
        } else if (const int row = rowOf(item, mark); row > 0) {
            EXPECT_EQ(item[mark] == '=' ? calc.tag(row) : calc.caption(row), item.substr(mark + 1))
                << name << ", " << item;
        } else if (!item.empty()) {
            ADD_FAILURE() << name << ": cannot read the expectation \"" << item << '"';
        }
    }
    EXPECT_EQ(calc.ui.events, events) << name;
}

template <std::size_t N> void check(const Scenario (&cases)[N]) {
    for (const Scenario& c : cases) {
        check(c);
    }
}

} // namespace zel::test
