// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The planning pages, where a typed zero is a value and the newest givens win.
// See scenario.h for how a case reads.
#include "scenario.h"

namespace zel::test {
namespace {

using page::Altitude, page::Descent, page::Turn, page::FuelPlan, page::CloudBase;

TEST(AltitudePage, GivesPressureAndDensityAltitude) {
    const Scenario cases[] = {
        {"7000 ft at 15 °C, standard QNH", Altitude, "7000@1 15@5",
         "2:1,013.25 | 3:29.92 | 4:7,000.00 | 8:1.13 | 6:13.87 | 7:8,595.29"},
        {"5000 ft, QNH 1003, 30 °C", Altitude, "5000@1 1003@2 30@5",
         "3:29.62 | 4:5,271.42 | 8:4.56 | 6:25.44 | 7:8,129.16"},
        {"sea level on a standard day: 0 is a value", Altitude, "0@1 15@5",
         "1=0 | 4=0 | 6=0 | 7=0 | 1:0.00 | 7:0.00"},
        {"29.92 inHg is about 1013.2 hPa, 1 ft below standard", Altitude, "29.92@3 5000@4",
         "2:1,013.21 | 1:4,998.88"},
        {"the newest of altitude and pressure altitude counts", Altitude, "5000@1 6000@4",
         "1:6,000.00"},
        {"so does the newest QNH, in either unit", Altitude, "1003@2 29.50@3", "2:998.98"},
        {"about 120 ft of density altitude per °C above standard", Altitude, "5000@4 10@6",
         "5:15.09 | 7:6,160.36"},
        {"without a temperature rows 5 to 7 stay empty", Altitude, "5000@1",
         "5: | 6: | 7: | 8:5.09"},
        {"a negative altitude is a value", Altitude, "-500@1", "4:-500.00"},
        {"above 36000 ft", Altitude, "40000@1",
         "!exclamation Altitude: Invalid altitude (range -2000 - 36000 ft)"},
        {"QNH 850 hPa is the lowest", Altitude, "850@2", "2:850.00 | 3:25.10"},
        {"QNH 849 hPa", Altitude, "849@2",
         "!exclamation Altitude: Invalid QNH (range 850 - 1100 hPa)"},
        {"QNH 1100 hPa is the highest", Altitude, "1100@2", "3:32.48"},
        {"QNH 1100.1 hPa", Altitude, "1100.1@2",
         "!exclamation Altitude: Invalid QNH (range 850 - 1100 hPa)"},
        {"QNH 0 inHg", Altitude, "0@3",
         "!exclamation Altitude: Invalid QNH (range 25.10 - 32.48 inHg)"},
        {"no negative QNH", Altitude, "-5@2", "!beep"},
        {"61 °C", Altitude, "61@5",
         "!exclamation Altitude: Invalid temperature (range -80 - 60 °C)"},
        {"a deviation of -61 °C", Altitude, "-61@6",
         "!exclamation Altitude: Invalid temperature (range -80 - 60 °C)"},
        {"the density altitude is a result", Altitude, "5@7", "7: | !beep"},
    };
    check(cases);
}

TEST(DescentPage, RelatesHeightDistanceSpeedAndPath) {
    const char* steep = "!exclamation Descent: Invalid angle (range 0 - 45°)";
    const Scenario cases[] = {
        {"28000 ft over 90 nm at 450 kt", Descent, "28000@1 90@2 450@3",
         "7:311.11 | 6:2.93 | 8:5.12 | 5:2,333.33 | 4:12.00"},
        {"a 3° path at 120 kt", Descent, "3@6 120@3", "7:318.44 | 5:636.87 | 1: | 2:"},
        {"300 ft per nm at 120 kt: 600 ft/min, five times the ground speed", Descent, "300@7 120@3",
         "5:600.00"},
        {"a vertical speed typed last replaces the oldest given", Descent,
         "28000@1 90@2 450@3 2000@5", "1:24,000.00 | 2:90.00 | 4:12.00"},
        {"the height typed again wins over the distance", Descent,
         "28000@1 90@2 450@3 2000@5 24000@1", "2:90.00 | 5:2,000.00"},
        {"a 5 % path is 304 ft per nm, just under 3°", Descent, "5@8", "7:303.81 | 6:2.86"},
        {"time and ground speed give the distance", Descent, "12@4 450@3", "2:90.00"},
        {"distance and time give the ground speed", Descent, "90@2 12@4", "3:450.00"},
        {"zero is no height", Descent, "0@1", "1: | !beep"},
        {"nor is a negative distance", Descent, "-5@2", "!beep"},
    };
    check(cases);
    check({"45° is too steep", Descent, "45@6", steep});
    check({"so is a gradient of 6076 ft/nm", Descent, "6077@7", steep});
}

TEST(TurnPage, GivesBankRateAndRadius) {
    const char* bank = "!exclamation Turn: Invalid bank angle (range 0 - 90°)";
    const Scenario cases[] = {
        {"a rate-one turn at 120 kt", Turn, "3@3 120@1",
         "2:18.24 | 4:0.64 | 5:1,179.02 | 6:120.00 | 7:1.05 | 8:2.61"},
        {"150 kt with 30° of bank", Turn, "150@1 30@2",
         "3:4.20 | 4:0.57 | 5:1,051.72 | 6:85.63 | 7:1.15 | 8:7.46"},
        {"60° of bank pull 2 g and raise the stall speed by 41 %", Turn, "60@2",
         "7:2.00 | 8:41.42 | 1: | 3:"},
        {"radius and bank give the speed", Turn, "1000@5 30@2", "1:146.27 | 3:4.31"},
        {"speed and radius give the bank", Turn, "120@1 0.5@4", "2:22.77"},
        {"two minutes for a circle is rate one", Turn, "120@6 120@1", "3:3.00 | 2:18.24"},
        {"no zero speed", Turn, "0@1", "!beep"},
    };
    check(cases);
    check({"90° of bank", Turn, "90@2", bank});
    check({"a load factor of 1 is no turn", Turn, "1@7", bank});
}

TEST(FuelPlanPage, AddsTripAndReserveFuel) {
    const Scenario cases[] = {
        {"240 nm at 120 kt, 30 an hour, 45 min reserve", FuelPlan, "240@1 120@2 30@4 45@6",
         "3:2:00 | 5:60.00 | 7:22.50 | 8:82.50"},
        {"no reserve is a value", FuelPlan, "240@1 120@2 30@4 0@6", "6:0.00 | 7:0.00 | 8:60.00"},
        {"an empty reserve leaves the totals empty", FuelPlan, "240@1 120@2 30@4",
         "5:60.00 | 7: | 8:"},
        {"trip fuel and time give the flow", FuelPlan, "1.5@3 45@5", "4:30.00 | 3:1:30"},
        {"reserve fuel and flow give the reserve time", FuelPlan, "30@4 15@7", "6:30.00"},
        {"a fifth given replaces the oldest", FuelPlan, "240@1 120@2 30@4 45@6 3@3",
         "1:360.00 | 5:90.00"},
        {"no zero flow", FuelPlan, "0@4", "!beep"},
        {"the fuel required is a result", FuelPlan, "5@8", "!beep"},
    };
    check(cases);
}

TEST(CloudBasePage, FindsTheBaseFromTheSpread) {
    const Scenario cases[] = {
        {"20 °C and 12 °C at 1500 ft", CloudBase, "20@1 12@2 1500@7",
         "3:8.00 | 4:3,200.00 | 5:975.36 | 6:60.00 | 8:4,700.00"},
        {"no spread, fog on the ground", CloudBase, "10@1 10@2", "3:0.00 | 4:0.00 | 6:100.00"},
        {"a base in feet gives the dew point", CloudBase, "15@1 2500@4", "2:8.75 | 3:6.25"},
        {"a base in metres too", CloudBase, "15@1 762@5", "4:2,500.00"},
        {"no elevation, no base above sea level", CloudBase, "20@1 12@2", "8:"},
        {"frost point below zero", CloudBase, "-5@1 -12@2", "4:2,800.00"},
        {"a dew point above the temperature", CloudBase, "10@1 12@2",
         "2: | !exclamation Cloud Base: Dew point above temperature"},
        {"-81 °C", CloudBase, "-81@1",
         "!exclamation Cloud Base: Invalid temperature (range -80 - 60 °C)"},
        {"a spread that puts the dew point below -80 °C", CloudBase, "-70@1 20@3",
         "!exclamation Cloud Base: Invalid temperature (range -80 - 60 °C)"},
        {"no negative spread", CloudBase, "-1@3", "!beep"},
    };
    check(cases);
}

} // namespace
} // namespace zel::test
