// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <string>
#include <string_view>

/// The settings file is an INI file handled one key at a time, as Windows' own
/// INI functions handle such files, so that a file edited by hand or by
/// another tool keeps everything else it holds: other sections and keys,
/// comments, blank lines, order, line ends, encoding.
///
/// These functions work on the file's bytes; reading and writing the file itself
/// is the platform's (atomically, so that a crash never leaves half a file).
namespace zel::profile {

/// The longest value a read returns, in characters (a 255-character buffer with
/// its terminating zero).
inline constexpr std::size_t MaxValue = 254;

/// The value of `key` in `section` as UTF-8, or "" when either is missing.
/// Section and key names match without regard to case; blanks around the value
/// and one pair of enclosing quotes are dropped. A file that is not valid UTF-8
/// is read as Windows ANSI (code page 1252).
std::string read(std::string_view file, std::string_view section, std::string_view key);

/// The file with `key` in `section` set to `value` (UTF-8; written in the
/// file's own encoding). An existing key is rewritten in place; a new key goes
/// after the last entry of its section; a new section is added at the end.
/// Line breaks in the value become blanks, so a value is always one line.
std::string write(std::string_view file, std::string_view section, std::string_view key,
                  std::string_view value);

} // namespace zel::profile
