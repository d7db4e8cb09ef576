// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <array>
#include <optional>

namespace zel {

/// The wind triangle, single precision, indexed 1..8: heading, TAS, course,
/// ground speed, wind direction, wind velocity, drift (course - heading, + when
/// the wind pushes right), wind component (ground speed - TAS, + for a tailwind).
/// Degrees and knots; a value of -999 or less means unknown.
using WindT = std::array<float, 9>;
inline constexpr float Unknown = -999;

/// Nautical miles to kilometres, as the navigation pages have always used it.
inline constexpr double KilometresPerNauticalMile = 1.851999692;

/// arctan(x / sqrt(1 - x^2)); nothing where that is undefined (|x| >= 1).
std::optional<double> ArcSin(double x);

/// Solves the wind triangle for what is missing. False, writing nothing, when
/// too little is known or the triangle is impossible.
bool WindT_Calculate(WindT& windT);

Report Convert_WindTriangle(PageSheet& page, double inputValue, int& inputRow);
Report Convert_TrackTime(PageSheet& page, double inputValue, int& inputRow);
/// Axis (- head, + tail) and cross wind (+ from the right) for a runway.
Report Convert_WindComp(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
