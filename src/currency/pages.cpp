// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/pages.h"

namespace zel {

Report convertCurrency(PageSheet& page, double inputValue, int& inputRow) {
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

extern const PageTable CurrencyPage{
    .name = "Currency", // the factors and row 8 come from the rate store
    .icon = "currency",
    .rows = {{{"Australian $ - AUD"},
              {"Canadian $ - CAD"},
              {"Euro - EUR"},
              {"Indian Rupee - INR"},
              {"Japan Yen - JPY"},
              {"UK Pound - GBP"},
              {"US Dollar - USD"}}},
    .convert = convertCurrency,
    .rateStore = true,
};

} // namespace zel
