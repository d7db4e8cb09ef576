// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// A key as every face names it: a character, or a key that types none.
enum class Key {
    Character,
    Backspace,
    Enter,
    Escape,
    Space,
    Insert,
    Left,
    Right,
    Up,
    Down,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12,
};

/// F1 .. F12 by number; nothing for another number.
std::optional<Key> functionKey(int number);
/// The number of a function key, 0 for another key.
int functionKeyNumber(Key key);

/// A key pressed or let go, with the modifiers held, as a face reports it.
struct Chord {
    Key key = Key::Character;
    char32_t character = 0; ///< for Key::Character: the character it types
    bool ctrl = false;      ///< Ctrl, or Command on a Mac
    bool alt = false;
    bool shift = false;
    bool repeat = false; ///< held down: the key repeats
    /// A control of the window (a key, a row, a page button) has the
    /// keyboard focus, not the window itself.
    bool focused = false;
};

/// What a key asks of the face itself, where the calculator has nothing to do.
enum class FaceAction {
    None,
    CopyDisplay,
    CopyPage,
    Paste,
    ZoomIn,
    ZoomOut,
    ZoomReset,
    Night,
    About,
    FocusLeft,
    FocusRight,
    FocusUp,
    FocusDown,
    PressFocused,
};

/// One line of the keys' help: the keys, what they do, and the face action
/// they need (a face that has no such action leaves the line out).
struct HelpLine {
    std::string keys;
    std::string does;
    FaceAction needs = FaceAction::None;
};

} // namespace zel
