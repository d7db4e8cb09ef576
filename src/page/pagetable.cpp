// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/pagetable.h"

namespace zel {

double multiplier(double factor) {
    if (factor == 0) {
        return 1; // 0 ^ 0
    }
    // A negative factor says one unit of the row is |f| base units.
    return factor > 0 ? factor : 1 / -factor;
}

} // namespace zel
