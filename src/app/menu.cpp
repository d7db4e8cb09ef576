// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include "page/solver.h"

#include <cmath>

namespace zel {
namespace {

constexpr std::string_view AppTitle = "zelFLIGHTAB";

} // namespace

Menu::Menu(Platform& platform, const PageCatalogue& pages)
    : m_platform(platform), m_pages(pages), m_title(AppTitle) {
    showDigits();
}

void Menu::Form_Load() {
    // The window's size, cursors and the menu face are the front end's to draw;
    // no page is loaded until one is chosen.
    m_face = Face::Menu;
}

void Menu::Form_Activate() {
    const Symbols before = m_symbols;
    m_symbols = m_platform.regional.symbols();
    if (m_symbols.grouping.empty() || m_symbols.grouping == m_symbols.decimal) {
        const std::string& s = m_symbols.decimal;
        m_platform.ui.message(
            MessageIcon::Information, "Format Numbers",
            "The 'decimal symbol' and the 'digit grouping symbol'  on this computer are set-up the "
            "same.\r\r(e.g. standard atmosphere is displayed as 1" +
                s + "013" + s +
                "25)\r\rThis causes calculations to be incorrectly displayed.  We recommended you "
                "to change your settings into  1,013.25  or  1.013,25\r\rYou can modify your "
                "settings via the Windows - Control Panel - Regional and Language Settings - "
                "Numbers tab.");
    }
    // The entry as it stands, in today's symbols: a number typed before the
    // user switched windows is still the one a row click takes ("0." at start).
    m_pad.redisplay(textPage(), before);
    showDigits();
}

void Menu::Form_QueryUnload() {
    m_platform.ui.quit();
}

void Menu::LabMenu_Click(int index) {
    const PageTable* table = m_pages.find(index);
    if (busy() || table == nullptr) {
        return;
    }
    const bool leavingText = textPage();
    m_table = table;
    m_reportDecoded.clear();
    m_title = std::string(table->name);
    LoadUnits();
    ResetPage();
    m_panelsVisible = true;
    m_memoryCaptions = {"MRC", "M+", "M-"};
    if (textPage() || leavingText) {
        // A report is no number: it is not carried to the next page.
        ResetScratchPad();
    } else {
        m_pad.carry(); // the entry from the last page gives way to what is typed here
    }
    if (textPage()) {
        m_panelsVisible = false; // a report is typed, not calculated
    } else if (table->rateStore) {
        m_memoryCaptions = {"Rates", "Set", "i"};
    }
    m_face = Face::Page;
}

void Menu::LabelMenu_Click() {
    if (!busy()) {
        m_face = Face::Menu;
    }
}

void Menu::LoadUnits() {
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const RowSpec& shape = m_table->row(row);
        m_sheet.setFactor(row, shape.factor);
        m_sheet[row].unit = std::string(shape.unit);
    }
    if (m_table->rateStore) {
        m_sheet[PageSheet::Rows].unit = m_currency.ownCurrencyCaption();
        m_currency.LoadRates(m_symbols, [this](const ModCurrency::Rates& rates) {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                m_sheet.setFactor(row, rates[static_cast<std::size_t>(row - 1)]);
            }
        });
    }
}

void Menu::ResetPage() {
    m_sheet.reset();
}

void Menu::SetButtonColor(int index) {
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        m_sheet[row].input = row == index;
    }
}

void Menu::LabValue_Click(int index) {
    if (busy() || m_face != Face::Page || index < 1 || index > PageSheet::Rows) {
        return;
    }
    if (textPage()) {
        decode(); // every cell decodes the typed report
        return;
    }
    if (!m_sheet.exists(index)) {
        return;
    }
    if (m_pad.pendingOperator() > 0) {
        // A row click ends an unfinished calculation with the visible number.
        m_pad.dropPending();
        pressOperator(0);
    }
    const double shown = m_sheet.value(index);
    const double entry = m_pad.inputValue();
    // Where a typed zero is a value, typing into a row always gives it; elsewhere
    // a zero entry, or the row's own value, only selects the row.
    const bool differs = entry != 0 && entry != shown;
    if (differs || (m_table->zeroIsValue && m_pad.typed())) {
        if (m_table->outputOnly(index)) {
            m_platform.ui.beep(); // results only
            return;
        }
        double value = entry;
        if (m_table->row(index).form == Form::HoursMinutes) {
            // A time is typed as hours.minutes: 1.30 is an hour and a half.
            const double hours = std::trunc(entry);
            double minutes = (entry - hours) * 100;
            if (std::fabs(minutes - std::round(minutes)) < 1e-6 && std::round(minutes) != 0) {
                minutes = std::round(minutes); // 1.30 is read back as 29.999...
            }
            if (std::fabs(minutes) >= 60) {
                m_platform.ui.beep();
                return;
            }
            value = hours + minutes / 60;
        }
        int inputRow = index;
        if (!convert(inputRow, value)) {
            return; // the fault stops the click: the rows and the entry stay as they are
        }
        DisplayTags();
        SetButtonColor(inputRow);
    } else {
        SetButtonColor(index);
        m_pad.select(m_sheet[index].tag);
    }
}

bool Menu::convert(int& inputRow, double entry) {
    m_sheet.setToday(m_platform.clock.today());
    Report report = m_table->hasFormulas() ? solver::solve(*m_table, m_sheet, entry, inputRow)
                                           : m_table->convert(m_sheet, entry, inputRow);
    if (const Faulted fault = m_sheet.takeFault(); fault && !report.fault) {
        // The calculation stopped at the fault: nothing it would have said after it counts.
        report = Report{.kind = Report::Kind::None, .text = {}, .fault = fault};
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
        m_platform.ui.message(MessageIcon::Exclamation, m_title, report.text);
        break;
    case Report::Kind::None:
        break;
    }
    show(report.fault);
}

void Menu::show(Faulted fault) {
    if (fault) {
        m_platform.ui.message(MessageIcon::Critical, AppTitle, faultText(*fault));
    }
}

void Menu::LabOP_Click(int index) {
    if (!busy() && m_face == Face::Page && m_panelsVisible && index >= 0 &&
        index <= ScratchPad::Operators) {
        pressOperator(index);
    }
}

void Menu::pressOperator(int index) {
    show(m_pad.operate(index));
}

void Menu::LabC_Click() {
    if (busy() || m_face != Face::Page) {
        return;
    }
    ResetScratchPad();
    ResetPage();
}

void Menu::LabMEM_Click(int index) {
    if (busy() || m_face != Face::Page || !m_panelsVisible || index < 0 || index > 2) {
        return;
    }
    if (m_table->rateStore) {
        if (index == 0) {
            LabC_Click();
            m_currency.DownloadRates();
        } else if (index == 1) {
            LabC_Click();
            m_currency.SetMyCurrency([this](bool changed) {
                if (changed) {
                    LoadUnits();
                }
            });
        } else {
            m_platform.ui.message(MessageIcon::Information, m_title, m_currency.sourceNote());
        }
        return;
    }
    show(m_pad.memoryKey(index));
}

void Menu::showDigits() {
    switch (m_digits) {
    case Digits::Two:
        m_digitsCaption = formatNumber(0, "0.00", m_symbols);
        break;
    case Digits::All:
        m_digitsCaption = "0" + m_symbols.decimal + "...";
        break;
    case Digits::Whole:
        m_digitsCaption = "0";
        break;
    }
}

void Menu::LabDEC_Click() {
    if (busy() || m_face != Face::Page || !m_panelsVisible) {
        return;
    }
    // Two decimals -> all digits -> whole numbers -> two decimals.
    m_digits = m_digits == Digits::Two   ? Digits::All
               : m_digits == Digits::All ? Digits::Whole
                                         : Digits::Two;
    showDigits();
    DisplayTags();
}

} // namespace zel
