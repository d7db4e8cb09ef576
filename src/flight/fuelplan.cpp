// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/solver.h"

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
double sum(int, const std::array<double, 3>& v) {
    return v[1] + v[2];
}

constexpr Relation Relations[] = {
    {.quantities = {Distance, GroundSpeed, Hours}, .solve = product},
    {.quantities = {TripFuel, Flow, Hours}, .solve = product},
    // Flow x minutes / 60.
    {.quantities = {ReserveFuel, Flow, ReserveMinutes}, .solve = productPerSixty},
    {.quantities = {Required, TripFuel, ReserveFuel}, .solve = sum, .only = 0},
};

} // namespace

// The fuel rows are in whatever unit the flow is in. Only the reserve may be
// 0 (no reserve planned); every other zero is refused.
extern const PageTable FuelPlanPage{
    .name = "Fuel Plan",
    .icon = "fuelPlan",
    .rows = {{
        {.unit = "Distance - nm", .quantity = Distance},
        {.unit = "Ground Speed - kt", .quantity = GroundSpeed},
        {.unit = "Flight Time - h:mm", .form = Form::HoursMinutes, .quantity = Hours},
        {.unit = "Fuel Flow - per hr", .quantity = Flow},
        {.unit = "Trip Fuel", .quantity = TripFuel},
        {.unit = "Reserve - min", .quantity = ReserveMinutes, .sign = Sign::NotNegative},
        {.unit = "Reserve Fuel", .quantity = ReserveFuel},
        {.unit = "Fuel Required", .quantity = Required},
    }},
    .formulas = {.relations = Relations, .freedom = 4},
};

} // namespace zel
