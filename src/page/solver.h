// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <array>

/// The pages whose rows are tied by formulas (altitude, descent, turn, fuel
/// plan, cloud base, true altitude) are data: quantities, the rows that show each, and
/// relations that give any one of their quantities from the others. One solver
/// serves them all with the newest-givens rule: the rows the user typed count
/// newest first, as long as they do not follow from those already taken and
/// the page's degrees of freedom allow; every other row is computed from them.
namespace zel::solver {

/// a = b x c, solved for any one of the three.
double product(int target, const std::array<double, 3>& values);
/// a = b x c / 60, solved for any one of the three: a flow per hour over
/// minutes, a gradient per nautical mile at knots in feet per minute.
double productPerSixty(int target, const std::array<double, 3>& values);

/// Takes `inputValue` typed into `inputRow` as the newest given and solves the
/// page: its rows hold the computed values, and those that cannot be computed
/// are empty. Zero and negative values are refused by the row's sign.
Report solve(const PageTable& page, PageSheet& sheet, double inputValue, int inputRow);

/// Every known quantity from those known, by the relations (exposed for tests).
void propagate(const Formulas& formulas, Quantities& q);

} // namespace zel::solver
