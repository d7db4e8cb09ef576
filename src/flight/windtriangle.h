// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <string_view>

/// The wind triangle: the air vector (TAS along the heading) plus the wind
/// (its speed, blowing from its direction) is the ground vector (ground speed
/// along the course). Directions are true degrees from 001 to 360, north 360.
namespace zel::wind {

/// Where a page keeps the triangle's quantities; -1 for one it does not show.
struct Slots {
    int heading = -1;
    int tas = -1;
    int course = -1;
    int groundSpeed = -1;
    int windDirection = -1;
    int windSpeed = -1;
    int drift = -1;     ///< course - heading: + when the wind pushes to the right
    int component = -1; ///< ground speed - TAS: + for a tailwind
};

/// Fills in what the known quantities give: from two whole vectors the
/// third; from the wind, the course and the TAS the heading and ground speed
/// (the aircraft heading into the wind so that it holds the course); from
/// one whole vector and the directions of the other two, their speeds. A set
/// that more than one triangle fits gives nothing. False when nothing was
/// filled in.
bool derive(Quantities& q, const Slots& slots);

/// The message when the wind, course and TAS are known but no heading holds
/// the course: the wind blowing against it, or across it, is at least the TAS.
std::optional<std::string_view> noHeading(const Quantities& q, const Slots& slots);

/// A direction from 1 to 360: north is 360, never 0.
double direction(double degrees);

inline constexpr std::string_view BadDirection = "Invalid direction (range 1 - 360°)";
inline constexpr Range DirectionRange{1, 360, false, BadDirection};

/// A row of one of the triangle's directions: three digits, 001 to 360.
constexpr RowSpec directionRow(std::string_view unit, int quantity) {
    return {.unit = unit,
            .form = Form::Direction,
            .quantity = quantity,
            .sign = Sign::NotNegative,
            .range = DirectionRange};
}

} // namespace zel::wind
