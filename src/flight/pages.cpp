// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/pages.h"

#include "flight/airspeed.h"
#include "flight/fuel.h"
#include "flight/navigation.h"

#include <array>

namespace zel {
namespace {

// On the navigation pages -999 stands for a value nobody knows yet.
constexpr unsigned Nav = UnknownEmpty;

constexpr std::array<PageTable, 7> Pages{{
    {.number = 10,
     .name = "Fuel Uplift",
     .rows = {{{"Remaining Fuel - kg"},
               {"Remaining Fuel - lbs"},
               {"Fuel Uplift - L"},
               {"Fuel Uplift - USG"},
               {"Density - kg/L"},
               {"Density - lbs/USG"},
               {"Total Fuel - kg", 0, Form::Number, OutputOnly},
               {"Total Fuel - lbs", 0, Form::Number, OutputOnly}}},
     .convert = Convert_FuelUplift,
     .functionKey = 10,
     .keyCaption = "F10"},
    {.number = 11,
     .name = "Endurance",
     .rows = {{{"Fuel Quantity - kg"},
               {"Fuel Flow - kg/hr"},
               {"Fuel Quantity - L"},
               {"Fuel Flow - L/hr"},
               {"Fuel Quantity - USG"},
               {"Fuel Flow - USG/hr"},
               {"Endurance - h:mm", 0, Form::HoursMinutes},
               {"Endurance - min"}}},
     .convert = Convert_Endurance},
    {.number = 12,
     .name = "Fuel Range",
     .rows = {{{"Fuel Quantity - kg"},
               {"Fuel Flow - kg/hr"},
               {"Fuel Quantity - L"},
               {"Fuel Flow - L/hr"},
               {"Fuel Quantity - USG"},
               {"Fuel Flow - USG/hr"},
               {"Ground Speed - kt"},
               {"Range - nm"}}},
     .convert = Convert_Range},
    {.number = 13,
     .name = "Mach - AS",
     .rows = {{{"Altitude - feet"},
               {"Mach - M"},
               {"(OAT) SAT - °C"},
               {"(IAS) CAS - kt"},
               {"(RAT) TAT - °C"},
               {"EAS - kt"},
               {"Recovery Factor - Kr"},
               {"TAS - kt"}}},
     .convert = Convert_MachAS},
    {.number = 15,
     .name = "Track Time",
     .rows = {{{"Distance - km", 0, Form::Number, Nav},
               {"Distance - nm", 0, Form::Number, Nav},
               {"Elapse Time - h:mm", 0, Form::HoursMinutes, Nav},
               {"Ground Speed - kt", 0, Form::Number, Nav},
               {"Track (Course) - °", 0, Form::Direction, Nav},
               {"TAS - kt", 0, Form::Number, Nav},
               {"Wind Direction - °", 0, Form::Direction, Nav},
               {"Wind Speed - kt", 0, Form::Number, Nav}}},
     .convert = Convert_TrackTime},
    {.number = 16,
     .name = "Wind",
     .rows = {{{"Heading - °", 0, Form::Direction, Nav},
               {"TAS - kt", 0, Form::Number, Nav},
               {"Course - °", 0, Form::Direction, Nav},
               {"Ground Speed - kt", 0, Form::Number, Nav},
               {"Wind Direction - °", 0, Form::Direction, Nav},
               {"Wind Velocity - kt", 0, Form::Number, Nav},
               {"Drift - °", 0, Form::Side, Nav},
               {"Wind Comp. - kt", 0, Form::HeadTail, Nav}}},
     .convert = Convert_WindTriangle},
    {.number = 17,
     .name = "Wind Comp",
     .rows = {{{"Wind Direction - °", 0, Form::Direction, Nav},
               {"Wind Velocity - kt", 0, Form::Number, Nav},
               {"RWY heading - °", 0, Form::Direction, Nav},
               {},
               {},
               {"Axis Wind - kt", 0, Form::HeadTail, Nav},
               {},
               {"Cross Wind - kt", 0, Form::Side, Nav}}},
     .convert = Convert_WindComp,
     .functionKey = 12},
}};

} // namespace

std::span<const PageTable> flightPages() {
    return Pages;
}

} // namespace zel
