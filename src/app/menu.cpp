// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

namespace zel {
namespace {

constexpr std::string_view AppTitle = "zelFLIGHTAB";
constexpr std::string_view AllDigitsTag = "0.##############";

} // namespace

Menu::Menu(Platform& platform, const PageCatalogue& pages)
    : m_platform(platform), m_pages(pages), m_title(AppTitle) {
    m_digitsCaption = digitsCaptionFor(m_digitsTag);
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
    m_digitsCaption = digitsCaptionFor(m_digitsTag);
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
    m_title = std::string(table->name);
    LoadUnits();
    ResetPage();
    m_panelsVisible = true;
    m_memoryCaptions = {"MRC", "M+", "M-"};
    if (textPage() || leavingText) {
        // A report is no number: it is not carried to the next page.
        ResetScratchPad();
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
        if (m_table->row(index).has(OutputOnly)) {
            m_platform.ui.beep(); // results only
            return;
        }
        int inputRow = index;
        if (!convert(inputRow)) {
            return; // the fault stops the click: the rows and the entry stay as they are
        }
        DisplayTags();
        SetButtonColor(inputRow);
    } else {
        SetButtonColor(index);
        m_pad.select(m_sheet[index].tag);
    }
}

bool Menu::convert(int& inputRow) {
    try {
        const Report report = m_table->convert(m_sheet, m_pad.inputValue(), inputRow);
        show(report);
        if (report.fault) {
            show(*report.fault);
            return false;
        }
        return true;
    } catch (const ArithmeticFault& fault) {
        show(fault);
        return false;
    }
}

void Menu::decode() {
    show(m_table->decode(m_sheet, m_pad.inputText()));
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
}

void Menu::show(const ArithmeticFault& fault) {
    m_platform.ui.message(MessageIcon::Critical, AppTitle, fault.what());
}

void Menu::LabOP_Click(int index) {
    if (!busy() && m_face == Face::Page && m_panelsVisible && index >= 0 &&
        index <= ScratchPad::Operators) {
        pressOperator(index);
    }
}

void Menu::pressOperator(int index) {
    try {
        m_pad.operate(index);
    } catch (const ArithmeticFault& fault) {
        show(fault);
    }
}

const std::string& Menu::operatorCaption(int key) const {
    static const std::array<std::string, ScratchPad::Operators + 1> Captions{"",  "+",   "-",
                                                                             "x", " . ", " . "};
    return Captions.at(static_cast<std::size_t>(key));
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
    try {
        m_pad.memoryKey(index);
    } catch (const ArithmeticFault& fault) {
        show(fault);
    }
}

std::string Menu::digitsCaptionFor(const std::string& tag) const {
    if (tag == "0") {
        return "0";
    }
    if (tag == "0.00") {
        return formatNumber(0, "0.00", m_symbols);
    }
    return "0" + m_symbols.decimal + "...";
}

void Menu::LabDEC_Click() {
    if (busy() || m_face != Face::Page || !m_panelsVisible) {
        return;
    }
    // Two decimals -> all digits -> whole numbers -> two decimals.
    if (m_digitsCaption.find("...") != std::string::npos) {
        m_digitsTag = "0";
    } else if (m_digitsCaption == "0") {
        m_digitsTag = "0.00";
    } else {
        m_digitsTag = std::string(AllDigitsTag);
    }
    m_digitsCaption = digitsCaptionFor(m_digitsTag);
    DisplayTags();
}

} // namespace zel
