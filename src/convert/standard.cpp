// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"

namespace zel {

Report convertByFactor(PageSheet& page, double inputValue, int& inputRow) {
    if (inputValue < 0) {
        return Report::beep(); // negative quantities are refused, money included
    }
    const double base = inputValue / multiplier(page.factor(inputRow));
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (page.exists(row)) {
            // The input row is rewritten too, with the same rounding as the others.
            page.setValue(row, multiplier(page.factor(row)) * base);
        }
    }
    return {};
}

} // namespace zel
