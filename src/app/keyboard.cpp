// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/menu.h"

namespace zel {

void Menu::Form_KeyPress(char32_t keyAscii) {
    if (busy() || m_face != Face::Page) {
        return; // on the menu face only released keys act
    }
    if (textPage()) {
        keyPressText(keyAscii);
    } else {
        keyPressNumber(keyAscii);
    }
}

void Menu::keyPressText(char32_t keyAscii) {
    if (keyAscii == key::Backspace) {
        m_pad.backspaceText();
        return;
    }
    const TextEntry& entry = m_table->text;
    if (const char32_t c = entry.accept(keyAscii); c != 0 && !m_pad.typeText(c, entry.limit)) {
        m_platform.ui.beep(); // the report is as long as it can be
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
            switch (m_pad.typeDigit(static_cast<int>(keyAscii - '0'))) {
            case ScratchPad::Typed::Full:
                m_platform.ui.beep();
                break;
            case ScratchPad::Typed::Overflow:
                show(Fault::Overflow);
                break;
            case ScratchPad::Typed::Digit:
                break;
            }
        }
        break;
    }
}

void Menu::Form_KeyUp(int keyCode) {
    if (busy()) {
        return;
    }
    if (keyCode >= key::F1 && keyCode <= key::F12) {
        // The function keys open their pages from either face.
        if (const PageTable* table = m_pages.byFunctionKey(keyCode - key::F1 + 1)) {
            LabMenu_Click(table->number);
        }
        return;
    }
    if (m_face == Face::Menu) {
        if (keyCode == key::Escape) {
            m_platform.ui.quit();
        }
        return;
    }
    if (keyCode == key::Enter) {
        if (m_pad.pendingOperator() >= 1) {
            pressOperator(0);
        } else if (textPage()) {
            decode();
        }
    } else if (keyCode == key::Escape) {
        LabC_Click();
    }
}

} // namespace zel
