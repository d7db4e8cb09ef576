// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/pagesheet.h"

#include "entry/fault.h"

namespace zel {

void PageSheet::setValue(int row, double value) {
    (*this)[row].tag = generalText(finite(value), m_symbols);
}

void PageSheet::setSingle(int row, float value) {
    (*this)[row].tag = singleText(static_cast<float>(finite(value)), m_symbols);
}

void PageSheet::reset() {
    for (int row = 1; row <= Rows; ++row) {
        RowCell& cell = (*this)[row];
        cell.caption.clear();
        cell.tag = "0";
        cell.input = false;
        cell.fontSize = 12;
        cell.computed = false;
    }
}

} // namespace zel
