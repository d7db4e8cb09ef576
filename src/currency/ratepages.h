// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Reading rates out of what the rate sources send, and the small text rules
/// around a download. Pure functions: the transfer itself is the platform's.
namespace zel {

/// The rate text of a currency-converter answer page: the first line that
/// holds "converter_result", from just after the following "bld>" up to the
/// next blank ("1.2917" out of `<span class=bld>1.2917 USD</span>`). Nothing
/// when the page cannot be read that way: an empty line or the end of the
/// page comes before the marker, or no blank follows. A page without a result
/// gives a text holding "color".
std::optional<std::string> cutConverterRate(std::string_view page);

/// The rates of the European Central Bank's daily reference feed, by currency
/// code, each as the feed writes it ("1.0784" units per euro), from its
/// `<Cube currency='USD' rate='1.0784'/>` elements (either quote style).
/// Nothing when the feed is not well-formed XML or a rate is not a number.
std::optional<std::map<std::string, std::string>> parseEcbFeed(std::string_view xml);

/// A text made safe for a URL's query: everything but letters, digits and
/// "-._~" percent-encoded byte by byte.
std::string percentEncode(std::string_view text);

/// A text made safe for a file name: each character but the ASCII letters and
/// digits becomes "_", so "M/N" or "../" cannot leave the folder.
std::string fileSafe(std::string_view text);

/// The whole day number of a date, counted from 30 December 1899 (day 0), the
/// serial that the settings file's "Date" holds: 1 January 2000 is 36526.
int daySerial(std::chrono::year_month_day date);

/// A day number as a pilot reads it: 45471 is "28 Jun 2024".
std::string dayText(int serial);

} // namespace zel
