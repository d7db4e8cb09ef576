// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "convert/convert.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

struct Conversion {
    const char* name;
    int page;
    int inputRow;
    const char* input;
    int row;
    const char* tag;
};

template <std::size_t N> void checkAll(const Conversion (&cases)[N]) {
    for (const auto& c : cases) {
        Calculator calc(Dot, c.page);
        calc.enter(c.inputRow, c.input);
        EXPECT_EQ(calc.tag(c.row), c.tag) << c.name;
    }
}

TEST(FactorPages, ConvertThroughTheBaseUnit) {
    const Conversion cases[] = {
        {"1 kg is 2.205 lbs", page::Weight, 1, "1", 2, "2.205"},
        {"1 kg is a thousandth of a ton", page::Weight, 1, "1", 3, "0.001"},
        {"1 imperial gallon is 4.54609 L", page::Fluid, 3, "1", 1, "4.54609"},
        {"1 imperial gallon in cubic metres", page::Fluid, 3, "1", 2, "0.00454609"},
        {"1 kt is 1.851999692 km/h", page::Speed, 2, "1", 1, "1.851999692"},
        {"1 statute mile is 1.609343871 km", page::Distance, 4, "1", 3, "1.609343871"},
        {"1 hPa is 1 mb", page::Pressure, 3, "1", 4, "1"},
        {"1 atmosphere is 1013.25 hPa", page::Pressure, 2, "1", 3, "1013.25"},
        {"1 thrust K is 1560 HP", page::Power, 8, "1", 1, "1560"},
        {"1 hectare is 10000 m2", page::Surface, 4, "1", 1, "10000"},
        {"the input row carries the same rounding", page::Fluid, 3, "1", 3, "1"},
    };
    checkAll(cases);
}

TEST(FactorPages, RefuseNegativeValues) {
    Calculator calc(Dot, page::Weight);
    calc.enter(1, "5");
    calc.enter(2, "-1");
    EXPECT_EQ(calc.ui.events, std::vector<std::string>{"beep"});
    EXPECT_EQ(calc.tag(1), "5");
}

TEST(FactorPages, ConvertWithCommaSymbols) {
    Calculator calc(Comma, page::Weight);
    calc.enter(1, "1,5");
    EXPECT_EQ(calc.tag(2), "3,3075");
    EXPECT_EQ(calc.caption(4), "1.500,00");
}

TEST(Temperature, ConvertsThroughCelsius) {
    const Conversion cases[] = {
        {"boiling water in F", page::Temperature, 1, "100", 2, "212"},
        {"boiling water in K", page::Temperature, 1, "100", 3, "373.15"},
        {"boiling water in R", page::Temperature, 1, "100", 4, "671.67"},
        {"-40 F is -40 C", page::Temperature, 2, "-40", 1, "-40"},
        {"-40 F in K", page::Temperature, 2, "-40", 3, "233.15"},
        {"491.67 R is 0 C", page::Temperature, 4, "491.67", 1, "0"},
        {"491.67 R is 32 F", page::Temperature, 4, "491.67", 2, "32"},
        {"below absolute zero in C", page::Temperature, 1, "-300", 3, "-26.85"},
    };
    checkAll(cases);
}

TEST(Temperature, AbsoluteScalesRefuseNegatives) {
    for (int row : {3, 4}) {
        Calculator calc(Dot, page::Temperature);
        calc.enter(row, "-5");
        EXPECT_EQ(calc.ui.events, std::vector<std::string>{"beep"}) << row;
        EXPECT_EQ(calc.tag(1), "0");
    }
}

TEST(Angle, UsesTheSinglePrecisionPi) {
    const Conversion cases[] = {
        {"180 degrees in radians", page::Angle, 1, "180", 2, "3.14159274101257"},
        {"180 degrees in minutes", page::Angle, 1, "180", 3, "10800"},
        {"180 degrees in gradians", page::Angle, 1, "180", 4, "200"},
        {"180 degrees is 1 pi", page::Angle, 1, "180", 5, "1"},
        {"1 pi is 180 degrees", page::Angle, 5, "1", 1, "180"},
        {"45 degrees is a 100 % slope", page::Angle, 1, "45", 6, "100.000004371139"},
        {"negative angles convert", page::Angle, 3, "-30", 1, "-0.5"},
    };
    checkAll(cases);
    Calculator calc(Dot, page::Angle);
    calc.enter(6, "100");
    EXPECT_NEAR(calc.value(1), 45, 1e-5);
}

TEST(Angle, PiInRadiansIsExactly180Degrees) {
    PageSheet page(Dot);
    int row = 2;
    Convert_Angle(page, 3.1415927410125732, row);
    EXPECT_EQ(page[1].tag, "180");
}

struct Beaufort {
    const char* name;
    int inputRow;
    const char* input;
    const char* kmh;
    const char* force;
    const char* description;
};

TEST(Speed, ClassifiesOnTheBeaufortScale) {
    const Beaufort cases[] = {
        {"10 kt is a gentle breeze", 2, "10", "18.51999692", "3", "gentle breeze"},
        {"0.4 km/h is calm", 1, "0.4", "0.4", "0", "calm"},
        {"1.4 km/h is still calm", 1, "1.4", "1.4", "0", "calm"},
        {"1.5 km/h is light air", 1, "1.5", "1.5", "1", "light air"},
        {"117.4 km/h is a violent storm", 1, "117.4", "117.4", "11", "violent storm"},
        {"117.5 km/h is a hurricane", 1, "117.5", "117.5", "12", "hurricane"},
        {"force 4 is 28 km/h", 7, "4", "28", "4", "moderate breeze"},
        {"force 4.5 is force 4", 7, "4.5", "28", "4", "moderate breeze"},
        {"force 12 is 133 km/h", 7, "12", "133", "12", "hurricane"},
        {"force 1 is 5 km/h", 7, "1", "5", "1", "light air"},
    };
    for (const auto& c : cases) {
        Calculator calc(Dot, page::Speed);
        calc.enter(c.inputRow, c.input);
        EXPECT_EQ(calc.tag(1), c.kmh) << c.name;
        EXPECT_EQ(calc.caption(7), c.force) << c.name;
        EXPECT_EQ(calc.caption(8), c.description) << c.name;
    }
}

TEST(Speed, ForceEntryMovesTheInputRowToKilometresPerHour) {
    Calculator calc(Dot, page::Speed);
    calc.enter(7, "4");
    EXPECT_TRUE(calc.menu.row(1).input);
    EXPECT_FALSE(calc.menu.row(7).input);
    EXPECT_EQ(calc.tag(2), "15.1187930111168");
}

TEST(Speed, RefusesForcesOutOfRangeAndTheDescriptionRow) {
    const std::pair<int, const char*> refusals[] = {{7, "13"}, {7, "0.5"}};
    for (const auto& [row, input] : refusals) {
        Calculator calc(Dot, page::Speed);
        calc.enter(row, input);
        EXPECT_EQ(calc.lastEvent(), "exclamation Speed: Invalid input (range 1 to 12)") << input;
        EXPECT_EQ(calc.tag(1), "0");
    }
    Calculator calc(Dot, page::Speed);
    calc.enter(8, "3");
    EXPECT_EQ(calc.lastEvent(), "beep");
    calc.enter(2, "-3");
    EXPECT_EQ(calc.ui.events.size(), 2u);
}

} // namespace
} // namespace zel::test
