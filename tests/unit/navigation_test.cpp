// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Magnetic variation, great circles and coordinates as pilots write them.
// See scenario.h for how a page case reads.
#include "entry/coordinate.h"
#include "navigation/magneticmodel.h"
#include "scenario.h"

#include <cmath>
#include <fstream>

namespace zel::test {
namespace {

using page::Variation, page::GreatCircle;

TEST(MagneticModel, GivesThePublishedTestValuesOfWmm2025) {
    // NOAA's twelve test points: date, height (km), latitude, longitude, then
    // X Y Z H F I D GV Xdot Ydot Zdot Hdot Fdot Idot Ddot.
    std::ifstream file(ZEL_TEST_DATA "/wmm2025_test_values.txt");
    int points = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) {
            continue;
        }
        std::istringstream in(line);
        double year, height, latitude, longitude, x, y, z, h, f, inclination, declination;
        std::string grid;
        double xDot, yDot, zDot, hDot, fDot, iDot, dDot;
        in >> year >> height >> latitude >> longitude >> x >> y >> z >> h >> f >> inclination >>
            declination >> grid >> xDot >> yDot >> zDot >> hDot >> fDot >> iDot >> dDot;
        ASSERT_TRUE(in) << line;
        const navigation::MagneticField field =
            navigation::wmm2025().field(latitude, longitude, height, year);
        const auto hundredths = [](double v) { return std::round(v * 100) / 100; };
        EXPECT_DOUBLE_EQ(hundredths(field.declination), declination) << line;
        EXPECT_DOUBLE_EQ(hundredths(field.declinationPerYear), dDot) << line;
        EXPECT_NEAR(field.north, x, 0.051) << line;
        EXPECT_NEAR(field.east, y, 0.051) << line;
        EXPECT_NEAR(field.down, z, 0.051) << line;
        EXPECT_NEAR(field.horizontal, h, 0.051) << line;
        ++points;
    }
    EXPECT_EQ(points, 12);
}

TEST(MagneticModel, RefusesACoefficientFileThatIsNotOne) {
    const std::string good(navigation::wmm2025Coefficients());
    EXPECT_TRUE(navigation::MagneticModel::read(good));
    const auto cut = good.substr(0, good.find(" 12 12"));
    // Whole files but for one line: a degree beyond 12, an order beyond its
    // degree, a figure that is no number.
    const auto with = [&](std::string_view line) {
        return cut + std::string(line) + good.substr(good.find('\n', cut.size()));
    };
    for (const std::string& text : {std::string(), std::string("hello\n"), cut,
                                    with(" 13 12      -0.7       0.2       -0.1       -0.1"),
                                    with(" 12 13      -0.7       0.2       -0.1       -0.1"),
                                    with(" 12 12      -0.7       0.2       -0.1       x")}) {
        EXPECT_FALSE(navigation::MagneticModel::read(text)) << text.substr(0, 60);
    }
}

TEST(VariationPage, TurnsTrueToMagneticAtAPlaceAndDate) {
    // Rows: 1 latitude, 2 longitude, 3 altitude (ft), 4 date, 5 variation,
    // 6 annual change, 7 true, 8 magnetic.
    const Scenario cases[] = {
        {"the model's first test point", Variation, "80@1 0@2 20250101@4",
         "4:2025-01-01 | 5:E 1.28 | 6:E 0.52 | 7: | 8:"},
        {"west of Perth on the equator: a small west variation", Variation,
         "0@1 120@2 0@3 20250101@4", "5:W 0.16 | 6:W 0.03"},
        {"a true course turned to magnetic", Variation, "80@1 0@2 20250101@4 100@7",
         "7:100 | 8:099"},
        {"a magnetic heading turned to true, north is 360", Variation,
         "80@1 0@2 20250101@4 358.72@8", "8:359 | 7:360"},
        {"the newest of the two directions holds", Variation, "100@7 80@1 0@2 20250101@4 50@8",
         "8:050 | 7:051"},
        {"a typed zero is north", Variation, "80@1 0@2 20250101@4 0@7", "7:000 | 8:359"},
        {"no date: today's", Variation, "80@1 0@2", "4:2026-11-22"},
        // Near the south magnetic pole the horizontal field is under 2,000 nT.
        {"by the magnetic pole", Variation, "-64@1 135.7@2 20250101@4 90@7",
         "5:Unreliable | 6: | 7: | 8: | ~"},
        // Between 2,000 and 6,000 nT the model's makers mark a caution zone.
        {"the model's first test point, 6,523.2 nT: no caution", Variation, "80@1 0@2 20250101@4",
         "5:E 1.28 | ~"},
        {"Resolute Bay: a weak field, a caution", Variation, "74.72@1 -94.97@2 20261125@4 100@7",
         "5:W 14.62 | 8:115 | ~Caution: weak horizontal field (3,364\u00A0nT), compass less reliable"},
        {"the caution stands through a refused date", Variation,
         "74.72@1 -94.97@2 20261125@4 20300101@4",
         "~Caution: weak horizontal field (3,364\u00A0nT), compass less reliable | !exclamation "
         "Variation: Invalid date (WMM2025: 20241113 - 20291231)"},
        {"before the model's life", Variation, "20241112@4",
         "!exclamation Variation: Invalid date (WMM2025: 20241113 - 20291231)"},
        {"after it", Variation, "20300101@4",
         "!exclamation Variation: Invalid date (WMM2025: 20241113 - 20291231)"},
        {"its first and last days", Variation, "80@1 0@2 20241113@4 20291231@4", "4:2029-12-31"},
        {"no such day", Variation, "20250230@4", "!exclamation Variation: Invalid date (yyyymmdd)"},
        {"latitude 91°", Variation, "91@1",
         "!exclamation Variation: Invalid latitude (range -90 - 90°)"},
        {"altitude out of range", Variation, "60001@3",
         "!exclamation Variation: Invalid altitude (range -1000 - 60000 ft)"},
        {"a course beyond 360", Variation, "361@7",
         "!exclamation Variation: Invalid direction (range 0 - 360°)"},
        {"the variation is a result", Variation, "5@5", "!beep"},
    };
    check(cases);
}

TEST(GreatCirclePage, GivesTheGeodesicOnTheEllipsoid) {
    // Rows: 1-2 from, 3-4 to, 5 nm, 6 km, 7 initial course, 8 final course.
    const Scenario cases[] = {
        {"JFK to LHR", GreatCircle, "40.6@1 -73.8@2 51.6@3 -0.5@4",
         "5:2,997.71 | 6:5,551.76 | 7:051 | 8:108"},
        {"Wellington to Salamanca", GreatCircle, "-41.32@1 174.81@2 40.96@3 -5.5@4",
         "6:19,959.68 | 7:161 | 8:019"},
        {"the same place twice", GreatCircle, "51@1 0@2 51@3 0@4", "5:0.00 | 7: | 8:"},
        // Antipodal places are joined over either pole, equally short; on
        // the equator that holds from (1 - f) x 180 = 179.4° of longitude on
        // (Karney, Algorithms for geodesics, 2013), below it the equator is
        // the one shortest way.
        {"antipodes on the equator: over either pole", GreatCircle, "0@1 0@2 0@3 180@4",
         "6:20,003.93 | 7: | 8: | ~Antipodal: no single shortest way; initial course 360 or 180 "
         "is as short"},
        {"antipodes at 40°: over either pole", GreatCircle, "40@1 10@2 -40@3 -170@4",
         "7: | ~Antipodal: no single shortest way; initial course 360 or 180 is as short"},
        {"179.8° apart on the equator: two ways past the poles", GreatCircle, "0@1 0@2 0@3 179.8@4",
         "7: | ~Antipodal: no single shortest way; initial course 019 or 161 is as short"},
        {"179° apart on the equator: along it", GreatCircle, "0@1 0@2 0@3 179@4", "7:090 | ~"},
        // GeodSolve -i: 30 0 -30 120 gives 105.95 out and in.
        {"mirrored across the equator, far from antipodal", GreatCircle, "30@1 0@2 -30@3 120@4",
         "7:106 | 8:106 | ~"},
        // 0.005° of latitude past the antipode the way over the north pole is
        // 0.01° of meridian (0.6 nm) longer: as good as the same; at 0.02°
        // (2.4 nm) the way over the south pole is the shortest.
        {"0.6 nm between the two ways", GreatCircle, "40@1 10@2 -40.005@3 -170@4",
         "7: | 8: | 6:20,003.38 | ~Antipodal: no single shortest way; initial course 180 or 360 "
         "is as short"},
        {"2.4 nm between the two ways", GreatCircle, "40@1 10@2 -40.02@3 -170@4",
         "7:180 | 8:360 | 6:20,001.71 | ~"},
        {"from the north pole", GreatCircle, "90@1 0@2 0@3 0@4", "6:10,001.97 | 7:180 | 8:180"},
        {"one place is not a leg", GreatCircle, "40.6@1 -73.8@2 51.6@3", "5: | 7:"},
        {"longitude 181°", GreatCircle, "181@4",
         "!exclamation Great Circle: Invalid longitude (range -180 - 180°)"},
        {"the distance is a result", GreatCircle, "5@5", "!beep"},
    };
    check(cases);
}

TEST(GreatCirclePage, KeepsEveryDigitOfTheCourses) {
    Calculator calc(Dot, GreatCircle);
    for (auto [row, value] : {std::pair{1, "-41.32"}, {2, "174.81"}, {3, "40.96"}, {4, "-5.5"}}) {
        calc.enter(row, value);
    }
    EXPECT_NEAR(std::stod(calc.tag(5)) * 1852, 19959679.267, 0.001);
    EXPECT_NEAR(std::stod(calc.tag(7)), 161.07, 0.005);
    EXPECT_NEAR(std::stod(calc.tag(8)), 18.83, 0.005);
}

TEST(Coordinates, ReadAsPilotsWriteThem) {
    struct Case {
        const char* text;
        std::vector<double> degrees;
    };
    // Heathrow's reference point, 51°28′39″N 000°27′41″W, in every form.
    const double n5128 = 51 + 28.65 / 60;
    const double w00027 = -(27.68 / 60);
    const double lhrN = 51 + 28 / 60.0 + 39 / 3600.0;
    const double lhrW = -(27 / 60.0 + 41 / 3600.0);
    const Case cases[] = {
        {"51.4775", {51.4775}},
        {"-0.4614", {-0.4614}},
        {"51.4775 -0.4614", {51.4775, -0.4614}},
        {"51.4775 0.4614", {51.4775, 0.4614}},
        {"51.4775, -0.4614", {51.4775, -0.4614}},
        {"51.4775,-0.4614", {51.4775, -0.4614}},
        {"51.4775/-0.4614", {51.4775, -0.4614}},
        {"51.4775; -0.4614", {51.4775, -0.4614}},
        {"51,4775 -0,4614", {51.4775, -0.4614}},
        {"51,4775;-0,4614", {51.4775, -0.4614}},
        {"-33 151", {-33, 151}},
        {"51.4775N 0.4614W", {51.4775, -0.4614}},
        {"N51.4775 W0.4614", {51.4775, -0.4614}},
        {"51.4775 W0.4614", {51.4775, -0.4614}},
        {"51°28.65'N", {n5128}},
        {"N51 28.65", {n5128}},
        {"51°28'39\"N", {lhrN}},
        {"51°28′39″N", {lhrN}},
        {"51°28'39''N", {lhrN}},
        {"000°27.68'W", {w00027}},
        {"W000 27.68", {w00027}},
        {"s33° 52′ 4″", {-(33 + 52 / 60.0 + 4 / 3600.0)}},
        {"51 28 39 N 0 27 41 W", {lhrN, lhrW}},
        {"N51°28.65' W000°27.68'", {n5128, w00027}},
        {"51°28.65'N, 000°27.68'W", {n5128, w00027}},
        {"51°28.65′ -0°27.68′", {n5128, w00027}},
        {"W000°27.68' N51°28.65'", {n5128, w00027}},
        {"512839N0002741W", {lhrN, lhrW}},
        {"512839N 0002741W", {lhrN, lhrW}},
        {"5128N00028W", {51 + 28 / 60.0, -(28 / 60.0)}},
        {"5128N 00028W", {51 + 28 / 60.0, -(28 / 60.0)}},
        {"N5128.6 W00027.7", {51 + 28.6 / 60, -(27.7 / 60)}},
        {"N5128,6 W00027,7", {51 + 28.6 / 60, -(27.7 / 60)}},
        {"S90 E180", {-90, 180}},
        {"−33.5", {-33.5}},
    };
    for (const Case& c : cases) {
        const CoordinateReading read = readCoordinates(c.text);
        ASSERT_TRUE(read) << c.text << ": " << read.problem;
        ASSERT_EQ(read.coordinates.size(), c.degrees.size()) << c.text;
        for (std::size_t i = 0; i < c.degrees.size(); ++i) {
            EXPECT_NEAR(read.coordinates[i].degrees, c.degrees[i], 1e-12) << c.text;
        }
    }
}

TEST(Coordinates, RefuseWhatTheyCannotReadAndSayWhy) {
    struct Case {
        const char* text;
        const char* why; ///< the start of the reason
    };
    const Case cases[] = {
        {"51 28", "It can be read more than one way"},
        {"51 28 39", "It can be read more than one way"},
        {"51,5,0,5", "Its commas can be read"},
        {"51°60.00'N", "Minutes and seconds are under 60"},
        {"51°28'60\"N", "Minutes and seconds are under 60"},
        {"5160N00028W", "Minutes and seconds are under 60"},
        {"N5128.6 W00060.5", "Minutes and seconds are under 60"},
        {"N51°28.65' N000°27.68'", "It holds two latitudes"},
        {"E1 W2", "It holds two longitudes"},
        {"N91", "A latitude is at most 90°"},
        {"91 0", "It can be read more than one way"},
        {"91, 0", "A latitude is at most 90°"},
        {"E180 30", "A longitude is at most 180°"},
        {"181", "A longitude is at most 180°"},
        {"-N51", "A coordinate has a sign or a letter"},
        {"N51 W0 E1", "A position is one latitude and one longitude"},
        {"1, 2, 3", "A position is one latitude and one longitude"},
        {"EGLL", "Its letters are not N, S, E or W"},
        {"51.5 kt", "Its letters are not N, S, E or W"},
        {"", "There is nothing to read"},
        {"   ", "There is nothing to read"},
        {"51°28.65'N,", "A comma, semicolon or slash has no coordinate"},
        {"51.5°28'", "Only the last of degrees, minutes and seconds has decimals"},
        {"51'28°", "Its marks are out of order"},
        {"°51", "Its marks stand where no figures are"},
        {"512N", "A latitude is at most 90°"},
        {"51283N", "A latitude's figures run together are DDMM or DDMMSS"},
        {"0028W", "A longitude's figures run together are DDDMM or DDDMMSS"},
        {"N51 - 0", "Its signs stand where no coordinate has one"},
        {"51#", "It holds a character no coordinate is written with"},
        {"N", "A letter or a sign has no figures"},
        {"99999999999999999999999999999999999999999999999999999999999999999999999999999999999"
         "99999999999999999999999999999999999999999999999999999999999999999999999999999999999"
         "99999999999999999999999999999999999999999999999999999999999999999999999999999999999"
         "99999999999999999999999999999999999999999999999999999999999999999999999999999999999",
         "Its figures are too many"},
    };
    for (const Case& c : cases) {
        const CoordinateReading read = readCoordinates(c.text);
        EXPECT_FALSE(read) << c.text;
        EXPECT_TRUE(read.coordinates.empty()) << c.text;
        EXPECT_TRUE(read.problem.starts_with(c.why)) << c.text << ": " << read.problem;
    }
}

TEST(Coordinates, ShownInDegreesAndMinutes) {
    const Symbols comma{",", "."};
    EXPECT_EQ(degreesMinutes(51.4775, Axis::Latitude, Dot), "N 51°28.65′");
    EXPECT_EQ(degreesMinutes(-0.4613333, Axis::Longitude, Dot), "W 000°27.68′");
    EXPECT_EQ(degreesMinutes(-33.5, Axis::Latitude, comma), "S 33°30,00′");
    EXPECT_EQ(degreesMinutes(10.99999999, Axis::Longitude, Dot), "E 011°00.00′");
    EXPECT_EQ(degreesMinutes(0, Axis::Latitude, Dot), "00°00.00′");
}

TEST(Coordinates, PastedOntoAPageOfPlaces) {
    Calculator calc(Dot, GreatCircle);
    calc.menu.paste("40.639928 -73.778692");
    calc.menu.paste("512839N0002741W");
    EXPECT_EQ(calc.caption(5), "2,999.09");
    EXPECT_EQ(calc.caption(1), "N 40°38.40′");
    EXPECT_EQ(calc.caption(2), "W 073°46.72′");
    EXPECT_EQ(calc.menu.view().rows[0].detail, "40.639928°");
    // The digits key shows seconds to the hundredth, then whole; the
    // values stay as typed.
    calc.menu.pressDigits();
    EXPECT_EQ(calc.caption(4), "W 000°27′41.00″");
    calc.menu.pressDigits();
    EXPECT_EQ(calc.caption(3), "N 51°28′39″");
    EXPECT_EQ(calc.tag(1), "40.639928");
    calc.menu.pressDigits();
    // Another pair goes to the To rows once From is full.
    calc.menu.paste("N5128.6 W00027.7");
    EXPECT_EQ(calc.caption(1), "N 40°38.40′");
    EXPECT_EQ(calc.caption(3), "N 51°28.60′");
    // One coordinate is the entry, ready for a row.
    calc.menu.paste("000°27.68'W");
    EXPECT_EQ(calc.view().display, "-0.46133333");
    EXPECT_TRUE(calc.ui.events.empty());
    calc.menu.paste("N51°60'");
    calc.menu.paste("51 28");
    EXPECT_EQ(calc.ui.events,
              (std::vector<std::string>{
                  "exclamation Great Circle: Not a coordinate: N51°60'\r\rMinutes and seconds "
                  "are under 60.",
                  "exclamation Great Circle: Not a coordinate: 51 28\r\rIt can be read more "
                  "than one way: mark the degrees and minutes (51°28′), or separate the latitude "
                  "and longitude with a comma (51, 28)."}));
    EXPECT_EQ(calc.caption(3), "N 51°28.60′");
}

} // namespace
} // namespace zel::test
