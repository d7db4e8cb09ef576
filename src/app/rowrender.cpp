// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include <cmath>

namespace zel {

void Menu::DisplayTags() {
    // Two decimals, up to 14 (every digit a double holds past the point), or none.
    const std::string pattern = m_digits == Digits::Two   ? "#,#0.00"
                                : m_digits == Digits::All ? "#,#0.##############"
                                                          : "#,#0";
    auto number = [&](double value) { return formatNumber(value, pattern, m_symbols); };
    // Whether a row has something to show, and what.
    auto shown = [&](int row, double& v) {
        const RowSpec& shape = m_table->row(row);
        v = m_sheet.value(row);
        if (shape.has(UnknownEmpty) && v == -999) {
            return false;
        }
        return m_table->zeroIsValue ? m_sheet.holds(row) : v != 0;
    };
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (m_table->row(row).form == Form::Text) {
            continue; // written by the converter
        }
        double v = 0;
        std::string caption;
        if (shown(row, v)) {
            caption = number(v);
            if (caption.ends_with(m_symbols.decimal)) {
                caption.resize(caption.size() - m_symbols.decimal.size());
            }
        }
        m_sheet[row].caption = std::move(caption);
        m_sheet[row].prefix.clear();
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        m_sheet[row].compact = compactCaption(m_sheet[row].caption, false);
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        double v = 0;
        if (!shown(row, v)) {
            continue;
        }
        std::string& caption = m_sheet[row].caption;
        switch (m_table->row(row).form) {
        case Form::HoursMinutes: {
            // Minutes are formatted, not rounded first: 1.9999 h shows "1:60".
            const double hours = std::floor(v);
            caption = generalText(hours, m_symbols) + ":" +
                      formatNumber((v - hours) * 60, "00", m_symbols);
            break;
        }
        case Form::Direction:
            caption = formatNumber(v, "000", m_symbols);
            break;
        case Form::Date: {
            const auto n = static_cast<long long>(v);
            caption = std::to_string(n / 10000) + "-" +
                      formatNumber(double(n / 100 % 100), "00", m_symbols) + "-" +
                      formatNumber(double(n % 100), "00", m_symbols);
            break;
        }
        case Form::Side:
            m_sheet[row].prefix = v > 0 ? "R " : "L ";
            caption = m_sheet[row].prefix + number(std::fabs(v));
            break;
        case Form::HeadTail:
            m_sheet[row].prefix = v > 0 ? "T " : "H ";
            caption = m_sheet[row].prefix + number(std::fabs(v));
            break;
        case Form::Number:
        case Form::Text:
            break;
        }
    }
    ResetScratchPad();
}

} // namespace zel
