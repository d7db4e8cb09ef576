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
        Convert_Snowtam(sheet, fuzz::text(data + 1, std::min<std::size_t>(size - 1, 8)));
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            ZEL_CHECK(sheet[row].compact == compactCaption(sheet[row].caption, true));
        }
        return 0;
    }
    test::Calculator calc(test::Dot, 14);
    for (std::size_t i = 1; i < size && calc.menu.currentPage() == 14; ++i) {
        const unsigned char c = data[i];
        switch (c) {
        case 0xF0:
            calc.menu.Form_KeyUp(key::Enter);
            break;
        case 0xF1:
            calc.menu.Form_KeyUp(key::Escape);
            break;
        case 0xF2:
            calc.menu.Form_KeyPress(key::Backspace);
            break;
        default:
            if (c >= 0xF8) {
                calc.menu.LabValue_Click(c - 0xF7);
            } else {
                calc.menu.Form_KeyPress(c);
            }
        }
        fuzz::checkFinite(calc.menu);
    }
    return 0;
}
