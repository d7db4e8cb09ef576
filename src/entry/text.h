// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Text as the calculator handles it: UTF-8 inside, ASCII digits and letters
/// in numbers, codes and reports.
namespace zel {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
/// ASCII letters in upper or lower case; any other byte is left as it is.
constexpr char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);

/// What stands for a blank in pasted text besides the space: tabs, line
/// breaks, and the no-break, narrow no-break and thin spaces.
inline constexpr std::string_view OtherBlanks[] = {"\t",       "\r",           "\n",
                                                   "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89"};

/// The number of characters of UTF-8 text (its bytes that start one).
std::size_t charCount(std::string_view text);
/// Appends one character as UTF-8.
void appendUtf8(std::string& text, char32_t c);
/// The well-formed UTF-8 character at `at`, which moves past it; nothing for
/// a byte that starts none (an overlong form, a surrogate, a cut sequence),
/// and `at` moves one byte.
std::optional<char32_t> decodeUtf8(std::string_view text, std::size_t& at);
/// As decodeUtf8, but a stray byte stands for itself (as code page 1252's
/// first 256 code points would read it).
char32_t nextCharacter(std::string_view text, std::size_t& at);
/// Whether the bytes are well-formed UTF-8 throughout.
bool isUtf8(std::string_view bytes);

} // namespace zel
