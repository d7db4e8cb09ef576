// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Any text read as coordinates: one or two finite values within the poles
// and the date line, a pair latitude first, and each shown again in degrees
// and minutes reads back to the same hundredth of a minute.
#include "check.h"
#include "entry/coordinate.h"

#include <cmath>

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const CoordinateReading reading = readCoordinates(fuzz::text(data, size));
    if (!reading) {
        ZEL_CHECK(reading.coordinates.empty());
        return 0;
    }
    const std::vector<Coordinate>* read = &reading.coordinates;
    ZEL_CHECK(read->size() == 1 || read->size() == 2);
    for (const Coordinate& c : *read) {
        ZEL_CHECK(std::isfinite(c.degrees));
        ZEL_CHECK(std::fabs(c.degrees) <= (c.axis == Axis::Latitude ? 90 : 180));
        const Axis axis =
            c.axis == Axis::Either && std::fabs(c.degrees) > 90 ? Axis::Longitude : c.axis;
        const std::string shown = degreesMinutes(c.degrees, axis, Symbols{});
        const auto again = readCoordinates(shown);
        ZEL_CHECK(again && again.coordinates.size() == 1);
        ZEL_CHECK(std::fabs(again.coordinates.front().degrees - c.degrees) <= 0.5 / 6000 + 1e-9);
        const std::string seconds = degreesMinutesSeconds(c.degrees, axis, Symbols{});
        const auto exact = readCoordinates(seconds);
        ZEL_CHECK(exact && exact.coordinates.size() == 1);
        ZEL_CHECK(std::fabs(exact.coordinates.front().degrees - c.degrees) <= 0.5 / 360000 + 1e-9);
    }
    if (read->size() == 2) {
        ZEL_CHECK(read->front().axis == Axis::Latitude && read->back().axis == Axis::Longitude);
    }
    return 0;
}
