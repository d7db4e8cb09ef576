// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

namespace zel {

/// The Currency page: every row through the euro, with the rates of the rate
/// store as factors (units per euro). A rate that is missing or 0 is not
/// known: its row stays empty, and a value typed into it is refused.
Report convertCurrency(PageSheet& page, double inputValue, int& inputRow);

/// The Currency page: its rows name the currencies by their codes.
extern const PageTable CurrencyPage;

} // namespace zel
