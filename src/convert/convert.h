// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

namespace zel {

/// Every converter takes the typed value and the input row by reference (the
/// Speed page moves it from the Beaufort row to row 1), writes the rows'
/// values and reports what it refused.

/// Factor-table pages: every row from the input row through the page's base unit.
Report convertByFactor(PageSheet& page, double inputValue, int& inputRow);
/// Celsius, Fahrenheit, Kelvin, Rankine, through Celsius in row 1.
Report convertTemperature(PageSheet& page, double inputValue, int& inputRow);
/// Degrees, radians, minutes, gradians, multiples of π and slope, through degrees.
Report convertAngle(PageSheet& page, double inputValue, int& inputRow);
/// Six speed units, and the Beaufort force and description of the speed.
Report convertSpeed(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
