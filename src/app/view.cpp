// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The view: what every face draws, made from the numbers the rows hold with
// the regional symbols and the digits chosen at this moment.
#include "app/menu.h"
#include "entry/coordinate.h"

#include <algorithm>
#include <cmath>

namespace zel {
namespace {

/// A number longer than 14 characters is set smaller; a decoded report's
/// words from 14 on, as they run longer.
bool compact(std::string_view text, bool decoded) {
    const std::size_t length = charCount(text);
    return decoded ? length >= 14 : length > 14;
}

/// A number in exponent form, from 15 significant digits down to 1, each
/// form once: what a face shows when the number is too long for its cell.
std::vector<std::string> shortForms(double value, const std::string& prefix,
                                    const Symbols& symbols) {
    std::vector<std::string> forms;
    for (int digits = 15; digits >= 1; --digits) {
        std::string form = prefix + exponentText(value, digits, symbols);
        if (forms.empty() || forms.back() != form) {
            forms.push_back(std::move(form));
        }
    }
    return forms;
}

} // namespace

void Menu::rowView(int row, RowView& shown) const {
    const RowCell& cell = m_sheet[row];
    const RowSpec& shape = m_table->row(row);
    shown.unit = cell.unit;
    shown.name = std::string(unitName(cell.unit));
    shown.symbol = std::string(unitSymbol(cell.unit));
    shown.exists = !cell.unit.empty();
    shown.input = cell.input;
    shown.given = cell.isGiven() && !cell.input;
    shown.outputOnly = shown.exists && m_table->outputOnly(row);
    shown.key = "Ctrl+" + std::to_string(row);
    shown.full = cell.value ? generalText(*cell.value, m_symbols) : "0";
    if (shape.form == Form::HoursMinutes && shown.exists) {
        // Hours and minutes are typed as hours.minutes.
        shown.hint = "1" + m_symbols.decimal + "30 = 1:30";
    }
    if (shape.form == Form::Text || (!cell.value && !cell.text.empty())) {
        shown.value = cell.text;
        shown.emphasis = compact(cell.text, m_table->isText()) ? emphasis::SmallRow : emphasis::Row;
        shown.computed = !cell.text.empty();
        return;
    }
    // A row shows the number it holds, 0 included; a row without one is empty.
    if (!cell.value) {
        return;
    }
    const double v = *cell.value;
    shown.computed = !cell.input && !cell.isGiven();
    // Two decimals, up to 14 (every digit a double holds past the point), or none.
    const std::string pattern = m_digits == Digits::Two   ? "#,#0.00"
                                : m_digits == Digits::All ? "#,#0.##############"
                                                          : "#,#0";
    auto number = [&](double x) {
        std::string text = formatNumber(x, pattern, m_symbols);
        if (text.ends_with(m_symbols.decimal)) {
            text.resize(text.size() - m_symbols.decimal.size());
        }
        return text;
    };
    // The size goes by the number as the digits key has it, whatever form it
    // is then drawn in.
    shown.value = number(v);
    shown.emphasis = compact(shown.value, false) ? emphasis::SmallRow : emphasis::Row;
    std::string prefix;
    switch (shape.form) {
    case Form::HoursMinutes: {
        // Rounded to the minute first, then split: 1.999 h is 2:00, never 1:60.
        const double minutes = std::round(v * 60);
        const double hours = std::trunc(minutes / 60);
        shown.value = generalText(hours, m_symbols) + ":" +
                      formatNumber(std::fabs(minutes - hours * 60), "00", m_symbols);
        break;
    }
    case Form::Direction: {
        // Whole degrees from 001 to 360: a direction just east of north that
        // rounds to 0 is north, 360. Only a value of 0 itself shows 000.
        const double degrees = std::round(v);
        shown.value = formatNumber(degrees == 0 && v != 0 ? 360 : degrees, "000", m_symbols);
        break;
    }
    case Form::Date: {
        const auto n = static_cast<long long>(v);
        shown.value = std::to_string(n / 10000) + "-" +
                      formatNumber(double(n / 100 % 100), "00", m_symbols) + "-" +
                      formatNumber(double(n % 100), "00", m_symbols);
        break;
    }
    case Form::Latitude:
    case Form::Longitude: {
        // As charts and flight plans write a place: degrees and minutes to
        // the hundredth (about 18 m); with the digits key, to the second.
        const Axis axis = shape.form == Form::Latitude ? Axis::Latitude : Axis::Longitude;
        const std::string minutes = degreesMinutes(v, axis, m_symbols);
        shown.value = m_digits == Digits::Two
                          ? minutes
                          : degreesMinutesSeconds(v, axis, m_symbols, m_digits == Digits::All);
        shown.detail = shown.full + "°";
        shown.emphasis = compact(shown.value, false) ? emphasis::SmallRow : emphasis::Row;
        shown.shortForms.clear();
        if (shown.value != minutes) {
            shown.shortForms.push_back(minutes);
        }
        return;
    }
    case Form::EastWest:
    case Form::Side:
    case Form::HeadTail: {
        // Variation is read to the hundredth of a degree, whatever the digits
        // key shows elsewhere.
        const std::string magnitude = shape.form == Form::EastWest
                                          ? formatNumber(std::fabs(v), "#,#0.00", m_symbols)
                                          : number(std::fabs(v));
        // No side for no drift, no head or tail for no wind along, no east
        // or west for none: what rounds to 0 at the digits shown has none.
        const bool none = std::all_of(magnitude.begin(), magnitude.end(),
                                      [](char c) { return !isDigit(c) || c == '0'; });
        const auto [plus, minus] = shape.form == Form::Side       ? std::pair{"R ", "L "}
                                   : shape.form == Form::HeadTail ? std::pair{"T ", "H "}
                                                                  : std::pair{"E ", "W "};
        prefix = none ? "" : v > 0 ? plus : minus;
        shown.value = prefix + magnitude;
        break;
    }
    case Form::Number:
    case Form::Text:
        break;
    }
    shown.shortForms = shortForms(prefix.empty() ? v : std::fabs(v), prefix, m_symbols);
}

View Menu::view() const {
    View v;
    const bool page = m_face == Face::Page && m_table != nullptr;
    v.face = page ? Face::Page : Face::Menu;
    v.title = title();
    v.icon = page ? std::string(m_table->icon) : "app";
    v.report = page && textPage();
    v.display = m_pad.display();
    v.displayEmphasis = m_pad.displayCompact() ? emphasis::SmallDisplay : emphasis::Display;
    if (!v.report) {
        v.displayShortForms = shortForms(m_pad.inputValue(), {}, m_symbols);
    }
    switch (m_digits) {
    case Digits::Two:
        v.digits = formatNumber(0, "0.00", m_symbols);
        break;
    case Digits::All:
        v.digits = "0" + m_symbols.decimal + "...";
        break;
    case Digits::Whole:
        v.digits = "0";
        break;
    }
    v.panels = !textPage();
    const bool rates = m_table != nullptr && m_table->rateStore;
    static constexpr std::array<std::string_view, 3> Memory{"MRC", "M+", "M-"};
    static constexpr std::array<std::string_view, 3> RateKeys{"Rates", "Set", "i"};
    for (std::size_t key = 0; key < v.memory.size(); ++key) {
        v.memory[key].caption = std::string(rates ? RateKeys[key] : Memory[key]);
    }
    // MRC lights up amber while the memory holds a value.
    v.memory[0].lit = m_pad.memoryLit();
    static constexpr std::array<std::string_view, OperatorCount> Operators{"=", "+", "-",
                                                                           "x", "÷", "÷"};
    for (std::size_t key = 0; key < v.operators.size(); ++key) {
        v.operators[key] = {std::string(Operators[key]),
                            m_pad.operatorLit(static_cast<Operator>(key))};
    }
    if (m_table != nullptr) {
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            RowView& shown = v.rows[static_cast<std::size_t>(row - 1)];
            rowView(row, shown);
            if (shown.input && v.hint.empty()) {
                v.hint = shown.hint;
            }
        }
    }
    if (page) {
        v.note = m_sheet.note();
        v.places = m_table->takesPlaces();
    }
    if (!m_refusal.empty() && page) {
        v.hint = m_refusal;
    }
    if (page && m_table->loading) {
        v.loading = m_balance.view(m_symbols, m_platform.clock.today());
    }
    for (int number = 1; number <= m_pages.count(); ++number) {
        const PageTable& table = m_pages.page(number);
        v.pages.push_back(
            {number, std::string(table.name), std::string(table.icon),
             table.functionKey != 0 ? "F" + std::to_string(table.functionKey) : std::string()});
    }
    for (const PageCatalogue::Group& group : m_pages.groups()) {
        PageGroup shown{std::string(group.heading), {}};
        for (const PageTable* table : group.pages) {
            shown.pages.push_back(m_pages.numberOf(table));
        }
        v.groups.push_back(std::move(shown));
    }
    v.help = help();
    v.requests = m_requests.open();
    v.busy = m_rates.transferring();
    return v;
}

} // namespace zel
