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
     .icon = "fuelUplift",
     .rows = {{{"Remaining Fuel - kg"},
               {"Remaining Fuel - lbs"},
               {"Fuel Uplift - L"},
               {"Fuel Uplift - USG"},
               {"Density - kg/L"},
               {"Density - lbs/USG"},
               row("Total Fuel - kg", Form::Number, OutputOnly),
               row("Total Fuel - lbs", Form::Number, OutputOnly)}},
     .convert = Convert_FuelUplift,
     .functionKey = 10,
     .keyCaption = "F10"},
    {.number = 11,
     .name = "Endurance",
     .icon = "endurance",
     .rows = {{{"Fuel Quantity - kg"},
               {"Fuel Flow - kg/hr"},
               {"Fuel Quantity - L"},
               {"Fuel Flow - L/hr"},
               {"Fuel Quantity - USG"},
               {"Fuel Flow - USG/hr"},
               row("Endurance - h:mm", Form::HoursMinutes),
               {"Endurance - min"}}},
     .convert = Convert_Endurance},
    {.number = 12,
     .name = "Fuel Range",
     .icon = "fuelRange",
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
     .icon = "machAs",
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
     .icon = "trackTime",
     .rows = {{row("Distance - km", Form::Number, Nav), row("Distance - nm", Form::Number, Nav),
               row("Elapse Time - h:mm", Form::HoursMinutes, Nav),
               row("Ground Speed - kt", Form::Number, Nav),
               row("Track (Course) - °", Form::Direction, Nav), row("TAS - kt", Form::Number, Nav),
               row("Wind Direction - °", Form::Direction, Nav),
               row("Wind Speed - kt", Form::Number, Nav)}},
     .convert = Convert_TrackTime},
    {.number = 16,
     .name = "Wind",
     .icon = "wind",
     .rows = {{row("Heading - °", Form::Direction, Nav), row("TAS - kt", Form::Number, Nav),
               row("Course - °", Form::Direction, Nav), row("Ground Speed - kt", Form::Number, Nav),
               row("Wind Direction - °", Form::Direction, Nav),
               row("Wind Velocity - kt", Form::Number, Nav), row("Drift - °", Form::Side, Nav),
               row("Wind Comp. - kt", Form::HeadTail, Nav)}},
     .convert = Convert_WindTriangle},
    {.number = 17,
     .name = "Wind Comp",
     .icon = "windComp",
     .rows = {{row("Wind Direction - °", Form::Direction, Nav),
               row("Wind Velocity - kt", Form::Number, Nav),
               row("RWY heading - °", Form::Direction, Nav),
               {},
               {},
               row("Axis Wind - kt", Form::HeadTail, Nav),
               {},
               row("Cross Wind - kt", Form::Side, Nav)}},
     .convert = Convert_WindComp,
     .functionKey = 12},
}};

} // namespace

// Each planning page is declared beside its formulas.
extern const PageTable AltitudePage, DescentPage, TurnPage, FuelPlanPage, CloudBasePage,
    TrueAltitudePage, HoldingPage, SunPage;

std::span<const PageTable> flightPages() {
    return Pages;
}

std::span<const PageTable* const> planningPages() {
    static constexpr std::array Planning{&AltitudePage, &DescentPage,   &TurnPage,
                                         &FuelPlanPage, &CloudBasePage, &TrueAltitudePage,
                                         &HoldingPage,  &SunPage};
    return Planning;
}

} // namespace zel
