// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Great Circle: the shortest way between two places over the Earth, on the
// WGS84 ellipsoid (Karney's geodesic, by GeographicLib). On long legs it
// differs from the sphere of 1' = 1 nm by up to half a percent, and the
// course changes along it: the final course is the one on arrival.
#include "page/pagetable.h"
#include "page/places.h"
#include "page/units.h"

#include <GeographicLib/Geodesic.hpp>

namespace zel {
namespace {

enum Row {
    FromLatitude = 1,
    FromLongitude = 2,
    ToLatitude = 3,
    ToLongitude = 4,
    DistanceNm = 5,
    DistanceKm = 6,
    InitialCourse = 7,
    FinalCourse = 8
};

Report convertGreatCircle(PageSheet& page, double x, int& inputRow) {
    page.setValue(inputRow, x);
    page.markGiven(inputRow);
    for (int row = DistanceNm; row <= FinalCourse; ++row) {
        page.clear(row);
    }
    for (int row = FromLatitude; row <= ToLongitude; ++row) {
        if (!page.holds(row)) {
            return {};
        }
    }
    double metres = 0;
    double initial = 0;
    double final = 0;
    GeographicLib::Geodesic::WGS84().Inverse(page.value(FromLatitude), page.value(FromLongitude),
                                             page.value(ToLatitude), page.value(ToLongitude),
                                             metres, initial, final);
    page.setValue(DistanceNm, metres / units::MetresPerNauticalMile);
    page.setValue(DistanceKm, metres / 1000);
    // The same place twice has no course to fly.
    if (metres > 0) {
        page.setValue(InitialCourse, places::compass(initial));
        page.setValue(FinalCourse, places::compass(final));
    }
    return {};
}

} // namespace

extern const PageTable GreatCirclePage{
    .name = "Great Circle",
    .icon = "greatCircle",
    .rows = {{
        places::latitudeRow("From Latitude - °"),
        places::longitudeRow("From Longitude - °"),
        places::latitudeRow("To Latitude - °"),
        places::longitudeRow("To Longitude - °"),
        row("Distance - nm", Form::Number, OutputOnly),
        row("Distance - km", Form::Number, OutputOnly),
        row("Initial Course - °", Form::Direction, OutputOnly),
        row("Final Course - °", Form::Direction, OutputOnly),
    }},
    .convert = convertGreatCircle,
};

} // namespace zel
