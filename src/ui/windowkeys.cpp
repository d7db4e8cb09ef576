// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The window's keys: each Qt key event becomes the calculator's own chord,
// and the calculator says what it does with it; the window moves the focus,
// copies, zooms and switches its palette when told to. A key's release goes
// on only when its press reached this window too: the key that closes a
// message box is pressed in the box and let go here, and must not act again.
#include "ui/loadingpanel.h"
#include "ui/menuwindow.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <algorithm>

namespace zel {
namespace {

std::optional<Key> keyOf(int key) {
    switch (key) {
    case Qt::Key_Backspace:
        return Key::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Enter;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Space:
        return Key::Space;
    case Qt::Key_Insert:
        return Key::Insert;
    case Qt::Key_Left:
        return Key::Left;
    case Qt::Key_Right:
        return Key::Right;
    case Qt::Key_Up:
        return Key::Up;
    case Qt::Key_Down:
        return Key::Down;
    default:
        break;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return functionKey(key - Qt::Key_F1 + 1);
    }
    return std::nullopt;
}

/// The character a key types, or names with Ctrl or Alt held (which type
/// none): its text, else the key's own letter or figure.
char32_t characterOf(const QKeyEvent* e) {
    const QList<uint> text = e->text().toUcs4();
    if (!text.isEmpty() && text.front() >= 0x20 && text.front() != 0x7f) {
        return text.front();
    }
    const int key = e->key();
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return static_cast<char32_t>(key >= Qt::Key_A ? key - Qt::Key_A + 'a' : key);
    }
    if (key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus) {
        return static_cast<char32_t>(key);
    }
    return 0;
}

} // namespace

Chord MenuWindow::chordOf(const QKeyEvent* e) const {
    const Qt::KeyboardModifiers modifiers = e->modifiers() & ~Qt::KeypadModifier;
    Chord chord;
    chord.ctrl = (modifiers & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
    chord.alt = (modifiers & Qt::AltModifier) != 0;
    chord.shift = (modifiers & Qt::ShiftModifier) != 0;
    chord.repeat = e->isAutoRepeat();
    chord.focused =
        focusWidget() != this && focusWidget() != nullptr && isAncestorOf(focusWidget());
    if (const auto key = keyOf(e->key())) {
        chord.key = *key;
    } else {
        chord.character = characterOf(e);
    }
    return chord;
}

std::vector<QWidget*> MenuWindow::focusChain() const {
    std::vector<QWidget*> chain;
    if (m_menu.face() == Face::Menu) {
        for (ZelFrame* button : m_pageButtons) {
            if (button != nullptr) {
                chain.push_back(button);
            }
        }
        return chain;
    }
    // The title bar, the calculator as it reads, then the rows.
    const View view = m_menu.view();
    chain.push_back(m_menuButton);
    if (view.panels) {
        chain.insert(chain.end(),
                     {m_digitsKey, m_operatorKeys[1], m_operatorKeys[2], m_operatorKeys[3],
                      m_divideKey, m_memoryKeys[0], m_memoryKeys[1], m_memoryKeys[2]});
    }
    chain.push_back(m_clearKey);
    if (view.loading && m_loadingPanel != nullptr) {
        const std::vector<QWidget*> sheet = m_loadingPanel->focusChain();
        chain.insert(chain.end(), sheet.begin(), sheet.end());
        return chain;
    }
    for (int row = 1; row <= 8; ++row) {
        if (view.rows[static_cast<std::size_t>(row - 1)].exists) {
            chain.push_back(m_values[static_cast<std::size_t>(row)]);
        }
    }
    return chain;
}

void MenuWindow::moveFocus(int step) {
    const std::vector<QWidget*> chain = focusChain();
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
    const Chord chord = chordOf(e);
    if (chord.key == Key::Character && chord.character == 0) {
        return; // a modifier alone, or a key that types nothing
    }
    FaceAction action = FaceAction::None;
    act([&] { action = m_menu.keyDown(chord); });
    perform(action);
}

void MenuWindow::keyReleaseEvent(QKeyEvent* e) {
    if (e->isAutoRepeat() || m_pressed.erase(e->key()) == 0) {
        return; // its press went to a dialog, or was repeated
    }
    const Chord chord = chordOf(e);
    FaceAction action = FaceAction::None;
    act([&] { action = m_menu.keyUp(chord); });
    perform(action);
}

void MenuWindow::perform(FaceAction action) {
    const auto step = std::find(Zooms.begin(), Zooms.end(), m_zoom) - Zooms.begin();
    switch (action) {
    case FaceAction::None:
        break;
    case FaceAction::CopyDisplay:
        copy(m_menu.displayNumber());
        break;
    case FaceAction::CopyPage:
        copy(m_menu.pageText());
        break;
    case FaceAction::Paste:
        paste();
        break;
    case FaceAction::ZoomIn:
        setZoom(Zooms[static_cast<std::size_t>(std::min<long>(step + 1, Zooms.size() - 1))]);
        break;
    case FaceAction::ZoomOut:
        setZoom(Zooms[static_cast<std::size_t>(std::max<long>(step - 1, 0))]);
        break;
    case FaceAction::ZoomReset:
        setZoom(1.0);
        break;
    case FaceAction::Night:
        setNight(!m_night);
        break;
    case FaceAction::About:
        showAbout();
        break;
    case FaceAction::FocusLeft:
    case FaceAction::FocusRight:
        moveFocus(action == FaceAction::FocusLeft ? -1 : 1);
        break;
    case FaceAction::FocusUp:
    case FaceAction::FocusDown:
        // The page buttons stand three to a line.
        moveFocus(action == FaceAction::FocusUp ? -3 : 3);
        break;
    case FaceAction::PressFocused:
        if (auto* focused = qobject_cast<ZelFrame*>(focusWidget())) {
            focused->press();
        } else if (auto* button = qobject_cast<QAbstractButton*>(focusWidget())) {
            button->click(); // a cell of the loading sheet
        }
        break;
    }
}

} // namespace zel
