// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/numbertext.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace zel {
namespace {

/// A finite non-zero number as its first `precision` significant decimal digits
/// (already rounded to nearest) and the decimal exponent of the first digit.
struct Decimal {
    bool negative = false;
    std::string digits; // no leading zero; may be empty for zero
    int exponent = 0;   // value = 0.d1d2d3... * 10^(exponent + 1)
};

Decimal toDecimal(double value, int precision) {
    Decimal d;
    if (value == 0 || !std::isfinite(value)) {
        return d;
    }
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*e", precision - 1, value);
    std::string_view text(buffer);
    if (text.front() == '-') {
        d.negative = true;
        text.remove_prefix(1);
    }
    const auto e = text.find('e');
    d.digits.push_back(text[0]);
    if (precision > 1) {
        d.digits.append(text.substr(2, e - 2));
    }
    d.exponent = std::atoi(text.data() + e + 1);
    return d;
}

void dropTrailingZeros(std::string& digits, std::size_t keep = 0) {
    while (digits.size() > keep && digits.back() == '0') {
        digits.pop_back();
    }
}

std::string significantText(double value, int precision, int lastPlainExponent,
                            const Symbols& symbols) {
    Decimal d = toDecimal(value, precision);
    if (d.digits.empty()) {
        return "0"; // negative zero too
    }
    dropTrailingZeros(d.digits, 1);
    std::string out = d.negative ? "-" : "";
    if (d.exponent >= -4 && d.exponent <= lastPlainExponent) {
        std::string whole;
        std::string fraction;
        if (d.exponent >= 0) {
            const auto wholeDigits = static_cast<std::size_t>(d.exponent + 1);
            whole = d.digits.substr(0, std::min(wholeDigits, d.digits.size()));
            whole.resize(wholeDigits, '0');
            if (d.digits.size() > wholeDigits) {
                fraction = d.digits.substr(wholeDigits);
            }
        } else {
            whole = "0";
            fraction = std::string(static_cast<std::size_t>(-d.exponent - 1), '0') + d.digits;
        }
        out += whole;
        if (!fraction.empty()) {
            out += symbols.decimal + fraction;
        }
        return out;
    }
    out += d.digits[0];
    if (d.digits.size() > 1) {
        out += symbols.decimal + d.digits.substr(1);
    }
    out += 'E';
    out += d.exponent < 0 ? '-' : '+';
    const std::string exponent = std::to_string(std::abs(d.exponent));
    if (exponent.size() < 2) {
        out += '0';
    }
    out += exponent;
    return out;
}

bool startsWith(std::string_view text, std::size_t at, std::string_view symbol) {
    return !symbol.empty() && text.substr(at, symbol.size()) == symbol;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::optional<double> parseAscii(const std::string& ascii) {
    double value = 0;
    const char* first = ascii.data();
    const char* last = first + ascii.size();
    if (!ascii.empty() && *first == '+') {
        ++first;
    }
#if defined(__cpp_lib_to_chars)
    const auto [end, error] = std::from_chars(first, last, value, std::chars_format::general);
    if (error != std::errc() || end != last || !std::isfinite(value)) {
        return std::nullopt;
    }
#else
    // A standard library without the floating-point from_chars (WebAssembly's
    // libc++). strtod reads the same decimal form where the C locale holds, as
    // it always does there; it would also skip blanks and read hexadecimal,
    // which a number typed by a pilot never is.
    const std::string digits(first, last);
    if (digits.empty() || isBlank(digits.front()) ||
        digits.find_first_of("xX") != std::string::npos) {
        return std::nullopt;
    }
    char* end = nullptr;
    errno = 0;
    value = std::strtod(digits.c_str(), &end);
    if (end != digits.c_str() + digits.size() || errno == ERANGE || !std::isfinite(value)) {
        return std::nullopt;
    }
#endif
    return value;
}

/// The plain-number reader: from the start of the text, as far as a number goes.
double readPrefix(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isBlank(text[i])) {
        ++i;
    }
    std::string ascii;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        ascii += text[i++];
    }
    bool digits = false;
    while (i < text.size() && isDigit(text[i])) {
        ascii += text[i++];
        digits = true;
    }
    if (i < text.size() && text[i] == '.') {
        ascii += text[i++];
        while (i < text.size() && isDigit(text[i])) {
            ascii += text[i++];
            digits = true;
        }
    }
    if (!digits) {
        return 0;
    }
    if (i + 1 < text.size() && (text[i] == 'E' || text[i] == 'e')) {
        std::size_t j = i + 1;
        std::string exponent = "e";
        if (text[j] == '-' || text[j] == '+') {
            exponent += text[j++];
        }
        if (j < text.size() && isDigit(text[j])) {
            while (j < text.size() && isDigit(text[j])) {
                exponent += text[j++];
            }
            ascii += exponent;
        }
    }
    return parseAscii(ascii).value_or(0);
}

} // namespace

std::optional<Symbols> symbolsFromPair(std::string_view pair) {
    // Western, Arabic-Indic, Persian and full-width digits: a digit cannot
    // stand for a decimal or grouping symbol.
    const auto digit = [](char32_t c) {
        return (c >= U'0' && c <= U'9') || (c >= 0x660 && c <= 0x669) ||
               (c >= 0x6F0 && c <= 0x6F9) || (c >= 0xFF10 && c <= 0xFF19);
    };
    std::size_t at = 0;
    const auto decimal = decodeUtf8(pair, at);
    const std::size_t split = at;
    const auto grouping = decimal ? decodeUtf8(pair, at) : std::nullopt;
    if (!grouping || at != pair.size() || digit(*decimal) || digit(*grouping)) {
        return std::nullopt;
    }
    return Symbols{std::string(pair.substr(0, split)), std::string(pair.substr(split))};
}

std::string generalText(double value, const Symbols& symbols) {
    return significantText(value, 15, 14, symbols);
}

std::string exponentText(double value, int digits, const Symbols& symbols) {
    // No exponent lies in -4..-5: the plain notation is never chosen.
    return significantText(value, std::clamp(digits, 1, 17), -5, symbols);
}

std::string singleText(float value, const Symbols& symbols) {
    return significantText(static_cast<double>(value), 7, 6, symbols);
}

std::string formatNumber(double value, std::string_view pattern, const Symbols& symbols) {
    const auto point = pattern.find('.');
    const std::string_view wholePattern = pattern.substr(0, point);
    const std::string_view fractionPattern =
        point == std::string_view::npos ? std::string_view{} : pattern.substr(point + 1);
    const bool grouped = wholePattern.find(',') != std::string_view::npos;
    const auto minWhole =
        static_cast<std::size_t>(std::count(wholePattern.begin(), wholePattern.end(), '0'));
    const auto minFraction =
        static_cast<std::size_t>(std::count(fractionPattern.begin(), fractionPattern.end(), '0'));
    const auto maxFraction =
        minFraction +
        static_cast<std::size_t>(std::count(fractionPattern.begin(), fractionPattern.end(), '#'));

    Decimal d = toDecimal(value, 15);
    // Round half away from zero at the last shown decimal.
    const long keep = d.exponent + 1 + static_cast<long>(maxFraction);
    if (!d.digits.empty() && keep < static_cast<long>(d.digits.size())) {
        if (keep < 0) {
            d.digits.clear();
        } else {
            const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
            d.digits.resize(static_cast<std::size_t>(keep));
            if (up) {
                std::size_t i = d.digits.size();
                while (i > 0 && d.digits[i - 1] == '9') {
                    d.digits[--i] = '0';
                }
                if (i == 0) {
                    d.digits.insert(d.digits.begin(), '1');
                    ++d.exponent;
                } else {
                    ++d.digits[i - 1];
                }
            }
        }
    }
    std::string whole;
    std::string fraction;
    const long wholeDigits = d.digits.empty() ? 0 : d.exponent + 1;
    auto digitAt = [&](long i) {
        return i >= 0 && i < static_cast<long>(d.digits.size())
                   ? d.digits[static_cast<std::size_t>(i)]
                   : '0';
    };
    for (long i = 0; i < wholeDigits; ++i) {
        whole += digitAt(i);
    }
    for (long i = 0; i < static_cast<long>(maxFraction); ++i) {
        fraction += digitAt(wholeDigits + i);
    }
    dropTrailingZeros(fraction, minFraction);
    const bool zero =
        std::all_of(whole.begin(), whole.end(), [](char c) { return c == '0'; }) &&
        std::all_of(fraction.begin(), fraction.end(), [](char c) { return c == '0'; });
    if (whole.size() < minWhole) {
        whole.insert(0, minWhole - whole.size(), '0');
    }
    std::string out = d.negative && !zero ? "-" : "";
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (grouped && i > 0 && (whole.size() - i) % 3 == 0) {
            out += symbols.grouping;
        }
        out += whole[i];
    }
    if (point != std::string_view::npos) {
        out += symbols.decimal + fraction;
    }
    return out;
}

std::optional<double> readRegional(std::string_view text, const Symbols& symbols) {
    std::size_t i = 0;
    std::size_t end = text.size();
    while (i < end && isBlank(text[i])) {
        ++i;
    }
    while (end > i && isBlank(text[end - 1])) {
        --end;
    }
    std::string ascii;
    if (i < end && (text[i] == '-' || text[i] == '+')) {
        ascii += text[i++];
    }
    bool digits = false;
    bool decimal = false;
    while (i < end) {
        if (isDigit(text[i])) {
            ascii += text[i++];
            digits = true;
        } else if (!decimal && startsWith(text, i, symbols.decimal)) {
            ascii += '.';
            decimal = true;
            i += symbols.decimal.size();
        } else if (!decimal && startsWith(text, i, symbols.grouping)) {
            i += symbols.grouping.size();
        } else {
            break;
        }
    }
    if (!digits) {
        return std::nullopt;
    }
    if (i < end && (text[i] == 'E' || text[i] == 'e')) {
        ascii += 'e';
        ++i;
        if (i < end && (text[i] == '-' || text[i] == '+')) {
            ascii += text[i++];
        }
        const std::size_t first = i;
        while (i < end && isDigit(text[i])) {
            ascii += text[i++];
        }
        if (i == first) {
            return std::nullopt;
        }
    }
    if (i != end) {
        return std::nullopt;
    }
    return parseAscii(ascii);
}

double readNumber(std::string_view text, const Symbols& symbols) {
    if (text.empty() || !readRegional(text, symbols)) {
        return 0;
    }
    if (symbols.decimal == ".") {
        return readPrefix(text);
    }
    return *readRegional(text, symbols);
}

std::optional<double> readFigure(std::string_view text, const Symbols& symbols) {
    const auto value = readRegional(text, symbols);
    if (!value || symbols.grouping.empty() || text.find(symbols.grouping) == text.npos) {
        return value;
    }
    // The whole part: from the first digit to the decimal symbol or the exponent.
    const std::size_t first = text.find_first_of("0123456789");
    std::size_t end = symbols.decimal.empty() ? text.npos : text.find(symbols.decimal, first);
    end = std::min({end, text.find_first_of("eE", first), text.find_last_of("0123456789") + 1});
    const std::string_view whole = text.substr(first, end - first);
    if (whole.find(symbols.grouping) == whole.npos) {
        return std::nullopt; // a grouping symbol after the decimal one
    }
    std::size_t group = 0;
    for (std::size_t at = 0;; ++group) {
        const std::size_t next = std::min(whole.find(symbols.grouping, at), whole.size());
        const std::size_t digits = next - at;
        if (digits == 0 || digits > 3 || (group > 0 && digits != 3)) {
            return std::nullopt;
        }
        if (next == whole.size()) {
            break;
        }
        at = next + symbols.grouping.size();
    }
    return value;
}

double roundSignificant(double value, int digits) {
    const Decimal d = toDecimal(value, digits);
    if (d.digits.empty()) {
        return value; // zero, or nothing finite to round
    }
    const std::string ascii =
        (d.negative ? "-0." : "0.") + d.digits + "e" + std::to_string(d.exponent + 1);
    return parseAscii(ascii).value_or(value);
}

} // namespace zel
