// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/profile.h"

#include "entry/numbertext.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace zel::profile {
namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// The characters that code page 1252 puts at 0x80..0x9F (0 where it has none);
/// every other byte is the Latin-1 character of the same number.
constexpr std::array<char32_t, 32> Windows1252High{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::string fromWindows1252(std::string_view bytes) {
    std::string out;
    for (char byte : bytes) {
        const auto b = static_cast<unsigned char>(byte);
        const char32_t c = b >= 0x80 && b < 0xA0 ? Windows1252High[b - 0x80] : b;
        appendUtf8(out, c == 0 && b != 0 ? U'?' : c); // five codes are unassigned
    }
    return out;
}

/// UTF-8 text in code page 1252; a character the code page lacks becomes "?".
std::string toWindows1252(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t c = nextCharacter(text, at);
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out += static_cast<char>(c);
            continue;
        }
        const auto* found = std::find(Windows1252High.begin(), Windows1252High.end(), c);
        out += found != Windows1252High.end() && c != 0
                   ? static_cast<char>(0x80 + (found - Windows1252High.begin()))
                   : '?';
    }
    return out;
}

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return lowerCase(x) == lowerCase(y);
           });
}

/// One line of the file: its text and its own line end ("\r\n", "\n", "\r" or none).
struct Line {
    std::string_view text;
    std::string_view end;
};

std::vector<Line> splitLines(std::string_view file) {
    std::vector<Line> lines;
    while (!file.empty()) {
        const auto stop = file.find_first_of("\r\n");
        if (stop == std::string_view::npos) {
            lines.push_back({file, {}});
            break;
        }
        const std::size_t endLength = file.substr(stop, 2) == "\r\n" ? 2 : 1;
        lines.push_back({file.substr(0, stop), file.substr(stop, endLength)});
        file.remove_prefix(stop + endLength);
    }
    if (!lines.empty() && lines.front().text.starts_with(ByteOrderMark)) {
        lines.front().text.remove_prefix(ByteOrderMark.size());
    }
    return lines;
}

/// The section name of a "[name]" line.
std::optional<std::string_view> sectionName(std::string_view line) {
    line = trim(line);
    if (!line.starts_with('[')) {
        return std::nullopt;
    }
    const auto close = line.find(']');
    if (close == std::string_view::npos) {
        return std::nullopt;
    }
    return trim(line.substr(1, close - 1));
}

/// The key of a "key=value" line; comments and other lines have none.
std::optional<std::string_view> keyName(std::string_view line) {
    const std::string_view trimmed = trim(line);
    if (trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#') {
        return std::nullopt;
    }
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) {
        return std::nullopt;
    }
    return trim(line.substr(0, equals));
}

/// Where a key sits: the index of its line (or of the last entry of its
/// section when the key is missing), and whether section and key were found.
struct Place {
    bool section = false;
    bool key = false;
    std::size_t line = 0;
};

Place locate(const std::vector<Line>& lines, std::string_view section, std::string_view key) {
    Place place;
    bool inSection = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto name = sectionName(lines[i].text)) {
            if (place.section) {
                break; // only the first section of a name counts
            }
            inSection = sameName(*name, section);
            if (inSection) {
                place.section = true;
                place.line = i;
            }
            continue;
        }
        if (!inSection) {
            continue;
        }
        if (const auto name = keyName(lines[i].text)) {
            if (sameName(*name, key)) {
                place.key = true;
                place.line = i;
                return place;
            }
        }
        if (!trim(lines[i].text).empty()) {
            place.line = i;
        }
    }
    return place;
}

std::string oneLine(std::string_view value) {
    std::string out(value);
    std::replace_if(
        out.begin(), out.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return out;
}

} // namespace

std::string read(std::string_view file, std::string_view section, std::string_view key) {
    const std::vector<Line> lines = splitLines(file);
    const Place place = locate(lines, trim(section), trim(key));
    if (!place.key) {
        return {};
    }
    const std::string_view line = lines[place.line].text;
    std::string_view value = trim(line.substr(line.find('=') + 1));
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.back() == value.front()) {
        value = value.substr(1, value.size() - 2);
    }
    std::string text = isUtf8(file) ? std::string(value) : fromWindows1252(value);
    // Cut to the longest value a read returns, on a character boundary.
    std::size_t characters = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if ((static_cast<unsigned char>(text[at]) & 0xC0) != 0x80 && characters++ == MaxValue) {
            text.resize(at);
            break;
        }
    }
    return text;
}

std::string write(std::string_view file, std::string_view section, std::string_view key,
                  std::string_view value) {
    // A value that is not UTF-8 (bytes from a web page) is taken as ANSI, so
    // that one odd value never turns the whole file into another encoding.
    std::string text = oneLine(value);
    if (!isUtf8(text)) {
        text = fromWindows1252(text);
    }
    const std::string entry =
        std::string(trim(key)) + "=" + (isUtf8(file) ? text : toWindows1252(text));
    const std::string_view newline = file.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
    const std::vector<Line> lines = splitLines(file);
    const Place place = locate(lines, trim(section), trim(key));

    if (!place.section) {
        std::string out(file);
        if (!out.empty() && out.back() != '\n' && out.back() != '\r') {
            out += newline;
        }
        return out + "[" + std::string(trim(section)) + "]" + std::string(newline) + entry +
               std::string(newline);
    }
    std::string out = file.starts_with(ByteOrderMark) ? std::string(ByteOrderMark) : std::string();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (place.key && i == place.line) {
            // The key keeps its indentation and spelling, the line its own line end.
            const std::string_view original = lines[i].text;
            const auto start = original.find_first_not_of(Blanks);
            const auto equals = original.find('=');
            out += original.substr(0, start);
            out += trim(original.substr(start, equals - start));
            out += entry.substr(entry.find('='));
            out += lines[i].end;
            continue;
        }
        out += lines[i].text;
        out += lines[i].end;
        if (!place.key && i == place.line) {
            if (lines[i].end.empty()) {
                out += newline; // the file's last line had no line end
            }
            out += entry;
            out += lines[i].end.empty() ? newline : lines[i].end;
        }
    }
    // An ANSI file whose only bytes that are not UTF-8 were just written over
    // would read as UTF-8 from now on, and its other values would change: it
    // is written wholly as UTF-8 instead, every character kept.
    if (!isUtf8(file) && isUtf8(out)) {
        const std::size_t mark = out.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
        return out.substr(0, mark) + fromWindows1252(std::string_view(out).substr(mark));
    }
    return out;
}

} // namespace zel::profile
