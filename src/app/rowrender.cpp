// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include <cmath>

namespace zel {

void Menu::DisplayTags() {
    const std::string pattern = "#,#" + m_digitsTag;
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
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        m_sheet[row].fontSize = charCount(m_sheet[row].caption) > 14 ? 9 : 12;
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
        case Form::Side:
            caption = (v > 0 ? "R " : "L ") + number(std::fabs(v));
            break;
        case Form::HeadTail:
            caption = (v > 0 ? "T " : "H ") + number(std::fabs(v));
            break;
        case Form::Number:
        case Form::Text:
            break;
        }
    }
    ResetScratchPad();
}

} // namespace zel
