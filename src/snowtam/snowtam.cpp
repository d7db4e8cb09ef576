// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "snowtam/snowtam.h"

#include "entry/numbertext.h"

#include <algorithm>
#include <array>

namespace zel {
namespace {

struct Code {
    std::string_view code;
    std::string_view text;
};

constexpr std::array<Code, 11> Deposits{{{"0", "Clear and Dry"},
                                         {"1", "Damp"},
                                         {"2", "Wet / Water Patches"},
                                         {"3", "Rime - Frost < 1mm"},
                                         {"4", "Dry Snow"},
                                         {"5", "Wet Snow"},
                                         {"6", "Slush"},
                                         {"7", "Ice"},
                                         {"8", "Compacted Snow"},
                                         {"9", "Frozen Ridges"},
                                         {"/", "(not reported)"}}};

constexpr std::array<Code, 5> Extents{{{"1", "< 10%"},
                                       {"2", "11% - 25%"},
                                       {"5", "26% - 50%"},
                                       {"9", "51% - 100%"},
                                       {"/", "(not reported)"}}};

constexpr std::array<Code, 11> Depths{{{"00", "< 1 mm"},
                                       {"91", "(not reported)"},
                                       {"92", "100 mm"},
                                       {"93", "150 mm"},
                                       {"94", "200 mm"},
                                       {"95", "250 mm"},
                                       {"96", "300 mm"},
                                       {"97", "350 mm"},
                                       {"98", "400 mm"},
                                       {"99", "RWY closed"},
                                       {"//", "(not relevant)"}}};

template <std::size_t N>
const std::string_view* lookUp(const std::array<Code, N>& table, std::string_view code) {
    for (const Code& entry : table) {
        if (entry.code == code) {
            return &entry.text;
        }
    }
    return nullptr;
}

/// Braking action (row 8) and friction coefficient or its range (row 7).
struct Braking {
    std::string action;
    std::string coefficient;
};

Braking braking(double bb, const Symbols& symbols) {
    // Measured coefficients 0.01 to 0.90 are sent as 01..90; 91..95 are the
    // estimated braking actions; 99 an unreliable measurement.
    const std::string measured = formatNumber(bb / 100, "0.00", symbols);
    struct Range {
        double low, high;
        std::string_view action;
    };
    static constexpr std::array<Range, 5> Measured{{{1, 25, "Poor"},
                                                    {26, 29, "Medium-Poor"},
                                                    {30, 35, "Medium"},
                                                    {36, 39, "Medium-Good"},
                                                    {40, 90, "Good"}}};
    static constexpr std::array<Code, 5> Estimated{{{"Poor", "0 - 0.25"},
                                                    {"Medium-Poor", "0.26 - 0.29"},
                                                    {"Medium", "0.30 - 0.35"},
                                                    {"Medium-Good", "0.36 - 0.39"},
                                                    {"Good", "0.40 - 1.00"}}};
    if (bb == 0) {
        return {"(not reported)", ""};
    }
    for (const Range& range : Measured) {
        if (bb >= range.low && bb <= range.high) {
            return {std::string(range.action), measured};
        }
    }
    if (bb >= 91 && bb <= 95 && bb == static_cast<int>(bb)) {
        const Code& estimate = Estimated[static_cast<std::size_t>(bb) - 91];
        return {std::string(estimate.code), std::string(estimate.text)};
    }
    if (bb == 99) {
        return {"(not reported)", "(unreliable)"};
    }
    return {};
}

} // namespace

bool isStateCharacters(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '/'; });
}

void writeStateGroup(PageSheet& page, std::string_view state) {
    if (const auto* deposit = lookUp(Deposits, state.substr(0, 1))) {
        page.setText(2, std::string(*deposit));
    }
    const auto* extent = lookUp(Extents, state.substr(1, 1));
    page.setText(4, extent ? std::string(*extent) : "(invalid entry)");
    const std::string_view depth = state.substr(2, 2);
    const auto* depthText = lookUp(Depths, depth);
    page.setText(6, depthText ? std::string(*depthText) : std::string(depth) + " mm");
    writeBraking(page, state.substr(4, 2));
}

void writeBraking(PageSheet& page, std::string_view code) {
    Braking b = braking(readNumber(code, page.symbols()), page.symbols());
    page.setText(7, std::move(b.coefficient));
    page.setText(8, std::move(b.action));
}

Report decodeStateGroup(PageSheet& page, std::string_view group) {
    page.reset();
    // Figures and "/" (a field not reported) only: any other character is no
    // code of the group, and a guess at it would mislead.
    if (group.size() != 8 || !isStateCharacters(group)) {
        return Report::warning("Snowtam must be 8 digits...");
    }
    const Symbols& symbols = page.symbols();
    const double runway = readNumber(group.substr(0, 2), symbols);
    if (runway == 88) {
        page.setText(1, "All RWY");
    } else if (runway == 99) {
        page.setText(1, "Previous Report");
    } else if (runway < 50) {
        page.setText(1, formatNumber(runway, "00", symbols));
    } else {
        // Runway numbers above 50 are the right-hand runway of a parallel pair.
        page.setText(1, formatNumber(runway - 50, "00", symbols) + "R");
    }
    writeStateGroup(page, group.substr(2));
    return {};
}

namespace {

/// The group is typed as digits and "/" (a field not reported).
char32_t groupCharacter(char32_t c) {
    return c >= '/' && c <= '9' ? c : 0;
}

/// A report is typed in capitals: figures, letters, "/", "." and blanks.
char32_t reportCharacter(char32_t c) {
    if (c >= 0x80) {
        return 0;
    }
    const char capital = upperCase(static_cast<char>(c));
    const bool allowed =
        isLetter(capital) || isDigit(capital) || capital == '/' || capital == '.' || capital == ' ';
    return allowed ? static_cast<char32_t>(capital) : 0;
}

} // namespace

extern const PageTable SnowtamPage{.name = "Snowtam",
                                   .icon = "snowtam",
                                   .rows = {{row("Runway", Form::Text),
                                             row("Type of Deposit", Form::Text),
                                             {},
                                             row("Extent of Deposit", Form::Text),
                                             {},
                                             row("Depth of Deposit", Form::Text),
                                             row("Brake Coefficient", Form::Text),
                                             row("Braking Action", Form::Text)}},
                                   .decode = [](PageSheet& page, std::string_view group,
                                                int) { return decodeStateGroup(page, group); },
                                   .text = {8, groupCharacter, pasteStateGroup},
                                   .functionKey = 11};

extern const PageTable RwyConditionPage{
    .name = "RWY Condition",
    .icon = "rwyCondition",
    .rows = {{row("Runway", Form::Text), row("Assessed - UTC", Form::Text),
              row("Touchdown", Form::Text), row("Midpoint", Form::Text), row("Rollout", Form::Text),
              row("Coverage - %", Form::Text), row("Depth - mm", Form::Text),
              row("Contaminant", Form::Text)}},
    .decode = decodeRunwayCondition,
    .text = {2000, reportCharacter}};

} // namespace zel
