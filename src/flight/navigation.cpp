// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/navigation.h"

#include "entry/fault.h"

#include <cmath>
#include <limits>

namespace zel {
namespace {

constexpr std::string_view InvalidDirection = "Invalid direction (range 1 - 360°)";

bool known(double v) {
    return v > Unknown;
}

/// A value the triangle knows: the row's value when above 0, else unknown. A
/// value past the single precision of the triangle fails the page.
float given(PageSheet& page, int row) {
    const double v = page.value(row);
    if (v > std::numeric_limits<float>::max()) {
        page.fail(Fault::Overflow);
        return Unknown;
    }
    return v > 0 ? static_cast<float>(v) : Unknown;
}

bool isDirection(double x) {
    return x >= 1 && x <= 360;
}

/// sqrt that has no answer for a negative argument.
std::optional<double> root(double x) {
    if (!(x >= 0)) {
        return std::nullopt;
    }
    return std::sqrt(x);
}

/// a / b that has no answer for a zero divisor.
std::optional<double> ratio(double a, double b) {
    if (b == 0) {
        return std::nullopt;
    }
    return a / b;
}

} // namespace

std::optional<double> ArcSin(double x) {
    const auto cosine = root(-x * x + 1);
    if (!cosine || *cosine == 0) {
        return std::nullopt;
    }
    return std::atan(x / *cosine);
}

bool WindT_Calculate(WindT& windT) {
    const double pi = Pi;
    auto radians = [&](float degrees) {
        return known(degrees) ? static_cast<float>(degrees / 180.0 * pi) : Unknown;
    };
    float h = radians(windT[1]);
    float c = radians(windT[3]);
    float w = radians(windT[5]);
    double tas = windT[2];
    double gs = windT[4];
    double wv = windT[6];
    double drift = 0;

    if (!known(tas) || !known(h)) {
        double theta = pi - w + c;
        if (!known(w) || !known(wv) || !known(gs) || !known(c)) {
            // A1: ground speed and heading from the wind, the TAS and the course.
            if (!known(w) || !known(wv) || !known(tas) || !known(c)) {
                return false;
            }
            const auto d = ArcSin(wv * std::sin(theta) / tas);
            if (!d) {
                return false;
            }
            drift = -*d;
            const double phi = pi - std::fabs(drift) - std::fabs(pi - std::fabs(w - c));
            const auto g = root(wv * wv + tas * tas - 2 * tas * wv * std::cos(phi));
            if (!g) {
                return false;
            }
            gs = *g;
        } else {
            // A2: the TAS is always derived from a known ground speed.
            const auto t = root(gs * gs + wv * wv - 2 * gs * wv * std::cos(theta));
            const auto s = t ? ratio(wv * std::sin(theta), *t) : std::nullopt;
            const auto d = s ? ArcSin(*s) : std::nullopt;
            if (!d) {
                return false;
            }
            tas = *t;
            drift = -*d;
        }
        h = static_cast<float>(c - drift);
    } else if (!known(w) || !known(wv)) {
        // B: the wind from heading, TAS, course and ground speed.
        if (!known(gs) || !known(c)) {
            return false;
        }
        const double theta = c - h;
        const auto v = root(gs * gs + tas * tas - 2 * tas * gs * std::cos(theta));
        const auto x = v ? ratio(tas * std::cos(h) - gs * std::cos(c), *v) : std::nullopt;
        const auto r = x ? ArcSin(*x) : std::nullopt;
        if (!r) {
            return false;
        }
        wv = *v;
        w = static_cast<float>(*r + pi + pi / 2);
        if (gs * std::sin(c) < tas * std::sin(h)) {
            w = static_cast<float>((pi - *r) - pi / 2);
        }
        drift = c - h;
    } else {
        // C: course and ground speed from heading, TAS and the wind.
        const double theta = pi + pi - w + h;
        const auto g = root(wv * wv + tas * tas - 2 * tas * wv * std::cos(theta));
        const auto s = g ? ratio(wv * std::sin(theta), *g) : std::nullopt;
        const auto d = s ? ArcSin(*s) : std::nullopt;
        if (!d) {
            return false;
        }
        gs = *g;
        drift = *d;
        c = static_cast<float>(h + drift);
    }

    auto degrees = [&](float rad) { return static_cast<float>(rad * 180.0 / pi); };
    const auto tasSingle = static_cast<float>(tas);
    const auto gsSingle = static_cast<float>(gs);
    const WindT solved{0,
                       degrees(h),
                       tasSingle,
                       degrees(c),
                       gsSingle,
                       degrees(w),
                       static_cast<float>(wv),
                       degrees(static_cast<float>(drift)),
                       gsSingle - tasSingle};
    for (float v : solved) {
        if (!std::isfinite(v)) {
            return false;
        }
    }
    windT = solved;
    return true;
}

Report Convert_WindTriangle(PageSheet& page, double x, int& inputRow) {
    page.setValue(7, Unknown); // drift and wind component are always recomputed
    page.setValue(8, Unknown);
    if (inputRow == 1 || inputRow == 3 || inputRow == 5) {
        if (!isDirection(x)) {
            return Report::warning(InvalidDirection);
        }
    } else if (inputRow == 7 || inputRow == 8 || x < 0) {
        return Report::beep();
    }
    page.setValue(inputRow, x);
    WindT windT{};
    for (int row = 1; row <= 6; ++row) {
        windT[static_cast<std::size_t>(row)] = given(page, row);
    }
    if (!WindT_Calculate(windT)) {
        return {};
    }
    for (int row = 1; row <= 8; ++row) {
        page.setSingle(row, windT[static_cast<std::size_t>(row)]);
    }
    return {};
}

Report Convert_TrackTime(PageSheet& page, double x, int& inputRow) {
    if (x < 0) {
        return Report::beep();
    }
    if (inputRow == 1) {
        page.setValue(2, x / KilometresPerNauticalMile);
    } else if (inputRow == 2) {
        page.setValue(1, x * KilometresPerNauticalMile);
    } else if ((inputRow == 5 || inputRow == 7) && !isDirection(x)) {
        return Report::warning(InvalidDirection);
    }
    page.setValue(inputRow, x);

    // With the heading unknown the solver gives the ground speed from the TAS,
    // or, when the ground speed is known, the TAS from the ground speed.
    WindT windT{
        0, Unknown, given(page, 6), given(page, 5), given(page, 4), given(page, 7), given(page, 8),
        0, 0};
    if (WindT_Calculate(windT)) {
        page.setSingle(6, windT[2]);
        page.setSingle(5, windT[3]);
        page.setSingle(4, windT[4]);
        page.setSingle(7, windT[5]);
        page.setSingle(8, windT[6]);
    }

    // Distance, time and speed, in nautical miles; the time is recomputed
    // whenever distance and ground speed are both known.
    const double distance = page.value(2);
    const double groundSpeed = page.value(4);
    const double time = page.value(3);
    if (distance > 0) {
        if (groundSpeed > 0) {
            page.setValue(3, distance / groundSpeed);
        } else if (time > 0) {
            page.setValue(4, distance / time);
        }
    } else if (groundSpeed > 0 && time > 0) {
        const double nauticalMiles = groundSpeed * time;
        page.setValue(2, nauticalMiles);
        page.setValue(1, nauticalMiles * KilometresPerNauticalMile);
    }
    return {};
}

Report Convert_WindComp(PageSheet& page, double x, int& inputRow) {
    page.setValue(6, Unknown);
    page.setValue(8, Unknown);
    if (inputRow == 1 || inputRow == 3) {
        if (!isDirection(x)) {
            return Report::warning(InvalidDirection);
        }
    } else if (inputRow == 6 || inputRow == 8 || x < 0) {
        return Report::beep();
    }
    page.setValue(inputRow, x);
    const double windDirection = page.value(1);
    const double windVelocity = page.value(2);
    const double runway = page.value(3);
    // A wind velocity of 0 counts as not given: the components stay unknown.
    if (windDirection > 0 && windVelocity > 0 && runway > 0) {
        const double alpha = (runway - windDirection) * static_cast<double>(Pi) / 180;
        page.setValue(6, -windVelocity * std::cos(alpha));
        page.setValue(8, -windVelocity * std::sin(alpha));
    }
    return {};
}

} // namespace zel
