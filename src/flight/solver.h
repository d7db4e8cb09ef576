// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

/// The pages whose rows are tied by formulas (altitude, descent, turn, fuel
/// plan, cloud base) are data: quantities, the rows that show each, and
/// relations that give any one of their quantities from the others. One solver
/// serves them all with the newest-givens rule: the rows the user typed count
/// newest first, as long as they do not follow from those already taken and
/// the page's degrees of freedom allow; every other row is computed from them.
namespace zel::solver {

/// Which typed values a row takes; any other beeps.
enum class Sign { NotNegative, Positive, Any };

/// How a row shows one quantity of the model.
struct Link {
    int quantity = -1; ///< -1: the row shows none
    Sign sign = Sign::Positive;
    double (*toRow)(double) = nullptr; ///< quantity to row; nothing: the same
    double (*fromRow)(double) = nullptr;
    /// Rows of one group give at most one value: the newest typed (for pages
    /// that take one given per group instead of counting degrees of freedom).
    int group = 0;
    /// A typed value outside [low, high] (high itself excluded when `openHigh`)
    /// gets `outOfRange` and changes nothing.
    double low = -1e300;
    double high = 1e300;
    bool openHigh = false;
    std::string_view outOfRange{};
};

/// Up to three quantities tied by one formula.
struct Relation {
    std::array<int, 3> quantities{-1, -1, -1}; ///< -1 where the relation has fewer
    /// The value of quantities[target] from the other values; NaN when the
    /// formula gives none (a division by zero, a root of a negative number).
    double (*solve)(int target, const std::array<double, 3>& values) = nullptr;
};

/// a = b x c, solved for any one of the three.
double product(int target, const std::array<double, 3>& values);
/// a = b x c / 60, solved for any one of the three: a flow per hour over
/// minutes, a gradient per nautical mile at knots in feet per minute.
double productPerSixty(int target, const std::array<double, 3>& values);

/// A value a quantity takes while nothing gives it, unless `unlessKnown` is.
struct Default {
    int quantity = -1;
    double value = 0;
    int unlessKnown = -1;
};

using Quantities = std::array<double, 8>; ///< NaN: not known

struct Model {
    std::array<Link, PageSheet::Rows> rows{};
    std::span<const Relation> relations{};
    int freedom = 0; ///< how many givens count, when rows are not grouped
    std::span<const Default> defaults{};
    /// A warning when the solved quantities cannot be: nothing is changed.
    std::optional<std::string_view> (*check)(const Quantities& q) = nullptr;
};

/// Takes `inputValue` typed into `inputRow` as the newest given and solves the
/// page: its rows hold the computed values, and those that cannot be computed
/// are empty. Zero and negative values are refused by the row's flags.
Report solve(const Model& model, PageSheet& page, double inputValue, int inputRow);

/// Every known quantity from those known, by the relations (exposed for tests).
void propagate(const Model& model, Quantities& q);

} // namespace zel::solver
