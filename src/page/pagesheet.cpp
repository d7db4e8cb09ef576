// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/pagesheet.h"

#include <cmath>

#include "entry/fault.h"

#include <algorithm>

namespace zel {

bool compactCaption(std::string_view caption, bool decoded) {
    const std::size_t length = charCount(caption);
    return decoded ? length >= 14 : length > 14;
}

void PageSheet::setValue(int row, double value) {
    if (!std::isfinite(value)) {
        fail(Fault::Overflow);
    }
    if (!failed()) {
        (*this)[row].tag = generalText(value, m_symbols);
        (*this)[row].held = true;
    }
}

void PageSheet::setSingle(int row, float value) {
    if (!std::isfinite(value)) {
        fail(Fault::Overflow);
    }
    if (!failed()) {
        (*this)[row].tag = singleText(value, m_symbols);
        (*this)[row].held = true;
    }
}

void PageSheet::clear(int row) {
    if (!failed()) {
        (*this)[row].tag = "0";
        (*this)[row].held = false;
    }
}

void PageSheet::fail(Fault fault) {
    if (!m_fault) {
        m_fault = fault;
    }
}

double PageSheet::divide(double a, double b) {
    if (b == 0) {
        fail(Fault::DivisionByZero);
        return std::nan("");
    }
    const double q = a / b;
    if (!std::isfinite(q)) {
        fail(Fault::Overflow);
    }
    return q;
}

void PageSheet::reset() {
    for (int row = 1; row <= Rows; ++row) {
        RowCell& cell = (*this)[row];
        cell.caption.clear();
        cell.tag = "0";
        cell.input = false;
        cell.compact = false;
        cell.prefix.clear();
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
