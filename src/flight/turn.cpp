// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/solver.h"

#include "page/units.h"

#include <cmath>

namespace zel {
namespace {

using namespace solver;

using units::degrees, units::radians, units::MetresPerSecondPerKnot, units::MetresPerNauticalMile;
constexpr double G0 = units::Gravity;

enum Quantity { Tas, Bank, Rate, Radius };

/// In a coordinated level turn the lift's sideways part turns the aircraft:
/// rate = g0 x tan(bank) / speed.
double rate(int target, const std::array<double, 3>& v) {
    const double speed = v[0] * MetresPerSecondPerKnot;
    const double bank = radians(v[1]);
    const double omega = radians(v[2]);
    switch (target) {
    case 0:
        return G0 * std::tan(bank) / omega / MetresPerSecondPerKnot;
    case 1:
        return degrees(std::atan(omega * speed / G0));
    default:
        return degrees(G0 * std::tan(bank) / speed);
    }
}

/// Radius = speed / rate.
double radiusOfRate(int target, const std::array<double, 3>& v) {
    const double speed = v[0] * MetresPerSecondPerKnot;
    const double omega = radians(v[1]);
    const double radius = v[2] * MetresPerNauticalMile;
    switch (target) {
    case 0:
        return radius * omega / MetresPerSecondPerKnot;
    case 1:
        return degrees(speed / radius);
    default:
        return speed / omega / MetresPerNauticalMile;
    }
}

/// Radius = speed² / (g0 x tan(bank)): speed and radius give the bank.
double radiusOfBank(int target, const std::array<double, 3>& v) {
    const double speed = v[0] * MetresPerSecondPerKnot;
    const double bank = radians(v[1]);
    const double radius = v[2] * MetresPerNauticalMile;
    switch (target) {
    case 0:
        return std::sqrt(radius * G0 * std::tan(bank)) / MetresPerSecondPerKnot;
    case 1:
        return degrees(std::atan(speed * speed / (G0 * radius)));
    default:
        return speed * speed / (G0 * std::tan(bank)) / MetresPerNauticalMile;
    }
}

double toMetres(double nm) {
    return nm * MetresPerNauticalMile;
}
double fromMetres(double m) {
    return m / MetresPerNauticalMile;
}
/// Seconds for a full circle, from degrees per second, and back.
double fullCircle(double rate) {
    return 360 / rate;
}
/// The load factor: 1 / cos(bank).
double toLoad(double bank) {
    return 1 / std::cos(radians(bank));
}
double fromLoad(double n) {
    return degrees(std::acos(1 / n));
}
/// The stall speed grows with the root of the load factor.
double toStallIncrease(double bank) {
    return 100 * (std::sqrt(toLoad(bank)) - 1);
}
double fromStallIncrease(double percent) {
    const double root = 1 + percent / 100;
    return fromLoad(root * root);
}

constexpr std::string_view BadBank = "Invalid bank angle (range 0 - 90°)";

std::optional<std::string_view> level(const Quantities& q) {
    if (q[Bank] && !(*q[Bank] > 0 && *q[Bank] < 90)) {
        return BadBank;
    }
    return std::nullopt;
}

constexpr Relation Relations[] = {
    {.quantities = {Tas, Bank, Rate}, .solve = rate},
    {.quantities = {Tas, Rate, Radius}, .solve = radiusOfRate},
    {.quantities = {Tas, Bank, Radius}, .solve = radiusOfBank},
};

} // namespace

// The bank is one quantity with the load factor and the stall speed increase;
// so is the rate with the time for a full circle, and the radius in either unit.
extern const PageTable TurnPage{
    .name = "Turn",
    .icon = "turn",
    .rows = {{
        {.unit = "TAS - kt", .quantity = Tas},
        {.unit = "Bank Angle - °", .quantity = Bank, .range = {0, 90, true, BadBank, true}},
        {.unit = "Rate of Turn - °/s", .quantity = Rate},
        {.unit = "Radius - nm", .quantity = Radius},
        {.unit = "Radius - m", .quantity = Radius, .toRow = toMetres, .fromRow = fromMetres},
        {.unit = "Time for 360° - s", .quantity = Rate, .toRow = fullCircle, .fromRow = fullCircle},
        {.unit = "Load Factor - g",
         .quantity = Bank,
         .toRow = toLoad,
         .fromRow = fromLoad,
         .range = {1, 1e300, false, "Invalid load factor (range above 1 g)", true}},
        {.unit = "Stall Speed Increase - %",
         .quantity = Bank,
         .toRow = toStallIncrease,
         .fromRow = fromStallIncrease,
         .range = {0, 1e300, false, "Invalid stall speed increase (range above 0 %)", true}},
    }},
    .formulas = {.relations = Relations, .freedom = 2, .check = level},
};

} // namespace zel
