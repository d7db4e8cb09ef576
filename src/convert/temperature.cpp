// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"
#include "page/units.h"

namespace zel {
namespace {

/// 0 °C in rankine: 273.15 K in degrees of Fahrenheit's size.
constexpr double ZeroCelsiusRankine = 491.67;

} // namespace

Report convertTemperature(PageSheet& page, double x, int& inputRow) {
    // The typed value goes to Celsius in row 1 first; every row is then derived
    // from what row 1 holds, so all rows agree with the row shown.
    switch (inputRow) {
    case 1:
        page.setValue(1, x);
        break;
    case 2:
        page.setValue(1, (x - 32) * 5 / 9);
        break;
    case 3:
    case 4:
        if (x < 0) {
            return Report::beep(); // absolute scales have no negative values
        }
        page.setValue(1, inputRow == 3 ? units::celsius(x) : (x - ZeroCelsiusRankine) * 5 / 9);
        break;
    default:
        break;
    }
    page.setValue(2, page.value(1) * 9 / 5 + 32);
    page.setValue(3, units::kelvin(page.value(1)));
    page.setValue(4, page.value(1) * 9 / 5 + ZeroCelsiusRankine);
    return {};
}

} // namespace zel
