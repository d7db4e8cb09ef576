// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "ui/zelframe.h"

namespace zel {

/// What a face of the window is, for its colours.
enum class Look {
    Background,
    TitleBar,
    Sheet,
    Panel,
    Key,
    PageButton,
    Display,
    MenuButton,
    Cell,
    Band
};

/// The colours of text that change with the state of the window.
struct TextColours {
    QColor row;            ///< row text
    QColor input;          ///< the input row's text
    QColor pageButtonText; ///< the page buttons' captions
    QColor keyText;        ///< calculator key captions
    QColor amber;          ///< an active operator, a memory that holds a value
    QColor line;           ///< separator lines on the sheet
};

/// The day palette: dark blue text on a light sheet, slate keys, amber highlights;
/// the night palette keeps night vision: dark sheet and panels, soft light
/// text, the amber highlights as they are.
ZelFrame::Style lookStyle(Look look, bool night);
const TextColours& textColours(bool night);

} // namespace zel
