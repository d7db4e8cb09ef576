// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The keys, for every face. Typed characters act as they are pressed; Enter,
// Escape and the function keys when they are let go, so that the key that
// closes a box (pressed in the box, let go over the window) never acts twice:
// a face sends the release of a key only when its press reached the window.
// Beyond that, everything can be reached without a mouse: Ctrl+1..8 click the
// rows, Alt+M or Alt+Left go back to the menu, the arrows move over the menu's
// buttons, and Space (Enter on the menu) presses what has the focus.
#include "app/menu.h"

#include <utility>

namespace zel {

std::optional<Key> functionKey(int number) {
    if (number < 1 || number > 12) {
        return std::nullopt;
    }
    return static_cast<Key>(static_cast<int>(Key::F1) + number - 1);
}

int functionKeyNumber(Key key) {
    const int n = static_cast<int>(key) - static_cast<int>(Key::F1) + 1;
    return n >= 1 && n <= 12 ? n : 0;
}

void Menu::type(char32_t c) {
    if (blocked() || m_face != Face::Page) {
        return; // on the menu face only the keys that open pages act
    }
    m_refusal.clear();
    if (textPage()) {
        typeText(c);
    } else {
        typeNumber(c);
    }
}

void Menu::typeText(char32_t c) {
    const TextEntry& entry = m_table->text;
    if (const char32_t accepted = entry.accept(c);
        accepted != 0 && !m_pad.typeText(accepted, entry.limit)) {
        m_platform.ui.beep(); // the report is as long as it can be
    }
}

void Menu::typeNumber(char32_t c) {
    if (m_pad.newOperand()) {
        // The first key after an operator begins the next operand on a clean page.
        clearEntry();
        m_sheet.reset();
    }
    switch (c) {
    case ',':
    case '.':
        // Either key types the regional decimal symbol; minutes take none.
        if (!m_pad.typeDecimal()) {
            m_platform.ui.beep();
        }
        break;
    case '+':
        operate(Operator::Add);
        break;
    case '-':
        operate(Operator::Subtract);
        break;
    case '*':
    case 'X':
    case 'x':
        operate(Operator::Multiply);
        break;
    case '/':
        operate(Operator::Divide);
        break;
    case ':':
        if (!m_pad.typeColon()) {
            m_platform.ui.beep(); // one colon, in a whole number of hours
        }
        break;
    default:
        if (c >= '0' && c <= '9') {
            switch (m_pad.typeDigit(static_cast<int>(c - '0'))) {
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

void Menu::press(Key key) {
    if (key != Key::Backspace || blocked() || m_face != Face::Page) {
        return;
    }
    if (textPage()) {
        m_pad.backspaceText();
        return;
    }
    if (m_pad.newOperand()) {
        clearEntry();
        m_sheet.reset();
    }
    m_pad.backspace();
}

void Menu::release(Key key) {
    if (blocked()) {
        return;
    }
    if (const int f = functionKeyNumber(key)) {
        // The function keys open their pages from either face.
        if (const PageTable* table = m_pages.byFunctionKey(f)) {
            openPage(m_pages.numberOf(table));
        }
        return;
    }
    if (m_face == Face::Menu) {
        if (key == Key::Escape) {
            close();
        }
        return;
    }
    if (key == Key::Enter) {
        if (m_pad.pending()) {
            operate(Operator::Equals);
        } else if (textPage()) {
            decode();
        }
    } else if (key == Key::Escape) {
        clear();
    }
}

FaceAction Menu::keyDown(const Chord& chord) {
    if (chord.key == Key::F1) {
        // Shift+F1 is About, whichever of the two keys is let go first.
        m_shiftF1 = chord.shift && !chord.ctrl && !chord.alt;
    }
    const bool ctrl = chord.ctrl && !chord.alt;
    const bool page = m_face == Face::Page;
    const char32_t c = chord.character;
    if (chord.key == Key::Character && ctrl) {
        // Ctrl+1 .. Ctrl+8 click the rows; the rest are the face's own.
        if (!chord.shift && c >= '1' && c <= '8') {
            if (!chord.repeat) {
                clickRow(static_cast<int>(c - '0'));
            }
            return FaceAction::None;
        }
        switch (c) {
        case 'c':
        case 'C':
            return chord.shift ? FaceAction::CopyPage : FaceAction::CopyDisplay;
        case 'v':
        case 'V':
            return chord.shift ? FaceAction::None : FaceAction::Paste;
        case 'n':
        case 'N':
            return chord.shift ? FaceAction::Night : FaceAction::None;
        case '+':
        case '=':
            return FaceAction::ZoomIn;
        case '-':
            return chord.shift ? FaceAction::None : FaceAction::ZoomOut;
        case '0':
            return chord.shift ? FaceAction::None : FaceAction::ZoomReset;
        default:
            return FaceAction::None;
        }
    }
    if (chord.key == Key::Insert && chord.shift && !chord.ctrl && !chord.alt) {
        return FaceAction::Paste;
    }
    if (chord.alt && !chord.ctrl &&
        ((chord.key == Key::Character && (c == 'm' || c == 'M')) || chord.key == Key::Left)) {
        goBack();
        return FaceAction::None;
    }
    if (chord.ctrl || chord.alt) {
        return FaceAction::None; // a shortcut of the face or the system, not a character
    }
    if (!page) {
        // The page buttons stand in a grid: the face knows its columns.
        switch (chord.key) {
        case Key::Left:
            return FaceAction::FocusLeft;
        case Key::Right:
            return FaceAction::FocusRight;
        case Key::Up:
            return FaceAction::FocusUp;
        case Key::Down:
            return FaceAction::FocusDown;
        default:
            break;
        }
    }
    if (chord.key == Key::Backspace) {
        press(Key::Backspace);
        return FaceAction::None;
    }
    if (chord.key == Key::Space) {
        if (page && textPage()) {
            type(U' '); // a blank between the groups of a report
        }
        return FaceAction::None; // else it presses the focused control when let go
    }
    if (chord.key == Key::Character && c >= 0x20 && c != 0x7f) {
        type(c);
    }
    return FaceAction::None;
}

FaceAction Menu::keyUp(const Chord& chord) {
    if (chord.key == Key::F1 && std::exchange(m_shiftF1, false)) {
        return FaceAction::About;
    }
    const bool report = m_face == Face::Page && textPage();
    if (chord.focused && !report && !chord.ctrl && !chord.alt &&
        (chord.key == Key::Space || (chord.key == Key::Enter && m_face == Face::Menu))) {
        return FaceAction::PressFocused;
    }
    if (chord.key == Key::Enter || chord.key == Key::Escape || functionKeyNumber(chord.key) != 0) {
        release(chord.key);
    }
    return FaceAction::None;
}

std::vector<HelpLine> Menu::help() const {
    // The pages the function keys open, from the catalogue. Keys that open
    // pages in the menu's order are named by the first and the last page.
    std::string opened;
    int first = 0;
    int last = 0;
    int runStart = 0;
    int lastPage = 0;
    std::string runFirst;
    for (int f = 1; f <= 12; ++f) {
        const PageTable* page = m_pages.byFunctionKey(f);
        if (page == nullptr) {
            continue;
        }
        const int number = m_pages.numberOf(page);
        const std::string name(page->name);
        if (first == 0) {
            first = f;
        }
        if (runStart != 0 && f == last + 1 && number == lastPage + 1) {
            // The run goes on: "Weight … Fuel Uplift".
            const auto start = opened.rfind(runFirst);
            opened = opened.substr(0, start) + runFirst + (f - runStart >= 2 ? " … " : ", ") + name;
        } else {
            opened += (opened.empty() ? "" : ", ") + name;
            runStart = f;
            runFirst = name;
        }
        last = f;
        lastPage = number;
    }
    const std::string fKeys =
        first == 0 ? std::string() : "F" + std::to_string(first) + " – F" + std::to_string(last);
    std::vector<HelpLine> lines;
    if (!fKeys.empty()) {
        lines.push_back({fKeys, "open " + opened});
    }
    lines.insert(
        lines.end(),
        {{"arrows, Tab, Shift+Tab", "move the focus", FaceAction::FocusLeft},
         {"Enter", "opens the focused page; the result of a calculation; decodes a report"},
         {"Space", "presses the focused key or row", FaceAction::PressFocused},
         {"digits , . + - * x / Backspace", "type the number and work it out"},
         {"Ctrl+1 … Ctrl+8", "click row 1 … 8"},
         {"Alt+M, Alt+Left", "back to the menu"},
         {"Escape", "clears; on the menu, quits"},
         {"Ctrl+C, Ctrl+Shift+C", "copy the display, copy the page", FaceAction::CopyPage},
         {"Ctrl+V, Shift+Insert", "paste a number or a report", FaceAction::Paste},
         {"Ctrl+plus, Ctrl+minus, Ctrl+0", "zoom in, out, back to 100 %", FaceAction::ZoomIn},
         {"Ctrl+Shift+N", "night palette on or off", FaceAction::Night},
         {"Shift+F1", "this box", FaceAction::About}});
    return lines;
}

} // namespace zel
