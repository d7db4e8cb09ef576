// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/loadsheet.h"
#include "entry/numbertext.h"

#include <string>
#include <vector>

namespace zel::balance {

/// The picture of a loading in the data's own units: weight up, CG across.
/// A face maps it to its pixels and decides nothing else.
struct Chart {
    struct Tick {
        double value = 0;
        std::string label; ///< with the regional symbols: "2,000", "37.5"
        bool operator==(const Tick&) const = default;
    };
    struct Axis {
        std::string title; ///< "CG - in", "Weight - lb"
        double low = 0;
        double high = 1;
        std::vector<Tick> ticks; ///< round values from low to high
        bool operator==(const Axis&) const = default;
    };
    struct Shape {
        std::string name;
        std::vector<Mass> points; ///< (weight, arm) in order
        bool inside = true;       ///< a loading line: wholly inside an envelope
        bool operator==(const Shape&) const = default;
    };
    struct Mark {
        std::string name; ///< "Takeoff"
        Mass at;
        bool inside = true; ///< inside at least one envelope
        bool operator==(const Mark&) const = default;
    };
    Axis cg;
    Axis weight;
    std::vector<Shape> envelopes;
    /// The burn line: takeoff to landing, then landing to zero fuel.
    std::vector<Shape> lines;
    std::vector<Mark> marks;
    /// What the picture shows, for a screen reader.
    std::string description;

    bool operator==(const Chart&) const = default;
};

/// Round tick values for a range: steps of 1, 2 or 5 times a power of ten,
/// about `count` of them, covering low to high.
Chart::Axis axis(std::string title, double low, double high, const Symbols& symbols, int count = 6);

/// The picture of the sheet (the aircraft must have its empty weight).
Chart chart(const Aircraft& aircraft, const LoadSheet& sheet, const Symbols& symbols);

} // namespace zel::balance
