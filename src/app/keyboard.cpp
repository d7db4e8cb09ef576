// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"
#include "app/pages.h"
#include "snowtam/snowtam.h"

namespace zel {

void Menu::Form_KeyPress(char32_t keyAscii) {
    if (busy() || m_face != Face::Page) {
        return; // on the menu face only released keys act
    }
    if (m_currentPage == page::Snowtam) {
        keyPressCode(keyAscii);
    } else {
        keyPressNumber(keyAscii);
    }
}

void Menu::keyPressCode(char32_t keyAscii) {
    // A runway-state group: eight characters of digits and "/".
    if (keyAscii == key::Backspace) {
        m_pad.backspaceCode();
    } else if (keyAscii >= '/' && keyAscii <= '9') {
        if (!m_pad.typeCodeCharacter(static_cast<char>(keyAscii), 8)) {
            m_platform.ui.beep();
        }
    }
}

void Menu::keyPressNumber(char32_t keyAscii) {
    if (m_pad.newOperand()) {
        // The first key after an operator begins the next operand on a clean page.
        ResetScratchPad();
        ResetPage();
    }
    switch (keyAscii) {
    case key::Backspace:
        m_pad.backspace();
        break;
    case ',':
    case '.':
        m_pad.typeDecimal(); // either key types the regional decimal symbol
        break;
    case '+':
        pressOperator(1);
        break;
    case '-':
        pressOperator(2);
        break;
    case '*':
    case 'X':
    case 'x':
        pressOperator(3);
        break;
    case '/':
        pressOperator(4);
        break;
    default:
        if (keyAscii >= '0' && keyAscii <= '9') {
            try {
                if (!m_pad.typeDigit(static_cast<int>(keyAscii - '0'))) {
                    m_platform.ui.beep();
                }
            } catch (const ArithmeticFault& fault) {
                report(fault);
            }
        }
        break;
    }
}

void Menu::Form_KeyUp(int keyCode) {
    if (busy()) {
        return;
    }
    if (m_face == Face::Menu) {
        if (keyCode == key::Escape) {
            m_platform.ui.quit();
        } else if (keyCode >= key::F1 && keyCode <= key::F12) {
            LabMenu_Click(pageOfFunctionKey(keyCode - key::F1 + 1));
        }
        return;
    }
    if (keyCode == key::Enter) {
        if (m_pad.pendingOperator() >= 1) {
            pressOperator(0);
        } else if (m_currentPage == page::Snowtam) {
            Convert_Snowtam(m_sheet, m_pad.inputText());
        }
    } else if (keyCode == key::Escape) {
        LabC_Click();
    }
}

} // namespace zel
