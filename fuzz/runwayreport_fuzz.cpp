// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Runway condition reports, any text: a decode or the message, never a crash;
// a decode names its runway, a refusal says what is wrong and shows nothing.
#include "check.h"
#include "snowtam/snowtam.h"

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const Symbols symbols = size > 0 && data[0] % 2 ? Symbols{",", "."} : Symbols{};
    PageSheet page(symbols);
    const int which = size > 0 ? data[0] % 4 : 0; // which runway of several
    const Report report = decodeRunwayCondition(page, fuzz::text(data, size), which);
    if (report.kind == Report::Kind::None) {
        ZEL_CHECK(!page[1].text.empty() || !page[2].text.empty());
    } else {
        // The refusal, and at most one paragraph that says what is wrong.
        ZEL_CHECK(!report.paragraphs.empty() && report.paragraphs.size() <= 2);
        ZEL_CHECK(report.paragraphs.front() == "Not a runway condition report");
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            ZEL_CHECK(page[row].text.empty());
        }
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        ZEL_CHECK(!page[row].value); // a report is words
    }
    return 0;
}
