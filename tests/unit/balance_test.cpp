// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/chart.h"
#include "balance/profile.h"
#include "balance/sheettext.h"
#include "balance/shelf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace zel::balance {
namespace {

const Symbols Dot{".", ","};

Aircraft read(std::string_view json) {
    ProfileRead read = readProfile(json);
    if (auto* reason = std::get_if<std::string>(&read)) {
        ADD_FAILURE() << *reason;
        return {};
    }
    return std::get<Aircraft>(read);
}

Aircraft shipped(std::string_view name) {
    for (std::string_view json : shippedProfiles()) {
        Aircraft aircraft = read(json);
        if (aircraft.name == name) {
            return aircraft;
        }
    }
    ADD_FAILURE() << "no shipped profile " << name;
    return {};
}

/// The Cessna 172S as it ships, with an empty weight of its own.
Aircraft skyhawk(double emptyWeight = 1663, double emptyArm = 39.9) {
    Aircraft aircraft = shipped("Cessna 172S");
    aircraft.empty = Mass{emptyWeight, emptyArm};
    return aircraft;
}

Loading load(const Aircraft& aircraft, std::vector<double> weights, double burn = 0) {
    Loading loading = Loading::emptyFor(aircraft);
    for (std::size_t i = 0; i < weights.size(); ++i) {
        loading.weights[i] = weights[i];
    }
    loading.burns.back() = burn;
    return loading;
}

// FAA-H-8083-1B, the computational method: empty weight 1,495 lb at 101.4 in,
// pilot and passengers 380 lb at 64 in, fuel 230 lb at 96 in.
constexpr std::string_view FaaExample = R"({
  "format": "zelflightab-aircraft/1", "name": "FAA example",
  "units": { "weight": "lb", "arm": "in", "fuel": "USG" },
  "empty": { "weight": 1495, "arm": 101.4 },
  "stations": [
    { "name": "Pilot and passengers", "arm": 64 },
    { "name": "Fuel", "arm": 96, "fuel": { "usable": 50, "density": 6.0 } }
  ],
  "envelopes": [ { "name": "Test", "points": [[1500, 90], [2500, 90], [2500, 100], [1500, 100]] } ]
})";

TEST(LoadSheet, TheFaaComputationalExample) {
    const Aircraft aircraft = read(FaaExample);
    const LoadSheet sheet = workOut(aircraft, load(aircraft, {380, 230}));
    EXPECT_DOUBLE_EQ(sheet.takeoff.weight, 2105);
    EXPECT_NEAR(sheet.takeoff.moment, 197993, 1e-9);
    EXPECT_EQ(figure(sheet.takeoff.cg(), Dot), "94.06");
    EXPECT_EQ(figure(sheet.zeroFuel.weight, Dot), "1,875.00");
}

TEST(LoadSheet, MovingWeightBetweenStations) {
    // 8,000 lb with a moment of 616,000 lb-in (200 lb of it at station 30):
    // 100 lb moved from station 30 to station 150 brings the CG to 78.5 in.
    Aircraft aircraft = read(FaaExample);
    aircraft.empty = Mass{7800, (616000.0 - 200 * 30) / 7800};
    aircraft.stations = {{"Station 30", 30, {}, {}}, {"Station 150", 150, {}, {}}};
    Loading loaded = Loading::emptyFor(aircraft);
    loaded.weights[0] = 200;
    const LoadSheet sheet = workOut(aircraft, loaded);
    ASSERT_DOUBLE_EQ(sheet.takeoff.weight, 8000);
    ASSERT_DOUBLE_EQ(sheet.takeoff.moment, 616000);
    EXPECT_NEAR(*shiftWeight(aircraft, sheet, 0, 1, 78.5), 100, 1e-9);
    EXPECT_EQ(shiftText(aircraft, sheet, 0, 1, 78.5, Dot),
              "Move 100.00 lb from Station 30 to Station 150 to bring the CG to 78.50 in");
    EXPECT_EQ(shiftText(aircraft, sheet, 1, 0, 78.5, Dot),
              "Move 100.00 lb from Station 30 to Station 150 to bring the CG to 78.50 in");
    Loading moved = loaded;
    moved.weights = {100.0, 100.0};
    EXPECT_DOUBLE_EQ(workOut(aircraft, moved).takeoff.cg(), 78.5);
    // More than the station holds is never proposed: all 200 lb moved 120 in
    // aft give 640,000 lb-in, a CG of 80 in.
    EXPECT_EQ(shiftText(aircraft, sheet, 0, 1, 90, Dot),
              "No move from Station 30 to Station 150 brings the CG to 90.00 in: Station 30 "
              "holds 200.00 lb; the CG would then be 80.00 in");
    // Ballast: W x (X - CG) / (arm - X).
    EXPECT_NEAR(*ballastWeight(aircraft, sheet, 0, 76), 8000 * (76 - 77.0) / (30 - 76), 1e-9);
    EXPECT_EQ(ballastText(aircraft, sheet, 0, 76, Dot),
              "Add 173.91 lb at Station 30 to bring the CG to 76.00 in");
    EXPECT_EQ(ballastText(aircraft, sheet, 1, 76, Dot),
              "No weight taken off Station 150 brings the CG to 76.00 in: Station 150 holds "
              "0.00 lb; the CG would then be 77.00 in");
    EXPECT_FALSE(shiftWeight(aircraft, sheet, 0, 0, 78.5));
}

TEST(LoadSheet, PercentOfTheMeanAerodynamicChord) {
    const Mac mac = *skyhawk().mac;
    EXPECT_EQ(figure(macPercent(mac, 35.0), Dot), "15.48");
    EXPECT_EQ(figure(macPercent(mac, 47.3), Dot), "36.39");
}

TEST(Envelope, EdgesAndCornersAreInsideWhicheverWayItRuns) {
    const std::vector<Mass> normal = skyhawk().envelopes[0].corners;
    std::vector<Mass> reversed(normal.rbegin(), normal.rend());
    struct Case {
        const char* name;
        Mass point;
        bool inside;
    } cases[] = {
        {"the corner at 2,550 lb and 41.0 in", {2550, 41.0}, true},
        {"forward of that corner", {2550, 40.9}, false},
        {"on the sloped edge", {2000, 35.5}, true},
        {"just forward of the sloped edge", {2000, 35.49}, false},
        {"on the top edge", {2550, 45}, true},
        {"just above it", {2550.01, 45}, false},
        {"on the aft edge", {1800, 47.3}, true},
        {"well inside", {2200, 40}, true},
        {"below the envelope", {1400, 40}, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(contains(normal, c.point), c.inside) << c.name;
        EXPECT_EQ(contains(reversed, c.point), c.inside) << c.name << ", corners reversed";
    }
}

TEST(Envelope, CgRangesAtAWeight) {
    const std::vector<Mass> normal = skyhawk().envelopes[0].corners;
    using Ranges = std::vector<std::pair<double, double>>;
    EXPECT_EQ(cgRanges(normal, 2550), (Ranges{{41.0, 47.3}}));
    EXPECT_EQ(cgRanges(normal, 1500), (Ranges{{35.0, 47.3}}));
    const Ranges middle = cgRanges(normal, 2250);
    ASSERT_EQ(middle.size(), 1U);
    EXPECT_NEAR(middle[0].first, 38.0, 1e-12);
    EXPECT_TRUE(cgRanges(normal, 2600).empty());
    // A notch cut into the top: two ranges at one weight.
    const std::vector<Mass> notched{{0, 0}, {20, 0}, {20, 4}, {10, 5}, {20, 6}, {20, 10}, {0, 10}};
    EXPECT_EQ(cgRanges(notched, 15), (Ranges{{0, 4.5}, {5.5, 10}}));
    EXPECT_EQ(cgRanges(notched, 20), (Ranges{{0, 4}, {6, 10}}));
    EXPECT_EQ(cgRanges(notched, 10), (Ranges{{0, 10}}));
}

TEST(Envelope, ABurnLineInsideOnlyWhenAllOfItIs) {
    const std::vector<Mass> normal = skyhawk().envelopes[0].corners;
    // 2,400 lb at 40.5 in, burning 300 lb of fuel at 48 in: the CG moves forward.
    const Path burn{2400, 2400 * 40.5, -300, -300 * 48};
    EXPECT_TRUE(pathInside(normal, burn));
    // From just aft of the sloped edge, weight taken off far aft (at 123 in)
    // moves the CG forward faster than the edge runs, across it.
    const Path across{2500, 2500 * 40.6, -200, -200 * 123};
    double leaves = 0;
    EXPECT_TRUE(contains(normal, across.at(0)));
    EXPECT_FALSE(pathInside(normal, across, &leaves));
    EXPECT_GT(leaves, 2300);
    EXPECT_LT(leaves, 2500);
    // The point where it leaves lies on the sloped edge: 35 + (W - 1950) / 100.
    EXPECT_NEAR(across.at((leaves - 2500) / -200).arm, 35 + (leaves - 1950) / 100, 1e-6);
}

TEST(Limits, MarginsInWords) {
    const Aircraft aircraft = skyhawk(1644, 39.65);
    // 2,512 lb on the ramp with full usable fuel, 8 lb of it burnt for
    // start, taxi and run-up: the ramp weight is checked against the max ramp
    // weight, the takeoff weight against the max takeoff weight.
    const LoadSheet sheet = workOut(aircraft, load(aircraft, {340, 170, 40, 0, 318}, 120));
    EXPECT_TRUE(maximaHold(aircraft, sheet));
    const auto lines = limitLines(aircraft, sheet, Dot);
    auto has = [&](const std::string& text) {
        return std::any_of(lines.begin(), lines.end(),
                           [&](const LimitLine& l) { return l.text == text; });
    };
    EXPECT_TRUE(has("Ramp: 46.00 lb under max ramp"));
    EXPECT_TRUE(has("Takeoff: 46.00 lb under max takeoff"));
    EXPECT_TRUE(has("Landing: 166.00 lb under max landing"));
    // 2,550 lb at 40.6 in is forward of the Normal envelope's corner at 41.0.
    Aircraft heavy = skyhawk(2550 - 0.0, 40.6);
    const LoadSheet forward = workOut(heavy, Loading::emptyFor(heavy));
    const auto words = limitLines(heavy, forward, Dot);
    EXPECT_TRUE(std::any_of(words.begin(), words.end(), [](const LimitLine& l) {
        return l.text == "Takeoff: CG 0.40 in forward of the Normal limit at 2,550.00 lb" &&
               !l.holds;
    }));
    EXPECT_FALSE(withinLimits(heavy, forward));
    EXPECT_TRUE(maximaHold(heavy, forward)); // exactly the max takeoff weight is allowed
}

TEST(Limits, WhatTheHandbookStatesBesidesTheEnvelopes) {
    // A C172S empty at 1,642 lb and 39.7 in. Its handbook allows 120 lb in
    // baggage areas A and B together, the utility category only with the
    // rear seat and both baggage areas empty, and 2,558 lb on the ramp with
    // 8 lb of fuel for start, taxi and run-up to take off at 2,550 lb.
    const Aircraft aircraft = skyhawk(1642, 39.7);
    struct Case {
        const char* name;
        std::vector<double> weights; // front, rear, baggage A, baggage B, fuel
        bool within;
        const char* verdict;
    } cases[] = {
        {"solo with 30 USG",
         {170, 0, 0, 0, 180},
         true,
         "Within limits: Normal and Utility categories."},
        {"baggage within both limits",
         {340, 0, 100, 20, 240},
         true,
         "Within limits: Normal category. Utility: not allowed, baggage A and baggage B occupied."},
        {"100 + 50 lb of baggage",
         {340, 0, 100, 50, 240},
         false,
         "Out of limits: Baggage A + Baggage B: 30.00 lb over their max 120.00 lb."},
        {"a passenger behind",
         {340, 170, 0, 0, 180},
         true,
         "Within limits: Normal category. Utility: not allowed, rear seats occupied."},
        {"on the ramp at its max with full fuel",
         {340, 258, 0, 0, 318},
         true,
         "Within limits: Normal category. Utility: not allowed, rear seats occupied."},
        {"a pound over the max ramp",
         {340, 259, 0, 0, 318},
         false,
         "Out of limits: Ramp: 1.00 lb over max ramp; Takeoff: 1.00 lb over max takeoff; "
         "Landing: 1.00 lb over max landing."},
        {"utility CG aft of its limit",
         {170, 0, 0, 0, 318},
         true,
         "Within limits: Normal category. Utility: outside."},
    };
    for (const Case& c : cases) {
        const LoadSheet sheet = workOut(aircraft, load(aircraft, c.weights));
        EXPECT_EQ(withinLimits(aircraft, sheet), c.within) << c.name;
        const Verdict said = verdict(aircraft, sheet, Dot);
        EXPECT_EQ(said.holds, c.within) << c.name;
        EXPECT_EQ(said.text, c.verdict) << c.name;
    }
    // The taxi fuel comes off the ramp weight and moment: 8 lb at 48 in.
    const LoadSheet sheet = workOut(aircraft, load(aircraft, {340, 258, 0, 0, 318}));
    EXPECT_DOUBLE_EQ(sheet.ramp.weight, 2558);
    EXPECT_DOUBLE_EQ(sheet.takeoff.weight, 2550);
    EXPECT_DOUBLE_EQ(sheet.ramp.moment - sheet.takeoff.moment, 8 * 48);
    // A station that holds less than the allowance gives all it holds.
    // Baggage B takes 50 lb, but with 100 lb in A only 20 more: 2,144 lb at
    // 92,113.4 lb-in, and 20 lb at 123 in, give (92,113.4 + 2,460) / 2,164.
    const LoadSheet bags = workOut(aircraft, load(aircraft, {170, 0, 100, 0, 240}));
    EXPECT_EQ(ballastText(aircraft, bags, 3, 46, Dot),
              "No weight added at Baggage B brings the CG to 46.00 in: Baggage B takes at most "
              "20.00 lb more; the CG would then be 43.70 in");
    const LoadSheet dry = workOut(aircraft, load(aircraft, {170, 0, 0, 0, 5}));
    EXPECT_DOUBLE_EQ(dry.takeoff.weight, dry.zeroFuel.weight);
    // A burn that leaves less than the taxi fuel is flagged.
    EXPECT_TRUE(workOut(aircraft, load(aircraft, {170, 0, 0, 0, 60}, 53)).stations[4].overBurnt);
    EXPECT_FALSE(workOut(aircraft, load(aircraft, {170, 0, 0, 0, 60}, 52)).stations[4].overBurnt);
}

TEST(Limits, FiguresNoLoadingCanHoldAreRefused) {
    const Aircraft aircraft = skyhawk(1642, 39.7);
    const Loading loading = load(aircraft, {170, 0, 0, 0, 60});
    EXPECT_EQ(emptyWeightFault(aircraft, 0, Dot), "An empty weight is more than 0.");
    EXPECT_EQ(emptyWeightFault(aircraft, -1, Dot), "An empty weight is more than 0.");
    EXPECT_EQ(emptyWeightFault(aircraft, 1642, Dot), std::nullopt);
    EXPECT_EQ(weightFault(aircraft, 25500, Dot), std::nullopt);
    EXPECT_EQ(weightFault(aircraft, 25500.1, Dot),
              "Enter at most ten times the max takeoff weight, 25,500.00 lb.");
    EXPECT_EQ(burnFault(aircraft, loading, 4, 52, Dot), std::nullopt);
    EXPECT_EQ(
        burnFault(aircraft, loading, 4, 52.5, Dot),
        "The burn from Fuel is more than the 60.00 lb (52.00 lb after taxiing) loaded there.");
    EXPECT_EQ(burnFault(aircraft, loading, 0, 1, Dot), "Front seats holds no fuel to burn.");
}

TEST(Limits, AStationOverItsMaxIsMarkedNotClamped) {
    const Aircraft aircraft = skyhawk();
    const Loading loading = load(aircraft, {340, 0, 130, 0, 60 * 6});
    const LoadSheet sheet = workOut(aircraft, loading);
    EXPECT_TRUE(sheet.stations[2].overMax);
    EXPECT_DOUBLE_EQ(sheet.stations[2].weight, 130);
    EXPECT_TRUE(sheet.stations[4].overUsable);
    EXPECT_FALSE(maximaHold(aircraft, sheet));
    const std::string text = sheetText(aircraft, loading, Dot);
    EXPECT_NE(text.find("Baggage A: 10.00 lb over its max 120.00 lb"), std::string::npos);
    EXPECT_NE(text.find("Fuel: 7.00 USG over its usable 53.00 USG"), std::string::npos);
}

TEST(LoadSheet, PoundsAndInchesOrKilogramsAndMillimetresGiveOneCg) {
    const Aircraft inches = skyhawk();
    Aircraft metric = inches;
    metric.units = {WeightUnit::Kilogram, ArmUnit::Millimetre, FuelUnit::Litre};
    const double kg = kilograms(WeightUnit::Pound);
    const double mm = millimetres(ArmUnit::Inch);
    const double litre = litres(FuelUnit::UsGallon);
    metric.empty = Mass{inches.empty->weight * kg, inches.empty->arm * mm};
    for (Station& s : metric.stations) {
        s.arm *= mm;
        if (s.fuel) {
            s.fuel->usable *= litre;
            s.fuel->density = s.fuel->density * kg / litre;
            s.fuel->taxi *= kg;
        }
    }
    const std::vector<double> pounds{340, 170, 40, 10, 240};
    std::vector<double> kilos;
    for (double lb : pounds) {
        kilos.push_back(lb * kg);
    }
    const LoadSheet a = workOut(inches, load(inches, pounds, 60));
    const LoadSheet b = workOut(metric, load(metric, kilos, 60 * kg));
    EXPECT_NEAR(b.takeoff.cg() / mm, a.takeoff.cg(), 1e-9);
    EXPECT_NEAR(b.landing.cg() / mm, a.landing.cg(), 1e-9);
    EXPECT_NEAR(b.takeoff.weight / kg, a.takeoff.weight, 1e-9);
}

TEST(LoadSheet, TheAquilaHandbookExample) {
    // Empty 506 kg at 0.440 m, pilot 55 kg forward, passenger 100 kg in the
    // middle position, baggage 15 kg, 100 l of fuel: 748 kg. The handbook
    // rounds each moment to whole kg m (346 kg m, 0.463 m); unrounded the CG
    // is 461.90 mm.
    Aircraft aquila = shipped("Aquila AT01-100C");
    aquila.empty = Mass{506, 440};
    const LoadSheet sheet = workOut(aquila, load(aquila, {55, 100, 0, 15, 72}));
    EXPECT_DOUBLE_EQ(sheet.takeoff.weight, 748);
    EXPECT_NEAR(sheet.takeoff.cg(), 463, 1.5);
    EXPECT_EQ(figure(sheet.takeoff.cg(), Dot), "461.90");
    EXPECT_TRUE(withinLimits(aquila, sheet));
}

TEST(LoadSheet, ArmsAndCgsToThePrecisionOfTheirUnit) {
    // Enough to redo a moment by hand, and no CG of 0.52 m beside a limit
    // of 0.523 m.
    struct Case {
        double value;
        ArmUnit unit;
        const char* shown;
    } cases[] = {
        {40.333, ArmUnit::Inch, "40.33"},        {104.75, ArmUnit::Centimetre, "104.75"},
        {461.904, ArmUnit::Millimetre, "461.9"}, {1234.56, ArmUnit::Millimetre, "1,234.6"},
        {0.5234, ArmUnit::Metre, "0.523"},       {0.5236, ArmUnit::Metre, "0.524"},
        {-0.0004, ArmUnit::Metre, "0.000"},      {-1.5, ArmUnit::Inch, "-1.50"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(armFigure(c.value, c.unit, Dot), c.shown) << c.value;
    }
    // The Aquila's handbook example, its CG unrounded: 461.90 mm.
    Aircraft aquila = shipped("Aquila AT01-100C");
    aquila.empty = Mass{506, 440};
    const std::vector<SheetRow> rows = sheetRows(aquila, load(aquila, {55, 100, 0, 15, 72}), Dot);
    const auto takeoff = std::find_if(rows.begin(), rows.end(),
                                      [](const SheetRow& r) { return r.cells[0] == "Takeoff"; });
    ASSERT_NE(takeoff, rows.end());
    EXPECT_EQ(takeoff->cells[1], "748.00");
    EXPECT_TRUE(takeoff->total);
    EXPECT_EQ(takeoff->rest, "CG 461.9 mm");
    EXPECT_EQ(rows[1].cells[2], "440.0"); // the empty arm
}

TEST(Profile, WrittenAndReadBackTheSame) {
    for (std::string_view json : shippedProfiles()) {
        const Aircraft aircraft = read(json);
        const Aircraft again = read(writeProfile(aircraft));
        EXPECT_EQ(writeProfile(again), writeProfile(aircraft)) << aircraft.name;
        ASSERT_EQ(again.stations.size(), aircraft.stations.size());
        EXPECT_EQ(again.envelopes[0].corners.size(), aircraft.envelopes[0].corners.size());
        EXPECT_FALSE(aircraft.empty) << aircraft.name << " ships without an empty weight";
        EXPECT_FALSE(aircraft.source.empty()) << aircraft.name << " cites its figures";
    }
}

TEST(Profile, EveryMaximumWeightMayBeLeftOut) {
    std::string json(FaaExample);
    json.insert(1, R"("maxWeight": { "ramp": 2600 },)");
    const Aircraft aircraft = read(json);
    EXPECT_EQ(aircraft.maxWeight.ramp, 2600);
    EXPECT_FALSE(aircraft.maxWeight.takeoff);
    EXPECT_FALSE(aircraft.maxWeight.landing);
    EXPECT_FALSE(aircraft.maxWeight.zeroFuel);
}

TEST(Profile, RefusedWithTheReason) {
    const std::string good(FaaExample);
    auto with = [&](std::string_view from, std::string_view to) {
        std::string s = good;
        const auto at = s.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return s.replace(at, from.size(), to);
    };
    struct Case {
        const char* name;
        std::string json;
        std::string reason;
    } cases[] = {
        {"not JSON", "{\n\n\"format\": }",
         "line 3: syntax error while parsing value - unexpected '}'; expected '[', '{', or a "
         "literal"},
        {"not an object", "[1, 2]", "it is not a JSON object"},
        {"another format", with("zelflightab-aircraft/1", "efb-aircraft"),
         "its format is \"efb-aircraft\", not zelflightab-aircraft/2"},
        {"another version", with("zelflightab-aircraft/1", "zelflightab-aircraft/3"),
         "it is version 3 of the format; this program reads versions 1 and 2"},
        {"a combined limit of an unknown station",
         with(R"("envelopes")", R"("combined": [{"stations": ["Fuel", "Cargo"], "max": 10}],
              "envelopes")"),
         "combined limit 1 names no station \"Cargo\""},
        {"a combined limit of one station",
         with(R"("envelopes")", R"("combined": [{"stations": ["Fuel"], "max": 10}], "envelopes")"),
         "combined limit 1 names fewer than two stations"},
        {"a combined limit without its max",
         with(R"("envelopes")", R"("combined": [{"stations": ["Fuel", "fuel"]}], "envelopes")"),
         "combined limit 1: its max is missing"},
        {"a station twice in a combined limit",
         with(R"("envelopes")",
              R"("combined": [{"stations": ["Fuel", " fuel"], "max": 1}], "envelopes")"),
         "combined limit 1 names \" fuel\" twice"},
        {"a condition of an unknown station",
         with(R"([1500, 100]] })",
              R"([1500, 100]], "conditions": [{"station": "Rear", "max": 0}] })"),
         "envelope 1 (Test): condition 1 names no station \"Rear\""},
        {"a condition without a station",
         with(R"([1500, 100]] })", R"([1500, 100]], "conditions": [{"max": 0}] })"),
         "envelope 1 (Test): condition 1 names no station"},
        {"a negative condition",
         with(R"([1500, 100]] })",
              R"([1500, 100]], "conditions": [{"station": "Fuel", "max": -1}] })"),
         "envelope 1 (Test): condition 1: its max is negative"},
        {"more taxi fuel than the tank holds",
         with(R"("density": 6.0)", R"("density": 6.0, "taxi": 301)"),
         "station 2 (Fuel): its taxi fuel is more than its usable fuel"},
        {"a station without an arm", with(R"("arm": 96,)", ""), "station 2 has no arm"},
        {"an unknown unit", with(R"("fuel": "USG")", R"("fuel": "gal")"),
         "unknown fuel unit \"gal\" (USG, L or ImpG)"},
        {"a negative arm", with("101.4", "-101.4"), "its empty arm is negative"},
        {"a number beyond the finite", with("1495", "1e999"),
         "line 4: number overflow parsing '1e999'"},
        {"two stations of one name", with("Pilot and passengers", "fuel"),
         "two stations are named \"Fuel\""},
        {"one name with blanks around it", with("Pilot and passengers", "  FUEL "),
         "two stations are named \"Fuel\""},
        {"two corners", with("[1500, 90], [2500, 90], ", ""),
         "envelope 1 (Test) has fewer than three corners"},
        {"edges that cross", with("[2500, 100], [1500, 100]", "[1500, 100], [2500, 100]"),
         "envelope 1 (Test): its edges cross"},
        {"no envelope",
         with(
             R"([ { "name": "Test", "points": [[1500, 90], [2500, 90], [2500, 100], [1500, 100]] } ])",
             "[]"),
         "it has no envelope"},
    };
    for (const Case& c : cases) {
        ProfileRead read = readProfile(c.json);
        ASSERT_TRUE(std::holds_alternative<std::string>(read)) << c.name;
        EXPECT_EQ(std::get<std::string>(read), "Not an aircraft profile: " + c.reason) << c.name;
    }
}

TEST(Chart, RoundTicksAndTheLoadingInDataUnits) {
    const Chart::Axis a = axis("CG - in", 35, 47.3, Dot);
    EXPECT_EQ(a.low, 34);
    EXPECT_EQ(a.high, 48);
    EXPECT_EQ(a.ticks.front().label, "34");
    EXPECT_EQ(a.ticks.back().label, "48");
    const Chart::Axis fine = axis("CG - m", 0.427, 0.523, Symbols{",", "."});
    EXPECT_EQ(fine.ticks.front().label, "0,42");
    // Spans with nothing to tell apart, or beyond any scale, still give a
    // short axis of finite round ticks.
    for (auto [low, high] : {std::pair{94.0, 94.0}, std::pair{1e7, 1e7 + 1e-9},
                             std::pair{-1e300, 1e300}, std::pair{0.0, 1e-300}}) {
        const Chart::Axis odd = axis("CG - in", low, high, Dot);
        EXPECT_LE(odd.ticks.size(), 12U) << low << " " << high;
        EXPECT_LT(odd.low, odd.high) << low << " " << high;
        for (const Chart::Tick& t : odd.ticks) {
            EXPECT_TRUE(std::isfinite(t.value)) << low << " " << high;
        }
    }
    const Aircraft aircraft = skyhawk();
    const Chart c =
        chart(aircraft, workOut(aircraft, load(aircraft, {340, 0, 20, 0, 240}, 60)), Dot);
    ASSERT_EQ(c.marks.size(), 3U);
    EXPECT_EQ(c.marks[0].name, "Takeoff");
    // 2,263 lb on the ramp, less 8 lb of taxi fuel.
    EXPECT_DOUBLE_EQ(c.marks[0].at.weight, 2255);
    EXPECT_TRUE(c.marks[0].inside);
    ASSERT_EQ(c.lines.size(), 2U);
    EXPECT_DOUBLE_EQ(c.lines[0].points.front().weight, 2255);
    EXPECT_DOUBLE_EQ(c.lines[1].points.back().weight, 2023);
    EXPECT_LE(c.weight.low, 1500);
    EXPECT_GE(c.weight.high, 2550);
    EXPECT_NE(c.description.find("Takeoff 2,255.00 lb at"), std::string::npos);
}

} // namespace
} // namespace zel::balance
