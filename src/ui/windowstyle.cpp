// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/windowstyle.h"

namespace zel {
namespace {

// Row text RGB 0, 69, 125; the input row's text a lighter blue, RGB 50, 100,
// 150, dark enough to read at 5.1:1 on its amber band (the classic 85, 142,
// 191 gave 2.9:1); page-button captions light grey, key captions white, amber
// for what is active.
const TextColours Day{QColor(0, 69, 125),    QColor(50, 100, 150), QColor(224, 224, 224),
                      QColor(255, 255, 255), QColor(255, 190, 0),  QColor(0xb8, 0xc6, 0xd3)};
// At night nothing is white: soft grey-blue text, the input row in amber.
const TextColours Night{QColor(0xa9, 0xbc, 0xcc), QColor(255, 190, 0), QColor(0xb4, 0xbf, 0xc9),
                        QColor(0xc8, 0xd3, 0xdd), QColor(255, 190, 0), QColor(0x33, 0x41, 0x4d)};

struct LookColours {
    ZelFrame::Style day;
    ZelFrame::Style night;
};

// One calm instrument panel: a light sheet, slate keys, a dark display; at
// night the sheet goes dark too.
const LookColours Looks[] = {
    // Background
    {{QColor(0xd9, 0xe1, 0xe9), QColor(0xa9, 0xb8, 0xc7), {}, {}, 0, false},
     {QColor(0x1b, 0x23, 0x2b), QColor(0x10, 0x16, 0x1c), {}, {}, 0, false}},
    // TitleBar
    {{QColor(0xf7, 0xf9, 0xfb), QColor(0xd4, 0xdd, 0xe6), QColor(0x9a, 0xab, 0xbc), Day.row, 0,
      false},
     {QColor(0x26, 0x31, 0x3b), QColor(0x1a, 0x23, 0x2b), QColor(0x0d, 0x12, 0x16), Night.row, 0,
      false}},
    // Sheet
    {{QColor(0xfb, 0xfc, 0xfd), QColor(0xe3, 0xea, 0xf0), QColor(0xa4, 0xb4, 0xc4), Day.row, 9,
      true},
     {QColor(0x1e, 0x28, 0x30), QColor(0x16, 0x1e, 0x25), QColor(0x0d, 0x12, 0x16), Night.row, 9,
      true}},
    // Panel
    {{QColor(0x5b, 0x6e, 0x81), QColor(0x3b, 0x4b, 0x5b), QColor(0x2c, 0x38, 0x44), Day.keyText, 9,
      true},
     {QColor(0x2b, 0x38, 0x45), QColor(0x1b, 0x25, 0x2f), QColor(0x0d, 0x12, 0x16), Night.keyText,
      9, true}},
    // Key
    {{QColor(0x4f, 0x62, 0x76), QColor(0x2b, 0x38, 0x46), QColor(0x1d, 0x27, 0x31), Day.keyText, 5,
      true},
     {QColor(0x34, 0x42, 0x4f), QColor(0x21, 0x2b, 0x35), QColor(0x0d, 0x12, 0x16), Night.keyText,
      5, true}},
    // PageButton
    {{QColor(0x50, 0x64, 0x79), QColor(0x2a, 0x37, 0x45), QColor(0x1d, 0x27, 0x31),
      Day.pageButtonText, 8, true},
     {QColor(0x2d, 0x3a, 0x47), QColor(0x1c, 0x26, 0x30), QColor(0x0d, 0x12, 0x16),
      Night.pageButtonText, 8, true}},
    // Display
    {{QColor(0x1c, 0x27, 0x31), QColor(0x2a, 0x38, 0x45), QColor(0x10, 0x17, 0x1e),
      QColor(0xe8, 0xf2, 0xfa), 5, false},
     {QColor(0x0b, 0x10, 0x15), QColor(0x13, 0x1b, 0x22), QColor(0x05, 0x08, 0x0b),
      QColor(0xc8, 0xd3, 0xdd), 5, false}},
    // MenuButton
    {{QColor(0xff, 0xff, 0xff), QColor(0xc9, 0xd5, 0xe0), QColor(0x8a, 0x9d, 0xb0), Day.row, 6,
      true},
     {QColor(0x34, 0x42, 0x4f), QColor(0x26, 0x31, 0x3b), QColor(0x0d, 0x12, 0x16), Night.row, 6,
      true}},
    // Cell
    {{Qt::transparent, Qt::transparent, {}, Day.row, 0, false},
     {Qt::transparent, Qt::transparent, {}, Night.row, 0, false}},
    // Band: the input row stands on an amber band, with a bar in the input colour.
    {{QColor(0xff, 0xf3, 0xd1), QColor(0xfc, 0xe8, 0xb5), Day.input, Day.row, 4, false},
     {QColor(0x3d, 0x33, 0x18), QColor(0x32, 0x2a, 0x14), Night.input, Night.row, 4, false}},
};

} // namespace

ZelFrame::Style lookStyle(Look look, bool night) {
    const LookColours& both = Looks[static_cast<int>(look)];
    return night ? both.night : both.day;
}

const TextColours& textColours(bool night) {
    return night ? Night : Day;
}

} // namespace zel
