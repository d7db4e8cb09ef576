// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"
#include "app/pages.h"

#include <cmath>

namespace zel {
namespace {

enum class Form { Number, HoursMinutes, Direction, Side, HeadTail };

/// The page's own forms for a row; every other row shows a plain number.
Form rowForm(int currentPage, int row) {
    switch (currentPage) {
    case page::Endurance:
        return row == 7 ? Form::HoursMinutes : Form::Number;
    case page::TrackTime:
        return row == 3                 ? Form::HoursMinutes
               : (row == 5 || row == 7) ? Form::Direction
                                        : Form::Number;
    case page::Wind:
        return (row == 1 || row == 3 || row == 5) ? Form::Direction
               : row == 7                         ? Form::Side
               : row == 8                         ? Form::HeadTail
                                                  : Form::Number;
    case page::WindComp:
        return (row == 1 || row == 3) ? Form::Direction
               : row == 6             ? Form::HeadTail
               : row == 8             ? Form::Side
                                      : Form::Number;
    default:
        return Form::Number;
    }
}

/// On the navigation pages -999 stands for a value that is not known.
bool unknownShownEmpty(int currentPage) {
    return currentPage == page::TrackTime || currentPage == page::Wind ||
           currentPage == page::WindComp;
}

} // namespace

void Menu::DisplayTags() {
    const std::string pattern = "#,#" + m_digitsTag;
    auto number = [&](double value) { return formatNumber(value, pattern, m_symbols); };
    auto valueOf = [&](int row) {
        const double v = m_sheet.value(row);
        return v == -999 && unknownShownEmpty(m_currentPage) ? 0.0 : v;
    };
    // The Beaufort rows of the Speed page keep what its converter wrote.
    const int lastNumberRow = m_currentPage == page::Speed ? 6 : PageSheet::Rows;
    for (int row = 1; row <= lastNumberRow; ++row) {
        const double v = valueOf(row);
        std::string caption;
        if (v != 0) {
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
        const double v = valueOf(row);
        if (v == 0) {
            continue;
        }
        std::string& caption = m_sheet[row].caption;
        switch (rowForm(m_currentPage, row)) {
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
            break;
        }
    }
    ResetScratchPad();
}

} // namespace zel
