// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Track Time: distance, time and ground speed, with the ground speed from the
// wind triangle when the track, the TAS and the wind are known. The newest
// typed values count first; the heading is worked out but not shown.
#include "flight/windtriangle.h"
#include "page/solver.h"
#include "page/units.h"

namespace zel {
namespace {

using namespace solver;

enum Quantity { Distance, Time, GroundSpeed, Course, Tas, WindDirection, WindSpeed, Heading };

double toKilometres(double nm) {
    return nm * units::TableKilometresPerNauticalMile;
}
double fromKilometres(double km) {
    return km / units::TableKilometresPerNauticalMile;
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
        wind::directionRow("Track (Course) - °", Course),
        {.unit = "TAS - kt", .quantity = Tas},
        wind::directionRow("Wind Direction - °", WindDirection),
        {.unit = "Wind Speed - kt", .quantity = WindSpeed, .sign = Sign::NotNegative},
    }},
    // Two of distance, time and speed, and four of the triangle's six.
    .formulas = {.relations = Relations, .freedom = 5, .derive = derive, .advise = advise},
};

} // namespace zel
