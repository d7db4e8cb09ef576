// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "fakeplatform.h"
#include "flight/navigation.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr float U = Unknown;

struct Triangle {
    const char* name;
    WindT given;
    WindT expected; // U where the solver is not checked
};

TEST(WindTriangle, SolvesEachCase) {
    const Triangle cases[] = {
        {"C: course and ground speed from heading and wind",
         {0, 90, 100, U, U, 360, 20, U, U},
         {0, 90, 100, 101.3099f, 101.9804f, 360, 20, 11.3099f, 1.9804f}},
        {"A1: heading and ground speed from course and wind",
         {0, U, 100, 90, U, 360, 20, U, U},
         {0, 78.463f, 100, 90, 97.9796f, 360, 20, 11.537f, -2.0204f}},
        {"A2: the TAS from a known ground speed",
         {0, U, 150, 90, 97.9796f, 360, 20, U, U},
         {0, 78.463f, 100, 90, 97.9796f, 360, 20, 11.537f, U}},
        {"B: the wind from heading, TAS, course and ground speed",
         {0, 90, 100, 100, 110, U, U, U, U},
         {0, 90, 100, 100, 110, 336.44f, 20.84f, 10, 10}},
    };
    for (const auto& c : cases) {
        WindT w = c.given;
        ASSERT_TRUE(WindT_Calculate(w)) << c.name;
        for (std::size_t i = 1; i <= 8; ++i) {
            if (c.expected[i] != U) {
                EXPECT_NEAR(w[i], c.expected[i], 0.01) << c.name << ", element " << i;
            }
        }
    }
}

TEST(WindTriangle, HasNoAnswerForImpossibleOrIncompleteTriangles) {
    const std::pair<const char*, WindT> cases[] = {
        {"three values only", {0, 90, 100, U, U, 360, U, U, U}},
        {"wind stronger than the TAS across the course", {0, U, 20, 90, U, 360, 50, U, U}},
        {"no wind in case B", {0, 90, 100, 90, 100, U, U, U, U}},
    };
    for (const auto& [name, given] : cases) {
        WindT w = given;
        EXPECT_FALSE(WindT_Calculate(w)) << name;
        EXPECT_EQ(w, given) << name;
    }
    EXPECT_FALSE(ArcSin(1).has_value());
    EXPECT_NEAR(*ArcSin(0.5), 0.5235987755982989, 1e-15);
}

TEST(WindPage, ShowsDirectionsSidesAndComponents) {
    Calculator calc(Dot, page::Wind);
    for (auto [row, value] : {std::pair{1, "90"}, {2, "100"}, {5, "360"}, {6, "20"}}) {
        calc.enter(row, value);
    }
    EXPECT_EQ(calc.tag(4), "101.9804");
    EXPECT_EQ(calc.caption(1), "090");
    EXPECT_EQ(calc.caption(3), "101");
    EXPECT_EQ(calc.caption(5), "360");
    EXPECT_EQ(calc.caption(7), "R 11.31");
    EXPECT_EQ(calc.caption(8), "T 1.98");
}

TEST(WindPage, UnknownResultsShowEmpty) {
    Calculator calc(Dot, page::Wind);
    calc.enter(1, "90");
    EXPECT_EQ(calc.tag(7), "-999");
    EXPECT_EQ(calc.caption(7), "");
    EXPECT_EQ(calc.caption(8), "");
}

struct Refusal {
    int page;
    int row;
    const char* input;
    const char* event;
};

TEST(NavigationPages, RefuseBadDirectionsOutputRowsAndNegatives) {
    const Refusal cases[] = {
        {page::Wind, 1, "400", "exclamation Wind: Invalid direction (range 1 - 360°)"},
        {page::Wind, 3, "361", "exclamation Wind: Invalid direction (range 1 - 360°)"},
        {page::Wind, 7, "5", "beep"},
        {page::Wind, 2, "-5", "beep"},
        {page::TrackTime, 5, "361", "exclamation Track Time: Invalid direction (range 1 - 360°)"},
        {page::TrackTime, 4, "-5", "beep"},
        {page::WindComp, 3, "400", "exclamation Wind Comp: Invalid direction (range 1 - 360°)"},
        {page::WindComp, 6, "5", "beep"},
    };
    for (const auto& c : cases) {
        Calculator calc(Dot, c.page);
        calc.enter(c.row, c.input);
        EXPECT_EQ(calc.lastEvent(), c.event) << c.page << "/" << c.row;
        EXPECT_NE(calc.tag(c.row), c.input);
    }
    Calculator calc(Dot, page::Wind);
    calc.enter(1, "360");
    EXPECT_EQ(calc.tag(1), "360");
    calc.enter(3, "1");
    EXPECT_EQ(calc.tag(3), "1");
}

TEST(TrackTime, RelatesDistanceTimeAndSpeed) {
    Calculator calc(Dot, page::TrackTime);
    calc.enter(1, "100");
    EXPECT_EQ(calc.tag(2), "53.995689325417");
    Calculator time(Dot, page::TrackTime);
    time.enter(2, "120");
    time.enter(4, "240");
    EXPECT_EQ(time.caption(3), "0:30");
    time.enter(3, "1"); // distance and speed stand: the time is recomputed
    EXPECT_EQ(time.tag(3), "0.5");
    Calculator distance(Dot, page::TrackTime);
    distance.enter(4, "200");
    distance.enter(3, "1.5");
    EXPECT_EQ(distance.tag(2), "300");
    EXPECT_EQ(distance.tag(1), "555.5999076");
    EXPECT_EQ(distance.caption(3), "1:30");
}

TEST(TrackTime, GroundSpeedFromTheWind) {
    Calculator calc(Dot, page::TrackTime);
    for (auto [row, value] : {std::pair{2, "98"}, {5, "90"}, {6, "100"}, {7, "360"}, {8, "20"}}) {
        calc.enter(row, value);
    }
    EXPECT_EQ(calc.tag(4), "97.97959");
    EXPECT_EQ(calc.caption(3), "1:00");
}

TEST(WindComp, SplitsTheWindAlongAndAcrossTheRunway) {
    struct Case {
        const char* wind;
        const char* runway;
        const char* axis;
        const char* cross;
    };
    const Case cases[] = {
        {"270", "270", "H 20.00", ""},
        {"360", "270", "T 0.00", "R 20.00"},
        {"180", "270", "T 0.00", "L 20.00"},
        {"90", "270", "T 20.00", "R 0.00"}, // sin of the single-precision pi
    };
    for (const auto& c : cases) {
        Calculator calc(Dot, page::WindComp);
        calc.enter(1, c.wind);
        calc.enter(2, "20");
        calc.enter(3, c.runway);
        EXPECT_EQ(calc.caption(6), c.axis) << c.wind;
        EXPECT_EQ(calc.caption(8), c.cross) << c.wind;
    }
}

} // namespace
} // namespace zel::test
