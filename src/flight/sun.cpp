// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Sun: sunrise, sunset and civil twilight at a place on a day, in UTC. Night,
// under most rules, runs from the end of evening civil twilight to the
// beginning of morning civil twilight. The sun's position follows NOAA's
// solar calculator equations (after Meeus, Astronomical Algorithms).
#include "page/pagetable.h"
#include "page/places.h"
#include "page/units.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace zel {
namespace {

enum Row {
    Latitude = 1,
    Longitude = 2,
    Date = 3,
    Dawn = 4,
    Sunrise = 5,
    Sunset = 6,
    Dusk = 7,
    Daylight = 8
};

/// The sun's centre this far below the zenith: sunrise and sunset allow for
/// the refraction near the horizon and the sun's radius; civil twilight ends
/// with the centre 6° below the horizon.
constexpr double SunriseZenith = 90.833;
constexpr double CivilZenith = 96;

constexpr double MinutesPerDay = 1440;

using places::dayOf, places::numberOf, units::degrees, units::radians;

/// The sun at a moment: its declination (degrees) and the equation of time
/// (minutes), from the Julian century since J2000.0.
struct SunPosition {
    double declination;
    double equationOfTime;
};

SunPosition sunAt(double julianDay) {
    const double t = (julianDay - 2451545.0) / 36525.0;
    const double meanLongitude = std::fmod(280.46646 + t * (36000.76983 + t * 0.0003032), 360);
    const double meanAnomaly = 357.52911 + t * (35999.05029 - 0.0001537 * t);
    const double eccentricity = 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
    const double m = radians(meanAnomaly);
    const double centre = std::sin(m) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
                          std::sin(2 * m) * (0.019993 - 0.000101 * t) + std::sin(3 * m) * 0.000289;
    const double omega = radians(125.04 - 1934.136 * t);
    const double apparent = meanLongitude + centre - 0.00569 - 0.00478 * std::sin(omega);
    const double meanObliquity =
        23 + (26 + (21.448 - t * (46.815 + t * (0.00059 - t * 0.001813))) / 60) / 60;
    const double obliquity = radians(meanObliquity + 0.00256 * std::cos(omega));
    const double declination = std::asin(std::sin(obliquity) * std::sin(radians(apparent)));
    const double y = std::pow(std::tan(obliquity / 2), 2);
    const double l0 = radians(meanLongitude);
    const double equation = y * std::sin(2 * l0) - 2 * eccentricity * std::sin(m) +
                            4 * eccentricity * y * std::sin(m) * std::cos(2 * l0) -
                            0.5 * y * y * std::sin(4 * l0) -
                            1.25 * eccentricity * eccentricity * std::sin(2 * m);
    return {degrees(declination), 4 * degrees(equation)};
}

/// The Julian day at 0 h UTC of a calendar day.
double julianDay(std::chrono::year_month_day day) {
    const auto sinceEpoch = std::chrono::sys_days(day).time_since_epoch().count();
    return 2440587.5 + static_cast<double>(sinceEpoch); // 1970-01-01 is JD 2440587.5
}

/// Minutes after 0 h UTC of the day at which the sun's centre crosses `zenith`,
/// rising or setting; nothing when it does not that day (always above or
/// always below). Each event is worked out at its own time, once refined.
std::optional<double> event(double day, double latitude, double longitude, double zenith,
                            bool rising) {
    double minutes = 720 - 4 * longitude; // local solar noon, roughly
    for (int pass = 0; pass < 3; ++pass) {
        const SunPosition sun = sunAt(day + minutes / MinutesPerDay);
        const double phi = radians(latitude);
        const double delta = radians(sun.declination);
        const double cosine = std::cos(radians(zenith)) / (std::cos(phi) * std::cos(delta)) -
                              std::tan(phi) * std::tan(delta);
        if (!(cosine >= -1 && cosine <= 1)) {
            return std::nullopt;
        }
        const double hourAngle = degrees(std::acos(cosine));
        const double noon = 720 - 4 * longitude - sun.equationOfTime;
        minutes = noon + (rising ? -4 : 4) * hourAngle;
    }
    return minutes;
}

/// Whether the sun's centre is above `zenith` at a minute of the UTC day.
bool above(double day, double minutes, double latitude, double longitude, double zenith) {
    const SunPosition sun = sunAt(day + minutes / MinutesPerDay);
    // The hour angle from true solar time: noon is 0°, 15° an hour.
    const double solar = minutes + sun.equationOfTime + 4 * longitude;
    const double hourAngle = radians(solar / 4 - 180);
    const double phi = radians(latitude);
    const double delta = radians(sun.declination);
    const double cosine =
        std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta) * std::cos(hourAngle);
    return cosine > std::cos(radians(zenith));
}

/// The minutes of the UTC day the sun's centre spends above `zenith`: from
/// each rising to the setting that follows, the day's ends included, so that
/// a day with only a sunset counts from 0:00 and one with no event is all
/// day or none of it. The day before's and the day after's events count
/// where they fall within it.
double minutesAbove(double day, double latitude, double longitude, double zenith) {
    std::vector<std::pair<double, bool>> crossings; // minute, rising
    for (int offset = -1; offset <= 1; ++offset) {
        for (const bool rising : {true, false}) {
            const auto at = event(day + offset, latitude, longitude, zenith, rising);
            const double minute = at ? *at + offset * MinutesPerDay : -1;
            if (at && minute > 0 && minute < MinutesPerDay) {
                crossings.emplace_back(minute, rising);
            }
        }
    }
    std::sort(crossings.begin(), crossings.end());
    bool up = above(day, 0, latitude, longitude, zenith);
    double since = 0;
    double total = 0;
    for (const auto& [minute, rising] : crossings) {
        if (rising && !up) {
            since = minute;
            up = true;
        } else if (!rising && up) {
            total += minute - since;
            up = false;
        }
    }
    return up ? total + MinutesPerDay - since : total;
}

constexpr std::array<const char*, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// "03:43", or "18:42 (20 Dec)" for a time on the UTC day before or after.
std::string clockText(double minutes, std::chrono::year_month_day day) {
    const long rounded = std::lround(minutes);
    const long offset = static_cast<long>(std::floor(static_cast<double>(rounded) / MinutesPerDay));
    const long within = rounded - offset * 1440;
    char text[48];
    std::snprintf(text, sizeof text, "%02ld:%02ld", within / 60, within % 60);
    std::string caption = text;
    if (offset != 0) {
        const std::chrono::year_month_day other{std::chrono::sys_days(day) +
                                                std::chrono::days(offset)};
        std::snprintf(text, sizeof text, " (%u %s)", static_cast<unsigned>(other.day()),
                      Months[static_cast<unsigned>(other.month()) - 1]);
        caption += text;
    }
    return caption;
}

std::string hoursText(double minutes) {
    const long rounded = std::lround(minutes);
    char text[48];
    std::snprintf(text, sizeof text, "%ld:%02ld", rounded / 60, rounded % 60);
    return text;
}

void setCaption(PageSheet& page, int row, std::string caption) {
    page.setText(row, std::move(caption));
}

Report convertSun(PageSheet& page, double x, int& inputRow) {
    if (inputRow == Date && !dayOf(x)) {
        return Report::warning(places::BadDate);
    }
    page.setValue(inputRow, x);
    if (!page.holds(Date)) {
        page.setValue(Date, numberOf(page.today()));
    }
    for (int row = Dawn; row <= Daylight; ++row) {
        page.clear(row);
    }
    if (!page.holds(Latitude) || !page.holds(Longitude)) {
        return {};
    }
    const std::chrono::year_month_day day = *dayOf(page.value(Date));
    const double latitude = page.value(Latitude);
    const double longitude = page.value(Longitude);
    const double jd = julianDay(day);
    struct Pair {
        double zenith;
        int riseRow;
        int setRow;
        const char* noRise;
        const char* noSet;
    };
    for (const Pair& p : {Pair{CivilZenith, Dawn, Dusk, "No civil dawn", "No civil dusk"},
                          Pair{SunriseZenith, Sunrise, Sunset, "No sunrise", "No sunset"}}) {
        const auto rise = event(jd, latitude, longitude, p.zenith, true);
        const auto set = event(jd, latitude, longitude, p.zenith, false);
        setCaption(page, p.riseRow, rise ? clockText(*rise, day) : p.noRise);
        setCaption(page, p.setRow, set ? clockText(*set, day) : p.noSet);
        if (p.zenith == SunriseZenith) {
            setCaption(page, Daylight, hoursText(minutesAbove(jd, latitude, longitude, p.zenith)));
        }
    }
    return {};
}

} // namespace

extern const PageTable SunPage{
    .name = "Sun",
    .icon = "sun",
    .rows = {{
        places::latitudeRow("Latitude - °"),
        places::longitudeRow("Longitude - °"),
        row("Date - yyyymmdd", Form::Date),
        row("Civil Dawn - UTC", Form::Text, OutputOnly),
        row("Sunrise - UTC", Form::Text, OutputOnly),
        row("Sunset - UTC", Form::Text, OutputOnly),
        row("Civil Dusk - UTC", Form::Text, OutputOnly),
        row("Daylight - h:mm", Form::Text, OutputOnly),
    }},
    .convert = convertSun,
};

} // namespace zel
