// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// An aircraft profile: read, it is an aircraft that checks out and writes
// and reads back the same, or it is refused with a reason; a loading made of
// the input's bytes then works out to finite figures, and the envelope tests
// hold whichever way the corners run.
#include "balance/chart.h"
#include "balance/profile.h"
#include "balance/sheettext.h"
#include "check.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <variant>

using namespace zel;
using namespace zel::balance;

namespace {

/// Whether the text holds the word in any case of its letters.
bool spells(std::string_view text, std::string_view word) {
    const auto same = [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == b;
    };
    return std::search(text.begin(), text.end(), word.begin(), word.end(), same) != text.end();
}

bool finite(const Condition& c) {
    return std::isfinite(c.weight) && std::isfinite(c.moment);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    ProfileRead read = readProfile(text);
    if (const auto* refusal = std::get_if<std::string>(&read)) {
        ZEL_CHECK(refusal->starts_with("Not an aircraft profile: "));
        return 0;
    }
    Aircraft aircraft = std::get<Aircraft>(std::move(read));
    ZEL_CHECK(!checkProfile(aircraft));
    const std::string written = writeProfile(aircraft);
    const ProfileRead again = readProfile(written);
    ZEL_CHECK(std::holds_alternative<Aircraft>(again));
    ZEL_CHECK(writeProfile(std::get<Aircraft>(again)) == written);

    // A loading from the input's last bytes, each station's weight below the largest figure.
    if (!aircraft.empty) {
        aircraft.empty = Mass{1000, 40};
    }
    Loading loading = Loading::emptyFor(aircraft);
    for (std::size_t i = 0; i < aircraft.stations.size() && i < size; ++i) {
        loading.weights[i] = data[size - 1 - i] * 37.5;
        if (aircraft.stations[i].fuel) {
            loading.burns[i] = data[size - 1 - i] % 7 * 11.0;
        }
    }
    const LoadSheet sheet = workOut(aircraft, loading);
    ZEL_CHECK(finite(sheet.zeroFuel) && finite(sheet.takeoff) && finite(sheet.landing));
    const Symbols symbols{".", ","};
    for (const LimitLine& line : limitLines(aircraft, sheet, symbols)) {
        // The profile's own names may hold these letters ("Baginfo"); its figures never may.
        ZEL_CHECK(spells(text, "nan") || line.text.find("nan") == std::string::npos);
        ZEL_CHECK(spells(text, "inf") || line.text.find("inf") == std::string::npos);
    }
    (void)chart(aircraft, sheet, symbols);
    for (const Envelope& envelope : aircraft.envelopes) {
        const std::vector<Mass> reversed(envelope.corners.rbegin(), envelope.corners.rend());
        const Mass point{sheet.takeoff.weight, sheet.takeoff.cg()};
        ZEL_CHECK(contains(envelope.corners, point) == contains(reversed, point));
        for (Mass corner : envelope.corners) {
            ZEL_CHECK(contains(envelope.corners, corner)); // a corner is inside
        }
    }
    return 0;
}
