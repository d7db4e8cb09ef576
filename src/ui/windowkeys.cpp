// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The window's keys. Typed characters go to Form_KeyPress as they are pressed;
// Enter, Escape and the function keys go to Form_KeyUp when they are released,
// but only when their press reached this window too: the key that closes a
// message box is pressed in the box and released here, and must not act again.
// Beyond that, everything can be reached without the mouse: Ctrl+1..8 click
// the rows, Alt+M or Alt+Left go back to the menu, Tab and the arrows move a
// visible focus, and Space (Enter on the menu) presses what has it.
#include "ui/menuwindow.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace zel {
namespace {

int keyUpCode(int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        return key::Enter;
    }
    if (key == Qt::Key_Escape) {
        return key::Escape;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return key::F1 + (key - Qt::Key_F1);
    }
    return 0;
}

} // namespace

std::vector<ZelFrame*> MenuWindow::focusChain() const {
    std::vector<ZelFrame*> chain;
    if (m_menu.face() == Face::Menu) {
        for (ZelFrame* button : m_pageButtons) {
            if (button != nullptr) {
                chain.push_back(button);
            }
        }
        return chain;
    }
    // The title bar, the calculator as it reads, then the rows.
    chain.push_back(m_menuButton);
    if (m_menu.panelsVisible()) {
        chain.insert(chain.end(),
                     {m_digitsKey, m_operatorKeys[1], m_operatorKeys[2], m_operatorKeys[3],
                      m_divideKey, m_memoryKeys[0], m_memoryKeys[1], m_memoryKeys[2]});
    }
    chain.push_back(m_clearKey);
    for (int row = 1; row <= 8; ++row) {
        if (!m_menu.row(row).unit.empty()) {
            chain.push_back(m_values[static_cast<std::size_t>(row)]);
        }
    }
    return chain;
}

void MenuWindow::moveFocus(int step) {
    const std::vector<ZelFrame*> chain = focusChain();
    if (chain.empty()) {
        return;
    }
    const auto at = std::find(chain.begin(), chain.end(), focusWidget());
    const auto count = static_cast<int>(chain.size());
    int next = 0; // nothing has the focus yet: the first control
    if (at != chain.end()) {
        next = (static_cast<int>(at - chain.begin()) + step % count + count) % count;
    } else if (step < 0) {
        next = count - 1;
    }
    chain[static_cast<std::size_t>(next)]->setFocus(step < 0 ? Qt::BacktabFocusReason
                                                             : Qt::TabFocusReason);
}

bool MenuWindow::focusNextPrevChild(bool next) {
    moveFocus(next ? 1 : -1);
    return true;
}

void MenuWindow::keyPressEvent(QKeyEvent* e) {
    m_pressed.insert(e->key());
    if (e->key() == Qt::Key_F1) {
        // Shift+F1 is About, whichever key is let go first.
        m_aboutKey = e->modifiers() == Qt::ShiftModifier;
    }
    if (shortcut(e)) {
        return;
    }
    const Qt::KeyboardModifiers modifiers = e->modifiers() & ~Qt::KeypadModifier;
    const bool page = m_menu.face() == Face::Page;
    if (modifiers == Qt::ControlModifier && e->key() >= Qt::Key_1 && e->key() <= Qt::Key_8) {
        if (!e->isAutoRepeat()) {
            const int row = e->key() - Qt::Key_0;
            act([this, row] { m_menu.LabValue_Click(row); });
        }
        return;
    }
    if (modifiers == Qt::AltModifier && (e->key() == Qt::Key_M || e->key() == Qt::Key_Left)) {
        act([this] { m_menu.LabelMenu_Click(); });
        return;
    }
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return; // a shortcut, not a character
    }
    if (!page) {
        // The page buttons stand three to a line.
        const int step = e->key() == Qt::Key_Left    ? -1
                         : e->key() == Qt::Key_Right ? 1
                         : e->key() == Qt::Key_Up    ? -3
                         : e->key() == Qt::Key_Down  ? 3
                                                     : 0;
        if (step != 0) {
            moveFocus(step);
            return;
        }
    }
    if (e->key() == Qt::Key_Backspace) {
        act([this] { m_menu.Form_KeyPress(key::Backspace); });
        return;
    }
    if (e->key() == Qt::Key_Space && page && !m_menu.page()->isText() && focusWidget() != this) {
        return; // presses the focused control when released
    }
    for (const char32_t c : e->text().toUcs4()) {
        if (c >= 0x20 && c != 0x7f) {
            act([this, c] { m_menu.Form_KeyPress(c); });
        }
    }
}

void MenuWindow::keyReleaseEvent(QKeyEvent* e) {
    if (e->isAutoRepeat() || m_pressed.erase(e->key()) == 0) {
        return; // its press went to a dialog, or was repeated
    }
    if (e->key() == Qt::Key_F1 && std::exchange(m_aboutKey, false)) {
        showAbout();
        return;
    }
    auto* focused = qobject_cast<ZelFrame*>(focusWidget());
    const bool page = m_menu.face() == Face::Page;
    const bool space = e->key() == Qt::Key_Space && e->modifiers() == Qt::NoModifier;
    const bool enter = keyUpCode(e->key()) == key::Enter;
    if (focused != nullptr && isAncestorOf(focused) && (space || (enter && !page)) &&
        !(page && m_menu.page()->isText())) {
        focused->press();
        return;
    }
    if (const int code = keyUpCode(e->key()); code != 0) {
        act([this, code] { m_menu.Form_KeyUp(code); });
    }
}

} // namespace zel
