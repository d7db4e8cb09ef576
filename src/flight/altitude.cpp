// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/atmosphere.h"
#include "page/solver.h"

#include <cmath>
#include <limits>

namespace zel {
namespace {

using namespace solver;

constexpr double P0 = atmosphere::SeaLevelPressure;
constexpr double T0 = atmosphere::SeaLevelTemperature;
constexpr double N = atmosphere::Exponent;
constexpr double H0 = atmosphere::HeightScaleFeet;
constexpr double HectopascalsPerInch = 33.8638866667;

enum Quantity { Altitude, Qnh, PressureAltitude, Oat, Deviation, DensityAltitude, IsaTemperature };

/// Altitude, QNH and pressure altitude: the altimeter, set to QNH, reads the
/// altitude whose pressure is QNH x (1 - A / H0)^n, and the pressure altitude
/// is where the standard atmosphere has that pressure. The QNH is never worked
/// out from the two altitudes: only the newer of them counts.
double altimeter(int target, const std::array<double, 3>& v) {
    const double a = v[0], qnh = v[1], pa = v[2];
    if (target == 1) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return target == 0 ? H0 * (1 - std::pow(P0 * atmosphere::pressureRatio(pa) / qnh, 1 / N))
                       : atmosphere::pressureAltitude(qnh * std::pow(1 - a / H0, N) / P0);
}

/// The standard temperature at the pressure altitude: 1.98 °C colder per
/// 1000 ft up to -56.5 °C at the tropopause. Only ever a result.
double isa(int, const std::array<double, 3>& v) {
    return atmosphere::isaCelsius(v[0]);
}

/// OAT = ISA temperature + deviation.
double deviation(int target, const std::array<double, 3>& v) {
    const double oat = v[0], isaTemperature = v[1], dev = v[2];
    return target == 0 ? isaTemperature + dev : target == 1 ? oat - dev : oat - isaTemperature;
}

/// The standard altitude of the air's density, sigma = p/p0 x T0/T. It is
/// only ever a result.
double density(int, const std::array<double, 3>& v) {
    const double sigma = atmosphere::pressureRatio(v[0]) * T0 / units::kelvin(v[1]);
    return atmosphere::densityAltitude(sigma);
}

double toInches(double hpa) {
    return hpa / HectopascalsPerInch;
}
double fromInches(double inches) {
    return inches * HectopascalsPerInch;
}

constexpr std::string_view BadAltitude = "Invalid altitude (range -2000 - 36000 ft)";
constexpr std::string_view BadTemperature = "Invalid temperature (range -80 - 60 °C)";

constexpr Relation Relations[] = {
    {.quantities = {Altitude, Qnh, PressureAltitude}, .solve = altimeter},
    {.quantities = {PressureAltitude, IsaTemperature, -1}, .solve = isa, .only = 1},
    {.quantities = {Oat, IsaTemperature, Deviation}, .solve = deviation},
    {.quantities = {PressureAltitude, Oat, DensityAltitude}, .solve = density, .only = 2},
};

// An empty QNH is the standard 1013.25 hPa; an empty altitude is the ground
// at sea level, unless the pressure altitude was given.
constexpr Default Defaults[] = {{Qnh, P0}, {Altitude, 0, PressureAltitude}};

constexpr Range AltitudeRange{-2000, 36000, false, BadAltitude};
constexpr Range TemperatureRange{-80, 60, false, BadTemperature};

} // namespace

// One given counts from each group: altitude or pressure altitude, QNH in
// either unit, OAT or deviation, the newest of each.
extern const PageTable AltitudePage{
    .name = "Altitude",
    .icon = "altitude",
    .rows = {{
        {.unit = "Altitude - ft",
         .quantity = Altitude,
         .sign = Sign::Any,
         .group = 1,
         .range = AltitudeRange},
        {.unit = "QNH - hPa",
         .quantity = Qnh,
         .sign = Sign::NotNegative,
         .group = 2,
         .range = {850, 1100, false, "Invalid QNH (range 850 - 1100 hPa)"}},
        {.unit = "QNH - inHg",
         .quantity = Qnh,
         .sign = Sign::NotNegative,
         .toRow = toInches,
         .fromRow = fromInches,
         .group = 2,
         .range = {25.10, 32.48, false, "Invalid QNH (range 25.10 - 32.48 inHg)"}},
        {.unit = "Pressure Altitude - ft",
         .quantity = PressureAltitude,
         .sign = Sign::Any,
         .group = 1,
         .range = AltitudeRange},
        {.unit = "OAT - °C",
         .quantity = Oat,
         .sign = Sign::Any,
         .group = 3,
         .range = TemperatureRange},
        {.unit = "ISA Deviation - °C",
         .quantity = Deviation,
         .sign = Sign::Any,
         .group = 3,
         .range = {-60, 60, false, "Invalid temperature (range -60 - 60 °C)"}},
        {.unit = "Density Altitude - ft", .quantity = DensityAltitude},
        {.unit = "ISA Temperature - °C", .quantity = IsaTemperature},
    }},
    .formulas = {.relations = Relations, .defaults = Defaults},
};

} // namespace zel
