// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/text.h"

#include <optional>
#include <string>
#include <string_view>

namespace zel {

/// The regional number symbols: each is one character, kept as UTF-8 because
/// some regions group digits with a non-breaking or thin space.
struct Symbols {
    std::string decimal = ".";
    std::string grouping = ",";
};

/// Splits "DG" (two characters, decimal then grouping) into symbols; nothing
/// when it is not two characters or either is a digit.
std::optional<Symbols> symbolsFromPair(std::string_view pair);

/// The general number-to-text conversion of a double, as value tags hold it:
/// at most 15 significant digits, trailing zeros dropped, plain notation while
/// the decimal exponent lies in -4..14, otherwise "1.5E-07" / "1E+20"; no grouping.
std::string generalText(double value, const Symbols& symbols);

/// A value in exponent form whatever its size, rounded to at most `digits`
/// significant digits, trailing zeros dropped: "2.205E+17", "1E+26", "-1.5E-07".
std::string exponentText(double value, int digits, const Symbols& symbols);

/// The same conversion at single precision: 7 significant digits, plain
/// notation while the decimal exponent lies in -4..6 ("101.9804", "1E+07").
std::string singleText(float value, const Symbols& symbols);

/// Formats a number with a display pattern made of '#', '0', ',' and '.'
/// ("#,#0.00", "000", "#,#0.##############"): ',' asks for grouping, '0' for a
/// digit that is always shown, '#' for one shown only when significant.
/// Rounds half away from zero on the 15-significant-digit decimal value.
std::string formatNumber(double value, std::string_view pattern, const Symbols& symbols);

/// Reads a number written the regional way: optional blanks, an optional sign,
/// digits with grouping and decimal symbols, an optional exponent.
/// Returns nothing for any other text, or for a value beyond the double range.
std::optional<double> readRegional(std::string_view text, const Symbols& symbols);

/// Reads a figure as readRegional does, with the grouping symbol only where
/// it separates groups of three digits before the decimal symbol ("1,705.5"):
/// "2.5" in Germany or "170,5" in the US is no number, never 25 or 1,705.
std::optional<double> readFigure(std::string_view text, const Symbols& symbols);

/// The value of a number being typed, 0 for anything that is not a number.
/// Where the decimal symbol is "." the text is read from its start the way a
/// plain-number reader does (it stops at the first character that cannot continue
/// the number, so "1,234" is 1); elsewhere it is read the regional way.
double readNumber(std::string_view text, const Symbols& symbols);

/// The double nearest to `value` rounded to `digits` significant decimal
/// digits: what a value shown with that many digits reads back as. A value
/// kept this way prints the same in every regional form.
double roundSignificant(double value, int digits);

} // namespace zel
