// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <chrono>
#include <cmath>
#include <optional>

/// What the pages of a place and a day share: latitude and longitude rows
/// in signed degrees (north and east positive) and dates typed as yyyymmdd.
namespace zel::places {

inline constexpr std::string_view BadDate = "Invalid date (yyyymmdd)";

/// A latitude row: degrees from the south pole to the north pole.
constexpr RowSpec latitudeRow(std::string_view unit) {
    return {.unit = unit,
            .form = Form::Latitude,
            .range = {-90, 90, false, "Invalid latitude (range -90 - 90°)"}};
}
/// A longitude row: degrees west and east of Greenwich to the date line.
constexpr RowSpec longitudeRow(std::string_view unit) {
    return {.unit = unit,
            .form = Form::Longitude,
            .range = {-180, 180, false, "Invalid longitude (range -180 - 180°)"}};
}

/// yyyymmdd as a day of the Gregorian calendar; nothing for another number.
inline std::optional<std::chrono::year_month_day> dayOf(double value) {
    if (value != std::floor(value) || value < 10000101 || value > 99991231) {
        return std::nullopt;
    }
    const auto n = static_cast<long>(value);
    const std::chrono::year_month_day day{std::chrono::year(static_cast<int>(n / 10000)),
                                          std::chrono::month(static_cast<unsigned>(n / 100 % 100)),
                                          std::chrono::day(static_cast<unsigned>(n % 100))};
    if (!day.ok()) {
        return std::nullopt;
    }
    return day;
}

/// A day as yyyymmdd.
inline double numberOf(std::chrono::year_month_day day) {
    return static_cast<int>(day.year()) * 10000 + static_cast<unsigned>(day.month()) * 100 +
           static_cast<unsigned>(day.day());
}

/// Directions from 0 to 360 exclusive of 0: north is 360, as a compass says it.
inline double compass(double degrees) {
    const double turned = std::fmod(degrees, 360);
    return turned <= 0 ? turned + 360 : turned;
}

} // namespace zel::places
