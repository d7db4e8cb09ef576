// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// A typed zero is a value like any other; nothing typed (a page just opened,
// an empty memory recalled, an entry erased) is no value at all. Each case's
// figures are worked by hand in its name or beside it.
#include "scenario.h"

namespace zel::test {
namespace {
using namespace page;

TEST(Zero, NothingTypedOnlySelectsTheRow) {
    const Scenario cases[] = {
        {"a page just opened", Temperature, "@2", "2: | 1: | >2"},
        {"65 then MRC of an empty memory", Temperature, "65{mrc}@4", "4: | 1: | 3: | >4"},
        {"5 erased with Backspace", Temperature, "5{bs}@1", "1: | 2: | >1"},
        {"-5 erased to its sign", Temperature, "-5{bs}@3", "3: | 1: | >3"},
        {"an empty memory on a page of results", Endurance, "600@1 200@2 {mrc}@1",
         "1:600.00 | 7:3:00 | >1"},
        // 0.5 erased to 0. is still the 0 that was typed: 32 °F.
        {"0.5 erased to its typed 0", Temperature, "0.5{bs}@1", "1:0.00 | 2:32.00 | >1"},
    };
    check(cases);
}

TEST(Zero, ATypedZeroIsAValueOnEveryPage) {
    // Rows of Mach - AS: 1 altitude, 2 Mach, 3 SAT, 4 CAS, 5 TAT, 6 EAS, 7 Kr, 8 TAS.
    // Rows of the fuel pages: 1/2 kg, 3/4 L, 5/6 USG quantity/flow, then 7 and 8.
    const Scenario cases[] = {
        {"0 °C is 32 °F", Temperature, "0@1", "2:32.00 | 3:273.15"},
        // At sea level CAS = EAS = 250; TAS = 250 x sqrt(273.15 / 288) = 243.47.
        {"SAT 0 °C at sea level, CAS 250: TAS 243.47", MachAS, "0@1 0@3 250@4",
         "3:0.00 | 8:243.47 | 6:250.00"},
        // Mach 0.5 heats the probe by 1 + 0.2 x 0.25: 273.15 / 1.05 = 260.14 K.
        {"TAT 0 °C at Mach 0.5: SAT -13.01 °C", MachAS, "0@5 0.5@2", "5:0.00 | 3:-13.01"},
        {"a CAS of 0 is Mach 0 and no TAS", MachAS, "0@1 0@4", "2:0.00 | 8:0.00"},
        // 0 kg at 200 kg/hr last no time at all.
        {"0 kg at 200 kg/hr: 0:00", Endurance, "600@1 200@2 0@1", "1:0.00 | 7:0:00 | 8:0.00"},
        {"600 kg at 0 kg/hr: no endurance", Endurance, "600@1 200@2 0@2", "2:0.00 | 7: | 8:"},
        {"0 h at 200 kg/hr need 0 kg", Endurance, "200@2 0@7", "1:0.00 | 8:0.00"},
        {"600 kg in 0 min: no flow", Endurance, "600@1 0@8", "2: | 7:0:00 | 1:600.00"},
        // 100 kg + 0 L x 0.8 kg/L = 100 kg = 220.50 lbs.
        {"an uplift of 0 L: the total is what remains", FuelUplift, "100@1 200@3 0.8@5 0@3",
         "3:0.00 | 7:100.00 | 8:220.50"},
        {"a density of 0 leaves the totals empty", FuelUplift, "100@1 200@3 0.8@5 0@5",
         "5:0.00 | 7: | 8:"},
        // 0 kg + 200 L x 0.8 = 160 kg; 52.83 USG x 6.68 lbs/USG = 352.80 lbs.
        {"nothing remaining: the uplift alone", FuelUplift, "0@1 200@3 0.8@5",
         "7:160.00 | 8:352.80"},
        {"no remaining fuel given: no total", FuelUplift, "200@3 0.8@5", "7: | 8:"},
        {"quantity and flow without a ground speed: no range", FuelRange, "600@1 200@2", "8: | 7:"},
        {"a ground speed of 0: 600 / 200 x 0 = 0 nm", FuelRange, "600@1 200@2 0@7", "8:0.00"},
        {"0 kg at 200 kg/hr and 120 kt: 0 nm", FuelRange, "600@1 200@2 120@7 0@1",
         "1:0.00 | 7:120.00 | 8:0.00"},
        {"a flow of 0: no range", FuelRange, "600@1 200@2 120@7 0@2", "2:0.00 | 8:"},
        // A range typed beside a full pair and a ground speed is worked again: 360.
        {"a range of 0 beside 600 kg, 200 kg/hr, 120 kt", FuelRange, "600@1 200@2 120@7 0@8",
         "8:360.00 | >8"},
        {"600 kg and 450 nm without a ground speed: no flow", FuelRange, "600@1 450@8",
         "2: | 8:450.00"},
        {"a range beside a pair waits for the ground speed", FuelRange, "600@1 200@2 450@8",
         "8:450.00 | 7: | >8"},
        {"a range of 0 nm: no flow from 600 kg", FuelRange, "600@1 120@7 0@8", "2: | 8:0.00"},
        {"at 0 kt 300 nm need no finite quantity", FuelRange, "30@4 0@7 300@8",
         "3: | 7:0.00 | 8:300.00"},
    };
    check(cases);
}

TEST(Zero, ADirectionBelowZeroNamesItsRange) {
    constexpr const char* Wind16 = "!exclamation Wind: Invalid direction (range 1 - 360°)";
    const Scenario cases[] = {
        {"a heading of -5", Wind, "-5@1", Wind16},
        {"a course of -5", Wind, "-5@3", Wind16},
        {"a wind from -5", Wind, "-5@5", Wind16},
        {"a wind from 0", Wind, "0@5", Wind16},
    };
    check(cases);
}

} // namespace
} // namespace zel::test
