// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <map>

namespace zel::test {
namespace {

struct Entry {
    int row;
    const char* value;
};

/// A page filled entry by entry, then the tags expected of some rows.
struct FuelCase {
    const char* name;
    int page;
    std::vector<Entry> entries;
    std::map<int, const char*> tags;
};

void check(const FuelCase& c) {
    Calculator calc(Dot, c.page);
    for (const Entry& e : c.entries) {
        calc.enter(e.row, e.value);
    }
    for (const auto& [row, tag] : c.tags) {
        EXPECT_EQ(calc.tag(row), tag) << c.name << ", row " << row;
    }
}

TEST(FuelUplift, AddsUpliftTimesDensityToTheRemainingFuel) {
    const FuelCase cases[] = {
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
    };
    for (const auto& c : cases) {
        check(c);
    }
}

TEST(FuelUplift, WarnsAboutImplausibleDensityAtEveryEntry) {
    const std::pair<int, const char*> densities[] = {{5, "1.01"}, {6, "10"}};
    for (const auto& [row, density] : densities) {
        Calculator calc(Dot, page::FuelUplift);
        calc.enter(row, density);
        EXPECT_EQ(calc.lastEvent(), "exclamation Fuel Uplift: Verify Fuel Density !") << density;
        calc.enter(1, "100");
        EXPECT_EQ(calc.ui.events.size(), 2u) << density;
    }
    Calculator calc(Dot, page::FuelUplift);
    calc.enter(5, "1");
    EXPECT_TRUE(calc.ui.events.empty());
}

TEST(FuelUplift, TotalsAreResultsOnly) {
    Calculator calc(Dot, page::FuelUplift);
    calc.enter(7, "100");
    EXPECT_EQ(calc.ui.events, std::vector<std::string>{"beep"});
    EXPECT_EQ(calc.tag(7), "0");
}

TEST(Endurance, SolvesQuantityFlowAndTime) {
    const FuelCase cases[] = {
        {"600 kg at 200 kg/hr",
         page::Endurance,
         {{1, "600"}, {2, "200"}},
         {{7, "3"}, {8, "180"}, {3, "0"}, {6, "0"}}},
        {"500 L at 150 L/hr",
         page::Endurance,
         {{3, "500"}, {4, "150"}},
         {{5, "132.086026318648"}, {6, "39.6258078955944"}, {8, "200"}}},
        {"2.5 h with 400 kg gives the flow",
         page::Endurance,
         {{1, "400"}, {7, "2.5"}},
         {{2, "160"}, {8, "150"}}},
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
    };
    for (const auto& c : cases) {
        check(c);
    }
}

TEST(FuelRange, SolvesRangeInTheOrderOfEntry) {
    const FuelCase cases[] = {
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
    };
    for (const auto& c : cases) {
        check(c);
    }
}

TEST(FuelRange, ADivisionByZeroStopsTheClickWhereItArose) {
    Calculator calc(Dot, page::FuelRange);
    calc.enter(4, "30");
    calc.enter(8, "300"); // a flow and a range, but no ground speed
    EXPECT_EQ(calc.lastEvent(), "critical zelFLIGHTAB: Division by zero");
    EXPECT_EQ(calc.tag(8), "300");  // written before the fault, and kept
    EXPECT_EQ(calc.caption(8), ""); // not drawn
    EXPECT_EQ(calc.menu.display(), "300.");
    EXPECT_TRUE(calc.menu.row(4).input);
    EXPECT_FALSE(calc.menu.row(8).input);
}

TEST(FuelPages, RefuseNegativeValues) {
    for (int page : {page::FuelUplift, page::Endurance, page::FuelRange}) {
        Calculator calc(Dot, page);
        calc.enter(1, "-1");
        EXPECT_EQ(calc.ui.events, std::vector<std::string>{"beep"}) << page;
        EXPECT_EQ(calc.tag(1), "0");
    }
}

} // namespace
} // namespace zel::test
