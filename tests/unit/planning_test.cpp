// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The planning pages, where a typed zero is a value and the newest givens win.
// See scenario.h for how a case reads.
#include "flight/atmosphere.h"
#include "scenario.h"

#include <cmath>
#include <regex>

namespace zel::test {
namespace {

using page::Altitude, page::Descent, page::Turn, page::FuelPlan, page::CloudBase,
    page::TrueAltitude, page::Holding, page::Sun;

TEST(Atmosphere, MatchesTheStandardAtmosphereTables) {
    // The ICAO (1976 US) standard atmosphere: pressure and density over their
    // sea-level values (101,325 Pa, 1.225 kg/m3) at each layer's heights.
    struct Level {
        double metres;
        double kelvin;
        double pascals;
        double density;
    };
    const Level levels[] = {
        {0, 288.15, 101325, 1.225},         {5000, 255.65, 54019.9, 0.736116},
        {11000, 216.65, 22632.1, 0.363918}, {15000, 216.65, 12044.6, 0.193674},
        {20000, 216.65, 5474.89, 0.088035}, {25000, 221.65, 2511.02, 0.039466},
    };
    for (const Level& level : levels) {
        const double feet = units::metresToFeet(level.metres);
        EXPECT_NEAR(atmosphere::isaKelvin(feet), level.kelvin, 1e-9) << level.metres;
        const double delta = atmosphere::pressureRatio(feet);
        EXPECT_NEAR(delta, level.pascals / 101325, 2e-6) << level.metres;
        const double sigma = atmosphere::densityRatio(feet);
        EXPECT_NEAR(sigma, level.density / 1.225, 2e-6) << level.metres;
        EXPECT_NEAR(atmosphere::pressureAltitude(delta), feet, 1e-6) << level.metres;
        EXPECT_NEAR(atmosphere::densityAltitude(sigma), feet, 1e-6) << level.metres;
    }
}

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
        {"the newest of OAT and ISA deviation counts", Altitude, "5000@4 10@6 30@5",
         "5:30.00 | 6:24.91"},
        {"about 120 ft of density altitude per °C above standard", Altitude, "5000@4 10@6",
         "5:15.09 | 7:6,160.36"},
        {"without a temperature rows 5 to 7 stay empty", Altitude, "5000@1",
         "5: | 6: | 7: | 8:5.09"},
        {"a negative altitude is a value", Altitude, "-500@1", "4:-500.00"},
        // A low QNH puts 36,000 ft above the tropopause, where the standard
        // air is -56.5 °C and pressure falls exponentially.
        {"36,000 ft at QNH 950: in the stratosphere", Altitude, "36000@1 950@2 -50@5",
         "4:37,341.10 | 8:-56.50 | 6:6.50 | 7:37,956.14"},
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
        {"a negative QNH is out of its range", Altitude, "-5@2",
         "!exclamation Altitude: Invalid QNH (range 850 - 1100 hPa)"},
        {"61 °C", Altitude, "61@5",
         "!exclamation Altitude: Invalid temperature (range -80 - 60 °C)"},
        {"a deviation of -61 °C", Altitude, "-61@6",
         "!exclamation Altitude: Invalid temperature (range -60 - 60 °C)"},
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
        {"45° is too steep", Descent, "45@6",
         "!exclamation Descent: Invalid angle (range 0 - 45°)"},
    };
    check(cases);
    check({"45° is too steep", Descent, "45@6", steep});
    check({"so is a gradient of 6077 ft/nm", Descent, "6077@7",
           "!exclamation Descent: Invalid gradient (range 0 - 6076.12 ft/nm)"});
}

TEST(TurnPage, GivesBankRateAndRadius) {
    const char* bank = "!exclamation Turn: Invalid bank angle (range 0 - 90°)";
    const Scenario cases[] = {
        {"a rate-one turn at 120 kt", Turn, "3@3 120@1",
         "2:18.24 | 4:0.64 | 5:1,179.02 | 6:120.00 | 7:1.05 | 8:2.61"},
        {"speed and radius give the rate", Turn, "120@1 0.63662@4", "3:3.00 | 2:18.24"},
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
    check({"a load factor of 1 is no turn", Turn, "1@7",
           "!exclamation Turn: Invalid load factor (range above 1 g)"});
}

TEST(FuelPlanPage, AddsTripAndReserveFuel) {
    const Scenario cases[] = {
        {"240 nm at 120 kt, 30 an hour, 45 min reserve", FuelPlan, "240@1 120@2 30@4 45@6",
         "3:2:00 | 5:60.00 | 7:22.50 | 8:82.50"},
        {"no reserve is a value", FuelPlan, "240@1 120@2 30@4 0@6", "6:0.00 | 7:0.00 | 8:60.00"},
        {"an empty reserve leaves the totals empty", FuelPlan, "240@1 120@2 30@4",
         "5:60.00 | 7: | 8:"},
        {"trip fuel and time give the flow", FuelPlan, "1.30@3 45@5", "4:30.00 | 3:1:30"},
        {"1.30 is an hour and a half, not 1:18", FuelPlan, "1.30@3 30@4", "5:45.00"},
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

TEST(TrueAltitudePage, CorrectsTheAltimeterForTheAirsTemperature) {
    // Rows: 1 indicated, 2 pressure altitude, 3 station, 4 OAT, 5 ISA deviation,
    // 6 true altitude ft, 7 in m, 8 correction.
    const Scenario cases[] = {
        {"10,000 ft over the sea at -40 °C: 1,311 ft lower", TrueAltitude, "10000@1 0@3 -40@4",
         "2:10,000.00 | 5:-35.19 | 6:8,688.67 | 7:2,648.31 | 8:-1,311.33"},
        {"2,600 ft over a 600 ft station, ISA -8", TrueAltitude, "2600@1 600@3 -8@5",
         "4:1.85 | 6:2,543.46 | 8:-56.54"},
        {"a pressure altitude of its own", TrueAltitude, "12000@1 10000@2 5000@3 -19@4",
         "6:11,629.88 | 8:-370.12"},
        {"standard air: true is indicated", TrueAltitude, "8000@1 0@5", "6:8,000.00 | 8:0.00"},
        {"warm air: higher than it reads", TrueAltitude, "8000@1 20@5", "8:587.59"},
        {"at the station the altimeter is right", TrueAltitude, "3000@3 3000@1 -30@4",
         "6:3,000.00 | 8:0.00"},
        {"below the station the height scales too", TrueAltitude, "-1000@1 -20@5",
         "6:-931.07 | 3:0.00"},
        {"the newest of OAT and deviation counts", TrueAltitude, "5000@1 -10@4 5@5",
         "4:10.09 | 5=5"},
        {"no temperature, no true altitude", TrueAltitude, "5000@1", "6: | 7: | 8:"},
        // Above the tropopause the standard air stays at -56.5 °C.
        {"FL400 in standard air: no correction", TrueAltitude, "40000@1 -56.5@4",
         "5=0 | 6=40000 | 8=0"},
        {"FL450 at ISA +10 over the sea", TrueAltitude, "45000@1 10@5",
         "4:-46.50 | 6:47,077.08 | 8:2,077.08"},
        {"60,001 ft", TrueAltitude, "60001@1",
         "!exclamation True Altitude: Invalid altitude (range -2000 - 60000 ft)"},
        {"a station below -2,000 ft", TrueAltitude, "-2001@3",
         "!exclamation True Altitude: Invalid altitude (range -2000 - 60000 ft)"},
        {"-81 °C", TrueAltitude, "-81@4",
         "!exclamation True Altitude: Invalid temperature (range -80 - 60 °C)"},
        {"the true altitude is a result", TrueAltitude, "5000@1 0@5 4000@6", "6:5,000.00 | !beep"},
        {"so is the correction", TrueAltitude, "5@8", "!beep"},
    };
    check(cases);
}

TEST(HoldingPage, PicksTheEntryFromTheAngleToTheInboundCourse) {
    // Rows: 1 inbound, 2 heading, 3 outbound, 4/5 right entry and teardrop
    // track, 6/7 left, 8 the angle from the inbound course to the heading.
    const Scenario cases[] = {
        {"straight in from behind", Holding, "360@1 360@2",
         "3:180 | 4:Direct | 5: | 6:Direct | 7: | 8:000"},
        {"north is 360, never 000", Holding, "0@1 90@2", "1:360 | 3:180 | 8:090"},
        {"a right teardrop 30° off the outbound course", Holding, "90@1 220@2",
         "3:270 | 4:Teardrop | 5:240 | 6:Parallel | 7: | 8:130"},
        {"left: 3° past the teardrop's edge", Holding, "270@1 163@2",
         "4:Parallel | 6:Direct / Teardrop | 7:120 | 8:253"},
        // Right-hand edges at 110, 180 and 290; left-hand at 70, 180 and 250.
        {"right 104: direct, 6° from the edge", Holding, "360@1 104@2", "4:Direct"},
        {"right 105: direct, teardrop allowed", Holding, "360@1 105@2", "4:Direct / Teardrop"},
        {"right 110: the teardrop begins", Holding, "360@1 110@2", "4:Teardrop / Direct"},
        {"right 116: teardrop alone", Holding, "360@1 116@2", "4:Teardrop"},
        {"right 180: still teardrop", Holding, "360@1 180@2", "4:Teardrop / Parallel"},
        {"right 181: parallel", Holding, "360@1 181@2", "4:Parallel / Teardrop | 5:150"},
        {"right 289: parallel", Holding, "360@1 289@2", "4:Parallel / Direct"},
        {"right 290: direct", Holding, "360@1 290@2", "4:Direct / Parallel"},
        {"right 296: direct alone", Holding, "360@1 296@2", "4:Direct"},
        {"left 70: direct", Holding, "360@1 70@2", "6:Direct / Parallel"},
        {"left 71: parallel", Holding, "360@1 71@2", "6:Parallel / Direct"},
        {"left 179: parallel", Holding, "360@1 179@2", "6:Parallel / Teardrop | 7:210"},
        {"left 180: teardrop", Holding, "360@1 180@2", "6:Teardrop / Parallel"},
        {"left 250: teardrop", Holding, "360@1 250@2", "6:Teardrop / Direct"},
        {"left 256: direct alone", Holding, "360@1 256@2", "6:Direct | 7:"},
        {"one course alone shows nothing", Holding, "90@1", "3: | 4: | 8:"},
        {"361°", Holding, "361@1", "!exclamation Holding: Invalid direction (range 0 - 360°)"},
        {"no negative course", Holding, "-5@1", "!beep"},
        {"the entries are results", Holding, "90@1 220@2 5@4", "!beep"},
    };
    check(cases);
}

TEST(SunPage, GivesSunriseSunsetAndCivilTwilightInUtc) {
    // Rows: 1 latitude, 2 longitude, 3 date, 4 civil dawn, 5 sunrise, 6 sunset,
    // 7 civil dusk, 8 daylight.
    const Scenario cases[] = {
        {"Greenwich at midsummer", Sun, "51.4779@1 -0.0015@2 20240621@3",
         "3:2024-06-21 | 4:02:55 | 5:03:43 | 6:20:21 | 7:21:09 | 8:16:38"},
        {"Sydney's sunrise falls on the UTC day before", Sun, "-33.8688@1 151.2093@2 20241221@3",
         "5:18:41 (20 Dec) | 6:09:06"},
        {"Buenos Aires in June", Sun, "-34.6037@1 -58.3816@2 20240621@3", "5:11:00 | 6:20:51"},
        {"New York at the equinox", Sun, "40.7128@1 -74.006@2 20240320@3",
         "5:10:58 | 6:23:09 | 8:12:10"},
        {"polar night in Svalbard", Sun, "78.2232@1 15.6267@2 20241221@3",
         "4:No civil dawn | 5:No sunrise | 6:No sunset | 7:No civil dusk | 8:0:00"},
        {"midnight sun in Svalbard", Sun, "78.2232@1 15.6267@2 20240621@3",
         "5:No sunrise | 6:No sunset | 8:24:00"},
        {"the equator at 0°, 0° is a place", Sun, "0@1 0@2 20240320@3", "5:06:04 | 6:18:11"},
        // The daylight is the time the sun is up within the UTC day.
        {"Tromsø: risen the day before, up all day", Sun, "69.65@1 18.96@2 20240517@3",
         "5:23:08 (16 May) | 6:No sunset | 8:24:00"},
        {"Tromsø: up from 0:00 to the sunset, and again from the next sunrise at 23:19", Sun,
         "69.65@1 18.96@2 20240725@3", "5:No sunrise | 6:22:23 | 8:23:04"},
        {"Sydney: up at 0:00 UTC, set, risen again", Sun, "-33.8688@1 151.2093@2 20241221@3",
         "8:14:24"},
        {"no date: today's", Sun, "51.4779@1 0@2", "3:2026-11-22 | 5:07:29"},
        {"latitude 91°", Sun, "91@1", "!exclamation Sun: Invalid latitude (range -90 - 90°)"},
        {"longitude -181°", Sun, "-181@2",
         "!exclamation Sun: Invalid longitude (range -180 - 180°)"},
        {"30 February", Sun, "20240230@3", "!exclamation Sun: Invalid date (yyyymmdd)"},
        {"a date of 6 figures", Sun, "240621@3", "!exclamation Sun: Invalid date (yyyymmdd)"},
        {"the times are results", Sun, "5@5", "!beep"},
    };
    check(cases);
}

/// A number typed as a pilot types it: no exponent, no trailing zeros.
std::string typed(double x) {
    std::string text = formatNumber(x, "0.##########", Dot);
    return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

/// What typing `x` into a row of a fresh page tells the user: "" for nothing.
std::string toldFor(int page, int row, double x) {
    Calculator calc(Dot, page);
    calc.enter(row, typed(x));
    return calc.lastEvent();
}

/// Each row's two limits are taken (unless the range leaves them out), and
/// a value past each gets the message, which states those limits.
void checkRange(int page, int row, double low, double high, bool openLow, bool openHigh,
                std::string_view message) {
    const std::string where = std::string(pageCatalogue().page(page).name) + " row " +
                              std::to_string(row) + ": " + std::string(message);
    const std::string told =
        "exclamation " + std::string(pageCatalogue().page(page).name) + ": " + std::string(message);
    static const std::regex Stated(R"(range (above )?(-?[0-9.]+)(?: (?:-|to) (-?[0-9.]+))?)");
    std::cmatch m;
    ASSERT_TRUE(std::regex_search(message.data(), message.data() + message.size(), m, Stated))
        << where;
    EXPECT_DOUBLE_EQ(std::stod(m[2].str()), low) << where;
    if (m[3].matched) {
        EXPECT_NEAR(std::stod(m[3].str()), high, 0.005) << where;
    } else {
        EXPECT_GT(high, 1e299) << where;
    }
    // The limits as the message writes them, as a pilot would type them.
    const double statedLow = std::stod(m[2].str());
    const double statedHigh = m[3].matched ? std::stod(m[3].str()) : 1e300;
    const bool whole = statedLow == std::trunc(statedLow) &&
                       (statedHigh > 1e299 || statedHigh == std::trunc(statedHigh));
    const double step = whole ? 1 : 0.01;
    // A limit left out is refused, with the message or the bell of a sign
    // the row never takes; one taken is neither.
    auto refused = [&](const std::string& event) { return event == told || event == "beep"; };
    EXPECT_EQ(refused(toldFor(page, row, statedLow)), openLow) << where << ", at " << statedLow;
    EXPECT_TRUE(refused(toldFor(page, row, statedLow - step))) << where << ", past " << statedLow;
    if (statedHigh < 1e299) {
        EXPECT_EQ(refused(toldFor(page, row, statedHigh)), openHigh)
            << where << ", at " << statedHigh;
        EXPECT_EQ(toldFor(page, row, statedHigh + step), told) << where << ", past " << statedHigh;
    }
}

TEST(Ranges, EveryRangeMessageStatesTheRangeItsRowTakes) {
    // The pages of formulas declare their ranges.
    int checked = 0;
    for (int page = 1; page <= pageCatalogue().count(); ++page) {
        const PageTable& table = pageCatalogue().page(page);
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            const Range& range = table.row(row).range;
            if (!range.message.empty()) {
                checkRange(page, row, range.low, range.high, range.openLow, range.openHigh,
                           range.message);
                ++checked;
            }
        }
    }
    EXPECT_GE(checked, 20);
    // The converters check theirs in code.
    checkRange(Sun, 1, -90, 90, false, false, "Invalid latitude (range -90 - 90°)");
    checkRange(Sun, 2, -180, 180, false, false, "Invalid longitude (range -180 - 180°)");
    checkRange(Holding, 1, 0, 360, false, false, "Invalid direction (range 0 - 360°)");
    checkRange(page::Speed, 7, 1, 12, false, false, "Invalid input (range 1 to 12)");
    for (int row : {1, 3}) {
        checkRange(page::WindComp, row, 1, 360, false, false, "Invalid direction (range 1 - 360°)");
    }
}

} // namespace
} // namespace zel::test
