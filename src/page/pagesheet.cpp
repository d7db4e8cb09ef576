// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/pagesheet.h"

#include "entry/fault.h"

#include <algorithm>

namespace zel {

void PageSheet::setValue(int row, double value) {
    (*this)[row].tag = generalText(finite(value), m_symbols);
    (*this)[row].held = true;
}

void PageSheet::setSingle(int row, float value) {
    (*this)[row].tag = singleText(static_cast<float>(finite(value)), m_symbols);
    (*this)[row].held = true;
}

void PageSheet::clear(int row) {
    (*this)[row].tag = "0";
    (*this)[row].held = false;
}

void PageSheet::reset() {
    for (int row = 1; row <= Rows; ++row) {
        RowCell& cell = (*this)[row];
        cell.caption.clear();
        cell.tag = "0";
        cell.input = false;
        cell.fontSize = 12;
        cell.computed = false;
        cell.held = false;
        cell.given = 0;
    }
}

std::vector<int> PageSheet::givens() const {
    std::vector<int> rows;
    for (int row = 1; row <= Rows; ++row) {
        if ((*this)[row].given != 0) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end(),
              [this](int a, int b) { return (*this)[a].given > (*this)[b].given; });
    return rows;
}

} // namespace zel
