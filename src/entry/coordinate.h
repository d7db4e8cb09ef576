// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/numbertext.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Latitudes and longitudes as pilots write them: signed decimal degrees
/// (north and east positive), degrees and decimal minutes (51°28.65'N,
/// N51 28.65) or degrees, minutes and seconds (51°28'39"N).
namespace zel {

enum class Axis { Either, Latitude, Longitude };

struct Coordinate {
    double degrees = 0;       ///< signed: north and east positive
    Axis axis = Axis::Either; ///< what its letter says; Either without one
};

/// One coordinate, or a pair of latitude then longitude
/// ("N51°28.65' W000°27.68'"); nothing for any other text: minutes or
/// seconds of 60 or more, a latitude beyond 90° or a longitude beyond 180°,
/// a pair whose first is lettered east or west or whose second north or south.
std::optional<std::vector<Coordinate>> readCoordinates(std::string_view text);

/// Whether the text is written the way a coordinate is: with a degree,
/// minute or second mark, or a hemisphere's letter standing alone ("0.5 W").
bool writtenAsCoordinate(std::string_view text);

/// Degrees and decimal minutes with the hemisphere's letter: "N 51°28.65′",
/// "W 000°27.68′" (a longitude has three figures of degrees, as charts write it).
std::string degreesMinutes(double degrees, Axis axis, const Symbols& symbols);

} // namespace zel
