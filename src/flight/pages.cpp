// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The fuel and airspeed pages.
#include "flight/airspeed.h"
#include "flight/fuel.h"

namespace zel {

extern const PageTable FuelUpliftPage{.name = "Fuel Uplift",
                                      .icon = "fuelUplift",
                                      .rows = {{{"Remaining Fuel - kg"},
                                                {"Remaining Fuel - lbs"},
                                                {"Fuel Uplift - L"},
                                                {"Fuel Uplift - USG"},
                                                {"Density - kg/L"},
                                                {"Density - lbs/USG"},
                                                row("Total Fuel - kg", Form::Number, OutputOnly),
                                                row("Total Fuel - lbs", Form::Number, OutputOnly)}},
                                      .convert = convertFuelUplift,
                                      .functionKey = 10};

extern const PageTable EndurancePage{.name = "Endurance",
                                     .icon = "endurance",
                                     .rows = {{{"Fuel Quantity - kg"},
                                               {"Fuel Flow - kg/hr"},
                                               {"Fuel Quantity - L"},
                                               {"Fuel Flow - L/hr"},
                                               {"Fuel Quantity - USG"},
                                               {"Fuel Flow - USG/hr"},
                                               row("Endurance - h:mm", Form::HoursMinutes),
                                               {"Endurance - min"}}},
                                     .convert = convertEndurance};

extern const PageTable FuelRangePage{.name = "Fuel Range",
                                     .icon = "fuelRange",
                                     .rows = {{{"Fuel Quantity - kg"},
                                               {"Fuel Flow - kg/hr"},
                                               {"Fuel Quantity - L"},
                                               {"Fuel Flow - L/hr"},
                                               {"Fuel Quantity - USG"},
                                               {"Fuel Flow - USG/hr"},
                                               {"Ground Speed - kt"},
                                               {"Range - nm"}}},
                                     .convert = convertFuelRange};

extern const PageTable MachAsPage{.name = "Mach - AS",
                                  .icon = "machAs",
                                  .rows = {{{"Altitude - feet"},
                                            {"Mach - M"},
                                            {"(OAT) SAT - °C"},
                                            {"(IAS) CAS - kt"},
                                            {"(RAT) TAT - °C"},
                                            {"EAS - kt"},
                                            {"Recovery Factor - Kr"},
                                            {"TAS - kt"}}},
                                  .convert = convertAirspeeds};

} // namespace zel
