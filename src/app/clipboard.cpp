// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include <algorithm>

namespace zel {
namespace {

/// The text with every `symbol` left out.
std::string without(std::string text, std::string_view symbol) {
    for (auto at = text.find(symbol); !symbol.empty() && at != std::string::npos;
         at = text.find(symbol, at)) {
        text.erase(at, symbol.size());
    }
    return text;
}

/// A pasted number as the keys that type it: digits, one "." for the decimal
/// symbol and a leading "-"; nothing when the text is no number. Either "."
/// or "," may be the decimal symbol: when both appear the last one is; one
/// that appears more than once, or the regional grouping symbol standing
/// before exactly three digits, groups.
std::optional<std::string> pastedNumber(std::string text, const Symbols& symbols) {
    for (std::string_view blank :
         {" ", "\t", "\r", "\n", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89"}) {
        text = without(text, blank);
    }
    if (symbols.grouping != "." && symbols.grouping != ",") {
        text = without(text, symbols.grouping); // an apostrophe, say
    }
    std::string keys;
    if (text.starts_with('-')) {
        keys = "-";
        text.erase(0, 1);
    }
    const auto dots = std::count(text.begin(), text.end(), '.');
    const auto commas = std::count(text.begin(), text.end(), ',');
    char decimal = 0;
    if (dots > 0 && commas > 0) {
        decimal = text.find_last_of(".,") == text.rfind('.') ? '.' : ',';
    } else if (dots + commas == 1) {
        const char mark = dots == 1 ? '.' : ',';
        const auto at = text.find(mark);
        const bool grouping = std::string(1, mark) == symbols.grouping && at >= 1 && at <= 3 &&
                              text.size() - at - 1 == 3;
        decimal = grouping ? 0 : mark;
    }
    bool seenDecimal = false;
    for (char c : text) {
        if (c == decimal && !seenDecimal) {
            keys += '.';
            seenDecimal = true;
        } else if ((c == '.' || c == ',') && c != decimal) {
            continue; // a grouping symbol
        } else if (isDigit(c)) {
            keys += c;
        } else {
            return std::nullopt;
        }
    }
    if (std::none_of(keys.begin(), keys.end(), isDigit)) {
        return std::nullopt;
    }
    return keys;
}

} // namespace

void Menu::Form_Paste(std::string_view text) {
    if (busy() || m_face != Face::Page) {
        return;
    }
    if (textPage()) {
        // A pasted report replaces the one typed. Its line breaks are blanks,
        // and what the page does not take is left out.
        const TextEntry& entry = m_table->text;
        std::string keys;
        if (entry.paste != nullptr) {
            Report refused;
            const auto taken = entry.paste(text, refused);
            if (!taken) {
                show(refused); // the entry stays as it was
                return;
            }
            keys = *taken;
        } else {
            for (char c : text) {
                const char32_t typed =
                    c == '\r' || c == '\n' || c == '\t' ? U' ' : static_cast<unsigned char>(c);
                if (entry.accept(typed) != 0) {
                    keys += static_cast<char>(typed);
                }
            }
        }
        m_pad.reset(true);
        m_reportDecoded.clear();
        const std::size_t room = entry.limit;
        for (std::size_t i = 0; i < std::min(room, keys.size()); ++i) {
            Form_KeyPress(static_cast<unsigned char>(keys[i]));
        }
        if (keys.size() > room) {
            m_platform.ui.beep(); // the rest does not fit
        }
        return;
    }
    const auto keys = pastedNumber(std::string(text), m_symbols);
    if (!keys) {
        m_platform.ui.beep(); // no number: nothing changes
        return;
    }
    for (char c : *keys) {
        Form_KeyPress(static_cast<unsigned char>(c));
    }
}

std::string Menu::displayNumber() const {
    if (textPage()) {
        return m_pad.inputText();
    }
    return generalText(m_pad.inputValue(), m_symbols);
}

std::string Menu::rowText(int row) const {
    const RowCell& cell = m_sheet[row];
    if (m_table == nullptr || m_table->row(row).form == Form::Text) {
        return cell.caption;
    }
    return without(cell.caption, m_symbols.grouping);
}

std::string Menu::pageText() const {
    std::string text = m_title + "\n";
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (!m_sheet[row].unit.empty()) {
            text += m_sheet[row].unit + "\t" + rowText(row) + "\n";
        }
    }
    return text;
}

} // namespace zel
