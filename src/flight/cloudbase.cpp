// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/solver.h"
#include "page/units.h"

#include <cmath>
#include <limits>

namespace zel {
namespace {

using namespace solver;

enum Quantity { Temperature, DewPoint, Spread, Humidity, Elevation, BaseAmsl };

/// Rising unsaturated air cools about 3 °C per 1000 ft and its dew point about
/// 0.5 °C: the spread closes by some 2.5 °C per 1000 ft, 400 ft per °C.
constexpr double FeetPerDegreeOfSpread = 400;

/// Spread = temperature - dew point.
double spread(int target, const std::array<double, 3>& v) {
    const double s = v[0], t = v[1], td = v[2];
    return target == 0 ? t - td : target == 1 ? td + s : t - s;
}

/// The Magnus form of the saturation vapour pressure, over water.
double saturation(double celsius) {
    return std::exp(17.625 * celsius / (243.04 + celsius));
}

/// Relative humidity from temperature and dew point; only ever a result.
double humidity(int, const std::array<double, 3>& v) {
    return 100 * saturation(v[2]) / saturation(v[1]);
}

/// Base above sea level = elevation + base above ground; only ever a result.
double amsl(int, const std::array<double, 3>& v) {
    return v[1] + v[2] * FeetPerDegreeOfSpread;
}

double toFeet(double spread) {
    return spread * FeetPerDegreeOfSpread;
}
double fromFeet(double feet) {
    return feet / FeetPerDegreeOfSpread;
}
double toMetres(double spread) {
    return units::feetToMetres(toFeet(spread));
}
double fromMetres(double metres) {
    return fromFeet(units::metresToFeet(metres));
}

constexpr std::string_view BadTemperature = "Invalid temperature (range -80 - 60 °C)";

std::optional<std::string_view> saturated(const Quantities& q) {
    for (const std::optional<double>& t : {q[Temperature], q[DewPoint]}) {
        if (t && (*t < -80 || *t > 60)) {
            return BadTemperature;
        }
    }
    if (q[Spread] && *q[Spread] < 0) {
        return "Dew point above temperature";
    }
    return std::nullopt;
}

constexpr Relation Relations[] = {
    {.quantities = {Spread, Temperature, DewPoint}, .solve = spread},
    {.quantities = {Humidity, Temperature, DewPoint}, .solve = humidity, .only = 0},
    {.quantities = {BaseAmsl, Elevation, Spread}, .solve = amsl, .only = 0},
};

constexpr Range TemperatureRange{-80, 60, false, BadTemperature};

} // namespace

// The spread is one quantity with the base above ground in feet and metres.
// Temperature, dew point and spread give each other; the elevation is its own.
extern const PageTable CloudBasePage{
    .name = "Cloud Base",
    .icon = "cloudBase",
    .rows = {{
        {.unit = "Temperature - °C",
         .quantity = Temperature,
         .sign = Sign::Any,
         .range = TemperatureRange},
        {.unit = "Dew Point - °C",
         .quantity = DewPoint,
         .sign = Sign::Any,
         .range = TemperatureRange},
        {.unit = "Spread - °C", .quantity = Spread, .sign = Sign::NotNegative},
        {.unit = "Cloud Base - ft AGL",
         .quantity = Spread,
         .sign = Sign::NotNegative,
         .toRow = toFeet,
         .fromRow = fromFeet},
        {.unit = "Cloud Base - m AGL",
         .quantity = Spread,
         .sign = Sign::NotNegative,
         .toRow = toMetres,
         .fromRow = fromMetres},
        {.unit = "Rel. Humidity - %", .quantity = Humidity},
        {.unit = "Elevation - ft", .quantity = Elevation, .sign = Sign::Any},
        {.unit = "Cloud Base - ft AMSL", .quantity = BaseAmsl},
    }},
    .formulas = {.relations = Relations, .freedom = 3, .check = saturated},
};

} // namespace zel
