// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Runway condition reports, any text: a decode or the message, never a crash;
// a decode names its runway and draws every caption at 9 or 12 points.
#include "check.h"
#include "snowtam/snowtam.h"

#include <algorithm>

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const Symbols symbols = size > 0 && data[0] % 2 ? Symbols{",", "."} : Symbols{};
    PageSheet page(symbols);
    const int which = size > 0 ? data[0] % 4 : 0; // which runway of several
    const Report report = Convert_RunwayCondition(page, fuzz::text(data, size), which);
    if (report.kind == Report::Kind::None) {
        ZEL_CHECK(!page[1].caption.empty() || !page[2].caption.empty());
    } else {
        // The refusal, and at most one line that says what is wrong.
        ZEL_CHECK(report.text.starts_with("Not a runway condition report"));
        ZEL_CHECK(std::count(report.text.begin(), report.text.end(), '\r') <= 2);
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            ZEL_CHECK(page[row].caption.empty());
        }
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        ZEL_CHECK(page[row].compact == compactCaption(page[row].caption, true));
    }
    return 0;
}
