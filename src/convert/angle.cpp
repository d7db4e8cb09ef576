// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"
#include "page/units.h"

#include <cmath>

namespace zel {

Report convertAngle(PageSheet& page, double x, int& inputRow) {
    const double pi = units::TablePi;
    // To degrees in row 1 first; the π-multiple row uses the exact 180.
    switch (inputRow) {
    case 1:
        page.setValue(1, x);
        break;
    case 2:
        page.setValue(1, x / pi * 180);
        break;
    case 3:
        page.setValue(1, x / 60);
        break;
    case 4:
        page.setValue(1, x / 400 * 360);
        break;
    case 5:
        page.setValue(1, x * 180);
        break;
    case 6: // a slope in percent is the tangent of the angle
        page.setValue(1, std::atan(x / 100) * 180 / pi);
        break;
    default:
        break;
    }
    page.setValue(2, page.value(1) * pi / 180);
    page.setValue(3, page.value(1) * 60);
    page.setValue(4, page.value(1) / 360 * 400);
    page.setValue(5, page.value(1) / 180);
    page.setValue(6, std::tan(page.value(1) / 180 * pi) * 100);
    return {};
}

} // namespace zel
