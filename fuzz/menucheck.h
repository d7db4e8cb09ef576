// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"
#include "check.h"

#include <cctype>
#include <cmath>

namespace zel::fuzz {

inline bool showsNonFinite(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
}

/// Nothing non-finite is stored or shown, whatever was typed or clicked.
inline void checkFinite(const Menu& menu) {
    const ScratchPad& pad = menu.scratchPad();
    ZEL_CHECK(std::isfinite(pad.inputValue()));
    ZEL_CHECK(std::isfinite(pad.accumulator()));
    ZEL_CHECK(std::isfinite(pad.memory()));
    ZEL_CHECK(!showsNonFinite(menu.display()));
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        ZEL_CHECK(!showsNonFinite(menu.row(row).tag));
        ZEL_CHECK(!showsNonFinite(menu.row(row).caption));
        ZEL_CHECK(menu.row(row).fontSize == 9 || menu.row(row).fontSize == 12);
    }
}

} // namespace zel::fuzz
