// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <string_view>

namespace zel {

/// Whether the text holds only the characters of a runway-state group:
/// figures, and "/" for a field not reported.
bool isStateCharacters(std::string_view text);

/// Decodes the eight-character runway-state group RRDEddBB of a SNOWTAM or
/// METAR (runway, deposit, extent, depth, braking) into the page's rows.
/// Each field is decoded by itself; a bad code never stops the others.
Report decodeStateGroup(PageSheet& page, std::string_view group);

/// The six characters DEddBB after the runway of a runway-state group into
/// rows 2 (deposit), 4 (extent), 6 (depth), 7 and 8 (braking).
void writeStateGroup(PageSheet& page, std::string_view state);
/// A braking code BB into rows 7 (coefficient) and 8 (braking action).
void writeBraking(PageSheet& page, std::string_view code);

/// Decodes today's runway condition reports into the page: the GRF runway
/// reports of a SNOWTAM, or METAR runway-state groups, or a plain group that
/// stands alone. A text that looks like a GRF report but cannot be read whole
/// is refused with the reason, and nothing of it is shown. Of several runways
/// the one numbered `which` (from 0, counting round) is shown, its runway
/// row saying "09L (1 of 2)".
Report decodeRunwayCondition(PageSheet& page, std::string_view text, int which = 0);

/// What a paste puts into the Snowtam page: the one eight-character group
/// (figures and "/") the text holds as a whole word. A METAR runway group or
/// a GRF report is sent to the RWY Condition page with a message; any other
/// text beeps.
std::optional<std::string> pasteStateGroup(std::string_view text, Report& refused);

/// The runway-state pages: the eight-figure group, and today's reports.
extern const PageTable SnowtamPage, RwyConditionPage;

} // namespace zel
