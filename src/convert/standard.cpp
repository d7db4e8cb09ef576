// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"

#include <cmath>

namespace zel {

double multiplier(double factor) {
    if (factor == 0) {
        return 1; // 0 ^ 0
    }
    // A negative factor says one unit of the row is |f| base units.
    return factor > 0 ? factor : 1 / -factor;
}

void Convert_Standard(PageSheet& page, double inputValue, int& inputRow) {
    if (inputValue < 0) {
        page.beep(); // negative quantities are refused, money included
        return;
    }
    const double base = inputValue / multiplier(page.factor(inputRow));
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (page.exists(row)) {
            // The input row is rewritten too, with the same rounding as the others.
            page.setValue(row, multiplier(page.factor(row)) * base);
        }
    }
}

} // namespace zel
