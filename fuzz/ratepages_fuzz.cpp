// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Whatever a rate server sends: the converter page cut and the ECB feed parser
// never fail, a cut rate is one line without blanks, a feed rate is a number.
#include "check.h"
#include "currency/ratepages.h"

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view input = fuzz::text(data, size);
    if (const auto rate = cutConverterRate(input)) {
        ZEL_CHECK(rate->find_first_of(" \r\n") == std::string::npos);
    }
    if (const auto rates = parseEcbFeed(input)) {
        for (const auto& [code, rate] : *rates) {
            ZEL_CHECK(!rate.empty() && rate.find_first_not_of("0123456789.") == std::string::npos);
        }
    }
    return 0;
}
