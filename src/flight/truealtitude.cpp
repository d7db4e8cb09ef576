// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// True Altitude: how high the aircraft really is when the air below it is
// colder or warmer than the standard atmosphere. The altimeter, set to the
// station's QNH, reads right at the station; above it, the height scales with
// the mean temperature of the column, so in cold air the aircraft is lower
// than it reads.
#include "flight/atmosphere.h"
#include "page/solver.h"

#include <cmath>

namespace zel {
namespace {

using namespace solver;

enum Quantity {
    Indicated,
    PressureAltitude,
    Station,
    Oat,
    Deviation,
    True,
    Correction,
    Above,     ///< indicated height above the station
    TrueAbove, ///< true height above the station
    Ratio,     ///< actual over standard temperature, in kelvin
};

/// OAT = ISA temperature at the pressure altitude + deviation.
double deviation(int target, const std::array<double, 3>& v) {
    const double oat = v[0], pa = v[1], dev = v[2];
    const double isa = atmosphere::isaCelsius(pa);
    return target == 0 ? isa + dev : target == 2 ? oat - isa : std::nan("");
}

/// The air's temperature over the standard temperature at the pressure
/// altitude, in kelvin: the standard temperature stops falling at the
/// tropopause, so that in standard air above it the correction is 0 too.
double ratio(int, const std::array<double, 3>& v) {
    const double oat = v[1], pa = v[2];
    return units::kelvin(oat) / atmosphere::isaKelvin(pa);
}

/// a = b - c, solved for any one of the three.
double difference(int target, const std::array<double, 3>& v) {
    return target == 0 ? v[1] - v[2] : target == 1 ? v[0] + v[2] : v[1] - v[0];
}

/// a = b + c.
double sum(int, const std::array<double, 3>& v) {
    return v[1] + v[2];
}

constexpr Relation Relations[] = {
    {.quantities = {Oat, PressureAltitude, Deviation}, .solve = deviation},
    {.quantities = {Above, Indicated, Station}, .solve = difference, .only = 0},
    {.quantities = {Ratio, Oat, PressureAltitude}, .solve = ratio, .only = 0},
    {.quantities = {TrueAbove, Above, Ratio}, .solve = product, .only = 0},
    {.quantities = {True, Station, TrueAbove}, .solve = sum, .only = 0},
    {.quantities = {Correction, True, Indicated}, .solve = difference, .only = 0},
};

// An empty pressure altitude is the indicated altitude (QNH near standard);
// an empty station elevation is sea level.
constexpr Default Defaults[] = {
    {.quantity = PressureAltitude, .sameAs = Indicated},
    {.quantity = Station, .value = 0},
};

constexpr Range AltitudeRange{-2000, 60000, false, "Invalid altitude (range -2000 - 60000 ft)"};
constexpr Range TemperatureRange{-80, 60, false, "Invalid temperature (range -80 - 60 °C)"};

double toMetres(double feet) {
    return units::feetToMetres(feet);
}
double fromMetres(double metres) {
    return units::metresToFeet(metres);
}

} // namespace

// One given from each group: the indicated altitude, the pressure altitude,
// the station's elevation, and the OAT or the deviation, the newest of each.
extern const PageTable TrueAltitudePage{
    .name = "True Altitude",
    .icon = "trueAltitude",
    .rows = {{
        {.unit = "Indicated Altitude - ft",
         .quantity = Indicated,
         .sign = Sign::Any,
         .group = 1,
         .range = AltitudeRange},
        {.unit = "Pressure Altitude - ft",
         .quantity = PressureAltitude,
         .sign = Sign::Any,
         .group = 2,
         .range = AltitudeRange},
        {.unit = "Station Elevation - ft",
         .quantity = Station,
         .sign = Sign::Any,
         .group = 3,
         .range = AltitudeRange},
        {.unit = "OAT - °C",
         .quantity = Oat,
         .sign = Sign::Any,
         .group = 4,
         .range = TemperatureRange},
        {.unit = "ISA Deviation - °C",
         .quantity = Deviation,
         .sign = Sign::Any,
         .group = 4,
         .range = TemperatureRange},
        {.unit = "True Altitude - ft", .quantity = True},
        {.unit = "True Altitude - m", .quantity = True, .toRow = toMetres, .fromRow = fromMetres},
        {.unit = "Correction - ft", .quantity = Correction},
    }},
    .formulas = {.relations = Relations, .defaults = Defaults},
};

} // namespace zel
