// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/ratepages.h"

#include <vector>

namespace zel {
namespace {

constexpr std::string_view XmlBlanks = " \t\r\n";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isAlnum(char c) {
    return isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// A rate as the feed writes it: digits with at most one decimal point.
bool isRate(std::string_view text) {
    bool digit = false;
    bool point = false;
    for (char c : text) {
        if (isDigit(c)) {
            digit = true;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            return false;
        }
    }
    return digit;
}

/// The name after an optional namespace prefix: "Cube" of "ecb:Cube".
std::string_view localName(std::string_view name) {
    const auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// A start tag's name and attributes, read from just after its "<".
struct StartTag {
    std::string_view name;
    std::map<std::string_view, std::string_view> attributes;
    bool empty = false;  ///< "<.../>"
    std::size_t end = 0; ///< just after its ">"
};

std::optional<StartTag> readStartTag(std::string_view xml, std::size_t at) {
    StartTag tag;
    const auto nameEnd = xml.find_first_of(" \t\r\n/>", at);
    if (nameEnd == std::string_view::npos || nameEnd == at) {
        return std::nullopt;
    }
    tag.name = xml.substr(at, nameEnd - at);
    at = nameEnd;
    while (true) {
        at = xml.find_first_not_of(XmlBlanks, at);
        if (at == std::string_view::npos) {
            return std::nullopt;
        }
        if (xml[at] == '>') {
            tag.end = at + 1;
            return tag;
        }
        if (xml.substr(at, 2) == "/>") {
            tag.empty = true;
            tag.end = at + 2;
            return tag;
        }
        const auto equals = xml.find_first_of("= \t\r\n/>", at);
        if (equals == std::string_view::npos || equals == at) {
            return std::nullopt;
        }
        const std::string_view name = xml.substr(at, equals - at);
        at = xml.find_first_not_of(XmlBlanks, equals);
        if (at == std::string_view::npos || xml[at] != '=') {
            return std::nullopt;
        }
        at = xml.find_first_not_of(XmlBlanks, at + 1);
        if (at == std::string_view::npos || (xml[at] != '\'' && xml[at] != '"')) {
            return std::nullopt;
        }
        const auto close = xml.find(xml[at], at + 1);
        if (close == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view value = xml.substr(at + 1, close - at - 1);
        if (value.find('<') != std::string_view::npos ||
            !tag.attributes.emplace(name, value).second) {
            return std::nullopt;
        }
        at = close + 1;
        if (at < xml.size() && XmlBlanks.find(xml[at]) == std::string_view::npos &&
            xml[at] != '>' && xml[at] != '/') {
            return std::nullopt; // attributes must be apart
        }
    }
}

} // namespace

std::optional<std::string> cutConverterRate(std::string_view page) {
    constexpr std::string_view Marker = "converter_result";
    while (true) {
        if (page.empty()) {
            return std::nullopt; // the page ended before the marker
        }
        const auto stop = page.find_first_of("\r\n");
        const std::string_view line = page.substr(0, stop);
        if (const auto marker = line.find(Marker); marker != std::string_view::npos) {
            // The rate follows "bld>"; without one the cut starts at the line's
            // fourth character, as it always has, and yields text that is no rate.
            const auto bold = line.find("bld>", marker);
            const std::size_t from = bold == std::string_view::npos ? 3 : bold + 4;
            const std::string_view rest = line.substr(std::min(from, line.size()));
            const auto blank = rest.find(' ');
            if (blank == std::string_view::npos) {
                return std::nullopt;
            }
            return std::string(rest.substr(0, blank));
        }
        if (line.empty()) {
            return std::nullopt; // the search ends at the first empty line
        }
        if (stop == std::string_view::npos) {
            return std::nullopt;
        }
        page.remove_prefix(stop + (page.substr(stop, 2) == "\r\n" ? 2 : 1));
    }
}

std::optional<std::map<std::string, std::string>> parseEcbFeed(std::string_view xml) {
    std::map<std::string, std::string> rates;
    std::vector<std::string_view> open;
    bool root = false;
    std::size_t at = 0;
    while (true) {
        const auto lt = xml.find('<', at);
        const std::string_view text = xml.substr(at, lt == std::string_view::npos ? lt : lt - at);
        if (open.empty() && text.find_first_not_of(XmlBlanks) != std::string_view::npos) {
            return std::nullopt; // text outside the document element
        }
        if (lt == std::string_view::npos) {
            break;
        }
        const std::string_view rest = xml.substr(lt);
        std::string_view close;
        if (rest.starts_with("<?")) {
            close = "?>";
        } else if (rest.starts_with("<!--")) {
            close = "-->";
        } else if (rest.starts_with("<!")) {
            close = ">";
        }
        if (!close.empty()) {
            const auto end = xml.find(close, lt + 2);
            if (end == std::string_view::npos) {
                return std::nullopt;
            }
            at = end + close.size();
            continue;
        }
        if (rest.starts_with("</")) {
            const auto end = xml.find('>', lt);
            if (end == std::string_view::npos || open.empty()) {
                return std::nullopt;
            }
            const std::string_view name = xml.substr(lt + 2, end - lt - 2);
            if (name.substr(0, name.find_last_not_of(XmlBlanks) + 1) != open.back()) {
                return std::nullopt;
            }
            open.pop_back();
            at = end + 1;
            continue;
        }
        const auto tag = readStartTag(xml, lt + 1);
        if (!tag || (open.empty() && root)) {
            return std::nullopt; // a broken tag, or a second document element
        }
        root = true;
        const auto currency = tag->attributes.find("currency");
        const auto rate = tag->attributes.find("rate");
        if (localName(tag->name) == "Cube" && currency != tag->attributes.end() &&
            rate != tag->attributes.end()) {
            if (!isRate(rate->second)) {
                return std::nullopt;
            }
            rates.emplace(currency->second, rate->second);
        }
        if (!tag->empty) {
            open.push_back(tag->name);
        }
        at = tag->end;
    }
    if (!root || !open.empty()) {
        return std::nullopt; // empty, or cut off before its end
    }
    return rates;
}

std::string percentEncode(std::string_view text) {
    static constexpr char Hex[] = "0123456789ABCDEF";
    std::string out;
    for (char c : text) {
        if (isAlnum(c) || c == '-' || c == '.' || c == '_' || c == '~') {
            out += c;
        } else {
            const auto b = static_cast<unsigned char>(c);
            out += '%';
            out += Hex[b >> 4];
            out += Hex[b & 0x0F];
        }
    }
    return out;
}

std::string fileSafe(std::string_view text) {
    std::string out;
    for (char c : text) {
        if (isAlnum(c)) {
            out += c;
        } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
            out += '_'; // one per character, not per byte
        }
    }
    return out;
}

int daySerial(std::chrono::year_month_day date) {
    using namespace std::chrono;
    constexpr sys_days Epoch = year{1899} / December / 30;
    return static_cast<int>((sys_days{date} - Epoch).count());
}

} // namespace zel
