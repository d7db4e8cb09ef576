// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The settings file: read, write one key, read again. The key reads back as
// written, and every other key, every section and every comment is unchanged.
#include "check.h"
#include "currency/profile.h"
#include "entry/text.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace zel;

namespace {

constexpr std::array<std::string_view, 3> Sections{"Rates", "Download", "rates"};
constexpr std::array<std::string_view, 6> Keys{"USD", "usd", "Date", "myCurrName", "Source", "EUR"};

std::vector<std::string_view> commentLines(std::string_view file) {
    std::vector<std::string_view> comments;
    for (std::size_t at = 0; at < file.size();) {
        const auto end = std::min(file.find_first_of("\r\n", at), file.size());
        const std::string_view line = file.substr(at, end - at);
        if (line.starts_with(';')) {
            comments.push_back(line);
        }
        at = end + 1;
    }
    return comments;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const std::string_view section = Sections[data[0] % Sections.size()];
    const std::string_view key = Keys[data[1] % Keys.size()];
    std::string_view rest = fuzz::text(data + 2, size - 2);
    const auto split = rest.find('\0');
    const std::string_view value = rest.substr(0, std::min<std::size_t>(split, 40));
    const std::string_view file = split == std::string_view::npos ? "" : rest.substr(split + 1);

    const std::string written = profile::write(file, section, key, value);
    // A plain value reads back exactly.
    if (!value.empty() && value.find_first_not_of("0123456789.ABCDEFGHIJKLMNOPQRSTUVWXYZ") ==
                              std::string_view::npos) {
        ZEL_CHECK(profile::read(written, section, key) == value);
    }
    auto same = [](std::string_view a, std::string_view b) { // names are letters only
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](char x, char y) { return (x | 32) == (y | 32); });
    };
    for (std::string_view s : Sections) {
        for (std::string_view k : Keys) {
            if (!(same(s, section) && same(k, key))) {
                ZEL_CHECK(profile::read(written, s, k) == profile::read(file, s, k));
            }
        }
    }
    // An ANSI file that a write left valid UTF-8 is written wholly as UTF-8:
    // its comments keep their characters, not their bytes.
    const bool transcoded = !isUtf8(file) && isUtf8(written);
    for (std::string_view comment : commentLines(file)) {
        ZEL_CHECK(transcoded || written.find(comment) != std::string::npos);
    }
    return 0;
}
