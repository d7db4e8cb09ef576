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

bool PageTable::outputOnly(int index) const {
    const RowSpec& shape = row(index);
    if (shape.has(OutputOnly)) {
        return true;
    }
    // What a one-way formula gives is only ever a result.
    for (const Relation& relation : formulas.relations) {
        if (relation.only >= 0 && shape.quantity >= 0 &&
            relation.quantities.at(static_cast<std::size_t>(relation.only)) == shape.quantity) {
            return true;
        }
    }
    return false;
}

} // namespace zel
