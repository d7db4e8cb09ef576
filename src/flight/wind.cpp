// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Wind: the wind triangle on one page. Any four of heading, TAS, course,
// ground speed, wind direction and wind speed give the rest, the newest
// typed counting first; the drift and the wind component follow.
#include "flight/windtriangle.h"

namespace zel {
namespace {

enum Quantity { Heading, Tas, Course, GroundSpeed, WindDirection, WindSpeed, Drift, Component };

constexpr wind::Slots Triangle{Heading,       Tas,       Course, GroundSpeed,
                               WindDirection, WindSpeed, Drift,  Component};

bool derive(Quantities& q) {
    return wind::derive(q, Triangle);
}

std::optional<std::string_view> advise(const Quantities& q) {
    return wind::noHeading(q, Triangle);
}

} // namespace

extern const PageTable WindPage{
    .name = "Wind",
    .icon = "wind",
    .rows = {{
        wind::directionRow("Heading - °", Heading),
        {.unit = "TAS - kt", .quantity = Tas},
        wind::directionRow("Course - °", Course),
        {.unit = "Ground Speed - kt", .quantity = GroundSpeed},
        wind::directionRow("Wind Direction - °", WindDirection),
        // A calm is a wind of 0 kt.
        {.unit = "Wind Velocity - kt", .quantity = WindSpeed, .sign = Sign::NotNegative},
        {.unit = "Drift - °", .form = Form::Side, .flags = OutputOnly, .quantity = Drift},
        {.unit = "Wind Comp. - kt",
         .form = Form::HeadTail,
         .flags = OutputOnly,
         .quantity = Component},
    }},
    .formulas = {.freedom = 4, .derive = derive, .advise = advise},
};

} // namespace zel
