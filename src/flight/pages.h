// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <span>

namespace zel {

/// The flight calculator pages: fuel, airspeed and navigation.
std::span<const PageTable> flightPages();

} // namespace zel
