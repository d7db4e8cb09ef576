// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "fakeplatform.h"
#include "check.h"

namespace zel::fuzz {

/// Nothing non-finite is stored or shown, whatever was typed or clicked.
inline void checkFinite(const Menu& menu) {
    ZEL_CHECK(test::nonFinite(menu).empty());
}

} // namespace zel::fuzz
