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

#include <cmath>
#include <optional>

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

/// A course in whole degrees, 001 to 360: north is 360.
std::string courseText(double course, const Symbols& symbols) {
    const double degrees = std::round(places::compass(course));
    return formatNumber(degrees == 0 ? 360 : degrees, "000", symbols);
}

/// Two places mirrored across the equator (the second at the first's
/// latitude south of it) are joined by a geodesic and its mirror image, of
/// the same length; the image leaves on the course the first arrives on.
/// When the two differ and the image too ends within a nautical mile of the
/// destination (antipodal places, or nearly), no one course is the shortest:
/// the image's course is returned.
std::optional<double> otherShortestCourse(const PageSheet& page, double metres, double initial,
                                          double final) {
    if (std::fabs(std::remainder(initial - final, 360)) < 0.5) {
        return std::nullopt;
    }
    const GeographicLib::Geodesic& earth = GeographicLib::Geodesic::WGS84();
    double latitude = 0;
    double longitude = 0;
    earth.Direct(page.value(FromLatitude), page.value(FromLongitude), final, metres, latitude,
                 longitude);
    double apart = 0;
    earth.Inverse(latitude, longitude, page.value(ToLatitude), page.value(ToLongitude), apart);
    if (apart > units::MetresPerNauticalMile) {
        return std::nullopt;
    }
    return final;
}

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
    if (metres == 0) {
        return {};
    }
    if (const auto other = otherShortestCourse(page, metres, initial, final)) {
        page.setNote("Antipodal: no single shortest way; initial course " +
                     courseText(initial, page.symbols()) + " or " +
                     courseText(*other, page.symbols()) + " is as short");
        return {};
    }
    page.setValue(InitialCourse, places::compass(initial));
    page.setValue(FinalCourse, places::compass(final));
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
