// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Every calculator page as a user drives it: values typed into rows one after
// the other, then what some rows hold (tags) or show (captions), and what the
// user was told.
#include "scenario.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(FactorPages, ConvertThroughTheBaseUnit) {
    const Scenario cases[] = {
        {"1 kg is 2.205 lbs", page::Weight, {{1, "1"}}, {{2, "2.205"}, {3, "0.001"}}},
        {"1 imperial gallon", page::Fluid, {{3, "1"}}, {{1, "4.54609"}, {2, "0.00454609"}}},
        {"the input row carries the same rounding", page::Fluid, {{3, "1"}}, {{3, "1"}}},
        {"1 kt is 1.851999692 km/h", page::Speed, {{2, "1"}}, {{1, "1.851999692"}}},
        {"1 statute mile", page::Distance, {{4, "1"}}, {{3, "1.609343871"}}},
        {"1 hPa is 1 mb", page::Pressure, {{3, "1"}}, {{4, "1"}}},
        {"1 atmosphere is 1013.25 hPa", page::Pressure, {{2, "1"}}, {{3, "1013.25"}}},
        {"1 thrust K is 1560 HP", page::Power, {{8, "1"}}, {{1, "1560"}}},
        {"1 hectare is 10000 m2", page::Surface, {{4, "1"}}, {{1, "10000"}}},
        {"a negative value is refused",
         page::Weight,
         {{1, "5"}, {2, "-1"}},
         {{1, "5"}},
         {.events = {"beep"}}},
        {"regional symbols",
         page::Weight,
         {{1, "1,5"}},
         {{2, "3,3075"}},
         {.captions = {{4, "1.500,00"}}, .symbols = Comma}},
    };
    check(cases);
}

TEST(Temperature, ConvertsThroughCelsius) {
    const Scenario cases[] = {
        {"boiling water",
         page::Temperature,
         {{1, "100"}},
         {{2, "212"}, {3, "373.15"}, {4, "671.67"}}},
        {"-40 F is -40 C", page::Temperature, {{2, "-40"}}, {{1, "-40"}, {3, "233.15"}}},
        {"491.67 R is 0 C", page::Temperature, {{4, "491.67"}}, {{1, "0"}, {2, "32"}}},
        {"below absolute zero in C", page::Temperature, {{1, "-300"}}, {{3, "-26.85"}}},
        {"kelvin is never negative",
         page::Temperature,
         {{3, "-5"}},
         {{1, "0"}},
         {.events = {"beep"}}},
        {"nor is rankine", page::Temperature, {{4, "-5"}}, {{1, "0"}}, {.events = {"beep"}}},
    };
    check(cases);
}

TEST(Angle, UsesTheSinglePrecisionPi) {
    const Scenario cases[] = {
        {"180 degrees",
         page::Angle,
         {{1, "180"}},
         {{2, "3.14159274101257"}, {3, "10800"}, {4, "200"}, {5, "1"}}},
        {"1 pi is 180 degrees", page::Angle, {{5, "1"}}, {{1, "180"}}},
        {"pi in radians is exactly 180 degrees",
         page::Angle,
         {{2, "3.14159274101257"}},
         {{1, "180"}}},
        {"45 degrees is a 100 % slope", page::Angle, {{1, "45"}}, {{6, "100.000004371139"}}},
        {"and back", page::Angle, {{6, "100"}}, {{1, "44.999998747761"}}},
        {"negative angles convert", page::Angle, {{3, "-30"}}, {{1, "-0.5"}}},
    };
    check(cases);
}

TEST(Speed, ClassifiesOnTheBeaufortScale) {
    const Scenario cases[] = {
        {"10 kt is a gentle breeze",
         page::Speed,
         {{2, "10"}},
         {{1, "18.51999692"}},
         {.captions = {{7, "3"}, {8, "gentle breeze"}}}},
        {"0.4 km/h is calm", page::Speed, {{1, "0.4"}}, {}, {.captions = {{7, "0"}, {8, "calm"}}}},
        {"1.4 km/h is still calm", page::Speed, {{1, "1.4"}}, {}, {.captions = {{7, "0"}}}},
        {"1.5 km/h is light air",
         page::Speed,
         {{1, "1.5"}},
         {},
         {.captions = {{7, "1"}, {8, "light air"}}}},
        {"117.4 km/h is a violent storm",
         page::Speed,
         {{1, "117.4"}},
         {},
         {.captions = {{7, "11"}, {8, "violent storm"}}}},
        {"117.5 km/h is a hurricane",
         page::Speed,
         {{1, "117.5"}},
         {},
         {.captions = {{7, "12"}, {8, "hurricane"}}}},
        {"force 4 is 28 km/h, typed into row 1",
         page::Speed,
         {{7, "4"}},
         {{1, "28"}, {2, "15.1187930111168"}},
         {.captions = {{8, "moderate breeze"}}, .inputRow = 1}},
        {"force 4.5 is force 4", page::Speed, {{7, "4.5"}}, {{1, "28"}}},
        {"force 12 is 133 km/h",
         page::Speed,
         {{7, "12"}},
         {{1, "133"}},
         {.captions = {{8, "hurricane"}}}},
        {"force 1 is 5 km/h", page::Speed, {{7, "1"}}, {{1, "5"}}},
        {"force 13 is out of range",
         page::Speed,
         {{7, "13"}},
         {{1, "0"}},
         {.events = {"exclamation Speed: Invalid input (range 1 to 12)"}}},
        {"so is force 0.5",
         page::Speed,
         {{7, "0.5"}},
         {{1, "0"}},
         {.events = {"exclamation Speed: Invalid input (range 1 to 12)"}}},
        {"the description is a result", page::Speed, {{8, "3"}}, {}, {.events = {"beep"}}},
        {"no negative speeds", page::Speed, {{2, "-3"}}, {{2, "0"}}, {.events = {"beep"}}},
    };
    check(cases);
}

TEST(FuelUplift, AddsUpliftTimesDensityToTheRemainingFuel) {
    const Scenario cases[] = {
        {"1000 kg + 2000 L at 0.8 kg/L",
         page::FuelUplift,
         {{1, "1000"}, {3, "2000"}, {5, "0.8"}},
         {{2, "2205"}, {6, "6.67746637992"}, {7, "2600"}, {8, "5733"}}},
        {"pairs are taken over both ways",
         page::FuelUplift,
         {{2, "2205"}, {4, "100"}, {6, "6.67746637992"}},
         {{1, "1000"}, {3, "378.541178"}, {5, "0.8"}, {7, "1302.8329424"}}},
        {"no uplift leaves the totals",
         page::FuelUplift,
         {{1, "500"}, {5, "0.8"}},
         {{7, "0"}, {8, "0"}}},
        {"a density of 1 kg/L passes", page::FuelUplift, {{5, "1"}}, {{5, "1"}}},
        {"heavier than water is flagged at every entry",
         page::FuelUplift,
         {{5, "1.01"}, {1, "100"}},
         {{1, "100"}},
         {.events = {"exclamation Fuel Uplift: Verify Fuel Density !",
                     "exclamation Fuel Uplift: Verify Fuel Density !"}}},
        {"in lbs/USG too",
         page::FuelUplift,
         {{6, "10"}},
         {},
         {.events = {"exclamation Fuel Uplift: Verify Fuel Density !"}}},
        {"the totals are results",
         page::FuelUplift,
         {{7, "100"}},
         {{7, "0"}},
         {.events = {"beep"}}},
        {"no negative fuel", page::FuelUplift, {{1, "-1"}}, {{1, "0"}}, {.events = {"beep"}}},
    };
    check(cases);
}

TEST(Endurance, SolvesQuantityFlowAndTime) {
    const Scenario cases[] = {
        {"600 kg at 200 kg/hr",
         page::Endurance,
         {{1, "600"}, {2, "200"}},
         {{7, "3"}, {8, "180"}, {3, "0"}, {6, "0"}},
         {.captions = {{7, "3:00"}}}},
        {"500 L at 150 L/hr",
         page::Endurance,
         {{3, "500"}, {4, "150"}},
         {{5, "132.086026318648"}, {6, "39.6258078955944"}, {8, "200"}}},
        {"2.5 h with 400 kg gives the flow",
         page::Endurance,
         {{1, "400"}, {7, "2.5"}},
         {{2, "160"}, {8, "150"}},
         {.captions = {{7, "2:30"}}}},
        {"90 min with 30 L/hr gives the quantity",
         page::Endurance,
         {{4, "30"}, {8, "90"}},
         {{7, "1.5"}, {3, "45"}, {5, "11.8877423686783"}, {1, "0"}}},
        {"a kg quantity after a litre flow uses the endurance left",
         page::Endurance,
         {{4, "30"}, {8, "90"}, {1, "300"}},
         {{2, "200"}, {3, "0"}, {4, "0"}, {6, "0"}}},
        {"10 USG with 2 h gives the flow through the litre rows",
         page::Endurance,
         {{7, "2"}, {5, "10"}},
         {{3, "37.8541178"}, {4, "18.9270589"}, {6, "5"}, {8, "120"}}},
        {"no pair and no endurance leave it empty",
         page::Endurance,
         {{1, "600"}, {4, "30"}},
         {{7, "0"}, {8, "0"}, {1, "600"}}},
        {"minutes are formatted, not rounded",
         page::Endurance,
         {{7, "1.9999"}},
         {},
         {.captions = {{7, "1:60"}}}},
        {"no negative endurance", page::Endurance, {{7, "-1"}}, {{7, "0"}}, {.events = {"beep"}}},
    };
    check(cases);
}

TEST(FuelRange, SolvesRangeInTheOrderOfEntry) {
    const Scenario cases[] = {
        {"600 kg, 200 kg/hr, 120 kt",
         page::FuelRange,
         {{1, "600"}, {2, "200"}, {7, "120"}},
         {{8, "360"}}},
        {"ground speed first is cleared",
         page::FuelRange,
         {{7, "120"}, {1, "600"}, {2, "200"}},
         {{7, "0"}, {8, "0"}}},
        {"500 L, 150 L/hr, 100 kt",
         page::FuelRange,
         {{3, "500"}, {4, "150"}, {7, "100"}},
         {{5, "132.086026318648"}, {8, "333.333333333333"}}},
        {"a range with a quantity gives the flow",
         page::FuelRange,
         {{1, "600"}, {7, "120"}, {8, "450"}},
         {{2, "160"}, {3, "0"}}},
        {"a range with a litre flow gives the quantity",
         page::FuelRange,
         {{4, "30"}, {7, "100"}, {8, "300"}},
         {{3, "90"}, {5, "23.7754847373566"}, {1, "0"}, {2, "0"}}},
        {"no negative range", page::FuelRange, {{8, "-1"}}, {{8, "0"}}, {.events = {"beep"}}},
        {"a flow and a range without a ground speed stop at the division by zero",
         page::FuelRange,
         {{4, "30"}, {8, "300"}},
         {{8, "300"}},           // written before the fault, and kept
         {.captions = {{8, ""}}, // but not drawn
          .events = {"critical zelFLIGHTAB: Division by zero"},
          .inputRow = 4,
          .display = "300."}},
    };
    check(cases);
}

enum { Altitude = 1, Mach = 2, Sat = 3, Cas = 4, Tat = 5, Eas = 6, Kr = 7, Tas = 8 };

TEST(MachAS, ReproducesTheReferenceValues) {
    const Scenario cases[] = {
        {"10000 ft, CAS 250, SAT -4.8",
         page::MachAS,
         {{Altitude, "10000"}, {Sat, "-4.8"}, {Cas, "250"}},
         {{Mach, "0.452432154215899"},
          {Eas, "248.094517142828"},
          {Tas, "288.782417032353"},
          {Tat, "6.18597282322008"}}},
        {"25000 ft, CAS 300, SAT -34.5, Kr 0.9",
         page::MachAS,
         {{Altitude, "25000"}, {Sat, "-34.5"}, {Kr, "0.9"}, {Cas, "300"}},
         {{Mach, "0.717109820779428"}, {Tas, "431.651122079666"}}},
        {"41000 ft, CAS 350, SAT -56.5: supersonic",
         page::MachAS,
         {{Altitude, "41000"}, {Sat, "-56.5"}, {Cas, "350"}},
         {{Mach, "1.12251650007533"}}},
        {"35000 ft, SAT -54.3, M 0.78",
         page::MachAS,
         {{Altitude, "35000"}, {Sat, "-54.3"}, {Mach, "0.78"}},
         {{Cas, "264.328064940256"},
          {Eas, "250.19274748554"},
          {Tas, "449.608344410829"},
          {Tat, "-27.670332"}}},
        {"nothing until a speed is given",
         page::MachAS,
         {{Altitude, "10000"}, {Sat, "-4.8"}},
         {{Tat, "0"}, {Kr, "1"}}},
        {"an altitude clears the four speeds",
         page::MachAS,
         {{Altitude, "10000"}, {Sat, "-4.8"}, {Cas, "250"}, {Altitude, "12000"}},
         {{Mach, "0"}, {Cas, "0"}, {Eas, "0"}, {Tas, "0"}}},
        {"no temperature: both from the standard atmosphere",
         page::MachAS,
         {{Altitude, "35000"}, {Mach, "0.78"}},
         {{Sat, "-54.342"}, {Tat, "-27.71744256"}}},
        {"a typed TAT replaces the computed SAT",
         page::MachAS,
         {{Altitude, "35000"}, {Mach, "0.78"}, {Tat, "-20"}, {Mach, "0.78"}},
         {{Sat, "-47.4617466657157"}}},
        {"the computed SAT gives way to a speed; the typed TAT stays",
         page::MachAS,
         {{Altitude, "35000"}, {Mach, "0.78"}, {Tat, "-20"}, {Mach, "0.78"}, {Cas, "250"}},
         {{Tat, "-20"}, {Sat, "-45.0755747824652"}, {Mach, "0.741433416763082"}}},
        {"temperatures alone give the Mach",
         page::MachAS,
         {{Sat, "-50"}, {Tat, "-20"}, {Tas, "400"}},
         {{Mach, "0.819874131653405"}, {Tas, "477.212833199254"}}},
        {"no negative speed", page::MachAS, {{Cas, "-5"}}, {{Cas, "0"}}, {.events = {"beep"}}},
        {"below absolute zero",
         page::MachAS,
         {{Sat, "-300"}, {Mach, "0.5"}},
         {{Mach, "0"}},
         {.events = {"beep"}}},
        {"a probe colder than the air",
         page::MachAS,
         {{Sat, "-20"}, {Tat, "-30"}, {Cas, "250"}},
         {{Cas, "0"}, {Tat, "-30"}},
         {.events = {"beep"}}},
    };
    check(cases);
}

TEST(WindPage, SolvesTheTriangleAndShowsSidesAndComponents) {
    const Scenario cases[] = {
        {"heading and wind give course and ground speed",
         page::Wind,
         {{1, "90"}, {2, "100"}, {5, "360"}, {6, "20"}},
         {{4, "101.9804"}},
         {.captions = {{1, "090"}, {3, "101"}, {5, "360"}, {7, "R 11.31"}, {8, "T 1.98"}}}},
        {"course and wind give heading and ground speed",
         page::Wind,
         {{3, "90"}, {2, "100"}, {5, "360"}, {6, "20"}},
         {{1, "78.46304"}, {4, "97.97959"}, {8, "-2.020409"}}},
        {"the TAS follows a known ground speed",
         page::Wind,
         {{3, "90"}, {4, "97.9796"}, {5, "360"}, {6, "20"}},
         {{2, "100"}, {1, "78.46304"}}},
        {"the wind from heading, TAS, course and ground speed",
         page::Wind,
         {{1, "90"}, {2, "100"}, {3, "100"}, {4, "110"}},
         {{5, "336.4411"}, {6, "20.83817"}, {7, "9.999998"}}},
        {"unknown results show empty",
         page::Wind,
         {{1, "90"}},
         {{7, "-999"}},
         {.captions = {{7, ""}, {8, ""}}}},
        {"a wind stronger than the TAS across the course has no triangle",
         page::Wind,
         {{3, "90"}, {2, "20"}, {5, "360"}, {6, "50"}},
         {{1, "0"}, {4, "0"}}},
        {"no wind with heading, TAS, course and ground speed along it",
         page::Wind,
         {{1, "90"}, {2, "100"}, {3, "90"}, {4, "100"}},
         {{5, "0"}, {6, "0"}}},
        {"360 and 1 are directions", page::Wind, {{1, "360"}, {3, "1"}}, {{1, "360"}, {3, "1"}}},
        {"400 is not",
         page::Wind,
         {{1, "400"}},
         {{1, "0"}},
         {.events = {"exclamation Wind: Invalid direction (range 1 - 360°)"}}},
        {"drift is a result", page::Wind, {{7, "5"}}, {{7, "-999"}}, {.events = {"beep"}}},
        {"no negative TAS", page::Wind, {{2, "-5"}}, {{2, "0"}}, {.events = {"beep"}}},
    };
    check(cases);
}

TEST(TrackTime, RelatesDistanceTimeAndSpeedWithTheWind) {
    const Scenario cases[] = {
        {"100 km in nautical miles", page::TrackTime, {{1, "100"}}, {{2, "53.995689325417"}}},
        {"120 nm at 240 kt take half an hour",
         page::TrackTime,
         {{2, "120"}, {4, "240"}},
         {},
         {.captions = {{3, "0:30"}}}},
        {"with distance and speed the time is recomputed",
         page::TrackTime,
         {{2, "120"}, {4, "240"}, {3, "1"}},
         {{3, "0.5"}}},
        {"200 kt for 1.5 h",
         page::TrackTime,
         {{4, "200"}, {3, "1.5"}},
         {{2, "300"}, {1, "555.5999076"}},
         {.captions = {{3, "1:30"}}}},
        {"ground speed from the wind",
         page::TrackTime,
         {{2, "98"}, {5, "90"}, {6, "100"}, {7, "360"}, {8, "20"}},
         {{4, "97.97959"}},
         {.captions = {{3, "1:00"}}}},
        {"361 is no track",
         page::TrackTime,
         {{5, "361"}},
         {{5, "0"}},
         {.events = {"exclamation Track Time: Invalid direction (range 1 - 360°)"}}},
        {"no negative ground speed",
         page::TrackTime,
         {{4, "-5"}},
         {{4, "0"}},
         {.events = {"beep"}}},
    };
    check(cases);
}

TEST(WindComp, SplitsTheWindAlongAndAcrossTheRunway) {
    const Scenario cases[] = {
        {"straight down the runway",
         page::WindComp,
         {{1, "270"}, {2, "20"}, {3, "270"}},
         {},
         {.captions = {{6, "H 20.00"}, {8, ""}}}},
        {"from the right",
         page::WindComp,
         {{1, "360"}, {2, "20"}, {3, "270"}},
         {},
         {.captions = {{6, "T 0.00"}, {8, "R 20.00"}}}},
        {"from the left",
         page::WindComp,
         {{1, "180"}, {2, "20"}, {3, "270"}},
         {},
         {.captions = {{6, "T 0.00"}, {8, "L 20.00"}}}},
        {"from behind",
         page::WindComp,
         {{1, "90"}, {2, "20"}, {3, "270"}},
         {},
         {.captions = {{6, "T 20.00"}, {8, "R 0.00"}}}},
        {"400 is no runway",
         page::WindComp,
         {{3, "400"}},
         {{3, "0"}},
         {.events = {"exclamation Wind Comp: Invalid direction (range 1 - 360°)"}}},
        {"the components are results",
         page::WindComp,
         {{6, "5"}},
         {{6, "-999"}},
         {.events = {"beep"}}},
    };
    check(cases);
}

TEST(Snowtam, DecodesEachFieldByItself) {
    const std::pair<const char*, std::map<int, const char*>> cases[] = {
        {"88290140",
         {{1, "All RWY"},
          {2, "Wet / Water Patches"},
          {4, "51% - 100%"},
          {6, "01 mm"},
          {7, "0.40"},
          {8, "Good"}}},
        {"59450295",
         {{1, "09R"},
          {2, "Dry Snow"},
          {4, "26% - 50%"},
          {6, "02 mm"},
          {7, "0.40 - 1.00"},
          {8, "Good"}}},
        {"27//////",
         {{1, "27"},
          {2, "(not reported)"},
          {4, "(not reported)"},
          {6, "(not relevant)"},
          {7, ""},
          {8, "(not reported)"}}},
        {"99319912", {{1, "Previous Report"}, {6, "RWY closed"}, {7, "0.12"}, {8, "Poor"}}},
        {"0773//25", {{1, "07"}, {2, "Ice"}, {4, "(invalid entry)"}}},
        {"10519029", {{6, "90 mm"}, {7, "0.29"}, {8, "Medium-Poor"}}},
        {"01000099", {{7, "(unreliable)"}, {8, "(not reported)"}}},
        {"01000097", {{7, ""}, {8, ""}}},
        {"01009393", {{6, "150 mm"}, {7, "0.30 - 0.35"}, {8, "Medium"}}},
    };
    for (const auto& [group, captions] : cases) {
        Calculator calc(Dot, page::Snowtam);
        calc.type(group);
        calc.menu.Form_KeyUp(key::Enter);
        for (const auto& [row, caption] : captions) {
            EXPECT_EQ(calc.caption(row), caption) << group << ", row " << row;
        }
    }
}

TEST(Snowtam, TakesEightCodeCharactersAndDrawsLongTextsSmall) {
    Calculator calc(Dot, page::Snowtam);
    calc.type("01a36//0000");
    EXPECT_EQ(calc.menu.display(), "0136//00");
    EXPECT_EQ(calc.ui.events, (std::vector<std::string>{"beep", "beep"}));
    calc.menu.LabValue_Click(5); // any cell decodes
    EXPECT_EQ(calc.caption(2), "Rime - Frost < 1mm");
    EXPECT_EQ(calc.menu.row(2).fontSize, 9);
    EXPECT_EQ(calc.menu.row(1).fontSize, 12);
    calc.menu.Form_KeyPress(key::Backspace);
    calc.menu.Form_KeyUp(key::Enter);
    EXPECT_EQ(calc.lastEvent(), "exclamation Snowtam: Snowtam must be 8 digits...");
    EXPECT_EQ(calc.caption(1), "");
    for (int i = 0; i < 9; ++i) {
        calc.menu.Form_KeyPress(key::Backspace);
    }
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "");
}

} // namespace
} // namespace zel::test
