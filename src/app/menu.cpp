// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include "page/solver.h"

#include <cmath>

namespace zel {
namespace {

constexpr std::string_view AppTitle = "zelFLIGHTAB";

} // namespace

Menu::Menu(Platform& platform, const PageCatalogue& pages) : m_platform(platform), m_pages(pages) {}

std::string Menu::title() const {
    return m_face == Face::Page && m_table != nullptr ? std::string(m_table->name)
                                                      : std::string(AppTitle);
}

void Menu::start() {
    // The window's size and look are the face's to draw; no page is loaded
    // until one is chosen.
    m_face = Face::Menu;
}

void Menu::activate() {
    const Symbols before = m_symbols;
    m_symbols = m_platform.regional.symbols();
    if (m_symbols.grouping.empty() || m_symbols.grouping == m_symbols.decimal) {
        const std::string& s = m_symbols.decimal;
        m_requests.message(
            MessageIcon::Information, "Format Numbers",
            {"The 'decimal symbol' and the 'digit grouping symbol'  on this computer are set-up "
             "the same.",
             "(e.g. standard atmosphere is displayed as 1" + s + "013" + s + "25)",
             "This causes calculations to be incorrectly displayed.  We recommended you to "
             "change your settings into  1,013.25  or  1.013,25",
             m_platform.regional.howToChange()});
    }
    // The entry as it stands, in today's symbols: a number typed before the
    // user switched windows is still the one a row click takes ("0." at start).
    m_pad.redisplay(textPage(), before);
}

void Menu::close() {
    m_platform.ui.quit();
}

bool Menu::openPage(std::string_view numberOrName) {
    return openPage(m_pages.numberOf(m_pages.find(numberOrName)));
}

bool Menu::openPage(int number) {
    const PageTable* table = m_pages.find(number);
    if (blocked() || table == nullptr) {
        return false;
    }
    const bool leavingText = textPage();
    m_table = table;
    m_reportDecoded.clear();
    m_refusal.clear();
    m_sheet.reset();
    loadUnits();
    if (textPage() || leavingText) {
        // A report is no number: it is not carried to the next page.
        clearEntry();
    } else {
        m_pad.carry(); // the entry from the last page gives way to what is typed here
    }
    m_face = Face::Page;
    if (m_table->loading) {
        m_balance.open();
    }
    return true;
}

void Menu::goBack() {
    if (!blocked()) {
        m_face = Face::Menu;
    }
}

void Menu::loadUnits() {
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const RowSpec& shape = m_table->row(row);
        m_sheet.setFactor(row, shape.factor);
        m_sheet[row].unit = std::string(shape.unit);
    }
    if (m_table->rateStore) {
        m_sheet[PageSheet::Rows].unit = m_rates.ownCurrencyUnit();
        m_rates.loadRates(m_symbols, [this](const RateStore::Rates& rates) {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                m_sheet.setFactor(row, rates[static_cast<std::size_t>(row - 1)]);
            }
        });
    }
}

void Menu::markInputRow(int input) {
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        m_sheet[row].input = row == input;
    }
}

void Menu::clickRow(int index) {
    const int rows =
        m_table != nullptr && m_table->loading ? m_balance.entryCount() : PageSheet::Rows;
    if (blocked() || m_face != Face::Page || index < 1 || index > rows) {
        return;
    }
    m_refusal.clear();
    if (textPage()) {
        decode(); // every row decodes the typed report
        return;
    }
    if (m_table->loading) {
        clickEntry(index);
        return;
    }
    if (!m_sheet.exists(index)) {
        return;
    }
    if (m_pad.pending()) {
        // A row click ends an unfinished calculation with the visible number.
        m_pad.dropPending();
        operate(Operator::Equals);
    }
    const double entry = m_pad.inputValue();
    // A typed number goes into the row, 0 included; on a page of formulas
    // even the value the row holds, which makes it the newest given. A
    // number not typed here (a result, a recalled memory) goes into a row
    // that holds another; anything else only selects the row.
    const bool holdsEntry = m_sheet.holds(index) && m_sheet.value(index) == entry;
    const bool take =
        m_pad.typed() ? !holdsEntry || m_table->hasFormulas() : entry != 0 && !holdsEntry;
    if (take) {
        if (m_table->outputOnly(index)) {
            m_platform.ui.beep(); // results only
            return;
        }
        double value = entry;
        const auto clock = m_pad.clockTime();
        if (clock && m_table->row(index).form != Form::HoursMinutes) {
            m_platform.ui.beep();
            m_refusal = m_pad.display() + " refused: a time goes into an h:mm row";
            return;
        }
        if (clock) {
            // Typed with a colon: hours and minutes as they stand.
            if (clock->minutes >= 60) {
                m_platform.ui.beep();
                m_refusal = m_pad.display() + " refused: minutes under 60";
                return;
            }
            value = (clock->negative ? -1 : 1) * (clock->hours + clock->minutes / 60);
        } else if (m_table->row(index).form == Form::HoursMinutes) {
            // A time is typed as hours.minutes: 1.30 is an hour and a half.
            const double hours = std::trunc(entry);
            double minutes = (entry - hours) * 100;
            if (std::fabs(minutes - std::round(minutes)) < 1e-6 && std::round(minutes) != 0) {
                minutes = std::round(minutes); // 1.30 is read back as 29.999...
            }
            if (std::fabs(minutes) >= 60) {
                m_platform.ui.beep();
                m_refusal = m_pad.display() + " refused: minutes under 60";
                return;
            }
            value = hours + minutes / 60;
        }
        int inputRow = index;
        if (!convert(inputRow, value)) {
            return; // the fault stops the click: the rows and the entry stay as they are
        }
        clearEntry();
        markInputRow(inputRow);
    } else {
        markInputRow(index);
        m_pad.select(m_sheet.value(index));
    }
}

bool Menu::convert(int& inputRow, double entry) {
    m_sheet.setToday(m_platform.clock.today());
    const PageSheet::Snapshot before = m_sheet.snapshot();
    const std::string noteBefore = m_sheet.note();
    m_sheet.setNote({});
    // A row that states its range refuses a value outside it before any
    // converter sees it; the solver checks its own rows' ranges.
    const Range& range = m_table->row(inputRow).range;
    Report report = m_table->hasFormulas() ? solver::solve(*m_table, m_sheet, entry, inputRow)
                    : !range.message.empty() && range.refuses(entry)
                        ? Report::warning(range.message)
                        : m_table->convert(m_sheet, entry, inputRow);
    if (const Faulted fault = m_sheet.takeFault(); fault && !report.fault) {
        // The calculation stopped at the fault: nothing it would have said after it counts.
        report = Report{.kind = Report::Kind::None, .paragraphs = {}, .fault = fault};
    }
    if (report.fault || report.kind != Report::Kind::None) {
        // A refused value or a fault changes nothing: the note stands with the rows.
        m_sheet.setNote(noteBefore);
    }
    if (report.fault) {
        m_sheet.restore(before); // no row shows half a calculation
    }
    show(report);
    return !report.fault;
}

void Menu::decode() {
    // Enter on the report just decoded shows its next runway.
    const std::string& text = m_pad.inputText();
    m_reportShown = text == m_reportDecoded ? m_reportShown + 1 : 0;
    m_reportDecoded = text;
    show(m_table->decode(m_sheet, text, m_reportShown));
}

void Menu::show(const Report& report) {
    switch (report.kind) {
    case Report::Kind::Beep:
        m_platform.ui.beep();
        break;
    case Report::Kind::Warning:
        m_requests.message(MessageIcon::Exclamation, title(), report.paragraphs);
        break;
    case Report::Kind::None:
        break;
    }
    show(report.fault);
}

void Menu::show(Faulted fault) {
    if (fault) {
        m_requests.message(MessageIcon::Critical, AppTitle, {std::string(faultText(*fault))});
    }
}

void Menu::pressOperator(Operator key) {
    if (!blocked() && m_face == Face::Page && !textPage()) {
        operate(key);
    }
}

void Menu::operate(Operator key) {
    show(m_pad.operate(key));
}

void Menu::clear() {
    if (blocked() || m_face != Face::Page) {
        return;
    }
    clearEntry();
    m_sheet.reset();
    if (m_table->loading) {
        m_balance.clear();
    }
}

void Menu::pressMemory(MemoryKey key) {
    if (blocked() || m_face != Face::Page || textPage()) {
        return;
    }
    if (m_table->rateStore) {
        switch (key) {
        case MemoryKey::Recall: // "Rates"
            clear();
            m_rates.downloadRates();
            break;
        case MemoryKey::Add: // "Set"
            clear();
            m_rates.nameOwnCurrency([this](bool changed) {
                if (changed) {
                    loadUnits();
                }
            });
            break;
        case MemoryKey::Subtract: // "i"
            m_requests.message(MessageIcon::Information, title(), m_rates.sourceNote());
            break;
        }
        return;
    }
    show(m_pad.memoryKey(key));
}

void Menu::pressDigits() {
    if (blocked() || m_face != Face::Page || textPage()) {
        return;
    }
    // Two decimals -> all digits -> whole numbers -> two decimals.
    m_digits = m_digits == Digits::Two   ? Digits::All
               : m_digits == Digits::All ? Digits::Whole
                                         : Digits::Two;
    clearEntry();
}

void Menu::answer(int request, const Answer& answer) {
    m_requests.answer(request, answer);
}

} // namespace zel
