// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/numbertext.h"

#include <optional>
#include <string>
#include <string_view>

namespace zel {

enum class MessageIcon { Information, Exclamation, Critical };

/// What the user sees and answers outside the window's own controls:
/// message boxes, questions, input boxes, the bell, the busy pointer, the end.
class Interaction {
  public:
    virtual ~Interaction() = default;
    virtual void beep() = 0;
    virtual void message(MessageIcon icon, std::string_view title, std::string_view text) = 0;
    /// A Yes/No question; true for Yes.
    virtual bool question(std::string_view title, std::string_view text) = 0;
    /// An input box; nothing when it was cancelled.
    virtual std::optional<std::string> input(std::string_view title, std::string_view prompt) = 0;
    virtual void setBusy(bool busy) = 0;
    /// The program ends at once.
    virtual void quit() = 0;
};

/// The machine's regional number symbols, read afresh at each call.
class Regional {
  public:
    virtual ~Regional() = default;
    virtual Symbols symbols() = 0;
};

/// Everything the platform does for the calculator, piece by piece, so that a
/// front end or a test can replace any one piece.
struct Platform {
    Interaction& ui;
    Regional& regional;
};

} // namespace zel
