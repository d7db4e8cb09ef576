// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/pages.h"

#include <array>

namespace zel {

Report Convert_Currency(PageSheet& page, double inputValue, int& inputRow) {
    if (inputValue < 0 || page.factor(inputRow) == 0) {
        return Report::beep(); // no negative money, and no rate to convert it with
    }
    const double euros = inputValue / multiplier(page.factor(inputRow));
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (!page.exists(row)) {
            continue;
        }
        if (page.factor(row) == 0) {
            page.clear(row); // never one to one
        } else {
            page.setValue(row, multiplier(page.factor(row)) * euros);
        }
    }
    return {};
}

namespace {

constexpr std::array<PageTable, 1> Pages{{
    {.number = 18,
     .name = "Currency", // the factors and row 8 come from the rate store
     .icon = "currency",
     .rows = {{{"Australian $ - AUD"},
               {"Canadian $ - CAD"},
               {"Euro - EUR"},
               {"Indian Rupee - INR"},
               {"Japan Yen - JPY"},
               {"UK Pound - GBP"},
               {"US Dollar - USD"}}},
     .convert = Convert_Currency,
     .rateStore = true,
     .keyCaption = "F12"}, // drawn here, although F12 opens Wind Comp
}};

} // namespace

std::span<const PageTable> currencyPages() {
    return Pages;
}

} // namespace zel
