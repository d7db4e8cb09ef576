// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Runway-state groups: any eight characters decoded directly, and whole
// keyboard sequences on the Snowtam page (keys, Backspace, Enter, Escape,
// row clicks).
#include "fakeplatform.h"
#include "menucheck.h"
#include "snowtam/snowtam.h"

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    if (data[0] % 2 == 0) {
        const Symbols symbols = data[0] % 4 ? test::Dot : test::Comma;
        PageSheet sheet(symbols);
        decodeStateGroup(sheet, fuzz::text(data + 1, std::min<std::size_t>(size - 1, 8)));
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            ZEL_CHECK(!sheet[row].value && isUtf8(sheet[row].text)); // words, never numbers
        }
        return 0;
    }
    test::Calculator calc(test::Dot, 14);
    for (std::size_t i = 1; i < size && calc.menu.currentPage() == 14; ++i) {
        const unsigned char c = data[i];
        switch (c) {
        case 0xF0:
            calc.menu.keyUp({.key = Key::Enter});
            break;
        case 0xF1:
            calc.menu.keyUp({.key = Key::Escape});
            break;
        case 0xF2:
            calc.menu.keyDown({.key = Key::Backspace});
            break;
        default:
            if (c >= 0xF8) {
                calc.menu.clickRow(c - 0xF7);
            } else {
                calc.menu.type(c);
            }
        }
        fuzz::checkFinite(calc.menu);
    }
    return 0;
}
