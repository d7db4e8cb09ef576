// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/planning.h"
#include "flight/solver.h"

#include <limits>

namespace zel {
namespace {

using namespace solver;

enum Quantity {
    Distance,
    GroundSpeed,
    Hours,
    Flow,
    TripFuel,
    ReserveMinutes,
    ReserveFuel,
    Required
};

/// Required = trip fuel + reserve fuel. The fuel required is only ever a
/// result (typing it beeps), so the sum is never solved backwards.
double sum(int target, const std::array<double, 3>& v) {
    return target == 0 ? v[1] + v[2] : std::numeric_limits<double>::quiet_NaN();
}

constexpr Relation Relations[] = {
    {{Distance, GroundSpeed, Hours}, product},
    {{TripFuel, Flow, Hours}, product},
    {{ReserveFuel, Flow, ReserveMinutes}, productPerSixty}, // flow x minutes / 60
    {{Required, TripFuel, ReserveFuel}, sum},
};

// The fuel rows are in whatever unit the flow is in. Only the reserve may be
// 0 (no reserve planned); every other zero is refused.
constexpr Model FuelPlan{
    .rows = {{{Distance},
              {GroundSpeed},
              {Hours},
              {Flow},
              {TripFuel},
              {ReserveMinutes, Sign::NotNegative},
              {ReserveFuel},
              {Required}}},
    .relations = Relations,
    .freedom = 4,
};

} // namespace

Report Convert_FuelPlan(PageSheet& page, double x, int& inputRow) {
    return solve(FuelPlan, page, x, inputRow);
}

} // namespace zel
