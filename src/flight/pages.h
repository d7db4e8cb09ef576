// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <span>

namespace zel {

/// The flight calculator pages: fuel, airspeed and navigation.
/// The fuel, airspeed and navigation pages.
std::span<const PageTable> flightPages();
/// The planning pages, each declared with its formulas in a file of its own.
std::span<const PageTable* const> planningPages();

} // namespace zel
