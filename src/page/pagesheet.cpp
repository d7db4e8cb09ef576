// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/pagesheet.h"

#include <algorithm>
#include <cmath>

namespace zel {

void PageSheet::setValue(int row, double value) {
    if (!std::isfinite(value)) {
        fail(Fault::Overflow);
    }
    if (!failed()) {
        (*this)[row].value = roundSignificant(value, Digits);
    }
}

void PageSheet::setSingle(int row, float value) {
    if (!std::isfinite(value)) {
        fail(Fault::Overflow);
    }
    if (!failed()) {
        (*this)[row].value = roundSignificant(static_cast<double>(value), SingleDigits);
    }
}

void PageSheet::setText(int row, std::string text) {
    if (!failed()) {
        (*this)[row].text = std::move(text);
    }
}

void PageSheet::clear(int row) {
    if (!failed()) {
        (*this)[row].value.reset();
        (*this)[row].text.clear();
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
    m_note.clear();
    for (int row = 1; row <= Rows; ++row) {
        RowCell& cell = (*this)[row];
        cell.value.reset();
        cell.text.clear();
        cell.input = false;
        cell.derived = false;
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
