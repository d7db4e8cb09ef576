// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Number reading in every regional form, and the texts written back from what
// was read: a row's full-precision text reads back to the value the row keeps,
// a formatted value reads back to its value within its rounding.
#include "check.h"
#include "entry/numbertext.h"

#include <cmath>

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    static const Symbols Regions[] = {{".", ","}, {",", "."}, {".", "'"}, {",", "\xC2\xA0"}};
    const Symbols& symbols = Regions[data[0] % 4];
    const std::string_view input = fuzz::text(data + 1, size - 1);

    ZEL_CHECK(std::isfinite(readNumber(input, symbols)));
    const auto value = readRegional(input, symbols);
    if (!value) {
        return 0;
    }
    ZEL_CHECK(std::isfinite(*value));
    const std::string general = generalText(*value, symbols);
    const auto again = readRegional(general, symbols);
    ZEL_CHECK(again && generalText(*again, symbols) == general);
    // What a row keeps is what its full text reads back as.
    ZEL_CHECK(roundSignificant(*value, 15) == *again);
    static const std::pair<const char*, int> Patterns[] = {
        {"#,#0.00", 2}, {"0", 0}, {"000", 0}, {"#,#0.##############", 14}};
    for (const auto& [pattern, decimals] : Patterns) {
        const std::string shown = formatNumber(*value, pattern, symbols);
        const auto read = readRegional(shown, symbols);
        ZEL_CHECK(read);
        ZEL_CHECK(std::fabs(*read - *value) <=
                  0.5 * std::pow(10.0, -decimals) + std::fabs(*value) * 1e-14);
    }
    if (std::fabs(*value) < 3e38) {
        const std::string single = singleText(static_cast<float>(*value), symbols);
        ZEL_CHECK(readRegional(single, symbols));
    }
    return 0;
}
