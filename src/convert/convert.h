// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <span>

namespace zel {

/// Every converter takes the typed value and the input row by reference (the
/// Speed page moves it from the Beaufort row to row 1), writes row tags and
/// reports what it refused.

/// Factor-table pages: every row from the input row through the page's base unit.
Report Convert_Standard(PageSheet& page, double inputValue, int& inputRow);
/// Celsius, Fahrenheit, Kelvin, Rankine, through Celsius in row 1.
Report Convert_Temperature(PageSheet& page, double inputValue, int& inputRow);
/// Degrees, radians, minutes, gradians, multiples of π and slope, through degrees.
Report Convert_Angle(PageSheet& page, double inputValue, int& inputRow);
/// Six speed units, and the Beaufort force and description of the speed.
Report Convert_Speed(PageSheet& page, double inputValue, int& inputRow);

/// The unit converter pages: Weight, Fluid, Surface, Speed, Distance, Angle,
/// Temperature, Pressure and Power.
std::span<const PageTable> unitPages();

} // namespace zel
