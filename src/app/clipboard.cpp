// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"
#include "entry/coordinate.h"

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

/// Whether `digits` is a whole number grouped by `mark` in thousands: one to
/// three figures, then groups of exactly three.
bool groupedWhole(std::string_view digits, char mark) {
    std::size_t group = 0;
    bool first = true;
    for (char c : digits) {
        if (c == mark) {
            if ((first && (group == 0 || group > 3)) || (!first && group != 3)) {
                return false;
            }
            first = false;
            group = 0;
        } else {
            ++group;
        }
    }
    return first ? group > 0 : group == 3;
}

/// A pasted number as the keys that type it: digits, one "." for the decimal
/// symbol and a leading "-"; nothing when the text is not one number. A unit
/// word may follow it ("74.83 kg"). Either "." or "," may be the decimal
/// symbol: when both appear the last one is, and the other groups thousands;
/// a mark that appears more than once groups thousands or the text is no
/// number ("3.4.5", "30.10.2024"); the regional grouping symbol standing
/// before exactly three figures groups.
std::optional<std::string> pastedNumber(std::string text, const Symbols& symbols) {
    for (std::string_view blank : OtherBlanks) {
        for (auto at = text.find(blank); at != std::string::npos; at = text.find(blank, at)) {
            text.replace(at, blank.size(), " ");
        }
    }
    if (symbols.grouping != "." && symbols.grouping != "," && symbols.grouping != " ") {
        text = without(text, symbols.grouping); // an apostrophe, say
    }
    // The number: a sign, figures, marks and blanks between figures; then at
    // most one word that holds no figure (its unit).
    std::size_t at = text.find_first_not_of(' ');
    if (at == std::string::npos) {
        return std::nullopt;
    }
    std::string keys;
    if (text[at] == '-') {
        keys = "-";
        ++at;
    }
    std::string number;
    std::size_t end = at;
    while (end < text.size()) {
        const char c = text[end];
        const bool blankInside = c == ' ' && end + 1 < text.size() && isDigit(text[end + 1]) &&
                                 !number.empty() && isDigit(number.back());
        if (isDigit(c) || c == '.' || c == ',') {
            number += c;
        } else if (!blankInside) {
            break;
        }
        ++end;
    }
    std::string unit = text.substr(end);
    unit.erase(0, std::min(unit.size(), unit.find_first_not_of(' ')));
    unit.erase(unit.find_last_not_of(' ') + 1);
    if (unit.find(' ') != std::string::npos || std::any_of(unit.begin(), unit.end(), isDigit)) {
        return std::nullopt; // more than one word, or figures after the number
    }
    if (number.empty() || !isDigit(number.front()) || !isDigit(number.back())) {
        return std::nullopt;
    }
    const auto dots = std::count(number.begin(), number.end(), '.');
    const auto commas = std::count(number.begin(), number.end(), ',');
    char decimal = 0;
    char grouping = 0;
    if (dots > 0 && commas > 0) {
        decimal = number.find_last_of(".,") == number.rfind('.') ? '.' : ',';
        grouping = decimal == '.' ? ',' : '.';
    } else if (dots + commas == 1) {
        const char mark = dots == 1 ? '.' : ',';
        const auto place = number.find(mark);
        const bool groups = std::string(1, mark) == symbols.grouping && place >= 1 && place <= 3 &&
                            number.size() - place - 1 == 3;
        (groups ? grouping : decimal) = mark;
    } else if (dots + commas > 1) {
        grouping = dots > 0 ? '.' : ',';
    }
    const auto point = decimal == 0 ? std::string::npos : number.find(decimal);
    if (point != std::string::npos && number.find(decimal, point + 1) != std::string::npos) {
        return std::nullopt; // two decimal symbols
    }
    const std::string whole = number.substr(0, point);
    if (grouping != 0 && !groupedWhole(whole, grouping)) {
        return std::nullopt;
    }
    for (char c : whole) {
        if (isDigit(c)) {
            keys += c;
        }
    }
    if (point != std::string::npos) {
        const std::string fraction = number.substr(point + 1);
        if (std::any_of(fraction.begin(), fraction.end(), [](char c) { return !isDigit(c); })) {
            return std::nullopt;
        }
        keys += '.' + fraction;
    }
    return keys;
}

std::string_view trimmedBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

/// Hours, a colon and two figures of minutes: "1:30", "12:05".
bool isClockTime(std::string_view text) {
    const std::string_view t = trimmedBlanks(text);
    const auto colon = t.find(':');
    return colon != std::string_view::npos && colon >= 1 && colon <= 6 && t.size() == colon + 3 &&
           std::all_of(t.begin(), t.end(), [](char c) { return isDigit(c) || c == ':'; }) &&
           t.find(':', colon + 1) == std::string_view::npos;
}

} // namespace

bool Menu::takeReport(std::string_view text) {
    // A pasted report replaces the one typed. Its line breaks are blanks,
    // and what the page does not take is left out.
    const TextEntry& entry = m_table->text;
    std::string keys;
    if (entry.paste != nullptr) {
        Report refused;
        const auto taken = entry.paste(text, refused);
        if (!taken) {
            show(refused); // the entry stays as it was
            return false;
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
        type(static_cast<unsigned char>(keys[i]));
    }
    if (keys.size() > room) {
        m_platform.ui.beep(); // the rest does not fit
    }
    return true;
}

bool Menu::paste(std::string_view text) {
    if (blocked() || m_face != Face::Page) {
        return false;
    }
    if (textPage()) {
        return takeReport(text);
    }
    const bool places = m_table->takesPlaces();
    if (isClockTime(text)) {
        typePasted(trimmedBlanks(text)); // "1:30", for an h:mm row
        return true;
    }
    std::string problem;
    bool ambiguous = false;
    if (places) {
        const CoordinateReading read = readCoordinates(text);
        if (read && pasteCoordinates(read.coordinates)) {
            return !blocked();
        }
        problem = read.problem;
        ambiguous = read.ambiguous;
    }
    // A number with a unit word, but not a coordinate the reader refused
    // ("91°N", "0.5°W"): its sign would be lost.
    // Nor figures that could be a place more than one way ("51 28").
    const auto keys = places && (ambiguous || writtenAsCoordinate(text))
                          ? std::nullopt
                          : pastedNumber(std::string(text), m_symbols);
    if (!keys && text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
        m_platform.ui.beep(); // an empty clipboard
        return false;
    }
    if (!keys) {
        // Not one number: nothing changes, and the user is told what was refused.
        std::string shown(text.substr(0, 40));
        std::replace_if(
            shown.begin(), shown.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
        std::vector<std::string> paragraphs{(places ? "Not a coordinate: " : "Not a number: ") +
                                            shown + (text.size() > 40 ? "..." : "")};
        if (!problem.empty()) {
            paragraphs.push_back(problem);
        }
        m_requests.message(MessageIcon::Exclamation, title(), paragraphs);
        return false;
    }
    typePasted(*keys);
    return true;
}

void Menu::typePasted(std::string_view keys) {
    if (!m_pad.newOperand()) {
        m_pad.clearEntry(); // a pasted number replaces the entry
    }
    for (char c : keys) {
        type(static_cast<unsigned char>(c));
    }
}

bool Menu::pasteCoordinates(const std::vector<Coordinate>& read) {
    // Signed decimal degrees as the keys type them: eight decimals are a
    // millimetre on the ground.
    const auto keysOf = [](double degrees) {
        std::string keys = formatNumber(degrees, "0.########", Symbols{".", ""});
        return keys == "-0" ? std::string("0") : keys;
    };
    if (read.size() == 1) {
        typePasted(keysOf(read.front().degrees));
        return true;
    }
    // The page's latitude rows, each with the longitude row that follows it
    // (From, then To): the first pair that is still empty takes the
    // position, else the last.
    std::vector<std::pair<int, int>> pairs;
    for (int row = 1; row < PageSheet::Rows; ++row) {
        if (m_table->row(row).form == Form::Latitude &&
            m_table->row(row + 1).form == Form::Longitude) {
            pairs.emplace_back(row, row + 1);
        }
    }
    if (pairs.empty()) {
        return false;
    }
    const auto empty = std::find_if(pairs.begin(), pairs.end(), [this](auto rows) {
        return !m_sheet.holds(rows.first) && !m_sheet.holds(rows.second);
    });
    const auto [latitude, longitude] = empty != pairs.end() ? *empty : pairs.back();
    typePasted(keysOf(read[0].degrees));
    clickRow(latitude);
    if (!blocked()) {
        typePasted(keysOf(read[1].degrees));
        clickRow(longitude);
    }
    return true;
}

void Menu::writeReport(std::string_view text) {
    if (blocked() || m_face != Face::Page || !textPage()) {
        return;
    }
    // Each character as its key would type it; the report as it stands is
    // left alone, so that Enter on it goes on to its next runway.
    const TextEntry& entry = m_table->text;
    std::string typed;
    std::size_t count = 0;
    bool full = false;
    for (std::size_t at = 0; at < text.size();) {
        if (const char32_t c = entry.accept(nextCharacter(text, at)); c != 0) {
            full = full || count == entry.limit;
            if (!full) {
                appendUtf8(typed, c);
                ++count;
            }
        }
    }
    if (typed != m_pad.inputText()) {
        m_pad.reset(true);
        m_reportDecoded.clear();
        for (std::size_t at = 0; at < typed.size();) {
            m_pad.typeText(nextCharacter(typed, at), entry.limit);
        }
    }
    if (full) {
        m_platform.ui.beep(); // the report is as long as it can be
    }
}

void Menu::enterReport(std::string_view text) {
    writeReport(text);
    if (!blocked() && m_face == Face::Page && textPage()) {
        decode();
    }
}

std::string Menu::displayNumber() const {
    if (textPage()) {
        return m_pad.inputText();
    }
    return generalText(m_pad.inputValue(), m_symbols);
}

std::string Menu::rowText(int row) const {
    if (m_table == nullptr) {
        return {};
    }
    RowView shown;
    rowView(row, shown);
    return m_table->row(row).form == Form::Text ? shown.value
                                                : without(shown.value, m_symbols.grouping);
}

std::string Menu::pageText() const {
    if (loadingPage()) {
        // The loading sheet as it prints.
        const balance::LoadingView sheet = m_balance.view(m_symbols, m_platform.clock.today());
        return sheet.heading + "\n" + sheet.sheet;
    }
    std::string text = title() + "\n";
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        if (m_sheet.exists(row)) {
            text += m_sheet[row].unit + "\t" + rowText(row) + "\n";
        }
    }
    return text;
}

} // namespace zel
