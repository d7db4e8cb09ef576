// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"
#include "balance/loadingbook.h"
#include "balance/profile.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <numeric>
#include <sstream>

namespace zel::test {
namespace {

constexpr int WeightBalance = 28;

std::string testProfile(const std::string& name) {
    std::ifstream in(std::string(ZEL_TEST_DATA) + "/aircraft/" + name, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

/// The Weight & Balance page with the aircraft `name` shown.
struct Loaded : Calculator {
    explicit Loaded(const std::string& name = "Cessna 172S") : Calculator(Dot, WeightBalance) {
        choose(name);
    }
    void choose(const std::string& name) {
        const auto profiles = loading().profiles;
        for (std::size_t i = 0; i < profiles.size(); ++i) {
            if (profiles[i].name == name) {
                menu.chooseAircraft(static_cast<int>(i));
            }
        }
    }
    balance::LoadingView loading() const { return *menu.view().loading; }
    const balance::LoadingLine& line(const std::string& name) const {
        m_shown = loading();
        const auto at = std::find_if(m_shown.lines.begin(), m_shown.lines.end(),
                                     [&](const auto& l) { return l.name == name; });
        EXPECT_NE(at, m_shown.lines.end()) << name;
        return *at;
    }
    std::string kept(const std::string& file) {
        return storage.files[storage.folder + "/Tech/Aircraft/" + file];
    }
    bool holds(const std::string& limit) const {
        const auto limits = loading().limits;
        return std::any_of(limits.begin(), limits.end(),
                           [&](const auto& l) { return l.text == limit; });
    }

  private:
    mutable balance::LoadingView m_shown;
};

TEST(WeightBalancePage, AShippedProfileAsksForTheEmptyWeightAndKeepsItInTheUsersCopy) {
    Loaded calc;
    balance::LoadingView v = calc.loading();
    EXPECT_EQ(v.aircraft, "Cessna 172S");
    EXPECT_TRUE(v.profiles[static_cast<std::size_t>(v.chosen)].shipped);
    EXPECT_FALSE(v.missing.empty());
    EXPECT_FALSE(v.chart);
    EXPECT_TRUE(v.verdict.empty());
    // The empty weight (entry 1) waits for the arm (entry 2).
    calc.enter(calc.line("Empty").weight.entry, "1663");
    EXPECT_TRUE(calc.storage.files.empty() || calc.kept("Cessna 172S.json").empty());
    calc.enter(calc.line("Empty").arm.entry, "39.9");
    v = calc.loading();
    EXPECT_TRUE(v.missing.empty());
    EXPECT_FALSE(v.profiles[static_cast<std::size_t>(v.chosen)].shipped);
    EXPECT_EQ(calc.line("Empty").moment, "66.35");
    const auto copy = balance::readProfile(calc.kept("Cessna 172S.json"));
    ASSERT_TRUE(std::holds_alternative<balance::Aircraft>(copy));
    EXPECT_DOUBLE_EQ(std::get<balance::Aircraft>(copy).empty->weight, 1663);
    EXPECT_TRUE(calc.ui.events.empty());
}

/// Erases what stays typed after a refusal, as the user does with Backspace.
void erase(Loaded& calc) {
    for (int i = 0; i < 8; ++i) {
        calc.menu.keyDown({.key = Key::Backspace});
    }
}

TEST(WeightBalancePage, ALoadingByItsCellsGivesTheSheetLimitsAndPicture) {
    Loaded calc("D-EZEL");
    calc.menu.importProfile(testProfile("skyhawk.json"));
    calc.choose("D-EZEL");
    calc.enter(calc.line("Front seats").weight.entry, "340");
    calc.enter(calc.line("Fuel").volume.entry, "40");
    EXPECT_EQ(calc.line("Fuel").weight.text, "240.00");
    calc.enter(calc.line("Burn Fuel").weight.entry, "60");
    EXPECT_EQ(calc.line("Burn Fuel").volume.text, "10.00");
    EXPECT_EQ(calc.line("Takeoff").weight.text, "2,243.00");
    EXPECT_EQ(calc.line("Takeoff").arm.text, "40.33");
    EXPECT_EQ(calc.line("Landing").weight.text, "2,183.00");
    EXPECT_TRUE(calc.line("Burn Fuel").weight.input);
    EXPECT_TRUE(calc.holds("Takeoff: 307.00 lb under max takeoff"));
    const balance::LoadingView v = calc.loading();
    EXPECT_EQ(v.verdict, "Within limits: Normal category. Utility: outside.");
    EXPECT_TRUE(v.withinLimits);
    ASSERT_TRUE(v.chart);
    EXPECT_EQ(v.chart->marks.size(), 3U);
    // A click without a typed number shows the cell's value in the display.
    calc.menu.clickRow(calc.line("Front seats").weight.entry);
    EXPECT_EQ(calc.view().display, "340.");
    // Over a station's max: shown and marked, never clamped.
    calc.enter(calc.line("Baggage A").weight.entry, "130");
    EXPECT_TRUE(calc.line("Baggage A").flagged);
    EXPECT_EQ(calc.line("Baggage A").weight.text, "130.00");
    EXPECT_EQ(calc.loading().verdict, "Out of limits: Baggage A: 10.00 lb over its max 120.00 lb.");
    // A negative weight is refused and changes nothing.
    calc.enter(calc.line("Rear seats").weight.entry, "-9");
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: Enter a weight of 0 or more.");
    EXPECT_EQ(calc.line("Rear seats").weight.text, "");
    // A burn greater than the fuel on board is refused, and the burn stays.
    erase(calc);
    calc.enter(calc.line("Burn Fuel").volume.entry, "41");
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: The burn from Fuel is more than "
                                "the 240.00 lb loaded there.");
    EXPECT_EQ(calc.line("Burn Fuel").weight.text, "60.00");
    // So is a weight no aircraft of this size is ever loaded with.
    erase(calc);
    calc.enter(calc.line("Rear seats").weight.entry, "99999");
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: Enter at most ten times the max "
                                "takeoff weight, 25,500.00 lb.");
    EXPECT_EQ(calc.line("Rear seats").weight.text, "");
    // Clear empties the loading; the aircraft's empty weight stays.
    calc.menu.clear();
    EXPECT_EQ(calc.line("Front seats").weight.text, "");
    EXPECT_EQ(calc.line("Empty").weight.text, "1,663.00");
}

TEST(WeightBalancePage, TheHelpersShiftAndBallast) {
    Loaded calc("D-EZEL");
    calc.menu.importProfile(testProfile("skyhawk.json"));
    calc.choose("D-EZEL");
    calc.enter(calc.line("Front seats").weight.entry, "340");
    calc.enter(calc.line("Baggage A").weight.entry, "100");
    calc.enter(calc.loading().target.entry, "40");
    calc.menu.chooseShift(3, 1);
    calc.menu.chooseBallast(1);
    const balance::LoadingView v = calc.loading();
    // 2,103 lb at 42.05 in: W x (X - CG) / (arm B - arm A), W x (X - CG) / (arm S - X).
    EXPECT_EQ(v.shift, "Move 74.37 lb from Baggage A to Front seats to bring the CG to 40.00 in");
    // 1,437.90 lb would be needed; 447 lb reach the max takeoff weight, at
    // (88,433.7 + 447 x 37) / 2,550 = 41.17 in.
    EXPECT_EQ(v.ballast, "No weight added at Front seats brings the CG to 40.00 in: the aircraft "
                         "takes at most 447.00 lb more; the CG would then be 41.17 in");
    // Taking off what a station holds is proposed: 2,103 x -2.05 / 55.
    calc.menu.chooseBallast(3);
    EXPECT_EQ(calc.loading().ballast, "Take 78.43 lb off Baggage A to bring the CG to 40.00 in");
    EXPECT_NE(v.sheet.find(v.shift), std::string::npos);
}

TEST(WeightBalancePage, ABadImportIsRefusedWithItsReasonAndChangesNothing) {
    Loaded calc;
    calc.menu.importProfile(testProfile("skyhawk.json"));
    const auto before = calc.storage.files;
    struct Case {
        const char* file;
        const char* reason;
    } cases[] = {
        {"not-json.json", "line 4: syntax error while parsing object - unexpected string "
                          "literal; expected '}'"},
        {"no-arm.json", "station 2 has no arm"},
        {"version-3.json", "it is version 3 of the format; this program reads versions 1 and 2"},
        {"crossing.json", "envelope 1 (Test): its edges cross"},
        {"two-corners.json", "envelope 1 (Test) has fewer than three corners"},
        {"negative.json", "station 1 (Pilot and passengers): its arm is negative"},
        {"unknown-unit.json", "unknown arm unit \"ft\" (in, mm, cm or m)"},
        {"same-names.json", "two stations are named \"pilot and passengers\""},
    };
    for (const Case& c : cases) {
        calc.menu.importProfile(testProfile(c.file));
        EXPECT_EQ(calc.lastEvent(),
                  std::string("exclamation Weight & Balance: Not an aircraft profile: ") + c.reason)
            << c.file;
        EXPECT_EQ(calc.storage.files, before) << c.file;
    }
}

TEST(WeightBalancePage, ProfilesAreRenamedDuplicatedAndDeleted) {
    Loaded calc;
    calc.menu.importProfile(testProfile("skyhawk.json"));
    calc.choose("D-EZEL");
    calc.enter(calc.line("Front seats").weight.entry, "200");
    // Importing one of the same name asks first; No leaves it.
    calc.ui.answers = {false};
    calc.menu.importProfile(testProfile("skyhawk.json"));
    EXPECT_EQ(calc.lastEvent(), "question A profile named \"D-EZEL\" is kept already. Replace it?");
    calc.ui.inputs = {std::string("D-ABCD")};
    calc.menu.renameProfile();
    EXPECT_EQ(calc.loading().aircraft, "D-ABCD");
    EXPECT_EQ(calc.line("Front seats").weight.text, "200.00"); // the loading goes with it
    EXPECT_FALSE(calc.kept("D-ABCD.json").empty());
    EXPECT_EQ(calc.storage.files.count(calc.storage.folder + "/Tech/Aircraft/D-EZEL.json"), 0U);
    calc.menu.duplicateProfile();
    EXPECT_EQ(calc.loading().aircraft, "D-ABCD (2)");
    calc.ui.answers = {true};
    calc.menu.deleteProfile();
    EXPECT_EQ(calc.lastEvent(), "question Delete the profile \"D-ABCD (2)\"?");
    EXPECT_EQ(calc.storage.files.count(calc.storage.folder + "/Tech/Aircraft/D-ABCD (2).json"), 0U);
    // A profile as it ships cannot be deleted.
    calc.choose("Cessna 172S");
    calc.menu.deleteProfile();
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: \"Cessna 172S\" ships with the "
                                "program and cannot be deleted.");
}

TEST(WeightBalancePage, TheEditorKeepsWhatWasTypedUntilItIsAProfile) {
    Loaded calc("Aquila AT01-100C");
    calc.menu.editProfile();
    ASSERT_TRUE(calc.loading().editor);
    // The form names its fields by the ids that take what is typed in them.
    std::vector<std::string> ids;
    const balance::LoadingView editing = calc.loading();
    for (const balance::FormSection& section : editing.editor->sections) {
        for (const balance::FormField& field : section.fields) {
            ids.push_back(field.id);
        }
        for (const auto& row : section.rows) {
            for (const balance::FormField& field : row.fields) {
                ids.push_back(field.id);
            }
        }
    }
    for (const char* id : {"name", "station.2.arm", "envelope.1.name", "envelope.1.corner.4.arm"}) {
        EXPECT_NE(std::find(ids.begin(), ids.end(), id), ids.end()) << id;
    }
    calc.menu.editField("station.2.arm", "five hundred");
    calc.menu.pressFormButton({balance::FormAction::Kind::Save, 0, 0});
    EXPECT_EQ(calc.lastEvent(),
              "exclamation Weight & Balance: The profile cannot be saved: "
              "station 2 (Seats middle): its arm \"five hundred\" is not a number");
    ASSERT_TRUE(calc.loading().editor); // still open, as typed
    calc.menu.editField("station.2.arm", "533.4");
    calc.menu.editField("name", "D-EAQL");
    calc.menu.editField("emptyWeight", "506");
    calc.menu.editField("emptyArm", "440");
    calc.menu.pressFormButton({balance::FormAction::Kind::AddCorner, 1, 0});
    calc.menu.editField("envelope.1.corner.5.weight", "650");
    calc.menu.editField("envelope.1.corner.5.arm", "600"); // out of the polygon: its edges cross
    calc.menu.pressFormButton({balance::FormAction::Kind::Save, 0, 0});
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: The profile cannot be saved: "
                                "envelope 1 (Normal): its edges cross");
    calc.menu.pressFormButton({balance::FormAction::Kind::RemoveCorner, 1, 5});
    calc.menu.pressFormButton({balance::FormAction::Kind::Save, 0, 0});
    EXPECT_FALSE(calc.loading().editor);
    EXPECT_EQ(calc.loading().aircraft, "D-EAQL");
    EXPECT_FALSE(calc.kept("D-EAQL.json").empty());
    // The shipped profile it was made from is still offered.
    const auto profiles = calc.loading().profiles;
    EXPECT_TRUE(std::any_of(profiles.begin(), profiles.end(), [](const auto& p) {
        return p.name == "Aquila AT01-100C" && p.shipped;
    }));
}

TEST(WeightBalancePage, AProfileThatCannotBeWrittenLeavesTheProfilesAsTheyWere) {
    Loaded calc;
    calc.storage.readOnly.push_back(calc.storage.folder + "/Tech/Aircraft/Cessna 172S.json");
    calc.enter(calc.line("Empty").weight.entry, "1663");
    calc.enter(calc.line("Empty").arm.entry, "39.9");
    EXPECT_EQ(calc.lastEvent(), "exclamation Weight & Balance: The profile \"Cessna 172S\" could "
                                "not be written to the storage; the profiles are as they were.");
    const balance::LoadingView v = calc.loading();
    EXPECT_TRUE(v.profiles[static_cast<std::size_t>(v.chosen)].shipped);
    EXPECT_FALSE(v.missing.empty());
}

TEST(WeightBalancePage, AKeptFileThatIsNoProfileIsPointedOutAndLeftAlone) {
    Calculator calc(Dot);
    const std::string path = calc.storage.folder + "/Tech/Aircraft/Broken.json";
    calc.storage.files[path] = "{ not json";
    calc.menu.openPage(WeightBalance);
    EXPECT_TRUE(calc.lastEvent().starts_with(
        "exclamation Weight & Balance: These kept profiles are not offered; their files are "
        "left as they are:\r\r" +
        path + ": Not an aircraft profile: line 1:"))
        << calc.lastEvent();
    EXPECT_EQ(calc.storage.files[path], "{ not json");
}

TEST(Menu, GroupsEveryPageOnceUnderItsHeading) {
    Calculator calc;
    const View view = calc.view();
    std::vector<int> seen;
    std::vector<std::string> headings;
    for (const PageGroup& group : view.groups) {
        headings.push_back(group.heading);
        seen.insert(seen.end(), group.pages.begin(), group.pages.end());
    }
    EXPECT_EQ(headings,
              (std::vector<std::string>{"Units", "Flight planning", "In flight", "Reports"}));
    std::sort(seen.begin(), seen.end());
    std::vector<int> all(static_cast<std::size_t>(pageCatalogue().count()));
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(seen, all);
    EXPECT_EQ(view.pages[WeightBalance - 1].name, "Weight & Balance");
}

} // namespace
} // namespace zel::test

namespace zel::test {
namespace {

TEST(WeightBalancePage, TheLoadingAndTheAircraftAreKeptAcrossARestartAndByName) {
    Calculator first(Dot, WeightBalance);
    first.menu.importProfile(testProfile("skyhawk.json"));
    const auto profiles = first.menu.view().loading->profiles;
    const auto at = std::find_if(profiles.begin(), profiles.end(),
                                 [](const auto& p) { return p.name == "D-EZEL"; });
    first.menu.chooseAircraft(static_cast<int>(at - profiles.begin()));
    auto cell = [](Calculator& calc, const std::string& station) {
        const View view = calc.menu.view();
        for (const auto& line : view.loading->lines) {
            if (line.name == station) {
                return line.weight;
            }
        }
        return balance::LoadingCell{};
    };
    first.enter(cell(first, "Front seats").entry, "340");
    first.enter(cell(first, "Fuel").entry, "240");
    first.ui.inputs = {std::string("Solo, full fuel")};
    first.menu.saveLoading();
    first.enter(cell(first, "Rear seats").entry, "170");

    // The next run opens on the same aircraft with the same loading.
    Calculator second(Dot);
    second.storage.files = first.storage.files;
    second.menu.openPage(WeightBalance);
    const balance::LoadingView v = *second.menu.view().loading;
    EXPECT_EQ(v.aircraft, "D-EZEL");
    EXPECT_EQ(cell(second, "Front seats").text, "340.00");
    EXPECT_EQ(cell(second, "Rear seats").text, "170.00");
    EXPECT_EQ(cell(second, "Fuel").text, "240.00");
    ASSERT_EQ(v.savedLoadings, std::vector<std::string>{"Solo, full fuel"});
    // A saved loading replaces the one shown, every station of it.
    second.menu.recallLoading(0);
    EXPECT_EQ(cell(second, "Rear seats").text, "");
    EXPECT_EQ(cell(second, "Front seats").text, "340.00");
    second.menu.deleteLoading(0);
    EXPECT_TRUE(second.menu.view().loading->savedLoadings.empty());

    // A book that is not one is left out, and the page opens as it ships.
    Calculator third(Dot);
    third.storage.files = first.storage.files;
    third.storage.files[third.storage.folder + "/Tech/Loadings.json"] = "{ not json";
    third.menu.openPage(WeightBalance);
    EXPECT_EQ(third.menu.view().loading->chosen, 0);
    EXPECT_TRUE(third.menu.view().loading->savedLoadings.empty());
}

TEST(LoadingBook, WrittenAndReadBackTheSameLeavingOutWhatIsNoLoading) {
    balance::LoadingBook book;
    book.chosen = "D-EZEL";
    book.current = {{"", "D-EZEL", {{"Front seats", 340}, {"Fuel", 240}}, {{"Fuel", 60}}}};
    book.named = {{"Solo", "D-EZEL", {{"Front seats", 170}}, {}}};
    EXPECT_EQ(balance::readBook(balance::writeBook(book)), book);
    const balance::LoadingBook odd = balance::readBook(R"({"format": "zelflightab-loadings/1",
        "chosen": 7,
        "current": [{"aircraft": "D-EZEL", "weights": {"Front seats": -1, "Rear seats": "x",
                     "Fuel": 1e300, "Baggage A": 20}},
                    {"weights": {}}],
        "named": [{"aircraft": "D-EZEL"}]})");
    EXPECT_EQ(odd.chosen, "");
    ASSERT_EQ(odd.current.size(), 1U);
    EXPECT_EQ(odd.current[0].weights, (std::map<std::string, double>{{"Baggage A", 20}}));
    EXPECT_TRUE(odd.named.empty());
    EXPECT_EQ(balance::readBook(R"({"format": "zelflightab-loadings/2", "chosen": "D-EZEL"})"),
              balance::LoadingBook{});
}

} // namespace
} // namespace zel::test

namespace zel::test {
namespace {

TEST(WeightBalancePage, TheEditorConvertsEveryFigureWhenAUnitChanges) {
    Loaded calc;
    calc.menu.editProfile();
    auto field = [&](const std::string& id) {
        const balance::LoadingView shown = calc.loading();
        for (const auto& section : shown.editor->sections) {
            for (const auto& f : section.fields) {
                if (f.id == id) {
                    return f.text;
                }
            }
            for (const auto& row : section.rows) {
                for (const auto& f : row.fields) {
                    if (f.id == id) {
                        return f.text;
                    }
                }
            }
        }
        return std::string("no field ") + id;
    };
    auto number = [&](const std::string& id) { return readFigure(field(id), Dot).value_or(-1); };
    // The pound is 0.45359237 kg, the inch 25.4 mm, the US gallon 3.785411784 L.
    calc.menu.editField("weightUnit", "kg");
    EXPECT_NEAR(number("maxTakeoff"), 2550 * 0.45359237, 1e-9); // 1,156.66 kg
    EXPECT_NEAR(number("envelope.1.corner.3.weight"), 2550 * 0.45359237, 1e-9);
    EXPECT_NEAR(number("combined.1.max"), 120 * 0.45359237, 1e-9);
    EXPECT_NEAR(number("station.5.taxi"), 8 * 0.45359237, 1e-9);
    EXPECT_NEAR(number("station.5.density"), 6 * 0.45359237, 1e-9); // kg per US gallon
    EXPECT_EQ(field("envelope.1.corner.3.arm"), "41");              // an arm stays
    calc.menu.editField("armUnit", "mm");
    EXPECT_NEAR(number("envelope.1.corner.3.arm"), 41 * 25.4, 1e-9);
    EXPECT_NEAR(number("macLength"), 58.8 * 25.4, 1e-9);
    calc.menu.editField("fuelUnit", "L");
    EXPECT_NEAR(number("station.5.usable"), 53 * 3.785411784, 1e-9);
    EXPECT_NEAR(number("station.5.density"), 6 * 0.45359237 / 3.785411784, 1e-12);
    // Back to pounds: the figure it started from.
    calc.menu.editField("weightUnit", "lb");
    EXPECT_NEAR(number("maxTakeoff"), 2550, 1e-9);
    // Saved, the profile states the same aircraft: 2,321 kg is over its
    // 1,156.66 kg, not within a limit relabelled 2,550 kg.
    calc.menu.editField("weightUnit", "kg");
    calc.menu.editField("name", "C172S metric");
    calc.menu.pressFormButton({balance::FormAction::Kind::Save, 0, 0});
    ASSERT_FALSE(calc.loading().editor);
    EXPECT_EQ(calc.loading().aircraft, "C172S metric");
    EXPECT_EQ(calc.loading().weightUnit, "kg");
    calc.enter(1, "900");
    calc.enter(2, "1008");
    calc.enter(calc.line("Front seats").weight.entry, "1421");
    EXPECT_FALSE(calc.loading().withinLimits);
    EXPECT_TRUE(calc.holds("Takeoff: 1,164.34 kg over max takeoff")); // 2,321 - 1,156.66
}

} // namespace
} // namespace zel::test
