// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/solver.h"

#include "page/units.h"

#include <cmath>

namespace zel {
namespace {

using namespace solver;

/// A gradient in ft/nm over the feet in a nautical mile is the tangent of the
/// path angle.
using units::FeetPerNauticalMile;

enum Quantity { Height, Distance, GroundSpeed, Minutes, VerticalSpeed, Gradient };

/// Minutes = 60 x distance / ground speed.
double minutes(int target, const std::array<double, 3>& v) {
    const double t = v[0], d = v[1], gs = v[2];
    return target == 0 ? 60 * d / gs : target == 1 ? t * gs / 60 : 60 * d / t;
}

double toAngle(double gradient) {
    return units::degrees(std::atan(gradient / FeetPerNauticalMile));
}
double fromAngle(double degrees) {
    return std::tan(units::radians(degrees)) * FeetPerNauticalMile;
}
double toPercent(double gradient) {
    return 100 * gradient / FeetPerNauticalMile;
}
double fromPercent(double percent) {
    return percent * FeetPerNauticalMile / 100;
}

constexpr std::string_view BadAngle = "Invalid angle (range 0 - 45°)";

std::optional<std::string_view> steep(const Quantities& q) {
    if (q[Gradient] && !(toAngle(*q[Gradient]) < 45)) {
        return BadAngle;
    }
    return std::nullopt;
}

constexpr Relation Relations[] = {
    {.quantities = {Height, Gradient, Distance}, .solve = product},
    // Vertical speed = gradient x ground speed / 60 (ft/min from ft/nm at kt).
    {.quantities = {VerticalSpeed, Gradient, GroundSpeed}, .solve = productPerSixty},
    {.quantities = {Minutes, Distance, GroundSpeed}, .solve = minutes},
    {.quantities = {Height, VerticalSpeed, Minutes}, .solve = product},
};

} // namespace

// The path is one quantity, shown as an angle, a gradient and a percentage.
extern const PageTable DescentPage{
    .name = "Descent",
    .icon = "descent",
    .rows = {{
        {.unit = "Altitude Change - ft", .quantity = Height},
        {.unit = "Distance - nm", .quantity = Distance},
        {.unit = "Ground Speed - kt", .quantity = GroundSpeed},
        {.unit = "Time - min", .quantity = Minutes},
        {.unit = "Vertical Speed - ft/min", .quantity = VerticalSpeed},
        {.unit = "Path Angle - °",
         .quantity = Gradient,
         .toRow = toAngle,
         .fromRow = fromAngle,
         .range = {0, 45, true, BadAngle, true}},
        // 45° is a gradient as steep as the nautical mile is long.
        {.unit = "Gradient - ft/nm",
         .quantity = Gradient,
         .range = {0, FeetPerNauticalMile, true, "Invalid gradient (range 0 - 6076.12 ft/nm)",
                   true}},
        {.unit = "Gradient - %",
         .quantity = Gradient,
         .toRow = toPercent,
         .fromRow = fromPercent,
         .range = {0, 100, true, "Invalid gradient (range 0 - 100 %)", true}},
    }},
    .formulas = {.relations = Relations, .freedom = 3, .check = steep},
};

} // namespace zel
