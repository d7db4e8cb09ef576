// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Holding: which entry to fly into a holding pattern. The angle from the
// inbound course to the heading at the fix picks the sector: direct,
// teardrop or parallel, the sectors of left-hand holds the mirror image of
// right-hand ones. Within 5° of a sector's edge either entry may be flown.
#include "page/pagetable.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace zel {
namespace {

enum Row {
    Inbound = 1,
    Heading = 2,
    Outbound = 3,
    RightEntry = 4,
    RightOffset = 5,
    LeftEntry = 6,
    LeftOffset = 7,
    Angle = 8
};

enum class Entry { Direct, Teardrop, Parallel };

constexpr std::array<std::string_view, 3> EntryNames{"Direct", "Teardrop", "Parallel"};

/// Where two sectors meet: the entry below the edge, the one above it, and
/// to which side the edge itself belongs.
struct Edge {
    double at;
    Entry below;
    Entry above;
    bool belongsAbove;
};

/// Right-hand holds: teardrop 110-180, parallel past 180 up to 290, direct
/// elsewhere. Left-hand holds mirror them: parallel past 70 up to 180,
/// teardrop 180-250, direct elsewhere.
constexpr std::array<Edge, 3> RightEdges{{{110, Entry::Direct, Entry::Teardrop, true},
                                          {180, Entry::Teardrop, Entry::Parallel, false},
                                          {290, Entry::Parallel, Entry::Direct, true}}};
constexpr std::array<Edge, 3> LeftEdges{{{70, Entry::Direct, Entry::Parallel, false},
                                         {180, Entry::Parallel, Entry::Teardrop, true},
                                         {250, Entry::Teardrop, Entry::Direct, false}}};

/// Both sides of a sector's edge may be flown within this many degrees of it.
constexpr double Tolerance = 5;

/// The teardrop's outbound track lies this far off the outbound course,
/// toward the holding side.
constexpr double TeardropOffset = 30;

/// The entry of the sector the angle lies in, and the one across an edge
/// within 5° of it, if any.
struct Entries {
    Entry sector;
    std::optional<Entry> alternative;
};

Entries entriesFor(double theta, const std::array<Edge, 3>& edges) {
    Entries found{edges.front().below, std::nullopt};
    for (const Edge& edge : edges) {
        if (theta > edge.at || (theta == edge.at && edge.belongsAbove)) {
            found.sector = edge.above;
        }
    }
    for (const Edge& edge : edges) {
        if (std::fabs(theta - edge.at) <= Tolerance) {
            found.alternative = found.sector == edge.below ? edge.above : edge.below;
        }
    }
    return found;
}

/// A direction from 1 to 360: north is 360, never 0.
double direction(double degrees) {
    const double d = std::fmod(degrees, 360);
    return d <= 0 ? d + 360 : d;
}

void showSide(PageSheet& page, int entryRow, int offsetRow, const Entries& entries, double offset) {
    std::string caption(EntryNames[static_cast<std::size_t>(entries.sector)]);
    if (entries.alternative) {
        caption += " / " + std::string(EntryNames[static_cast<std::size_t>(*entries.alternative)]);
    }
    page.setText(entryRow, caption);
    const bool teardrop =
        entries.sector == Entry::Teardrop || entries.alternative == Entry::Teardrop;
    if (teardrop) {
        page.setValue(offsetRow, direction(offset));
    } else {
        page.clear(offsetRow);
    }
}

Report convertHolding(PageSheet& page, double x, int& inputRow) {
    if (x < 0) {
        return Report::beep();
    }
    if (x > 360) {
        return Report::warning("Invalid direction (range 0 - 360°)");
    }
    page.setValue(inputRow, direction(x));
    if (!page.holds(Inbound) || !page.holds(Heading)) {
        for (int row = Outbound; row <= Angle; ++row) {
            page.clear(row);
        }
        return {};
    }
    const double inbound = page.value(Inbound);
    const double outbound = direction(inbound + 180);
    // The heading at the fix measured clockwise from the inbound course, 0-359.
    const double theta = std::fmod(page.value(Heading) - inbound + 720, 360);
    page.setValue(Outbound, outbound);
    page.setValue(Angle, theta);
    showSide(page, RightEntry, RightOffset, entriesFor(theta, RightEdges),
             outbound - TeardropOffset);
    showSide(page, LeftEntry, LeftOffset, entriesFor(theta, LeftEdges), outbound + TeardropOffset);
    return {};
}

} // namespace

extern const PageTable HoldingPage{
    .name = "Holding",
    .icon = "holding",
    .rows = {{
        row("Inbound Course - °", Form::Direction),
        row("Heading to Fix - °", Form::Direction),
        row("Outbound Course - °", Form::Direction, OutputOnly),
        row("Right Turns - entry", Form::Text, OutputOnly),
        row("Right Turns - offset °", Form::Direction, OutputOnly),
        row("Left Turns - entry", Form::Text, OutputOnly),
        row("Left Turns - offset °", Form::Direction, OutputOnly),
        row("Angle to Inbound - °", Form::Direction, OutputOnly),
    }},
    .convert = convertHolding,
};

} // namespace zel
