// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/aircraft.h"
#include "entry/numbertext.h"

#include <string>
#include <string_view>
#include <variant>

namespace zel::balance {

/// What a station holds, as a script writes it: a number in the profile's
/// weight unit (a fuel station's: its fuel unit), or a number and a unit
/// word that converts it ("230 lb", "40 L", "104 kg"; a fuel station takes
/// a weight or a quantity of fuel). The weight in the profile's unit, or why
/// the text is none.
std::variant<double, std::string> stationWeight(std::string_view text, const Aircraft& aircraft,
                                                const Station& station, const Symbols& symbols);

/// The station of this name, compared without case; nothing for none.
const Station* stationNamed(const Aircraft& aircraft, std::string_view name);

} // namespace zel::balance
