// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/pagetable.h"

namespace zel {

// A loading sheet, not eight rows: the aircraft's stations, its conditions,
// limits and envelope, drawn from the view's loading part.
extern const PageTable WeightBalancePage{
    .name = "Weight & Balance",
    .icon = "balance",
    .loading = true,
};

} // namespace zel
