// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Track Time: distance, time and ground speed, with the ground speed from the
// wind triangle when the track, the TAS and the wind are known. The newest
// typed values count first; the heading is worked out but not shown.
#include "flight/windtriangle.h"
#include "page/solver.h"

namespace zel {
namespace {

using namespace solver;

enum Quantity { Distance, Time, GroundSpeed, Course, Tas, WindDirection, WindSpeed, Heading };

/// Kilometres per nautical mile on this page: 1.851999692, the rounded figure
/// of the distance tables, deliberately not 1.852; keep it.
constexpr double KilometresPerNauticalMile = 1.851999692;

double toKilometres(double nm) {
    return nm * KilometresPerNauticalMile;
}
double fromKilometres(double km) {
    return km / KilometresPerNauticalMile;
}

constexpr wind::Slots Triangle{.heading = Heading,
                               .tas = Tas,
                               .course = Course,
                               .groundSpeed = GroundSpeed,
                               .windDirection = WindDirection,
                               .windSpeed = WindSpeed};

bool derive(Quantities& q) {
    return wind::derive(q, Triangle);
}

std::optional<std::string_view> advise(const Quantities& q) {
    return wind::noHeading(q, Triangle);
}

// Distance = ground speed x time.
constexpr Relation Relations[] = {
    {.quantities = {Distance, GroundSpeed, Time}, .solve = product},
};

} // namespace

extern const PageTable TrackTimePage{
    .name = "Track Time",
    .icon = "trackTime",
    .rows = {{
        {.unit = "Distance - km",
         .quantity = Distance,
         .toRow = toKilometres,
         .fromRow = fromKilometres},
        {.unit = "Distance - nm", .quantity = Distance},
        {.unit = "Elapse Time - h:mm", .form = Form::HoursMinutes, .quantity = Time},
        {.unit = "Ground Speed - kt", .quantity = GroundSpeed},
        {.unit = "Track (Course) - °",
         .form = Form::Direction,
         .quantity = Course,
         .sign = Sign::NotNegative,
         .range = wind::DirectionRange},
        {.unit = "TAS - kt", .quantity = Tas},
        {.unit = "Wind Direction - °",
         .form = Form::Direction,
         .quantity = WindDirection,
         .sign = Sign::NotNegative,
         .range = wind::DirectionRange},
        {.unit = "Wind Speed - kt", .quantity = WindSpeed, .sign = Sign::NotNegative},
    }},
    // Two of distance, time and speed, and four of the triangle's six.
    .formulas = {.relations = Relations, .freedom = 5, .derive = derive, .advise = advise},
};

} // namespace zel
