// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <span>
#include <string_view>

namespace zel {

/// Decodes the eight-character runway-state group RRDEddBB of a SNOWTAM or
/// METAR (runway, deposit, extent, depth, braking) into the page's captions.
/// Each field is decoded by itself; a bad code never stops the others.
Report Convert_Snowtam(PageSheet& page, std::string_view group);

/// The runway-state page.
std::span<const PageTable> snowtamPages();

} // namespace zel
