// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/pagesheet.h"

namespace zel {

/// The program's own π: the single-precision value 3.1415927 (as a double
/// exactly 3.1415927410125732). Angles and the wind triangle use it as it is, so
/// 180° shows 3.14159274101257 radians, the figure pilots' tables were made with.
inline constexpr float Pi = 3.14159274101257324f;

/// How many row units make one base unit: f for f > 0, 1/|f| for f < 0, 1 for 0.
double multiplier(double factor);

/// Every converter takes the typed value and the input row by reference (the
/// Speed page moves it from the Beaufort row to row 1) and writes row tags.

/// Factor-table pages: every row from the input row through the page's base unit.
void Convert_Standard(PageSheet& page, double inputValue, int& inputRow);
/// Celsius, Fahrenheit, Kelvin, Rankine, through Celsius in row 1.
void Convert_Temperature(PageSheet& page, double inputValue, int& inputRow);
/// Degrees, radians, minutes, gradians, multiples of π and slope, through degrees.
void Convert_Angle(PageSheet& page, double inputValue, int& inputRow);
/// Six speed units, and the Beaufort force and description of the speed.
void Convert_Speed(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
