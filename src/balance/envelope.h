// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/aircraft.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

// An envelope is a polygon of (weight, arm) corners. Every test here holds a
// point on an edge or a corner to be inside, and gives the same answer for
// the corners in either order of travel. Weights and arms are measured in
// the polygon's own spans, so that a point a billionth of its width outside
// an edge (what a decimal figure turns into in binary) still counts as on it.

namespace zel::balance {

/// Whether the loading `point` (a weight at its CG) is inside the envelope or on its edge.
bool contains(std::span<const Mass> corners, Mass point);

/// What is wrong with the corners as a polygon: "its edges cross", "two
/// corners in a row are the same", "its corners enclose no area"; nothing
/// for a simple polygon.
std::optional<std::string_view> shapeFault(std::span<const Mass> corners);

/// The CG ranges the envelope allows at `weight`, forward limit first, in
/// order; none where the weight is above or below it.
std::vector<std::pair<double, double>> cgRanges(std::span<const Mass> corners, double weight);

/// The path the loading takes while a weight is taken off at one arm (fuel
/// burning from its tank): from `weight` and `moment` to `weight + dWeight`
/// and `moment + dMoment`. Its CG is the moment over the weight, a curve
/// between the two points, which are where its ends are.
struct Path {
    double weight = 0;
    double moment = 0;
    double dWeight = 0;
    double dMoment = 0;

    Mass at(double t) const;
};

/// Whether the whole path lies inside the envelope (on an edge counts).
/// When it does not, `leaves` is set to the weight at which it first leaves it.
bool pathInside(std::span<const Mass> corners, const Path& path, double* leaves = nullptr);

} // namespace zel::balance
