// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

namespace zel {

/// Pounds per kilogram and litres per US gallon as the fuel pages use them:
/// rounded figures from the refuelling charts, deliberately not the exact
/// definitions (2.20462..., 3.785411784), so totals match a fuel docket.
inline constexpr double PoundsPerKilogram = 2.205;
inline constexpr double LitresPerUsGallon = 3.78541178;

/// Fuel Uplift: remaining fuel plus uplift times density, in kg and in lbs.
Report convertFuelUplift(PageSheet& page, double inputValue, int& inputRow);
/// Endurance: quantity / flow in hours and minutes, or either from the endurance.
Report convertEndurance(PageSheet& page, double inputValue, int& inputRow);
/// Fuel Range: quantity / flow x ground speed, or quantity or flow from a range.
Report convertFuelRange(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
