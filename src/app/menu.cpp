// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

#include "app/pages.h"
#include "convert/convert.h"
#include "flight/airspeed.h"
#include "flight/fuel.h"
#include "flight/navigation.h"
#include "snowtam/snowtam.h"

namespace zel {
namespace {

constexpr std::string_view AppTitle = "zelFLIGHTAB";
constexpr std::string_view AllDigitsTag = "0.##############";

} // namespace

Menu::Menu(Platform& platform) : m_platform(platform) {
    m_sheet.setTitle(std::string(AppTitle));
    m_digitsCaption = digitsCaptionFor(m_digitsTag);
}

void Menu::Form_Load() {
    // The window's size, cursors and the menu face are the front end's to draw;
    // no page is loaded until one is chosen.
    m_face = Face::Menu;
}

void Menu::Form_Activate() {
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
    m_pad.setDisplay("0" + m_symbols.decimal);
    m_digitsCaption = digitsCaptionFor(m_digitsTag);
}

void Menu::Form_QueryUnload() {
    m_platform.ui.quit();
}

void Menu::LabMenu_Click(int index) {
    if (busy() || index < 1 || index > PageCount) {
        return;
    }
    m_currentPage = index;
    m_sheet.setTitle(std::string(pageInfo(index).name));
    LoadUnits();
    ResetPage();
    m_panelsVisible = true;
    m_memoryCaptions = {"MRC", "M+", "M-"};
    if (m_currentPage == page::Snowtam) {
        ResetScratchPad();
        m_panelsVisible = false;
    } else if (m_currentPage == page::Currency) {
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
    const PageInfo& info = pageInfo(m_currentPage);
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const auto i = static_cast<std::size_t>(row - 1);
        m_sheet.setFactor(row, info.factors[i]);
        m_sheet[row].unit = std::string(info.units[i]);
    }
    if (m_currentPage == page::Currency) {
        m_sheet[PageSheet::Rows].unit = m_currency.ownCurrencyCaption();
        const std::array<float, PageSheet::Rows> rates = m_currency.LoadRates(m_symbols);
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            m_sheet.setFactor(row, rates[static_cast<std::size_t>(row - 1)]);
        }
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
    if (m_currentPage == page::Snowtam) {
        Convert_Snowtam(m_sheet, m_pad.inputText());
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
    if (entry != 0 && entry != shown) {
        if (m_currentPage == page::FuelUplift && index >= 7) {
            m_platform.ui.beep(); // the totals are results only
            return;
        }
        int inputRow = index;
        try {
            runConverter(inputRow);
        } catch (const ArithmeticFault& fault) {
            report(fault); // the rows written before the fault stay, and are shown
        }
        DisplayTags();
        SetButtonColor(inputRow);
    } else {
        SetButtonColor(index);
        m_pad.select(m_sheet[index].tag);
    }
}

void Menu::runConverter(int& inputRow) {
    const double x = m_pad.inputValue();
    switch (pageInfo(m_currentPage).converter) {
    case Converter::Standard:
        Convert_Standard(m_sheet, x, inputRow);
        break;
    case Converter::Speed:
        Convert_Speed(m_sheet, x, inputRow);
        break;
    case Converter::Angle:
        Convert_Angle(m_sheet, x, inputRow);
        break;
    case Converter::Temperature:
        Convert_Temperature(m_sheet, x, inputRow);
        break;
    case Converter::FuelUplift:
        Convert_FuelUplift(m_sheet, x, inputRow);
        break;
    case Converter::Endurance:
        Convert_Endurance(m_sheet, x, inputRow);
        break;
    case Converter::Range:
        Convert_Range(m_sheet, x, inputRow);
        break;
    case Converter::MachAS:
        Convert_MachAS(m_sheet, x, inputRow);
        break;
    case Converter::TrackTime:
        Convert_TrackTime(m_sheet, x, inputRow);
        break;
    case Converter::Wind:
        Convert_WindTriangle(m_sheet, x, inputRow);
        break;
    case Converter::WindComp:
        Convert_WindComp(m_sheet, x, inputRow);
        break;
    case Converter::Snowtam:
        break; // decoded by its own path
    }
}

void Menu::report(const ArithmeticFault& fault) {
    m_platform.ui.message(MessageIcon::Critical, AppTitle, fault.what());
}

void Menu::LabOP_Click(int index) {
    if (!busy() && m_face == Face::Page && m_panelsVisible && index >= 1 &&
        index <= ScratchPad::Operators) {
        pressOperator(index);
    }
}

void Menu::pressOperator(int index) {
    try {
        m_pad.operate(index);
    } catch (const ArithmeticFault& fault) {
        report(fault);
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
    if (m_currentPage == page::Currency) {
        if (index == 0) {
            LabC_Click();
            m_currency.DownloadRates();
        } else if (index == 1) {
            LabC_Click();
            if (m_currency.SetMyCurrency()) {
                LoadUnits();
            }
        } else {
            m_platform.ui.message(MessageIcon::Information, m_sheet.title(),
                                  m_currency.sourceNote());
        }
        return;
    }
    try {
        m_pad.memoryKey(index);
    } catch (const ArithmeticFault& fault) {
        report(fault);
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
