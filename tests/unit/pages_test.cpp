// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Every calculator page as a user drives it: values typed into rows one after
// the other, then what some rows hold (tags) or show (captions), and what the
// user was told. See scenario.h for how a case reads.
#include "scenario.h"
#include "snowtam/snowtam.h"

namespace zel::test {
namespace {

using namespace page;

TEST(FactorPages, ConvertThroughTheBaseUnit) {
    const Scenario cases[] = {
        {"1 kg is 2.205 lbs", Weight, "1@1", "2=2.205 | 3=0.001"},
        {"1 imperial gallon", Fluid, "1@3", "1=4.54609 | 2=0.00454609 | 3=1"},
        {"a barrel of oil is 42 US gallons, of 4 quarts or 128 ounces each", Fluid, "42@4",
         "8:1.00 | 6:168.00 | 7:5,376.00 | 1:158.99"},
        {"1 kt is 1.851999692 km/h", Speed, "1@2", "1=1.851999692"},
        {"1 statute mile", Distance, "1@4", "3=1.609343871"},
        {"12 inches are a foot", Distance, "12@8", "7:1.00"},
        {"1000 ml are a litre", Fluid, "1000@5", "1=1"},
        {"1 hPa is 1 mb", Pressure, "1@3", "4=1"},
        {"1 atmosphere is 1013.25 hPa", Pressure, "1@2", "3=1013.25"},
        {"1 thrust K is 1560 HP", Power, "1@8", "1=1560"},
        {"1 hectare is 10000 m2", Surface, "1@4", "1=10000"},
        {"a negative value is refused", Weight, "5@1 -1@2", "1=5 | !beep"},
        {"regional symbols", Weight, "1,5@1", "2=3,3075 | 4:1.500,00", Comma},
    };
    check(cases);
}

TEST(Temperature, ConvertsThroughCelsius) {
    const Scenario cases[] = {
        {"boiling water", Temperature, "100@1", "2=212 | 3=373.15 | 4=671.67"},
        {"-40 F is -40 C", Temperature, "-40@2", "1=-40 | 3=233.15"},
        {"491.67 R is 0 C", Temperature, "491.67@4", "1=0 | 2=32"},
        {"below absolute zero in C", Temperature, "-300@1", "3=-26.85"},
        {"kelvin is never negative", Temperature, "-5@3", "1=0 | !beep"},
        {"nor is rankine", Temperature, "-5@4", "1=0 | !beep"},
    };
    check(cases);
}

TEST(Angle, UsesTheSinglePrecisionPi) {
    const Scenario cases[] = {
        {"180 degrees", Angle, "180@1", "2=3.14159274101257 | 3=10800 | 4=200 | 5=1"},
        {"1 pi is 180 degrees", Angle, "1@5", "1=180"},
        {"pi in radians is exactly 180 degrees", Angle, "3.14159274101257@2", "1=180"},
        {"45 degrees is a 100 % slope", Angle, "45@1", "6=100.000004371139"},
        {"and back", Angle, "100@6", "1=44.999998747761"},
        {"negative angles convert", Angle, "-30@3", "1=-0.5"},
    };
    check(cases);
}

TEST(Speed, ClassifiesOnTheBeaufortScale) {
    const Scenario cases[] = {
        {"10 kt is a gentle breeze", Speed, "10@2", "1=18.51999692 | 7:3 | 8:gentle breeze"},
        {"0.4 km/h is calm", Speed, "0.4@1", "7:0 | 8:calm"},
        {"1.4 km/h is still calm", Speed, "1.4@1", "7:0"},
        {"1.5 km/h is light air", Speed, "1.5@1", "7:1 | 8:light air"},
        {"117.4 km/h is a violent storm", Speed, "117.4@1", "7:11 | 8:violent storm"},
        {"117.5 km/h is a hurricane", Speed, "117.5@1", "7:12 | 8:hurricane"},
        {"force 4 is 28 km/h, in row 1", Speed, "4@7", "1=28 | 2=15.1187930111168 | >1"},
        {"force 4.5 is force 4", Speed, "4.5@7", "1=28 | 8:moderate breeze"},
        {"force 12 is 133 km/h", Speed, "12@7", "1=133 | 8:hurricane"},
        {"force 1 is 5 km/h", Speed, "1@7", "1=5"},
        {"force 13 is out of range", Speed, "13@7",
         "1=0 | !exclamation Speed: Invalid input (range 1 to 12)"},
        {"so is force 0.5", Speed, "0.5@7", "!exclamation Speed: Invalid input (range 1 to 12)"},
        {"the description is a result", Speed, "3@8", "!beep"},
        {"no negative speeds", Speed, "-3@2", "2=0 | !beep"},
    };
    check(cases);
    // Each band's top in whole km/h, and each force's speed when typed.
    const int tops[] = {1, 5, 11, 19, 28, 38, 49, 61, 74, 88, 102, 117};
    const char* speeds[] = {"5",  "11", "19", "28",  "38",  "49",
                            "61", "74", "88", "102", "117", "133"};
    for (int force = 1; force <= 12; ++force) {
        const auto top = std::to_string(tops[force - 1]);
        const auto f = std::to_string(force);
        check({"the top of a band", Speed, (top + ".4@1").c_str(),
               ("7:" + std::to_string(force - 1)).c_str()});
        check({"just above it", Speed, (top + ".5@1").c_str(), ("7:" + f).c_str()});
        check({"a force typed", Speed, (f + "@7").c_str(),
               (std::string("1=") + speeds[force - 1]).c_str()});
    }
}

TEST(FuelUplift, AddsUpliftTimesDensityToTheRemainingFuel) {
    const char* heavy = "!exclamation Fuel Uplift: Verify Fuel Density !";
    const Scenario cases[] = {
        {"1000 kg + 2000 L at 0.8 kg/L", FuelUplift, "1000@1 2000@3 0.8@5",
         "2=2205 | 6=6.67746637992 | 7=2600 | 8=5733"},
        {"pairs are taken over both ways", FuelUplift, "2205@2 100@4 6.67746637992@6",
         "1=1000 | 3=378.541178 | 5=0.8 | 7=1302.8329424"},
        {"no uplift leaves the totals", FuelUplift, "500@1 0.8@5", "7=0 | 8=0"},
        {"a density of 1 kg/L passes", FuelUplift, "1@5", "5=1"},
        {"a density in lbs/USG stays in its row", FuelUplift, "7@6", "6:7.00"},
        {"the totals are results", FuelUplift, "100@7", "7=0 | !beep"},
        {"no negative fuel", FuelUplift, "-1@1", "1=0 | !beep"},
    };
    check(cases);
    // A density heavier than water is flagged at every entry, in either unit.
    check(
        {"heavy in kg/L", FuelUplift, "1.01@5 100@1", (std::string(heavy) + "|" + heavy).c_str()});
    check({"heavy in lbs/USG", FuelUplift, "10@6", heavy});
}

TEST(Endurance, SolvesQuantityFlowAndTime) {
    const Scenario cases[] = {
        {"600 kg at 200 kg/hr", Endurance, "600@1 200@2", "7=3 | 7:3:00 | 8=180 | 3=0 | 6=0"},
        {"500 L at 150 L/hr", Endurance, "500@3 150@4",
         "5=132.086026318648 | 6=39.6258078955944 | 8=200"},
        {"2:30 with 400 kg give the flow", Endurance, "400@1 2.30@7", "2=160 | 8=150 | 7:2:30"},
        {"a time is typed as hours.minutes", Endurance, "100@1 1.45@7", "8=105 | 7:1:45"},
        {"60 minutes are no minutes", Endurance, "100@1 1.60@7", "7: | !beep"},
        {"90 min with 30 L/hr give the quantity", Endurance, "30@4 90@8",
         "7=1.5 | 3=45 | 5=11.8877423686783 | 1=0"},
        {"a kg quantity after a litre flow uses the endurance left", Endurance, "30@4 90@8 300@1",
         "2=200 | 3=0 | 4=0 | 6=0"},
        {"10 USG with 2 h give the flow through the litre rows", Endurance, "2@7 10@5",
         "3=37.8541178 | 4=18.9270589 | 6=5 | 8=120"},
        {"no pair and no endurance leave it empty", Endurance, "600@1 30@4", "7=0 | 8=0 | 1=600"},
        {"2 h at 150 kg/hr need 300 kg", Endurance, "2@7 150@2", "1:300.00 | 2:150.00"},
        {"minutes are rounded, then split", Endurance, "119.994@8", "7:2:00"},
        {"1,999 kg at 1,000 kg/hr is 2:00", Endurance, "1999@1 1000@2", "7:2:00"},
        {"199 kg at 200 kg/hr is 1:00", Endurance, "199@1 200@2", "7:1:00"},
        {"no negative endurance", Endurance, "-1@7", "7=0 | !beep"},
    };
    check(cases);
}

TEST(FuelRange, SolvesRangeInTheOrderOfEntry) {
    const Scenario cases[] = {
        {"600 kg, 200 kg/hr, 120 kt", FuelRange, "600@1 200@2 120@7", "8=360"},
        {"ground speed first is cleared", FuelRange, "120@7 600@1 200@2", "7=0 | 8=0"},
        {"500 L, 150 L/hr, 100 kt", FuelRange, "500@3 150@4 100@7",
         "5=132.086026318648 | 8=333.333333333333"},
        {"a range with a quantity gives the flow", FuelRange, "600@1 120@7 450@8", "2=160 | 3=0"},
        {"a range with a litre flow gives the quantity", FuelRange, "30@4 100@7 300@8",
         "3=90 | 5=23.7754847373566 | 1=0 | 2=0"},
        {"no negative range", FuelRange, "-1@8", "8=0 | !beep"},
        {"half a knot", FuelRange, "600@1 200@2 0.5@7", "8=1.5"},
        // 300 nm at 30 L/hr take 90 L at 100 kt; with no ground speed the
        // range stays as typed and the quantity is unknown.
        {"no ground speed: the range waits for one", FuelRange, "30@4 300@8",
         "8=300 | 3: | 5: | >8 | #0."},
    };
    check(cases);
}

TEST(MachAS, ReproducesTheReferenceValues) {
    // Rows: 1 altitude, 2 Mach, 3 SAT, 4 CAS, 5 TAT, 6 EAS, 7 recovery factor, 8 TAS.
    const Scenario cases[] = {
        {"10000 ft, CAS 250, SAT -4.8", MachAS, "10000@1 -4.8@3 250@4",
         "2=0.452432154215899 | 6=248.094517142828 | 8=288.782417032353 | 5=6.18597282322008"},
        {"25000 ft, CAS 300, SAT -34.5, Kr 0.9", MachAS, "25000@1 -34.5@3 0.9@7 300@4",
         "2=0.717109820779428 | 8=431.651122079666"},
        {"41000 ft, CAS 350, SAT -56.5: supersonic", MachAS, "41000@1 -56.5@3 350@4",
         "2=1.12251650007533"},
        {"35000 ft, SAT -54.3, M 0.78", MachAS, "35000@1 -54.3@3 0.78@2",
         "4=264.328064940256 | 6=250.19274748554 | 8=449.608344410829 | 5=-27.670332"},
        {"the EAS gives the rest", MachAS, "10000@1 -4.8@3 248.0945@6", "4:250.00 | 8:288.78"},
        {"nothing until a speed is given", MachAS, "10000@1 -4.8@3", "5=0 | 7=1"},
        {"an altitude clears the four speeds", MachAS, "10000@1 -4.8@3 250@4 12000@1",
         "2=0 | 4=0 | 6=0 | 8=0"},
        {"no temperature: both from the standard atmosphere", MachAS, "35000@1 0.78@2",
         "3=-54.342 | 5=-27.71744256"},
        {"a typed TAT replaces the computed SAT", MachAS, "35000@1 0.78@2 -20@5 0.78@2",
         "3=-47.4617466657157"},
        {"the computed SAT gives way to a speed; the typed TAT stays", MachAS,
         "35000@1 0.78@2 -20@5 0.78@2 250@4", "5=-20 | 3=-45.0755747824652 | 2=0.741433416763082"},
        {"temperatures alone give the Mach", MachAS, "-50@3 -20@5 400@8",
         "2=0.819874131653405 | 8=477.212833199254"},
        {"SAT and TAS give the Mach", MachAS, "-20@3 300@8",
         "2=0.483911345222294 | 4=319.984198701321 | 5=-8.14396327853552"},
        {"no negative speed", MachAS, "-5@4", "4=0 | !beep"},
        {"below absolute zero", MachAS, "-300@3 0.5@2", "2=0 | !beep"},
        {"a probe colder than the air", MachAS, "-20@3 -30@5 250@4", "4=0 | 5=-30 | !beep"},
    };
    check(cases);
}

TEST(WindPage, SolvesTheTriangleFromTheNewestGivens) {
    // Rows: 1 heading, 2 TAS, 3 course, 4 ground speed, 5 wind direction,
    // 6 wind speed, 7 drift, 8 wind component.
    static const std::string noHeading =
        "!exclamation Wind: Wind stronger than TAS: no heading holds this course";
    static const std::string against = "1: | 4: | 7: | " + noHeading;
    static const std::string across = "1: | 4: | " + noHeading;
    const Scenario cases[] = {
        {"heading and wind give course and ground speed", Wind, "90@1 100@2 360@5 20@6",
         "3:101 | 4:101.98 | 7:R 11.31 | 8:T 1.98"},
        {"a headwind from the right", Wind, "90@1 100@2 45@5 20@6",
         "3:099 | 4:87.01 | 7:R 9.35 | 8:H 12.99"},
        {"course and wind give heading and ground speed", Wind, "90@3 100@2 360@5 20@6",
         "1:078 | 4:97.98 | 7:R 11.54 | 8:H 2.02"},
        {"heading, TAS, course and ground speed give the wind", Wind, "90@1 100@2 100@3 110@4",
         "5:336 | 6:20.84 | 7:R 10.00 | 8:T 10.00"},
        {"the wind from the left-hand side", Wind, "90@1 100@2 80@3 110@4", "5:204 | 7:L 10.00"},
        {"course, ground speed and wind give heading and TAS", Wind, "90@3 97.98@4 360@5 20@6",
         "2:100.00 | 1:078"},
        {"a tailwind along the course: no drift", Wind, "90@3 100@2 270@5 20@6",
         "1:090 | 4:120.00 | 7:0.00"},
        {"calm air: the course is the heading", Wind, "45@1 100@2 0@6", "3:045 | 4:100.00"},
        {"too little known leaves the results empty", Wind, "90@1 100@2", "3: | 4: | 7: | 8:"},
        // What is typed last stays, and nothing keeps a value of older givens.
        {"a new course typed is kept", Wind, "90@3 100@2 360@5 30@6 120@3",
         "3:120 | 1:105 | 4:111.57"},
        {"a new ground speed typed is kept", Wind, "90@1 100@2 100@3 90@4 80@4",
         "4:80.00 | 5:057 | 6:25.36"},
        {"before it, the wind is 036/19.33", Wind, "90@1 100@2 100@3 90@4", "5:036 | 6:19.33"},
        {"a new wind direction keeps the course", Wind, "90@3 100@2 360@5 30@6 30@5",
         "3:090 | 1:075 | 4:81.57"},
        // Directions from 001 to 360, drift R or L up to 180.
        {"a course past north", Wind, "350@1 100@2 270@5 30@6", "3:007"},
        {"a heading before north", Wind, "10@3 100@2 270@5 30@6", "1:353"},
        {"drift across north", Wind, "355@1 5@3", "7:R 10.00"},
        {"a course from the air and wind vectors", Wind, "360@1 20@2 350@5 25@6", "3:137 | 4:6.34"},
        {"a wind stronger than the TAS against the course", Wind, "360@3 20@2 360@5 25@6",
         against.c_str()},
        {"or across it", Wind, "90@3 20@2 360@5 50@6", across.c_str()},
        {"400 is no direction", Wind, "400@1",
         "1: | !exclamation Wind: Invalid direction (range 1 - 360°)"},
        {"drift is a result", Wind, "5@7", "7: | !beep"},
        {"no TAS of 0", Wind, "0@2", "2: | !beep"},
    };
    check(cases);
}

TEST(TrackTime, RelatesDistanceTimeAndSpeedWithTheWind) {
    // Rows: 1 km, 2 nm, 3 time, 4 ground speed, 5 track, 6 TAS, 7 and 8 the wind.
    const Scenario cases[] = {
        {"100 km in nautical miles", TrackTime, "100@1", "2=53.995689325417 | 3: | 4:"},
        {"120 nm at 240 kt take half an hour", TrackTime, "120@2 240@4", "3:0:30"},
        {"a time typed last is kept; the distance follows", TrackTime, "120@2 240@4 1@3",
         "3=1 | 4:240.00 | 2:240.00"},
        {"300 nm in 1:30 is 200 kt", TrackTime, "300@2 1.30@3", "4=200"},
        {"200 kt for 1:30", TrackTime, "200@4 1.30@3", "2=300 | 1=555.5999076 | 3:1:30"},
        {"ground speed from the wind", TrackTime, "98@2 90@5 100@6 360@7 20@8", "4:97.98 | 3:1:00"},
        {"a stronger wind slows the aircraft", TrackTime, "100@6 360@5 360@7 20@8 100@2 30@8",
         "4:70.00 | 6:100.00 | 3:1:26"},
        {"a new TAS is kept", TrackTime, "100@6 360@5 360@7 30@8 100@2 120@6",
         "6:120.00 | 4:90.00 | 3:1:07"},
        {"a headwind as strong as the TAS", TrackTime, "100@2 20@6 360@5 360@7 20@8",
         "4: | 3: | !exclamation Track Time: Wind stronger than TAS: no heading holds this course"},
        {"361 is no track", TrackTime, "361@5",
         "5: | !exclamation Track Time: Invalid direction (range 1 - 360°)"},
        {"no negative ground speed", TrackTime, "-5@4", "4: | !beep"},
    };
    check(cases);
}

TEST(TrackTime, TakesATimeTypedWithAColon) {
    const Scenario cases[] = {
        {"300 nm in 1:30 is 200 kt", TrackTime, "300@2 1:30@3", "4=200 | 3:1:30 | #0."},
        {"130 nm in 1:05 is 120 kt", TrackTime, "130@2 1:05@3", "4=120"},
        {"0:45 of 200 kg/hr is 150 kg", Endurance, "200@2 0:45@7", "1:150.00 | 8:45.00"},
        {"1:75 is refused", TrackTime, "300@2 1:75@3",
         "3: | >2 | #1:75 | ?1:75 refused: minutes under 60 | !beep"},
        {"a time goes into an h:mm row only", TrackTime, "1:30@2",
         "2: | ?1:30 refused: a time goes into an h:mm row | !beep"},
        {"two figures of minutes", TrackTime, "1:305@3", "3:1:30 | !beep"},
        {"one colon", TrackTime, "1::30@3", "3:1:30 | !beep"},
        {"no decimals after a colon", TrackTime, "1:3.0@3", "3:1:30 | !beep"},
        {"no colon after decimals", TrackTime, "1.5:@3", "3:1:50 | !beep"},
        {"the colon erased: 1 then 30 is 130 h", TrackTime, "1:{bs}30@3", "3:130:00"},
        {"the h.mm entry stays", TrackTime, "1.30@3", "3:1:30"},
    };
    check(cases);
}

TEST(WindComp, SplitsTheWindAlongAndAcrossTheRunway) {
    const Scenario cases[] = {
        {"straight down the runway", WindComp, "270@1 20@2 270@3", "6:H 20.00 | 8:0.00"},
        {"a calm has no component", WindComp, "270@1 0@2 300@3", "6:0.00 | 8:0.00"},
        {"from the right", WindComp, "360@1 20@2 270@3", "6:0.00 | 8:R 20.00"},
        {"from the left", WindComp, "180@1 20@2 270@3", "6:0.00 | 8:L 20.00"},
        {"from behind", WindComp, "90@1 20@2 270@3", "6:T 20.00 | 8:0.00"},
        {"400 is no runway", WindComp, "400@3",
         "3=0 | !exclamation Wind Comp: Invalid direction (range 1 - 360°)"},
        {"the components are results", WindComp, "5@6", "6=0 | !beep"},
        {"361 is no wind direction", WindComp, "361@1",
         "1=0 | !exclamation Wind Comp: Invalid direction (range 1 - 360°)"},
        {"but 400 kt is a wind velocity", WindComp, "400@2", "2=400"},
    };
    check(cases);
}

TEST(Snowtam, DecodesEachFieldByItself) {
    const std::pair<const char*, const char*> cases[] = {
        {"88290140",
         "1:All RWY | 2:Wet / Water Patches | 4:51% - 100% | 6:01 mm | 7:0.40 | 8:Good"},
        {"59450295", "1:09R | 2:Dry Snow | 4:26% - 50% | 6:02 mm | 7:0.40 - 1.00 | 8:Good"},
        {"27//////",
         "1:27 | 2:(not reported) | 4:(not reported) | 6:(not relevant) | 7: | 8:(not reported)"},
        {"99319912", "1:Previous Report | 6:RWY closed | 7:0.12 | 8:Poor"},
        {"0773//25", "1:07 | 2:Ice | 4:(invalid entry)"},
        {"10519029", "6:90 mm | 7:0.29 | 8:Medium-Poor"},
        {"01000099", "7:(unreliable) | 8:(not reported)"},
        {"01000097", "7: | 8:"},
        {"01009393", "6:150 mm | 7:0.30 - 0.35 | 8:Medium"},
        {"50290140", "1:00R"},
        {"01000025", "8:Poor"},
        {"01000026", "7:0.26 | 8:Medium-Poor"},
        {"01000030", "8:Medium"},
        {"01000035", "8:Medium"},
        {"01000036", "8:Medium-Good"},
        {"01000039", "8:Medium-Good"},
        {"01000090", "7:0.90 | 8:Good"},
        {"01000091", "7:0 - 0.25 | 8:Poor"},
        {"01000092", "7:0.26 - 0.29 | 8:Medium-Poor"},
        {"01000094", "7:0.36 - 0.39 | 8:Medium-Good"},
    };
    for (const auto& [group, expect] : cases) {
        // Typed and decoded with a click on any row.
        check({group, Snowtam, (std::string(group) + "@5").c_str(), expect});
    }
}

TEST(Snowtam, AGroupWithAnyCharacterButFiguresAndSlashesIsRefusedWhole) {
    for (const std::string_view group : {"27/\xff\xff\xff\xff\xff", "2719ab93", "27 19/93"}) {
        PageSheet sheet(Dot);
        const Report report = decodeStateGroup(sheet, group);
        EXPECT_EQ(report.paragraphs, std::vector<std::string>{"Snowtam must be 8 digits..."});
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            EXPECT_EQ(sheet[row].text, "") << group << " row " << row;
        }
    }
}

TEST(Snowtam, TakesEightCodeCharactersAndDrawsLongTextsSmall) {
    Calculator calc(Dot, Snowtam);
    calc.type("01a36//0000");
    EXPECT_EQ(calc.menu.view().display, "0136//00");
    EXPECT_EQ(calc.ui.events, (std::vector<std::string>{"beep", "beep"}));
    calc.menu.keyUp({.key = Key::Enter});
    EXPECT_EQ(calc.caption(2), "Rime - Frost < 1mm");
    EXPECT_EQ(calc.shown(2).emphasis, emphasis::SmallRow);
    EXPECT_EQ(calc.shown(1).emphasis, emphasis::Row);
    calc.menu.keyDown({.key = Key::Backspace});
    calc.menu.keyUp({.key = Key::Enter});
    EXPECT_EQ(calc.lastEvent(), "exclamation Snowtam: Snowtam must be 8 digits...");
    EXPECT_EQ(calc.caption(1), "");
    for (int i = 0; i < 9; ++i) {
        calc.menu.keyDown({.key = Key::Backspace});
    }
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "");
}

TEST(RunwayCondition, DecodesTodaysReports) {
    const std::pair<const char*, const char*> cases[] = {
        {"09R 5/2/2 100/50/75 NR/06/06 WET/SLUSH/SLUSH",
         "1:09R | 2: | 3:5 Good | 4:2 Medium-Poor | 5:2 Medium-Poor | 6:100 / 50 / 75 | "
         "7:NR / 06 / 06 | 8:Wet / Slush / Slush"},
        {"swea0149 eadd (snowtam 0149 eadd 02170135 27r 6/4/0 25/nr/100 02/nr/120 "
         "dry/frost/water on top of compacted snow 35 29l 5/5/5 100/100/100 nr/nr/nr wet/wet/wet",
         "1:27R width 35 m (1 of 2) | 2:02-17 01:35 | 3:6 Dry | 4:4 Good-Medium | "
         "5:0 Less than Poor | 6:25 / NR / 100 | 7:02 / NR / 120 | 8:Dry / Frost / "
         "Water/Compacted"},
        {"01 3/3/1 50/50/50 10/10/10 SPECIALLY PREPARED WINTER RUNWAY/ICE/WET ICE",
         "8:Prepared Winter / Ice / Wet Ice"},
        {"1 3/3/1 50/50/50 10/10/10 ICE/ICE/ICE", // a coverage is no runway-state group
         "!exclamation RWY Condition: Not a runway condition report"},
        {"R24L/290140", "1:24L | 2:Wet / Water Patches | 4:51% - 100% | 6:01 mm | 7:0.40 | 8:Good"},
        {"METAR EDDF 241220Z R07C/CLRD70 R25/SNOCLO",
         "1:07C (1 of 2) | 2:Contamination cleared | 4: | 7:0.70 | 8:Good"},
        {"R25R/SNOCLO", "1:25R | 2:Closed by snow"},
        {"X24/290140", "!exclamation RWY Condition: Not a runway condition report"},
        {"R/SNOCLO", "1:All RWY | 2:Closed by snow"},
        {"SNOCLO", "1:All RWY | 2:Closed by snow"},
        {"88290140", "1:All RWY | 2:Wet / Water Patches | 7:0.40"},
        {"R2/290140", "!exclamation RWY Condition: Not a runway condition report"},
        {"09L 5/5/5 100/100/100", "!exclamation RWY Condition: Not a runway condition report\r\r"
                                  "Report ends after 100/100/100: depth missing"},
        {"09L 5/5/5 100/100/100 NR/NR/NR", "!exclamation RWY Condition: Not a runway condition "
                                           "report\r\rReport ends after NR/NR/NR: contaminants "
                                           "missing"},
        {"02170060 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "No such date and time 02170060"},
        {"02300055 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "No such date and time 02300055"},
        {"04312355 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "No such date and time 04312355"},
        {"02172400 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "No such date and time 02172400"},
        {"02292359 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET", "2:02-29 23:59"},
        {"R99/451295", "1:Previous Report | 2:Dry Snow | 6:12 mm | 7:0.40 - 1.00 | 8:Good"},
        {"02170055 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET", "1:09L | 2:02-17 00:55"},
        // A report that cannot be read whole is refused, and none of it shown.
        {"02170055 09L 5/5/3", "1: | 2: | !exclamation RWY Condition: Not a runway condition "
                               "report\r\rReport ends after 5/5/3: coverage missing"},
        {"02170055 09L 5/5/3 100/100/50 NR/NR/12 WET/WET/SLUHS",
         "1: | 8: | !exclamation RWY Condition: Not a runway condition report\r\r"
         "Unknown contaminant SLUHS"},
        {"02170055 37 5/5/3 100/100/50 NR/NR/12 WET/WET/SLUSH",
         "1: | !exclamation RWY Condition: Not a runway condition report\r\rNo runway 37"},
        {"09L 5/5 100/100/50 NR/NR/12 WET/WET/SLUSH",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "Runway condition codes must be three figures 0-6 (5/5)"},
        {"09 7/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "Runway condition codes must be three figures 0-6 (7/5/5)"},
        {"09 5/5/5 100/100/60 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "Coverage must be NR, 25, 50, 75 or 100 for each third (100/100/60)"},
        {"09 5/5/5 100/100/100 NR/NR/1 WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "Depth must be NR or 2 to 3 figures for each third (NR/NR/1)"},
        {"13170055 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET",
         "!exclamation RWY Condition: Not a runway condition report\r\r"
         "No such date and time 13170055"},
        {"02170055 is a date, 09L 5/5/3 ...", "!exclamation RWY Condition: Not a runway "
                                              "condition report\r\rCoverage must be NR, 25, "
                                              "50, 75 or 100 for each third (...)"},
        // An eight-figure group is read as a runway-state group only alone.
        {"02170055 LFPG", "!exclamation RWY Condition: Not a runway condition report"},
    };
    for (const auto& [report, expect] : cases) {
        // Typed in any case, decoded with Enter.
        Calculator calc(Dot, page::RwyCondition);
        calc.type(report);
        calc.menu.keyUp({.key = Key::Enter});
        std::vector<std::string> told;
        std::istringstream items(expect);
        for (std::string item; std::getline(items, item, '|');) {
            item = trimmed(item);
            if (item.starts_with('!')) {
                told.push_back(item.substr(1));
            } else {
                const auto colon = item.find(':');
                EXPECT_EQ(calc.caption(std::stoi(item.substr(0, colon))), item.substr(colon + 1))
                    << report;
            }
        }
        EXPECT_EQ(calc.ui.events, told) << report;
    }
}

TEST(RunwayCondition, TakesAReportOfUpTo2000Characters) {
    Calculator calc(Dot, page::RwyCondition);
    calc.type("r24l/29-0140");
    EXPECT_EQ(calc.menu.view().display, "R24L/290140");
    EXPECT_FALSE(calc.menu.view().panels);
    calc.type(std::string(1989, ' '));
    EXPECT_TRUE(calc.ui.events.empty());
    calc.type("x");
    EXPECT_EQ(calc.ui.events, std::vector<std::string>{"beep"});
    calc.menu.clickRow(3);
    EXPECT_EQ(calc.caption(1), "24L");
    EXPECT_EQ(calc.menu.row(2).unit, "Type of Deposit"); // the captions of the group
    calc.menu.openPage(page::RwyCondition);
    EXPECT_EQ(calc.menu.row(2).unit, "Assessed - UTC");
}

TEST(RunwayCondition, EnterShowsEachRunwayOfTheTextInTurn) {
    Calculator calc(Dot, page::RwyCondition);
    calc.menu.paste("02170055 09L 5/5/5 100/100/100 NR/NR/NR WET/WET/WET\r\n"
                    "02170135 27R 5/2/2 100/50/75 NR/06/06 WET/SLUSH/SLUSH 35");
    for (const char* runway : {"09L (1 of 2)", "27R width 35 m (2 of 2)", "09L (1 of 2)"}) {
        calc.menu.keyUp({.key = Key::Enter});
        EXPECT_EQ(calc.caption(1), runway);
    }
    calc.type(" "); // a changed report starts again at its first runway
    calc.menu.keyUp({.key = Key::Enter});
    EXPECT_EQ(calc.caption(1), "09L (1 of 2)");
}

TEST(Paste, OnARunwayPageReplacesTheReportAndTheSnowtamPageTakesOneGroupOnly) {
    const std::tuple<int, const char*, const char*, const char*> cases[] = {
        {page::Snowtam, "R24L/290140", "",
         "exclamation Snowtam: This is a METAR runway group: "
         "decode it on RWY Condition"},
        {page::Snowtam, "02170055 09L 5/5/3 100/100/50 NR/NR/12 WET/WET/SLUSH", "",
         "exclamation Snowtam: This is a GRF runway condition report: decode it on RWY Condition"},
        {page::Snowtam, "group 88290140 from the tower", "88290140", ""},
        {page::Snowtam, "88290140 and 24290140", "", "beep"},
        {page::Snowtam, "8829014", "", "beep"},
        {page::Snowtam, "a8829014b", "", "beep"},
        {page::RwyCondition, "r24l/290140", "R24L/290140", ""},
    };
    for (const auto& [number, text, entry, told] : cases) {
        Calculator calc(Dot, number);
        calc.menu.paste(text);
        EXPECT_EQ(calc.menu.scratchPad().inputText(), entry) << text;
        EXPECT_EQ(calc.lastEvent(), told) << text;
    }
    Calculator calc(Dot, page::RwyCondition);
    calc.type("09L 5/5/5 100/100/100 NR/NR/NR WET/WET/SLUSH");
    calc.menu.paste("R24L/290140");
    EXPECT_EQ(calc.menu.scratchPad().inputText(), "R24L/290140");
}

} // namespace
} // namespace zel::test
