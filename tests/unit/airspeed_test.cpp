// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "fakeplatform.h"
#include "flight/airspeed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace zel::test {
namespace {

enum { Altitude = 1, Mach = 2, Sat = 3, Cas = 4, Tat = 5, Eas = 6, Kr = 7, Tas = 8 };

struct Reference {
    const char* name;
    std::vector<std::pair<int, const char*>> entries;
    std::map<int, double> expected;
    double tolerance;
};

TEST(MachAS, ReproducesTheReferenceValues) {
    const Reference cases[] = {
        {"10000 ft, CAS 250, SAT -4.8",
         {{Altitude, "10000"}, {Sat, "-4.8"}, {Cas, "250"}},
         {{Mach, 0.452432}, {Eas, 248.095}, {Tas, 288.782}, {Tat, 6.18597}},
         5e-4},
        {"25000 ft, CAS 300, SAT -34.5, Kr 0.9",
         {{Altitude, "25000"}, {Sat, "-34.5"}, {Kr, "0.9"}, {Cas, "300"}},
         {{Mach, 0.71711}, {Tas, 431.651}},
         5e-4},
        {"41000 ft, CAS 350, SAT -56.5: supersonic",
         {{Altitude, "41000"}, {Sat, "-56.5"}, {Cas, "350"}},
         {{Mach, 1.12252}},
         5e-5},
        {"35000 ft, SAT -54.3, M 0.78",
         {{Altitude, "35000"}, {Sat, "-54.3"}, {Mach, "0.78"}},
         {{Cas, 264.328}, {Eas, 250.193}, {Tas, 449.608}, {Tat, -27.6703}},
         5e-4},
    };
    for (const auto& c : cases) {
        Calculator calc(Dot, page::MachAS);
        for (const auto& [row, value] : c.entries) {
            calc.enter(row, value);
        }
        for (const auto& [row, value] : c.expected) {
            EXPECT_NEAR(calc.value(row), value, c.tolerance) << c.name << ", row " << row;
        }
    }
}

TEST(CompressibleFlow, IsContinuousAtMachOneAndInvertsOnBothBranches) {
    EXPECT_NEAR(impactPressureRatio(1 - 1e-12), impactPressureRatio(1 + 1e-12), 1e-8);
    for (double mach : {0.1, 0.5, 0.99, 1.0, 1.01, 1.5, 3.0, 8.0}) {
        EXPECT_NEAR(machFromImpactPressure(impactPressureRatio(mach)), mach, 1e-9) << mach;
    }
    EXPECT_NEAR(pressureRatio(36089 - 1e-6), pressureRatio(36089), 1e-4);
    EXPECT_DOUBLE_EQ(pressureRatio(0), 1);
}

TEST(MachAS, NothingIsComputedUntilASpeedIsGiven) {
    Calculator calc(Dot, page::MachAS);
    calc.enter(Altitude, "10000");
    calc.enter(Sat, "-4.8");
    EXPECT_EQ(calc.tag(Tat), "0");
    EXPECT_EQ(calc.tag(Kr), "1");
    calc.enter(Cas, "250");
    calc.enter(Altitude, "12000"); // clears the four speeds again
    for (int row : {Mach, Cas, Eas, Tas}) {
        EXPECT_EQ(calc.tag(row), "0") << row;
    }
}

TEST(MachAS, OnlyTypedTemperaturesCount) {
    Calculator calc(Dot, page::MachAS);
    calc.enter(Altitude, "35000");
    calc.enter(Mach, "0.78"); // neither temperature: both from the standard atmosphere
    EXPECT_NEAR(calc.value(Sat), 288.15 - 0.0019812 * 35000 - 273.15, 1e-9);
    calc.enter(Tat, "-20"); // a typed TAT replaces the computed SAT
    calc.enter(Mach, "0.78");
    EXPECT_NEAR(calc.value(Sat), (253.15 / (1 + 0.2 * 0.78 * 0.78)) - 273.15, 1e-9);
    calc.enter(Cas, "250"); // the computed SAT gives way; TAT stays typed
    EXPECT_EQ(calc.tag(Tat), "-20");
    EXPECT_GT(calc.value(Mach), 0);
}

TEST(MachAS, TemperaturesAloneGiveTheMach) {
    Calculator calc(Dot, page::MachAS);
    calc.enter(Sat, "-50");
    calc.enter(Tat, "-20");
    calc.enter(Tas, "400"); // recomputed from the Mach of the temperatures
    const double mach = std::sqrt((253.15 / 223.15 - 1) / 0.2);
    EXPECT_NEAR(calc.value(Mach), mach, 1e-12);
    EXPECT_NEAR(calc.value(Tas), SeaLevelSoundSpeed * mach * std::sqrt(223.15 / 288), 1e-9);
}

TEST(MachAS, RefusesWhatHasNoPhysicalAnswer) {
    Calculator negative(Dot, page::MachAS);
    negative.enter(Cas, "-5");
    EXPECT_EQ(negative.ui.events, std::vector<std::string>{"beep"});

    Calculator cold(Dot, page::MachAS);
    cold.enter(Sat, "-300");
    cold.enter(Mach, "0.5");
    EXPECT_EQ(cold.lastEvent(), "beep");
    EXPECT_EQ(cold.tag(Mach), "0");

    Calculator probe(Dot, page::MachAS);
    probe.enter(Sat, "-20");
    probe.enter(Tat, "-30");
    probe.enter(Cas, "250");
    EXPECT_EQ(probe.lastEvent(), "beep");
    EXPECT_EQ(probe.tag(Cas), "0");
    EXPECT_EQ(probe.tag(Tat), "-30");
}

} // namespace
} // namespace zel::test
