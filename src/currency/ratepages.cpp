// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/ratepages.h"

#include "entry/text.h"

#include <expat.h>

#include <array>
#include <limits>
#include <memory>

namespace zel {
namespace {

bool isAlnum(char c) {
    return isDigit(c) || isLetter(c);
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

/// What the feed's reader gathers: each Cube element's currency and rate.
struct FeedRates {
    std::map<std::string, std::string> rates;
    bool numbers = true; ///< every rate is a number
};

void XMLCALL startElement(void* data, const XML_Char* name, const XML_Char** attributes) {
    auto& feed = *static_cast<FeedRates*>(data);
    if (localName(name) != "Cube") {
        return;
    }
    const char* currency = nullptr;
    const char* rate = nullptr;
    for (const XML_Char** a = attributes; *a != nullptr; a += 2) {
        if (std::string_view(a[0]) == "currency") {
            currency = a[1];
        } else if (std::string_view(a[0]) == "rate") {
            rate = a[1];
        }
    }
    if (currency != nullptr && rate != nullptr) {
        feed.numbers = feed.numbers && isRate(rate);
        feed.rates.emplace(currency, rate);
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
            // fourth character and yields text that is no rate.
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
    // Expat reads the whole feed and says whether it is well-formed XML.
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate("UTF-8"), XML_ParserFree);
    if (!parser || xml.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    FeedRates feed;
    XML_SetUserData(parser.get(), &feed);
    XML_SetStartElementHandler(parser.get(), startElement);
    if (XML_Parse(parser.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE) !=
            XML_STATUS_OK ||
        !feed.numbers) {
        return std::nullopt;
    }
    return std::move(feed.rates);
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

namespace {
constexpr std::chrono::sys_days Epoch = std::chrono::year{1899} / std::chrono::December / 30;
}

int daySerial(std::chrono::year_month_day date) {
    return static_cast<int>((std::chrono::sys_days{date} - Epoch).count());
}

std::string dayText(int serial) {
    static constexpr std::array<std::string_view, 12> Months{
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::chrono::year_month_day date{Epoch + std::chrono::days(serial)};
    return std::to_string(static_cast<unsigned>(date.day())) + " " +
           std::string(Months[static_cast<unsigned>(date.month()) - 1]) + " " +
           std::to_string(static_cast<int>(date.year()));
}

} // namespace zel
