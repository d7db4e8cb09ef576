// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/aircraft.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace zel::balance {

/// The format a profile names itself by, in the version this program writes.
/// Version 2 adds combined station limits, the conditions of a category and
/// the taxi fuel; version 1 files are read as well.
inline constexpr std::string_view ProfileFormat = "zelflightab-aircraft/2";

/// A profile read: the aircraft, or why the text is none, in a sentence that
/// starts "Not an aircraft profile: " ("...: line 12: ...", "...: station 3
/// has no arm").
using ProfileRead = std::variant<Aircraft, std::string>;

/// Reads a profile (JSON). Refused: a text that is not JSON, another format
/// or version, an unknown unit, a negative or non-finite number, two stations
/// of one name, an envelope of fewer than three corners or whose edges cross,
/// a combined limit or a condition that names no station of the aircraft.
/// Fields it does not know are left out.
ProfileRead readProfile(std::string_view json);

/// What makes an aircraft no profile, whichever way it was written (a file,
/// the editor): an empty name, a negative or non-finite number, a divisor,
/// MAC length or density of 0, no stations, two stations of one name, no
/// envelope, one of fewer than three corners or whose edges cross. The
/// reason in words; nothing for a profile.
std::optional<std::string> checkProfile(const Aircraft& aircraft);

/// The profile as JSON, two blanks to a level, in the order the format lists
/// its fields; readProfile reads it back as the same aircraft.
std::string writeProfile(const Aircraft& aircraft);

} // namespace zel::balance
