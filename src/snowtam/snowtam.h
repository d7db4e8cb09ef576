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

/// The six characters DEddBB after the runway of a runway-state group into
/// rows 2 (deposit), 4 (extent), 6 (depth), 7 and 8 (braking).
void writeStateGroup(PageSheet& page, std::string_view state);
/// A braking code BB into rows 7 (coefficient) and 8 (braking action).
void writeBraking(PageSheet& page, std::string_view code);
/// Long decoded texts are drawn at 9 points, so that they fit.
void sizeCaptions(PageSheet& page);

/// Decodes today's runway condition reports into the page: a GRF runway
/// report of a SNOWTAM, a METAR runway-state group, or the plain group;
/// the first one found in the text.
Report Convert_RunwayCondition(PageSheet& page, std::string_view text);

/// The runway-state pages: the eight-digit group, and today's reports.
std::span<const PageTable> snowtamPages();

} // namespace zel
