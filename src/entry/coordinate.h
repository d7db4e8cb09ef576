// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/numbertext.h"

#include <string>
#include <string_view>
#include <vector>

/// Latitudes and longitudes as pilots write them: signed decimal degrees
/// (north and east positive), degrees and decimal minutes (51°28.65'N,
/// N51 28.65) or degrees, minutes and seconds (51°28'39"N), the flight plan's
/// 5128N00028W and 512839N0002741W, and a GPS unit's N5128.6 W00027.7.
namespace zel {

enum class Axis { Either, Latitude, Longitude };

struct Coordinate {
    double degrees = 0;       ///< signed: north and east positive
    Axis axis = Axis::Either; ///< what its letter says; Either without one
};

/// What a text was read as: one coordinate, or a latitude then a longitude;
/// or, when it could not be read whole, why not.
struct CoordinateReading {
    std::vector<Coordinate> coordinates;
    /// Why the text is no coordinate, as a sentence ("Minutes and seconds
    /// are under 60."); empty when it was read.
    std::string problem;
    /// It could be read as coordinates more than one way: not a number either.
    bool ambiguous = false;

    explicit operator bool() const { return problem.empty(); }
};

/// One coordinate or a pair, in any of the forms above. A pair is separated
/// by a comma, a semicolon, a slash or a space; where a comma is a decimal
/// comma (51,4775 -0,4614) a space or a semicolon separates it. A pair
/// lettered the other way round (W000 N51) is put in order. Refused, with the
/// reason: an ambiguous text (51 28: degrees and minutes, or two places?),
/// minutes or seconds of 60 or more, two latitudes or two longitudes, a
/// latitude beyond 90° or a longitude beyond 180°, and anything else.
CoordinateReading readCoordinates(std::string_view text);

/// Whether the text is written the way a coordinate is: with a degree,
/// minute or second mark, or a hemisphere's letter standing alone ("0.5 W").
bool writtenAsCoordinate(std::string_view text);

/// Degrees and decimal minutes with the hemisphere's letter: "N 51°28.65′",
/// "W 000°27.68′" (a longitude has three figures of degrees, as charts write it).
std::string degreesMinutes(double degrees, Axis axis, const Symbols& symbols);
/// Degrees, minutes and seconds to the hundredth, "N 51°28′39.00″" (about
/// 30 cm), or whole, "N 51°28′39″".
std::string degreesMinutesSeconds(double degrees, Axis axis, const Symbols& symbols,
                                  bool hundredths = true);

} // namespace zel
