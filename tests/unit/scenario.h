// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "fakeplatform.h"

#include <gtest/gtest.h>

namespace zel::test {

/// What a scenario checks besides the tags.
struct Outcome {
    std::map<int, const char*> captions = {};
    std::vector<std::string> events = {}; ///< all the user was told; none by default
    int inputRow = 0;                     ///< the row marked as input, when checked
    const char* display = nullptr;        ///< the display, when checked
    Symbols symbols = Dot;
};

/// Values typed into rows one after the other on a page, and what the rows
/// then hold.
struct Scenario {
    const char* name;
    int page;
    std::vector<std::pair<int, const char*>> entries;
    std::map<int, const char*> tags;
    Outcome then = {};
};

template <std::size_t N> void check(const Scenario (&cases)[N]) {
    for (const Scenario& c : cases) {
        Calculator calc(c.then.symbols, c.page);
        for (const auto& [row, text] : c.entries) {
            calc.enter(row, text);
        }
        for (const auto& [row, tag] : c.tags) {
            EXPECT_EQ(calc.tag(row), tag) << c.name << ", tag " << row;
        }
        for (const auto& [row, caption] : c.then.captions) {
            EXPECT_EQ(calc.caption(row), caption) << c.name << ", caption " << row;
        }
        EXPECT_EQ(calc.ui.events, c.then.events) << c.name;
        for (int row = 1; c.then.inputRow != 0 && row <= PageSheet::Rows; ++row) {
            EXPECT_EQ(calc.menu.row(row).input, row == c.then.inputRow)
                << c.name << ", row " << row;
        }
        if (c.then.display != nullptr) {
            EXPECT_EQ(calc.menu.display(), c.then.display) << c.name;
        }
    }
}

} // namespace zel::test
