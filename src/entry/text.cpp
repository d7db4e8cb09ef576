// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "entry/text.h"

#include <algorithm>

namespace zel {

std::string upperCase(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return upperCase(c); });
    return out;
}

std::string lowerCase(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return lowerCase(c); });
    return out;
}

std::size_t charCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

void appendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
        return;
    }
    static constexpr unsigned char Lead[] = {0, 0xC0, 0xE0, 0xF0};
    const int extra = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    text += static_cast<char>(Lead[extra] | (c >> (6 * extra)));
    for (int shift = 6 * (extra - 1); shift >= 0; shift -= 6) {
        text += static_cast<char>(0x80 | ((c >> shift) & 0x3F));
    }
}

std::optional<char32_t> decodeUtf8(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    std::size_t length = 0;
    char32_t c = 0;
    if (lead < 0x80) {
        ++at;
        return lead;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, c = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, c = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, c = lead & 0x07;
    }
    if (length == 0 || at + length > text.size()) {
        ++at;
        return std::nullopt;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80) {
            ++at;
            return std::nullopt;
        }
        c = (c << 6) | (next & 0x3F);
    }
    const char32_t least = length == 3 ? 0x800 : length == 4 ? 0x10000 : 0x80;
    if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++at;
        return std::nullopt;
    }
    at += length;
    return c;
}

char32_t nextCharacter(std::string_view text, std::size_t& at) {
    const std::size_t start = at;
    if (const auto c = decodeUtf8(text, at)) {
        return *c;
    }
    return static_cast<unsigned char>(text[start]);
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        if (!decodeUtf8(bytes, at)) {
            return false;
        }
    }
    return true;
}

} // namespace zel
