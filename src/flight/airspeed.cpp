// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/airspeed.h"

#include "flight/atmosphere.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace zel {
namespace {

enum Row { Altitude = 1, Mach = 2, Sat = 3, Cas = 4, Tat = 5, Eas = 6, Recovery = 7, Tas = 8 };

using atmosphere::ZeroCelsius;
/// Impact pressure ratio at exactly Mach 1, where the two flow laws meet.
const double SonicImpactPressure = std::pow(1.2, 3.5) - 1;

double standardTemperature(double altitudeFeet) {
    return atmosphere::isaKelvin(altitudeFeet);
}

using units::kelvin;

/// Total over static temperature for a Mach number and recovery factor.
double heating(double mach, double kr) {
    return 1 + 0.2 * kr * mach * mach;
}

/// Everything the page derives, before it is written.
struct Solution {
    double mach = 0;
    double sat = 0;
    double tat = 0;
    bool satComputed = false;
    bool tatComputed = false;
};

std::optional<Solution> solve(const PageSheet& page) {
    const double h = page.value(Altitude);
    const double kr = page.value(Recovery);
    const double a0 = SeaLevelSoundSpeed;
    const double delta = pressureRatio(h);
    double sat = page.value(Sat);
    double tat = page.value(Tat);
    // 0 °C is a temperature like any other: a row counts once it holds one.
    const bool satGiven = page.holds(Sat);
    const bool tatGiven = page.holds(Tat);
    if ((satGiven && kelvin(sat) <= 0) || (tatGiven && kelvin(tat) <= 0)) {
        return std::nullopt; // below absolute zero
    }

    double mach = page.value(Mach);
    if (!page.holds(Mach)) {
        if (satGiven && tatGiven) {
            if (tat < sat) {
                return std::nullopt; // the probe cannot read colder than the air
            }
            mach = std::sqrt((kelvin(tat) / kelvin(sat) - 1) / 0.2 / kr);
        } else if (page.holds(Cas)) {
            mach = machFromImpactPressure(impactPressureRatio(page.value(Cas) / a0) / delta);
        } else if (page.holds(Eas)) {
            mach = page.value(Eas) / (a0 * std::sqrt(delta));
        } else {
            const double tas = page.value(Tas);
            const double staticKelvin = satGiven ? kelvin(sat)
                                        : tatGiven
                                            ? kelvin(tat) - 0.2 * kr * 288 * tas * tas / (a0 * a0)
                                            : standardTemperature(h);
            if (!(staticKelvin > 0)) {
                return std::nullopt;
            }
            mach = tas / (a0 * std::sqrt(staticKelvin / 288));
        }
    }

    Solution s{mach, sat, tat};
    if (satGiven && !tatGiven) {
        s.tat = kelvin(sat) * heating(mach, kr) - ZeroCelsius;
        s.tatComputed = true;
    } else if (tatGiven && !satGiven) {
        s.sat = kelvin(tat) / heating(mach, kr) - ZeroCelsius;
        s.satComputed = true;
    } else if (!satGiven) {
        s.sat = standardTemperature(h) - ZeroCelsius;
        s.tat = kelvin(s.sat) * heating(mach, kr) - ZeroCelsius;
        s.satComputed = s.tatComputed = true;
    }
    if (!std::isfinite(s.mach) || !std::isfinite(s.sat) || !std::isfinite(s.tat) ||
        kelvin(s.sat) <= 0 || !std::isfinite(delta) || delta <= 0) {
        return std::nullopt;
    }
    return s;
}

} // namespace

double pressureRatio(double altitudeFeet) {
    return atmosphere::tablePressureRatio(altitudeFeet);
}

double impactPressureRatio(double mach) {
    if (mach <= 1) {
        return std::pow(1 + 0.2 * mach * mach, 3.5) - 1;
    }
    return 166.92158 * std::pow(mach, 7) / std::pow(7 * mach * mach - 1, 2.5) - 1;
}

double machFromImpactPressure(double ratio) {
    if (ratio <= SonicImpactPressure) {
        return std::sqrt(5 * (std::pow(ratio + 1, 1 / 3.5) - 1));
    }
    // Above Mach 1 the pitot relation has no closed inverse. It rises steadily
    // and faster than 1.28 M^2, which bounds the root; bisection then halves
    // the bracket a fixed number of times, well past double precision.
    double low = 1;
    double high = 1 + std::sqrt((ratio + 1) / 1.28);
    for (int step = 0; step < 200 && low < high; ++step) {
        const double mid = (low + high) / 2;
        (impactPressureRatio(mid) < ratio ? low : high) = mid;
    }
    return (low + high) / 2;
}

Report convertAirspeeds(PageSheet& page, double x, int& inputRow) {
    if (inputRow != Sat && inputRow != Tat && x < 0) {
        return Report::beep();
    }
    const PageSheet::Snapshot before = page.snapshot();
    for (int row : {Mach, Cas, Eas, Tas}) {
        page.clear(row);
    }
    // A probe recovers at most all of the heating; none given is a full recovery.
    if (!page.holds(Recovery) || page.value(Recovery) > 1) {
        page.setValue(Recovery, 1);
    }
    page.setValue(inputRow, x);
    page[inputRow].derived = false;
    // Only typed temperatures count as given: a worked-out one gives way to the
    // speed or temperature the pilot types next.
    for (int row : {Sat, Tat}) {
        const bool typedSpeedOrTemperature = inputRow != Altitude && inputRow != Recovery;
        if (row != inputRow && page[row].derived && typedSpeedOrTemperature) {
            page.clear(row);
            page[row].derived = false;
        }
    }
    if (!page.holds(Mach) && !page.holds(Cas) && !page.holds(Eas) && !page.holds(Tas)) {
        return {}; // nothing more until a speed is given
    }

    const auto s = solve(page);
    if (!s) {
        page.restore(before);
        return Report::beep();
    }
    const double a0 = SeaLevelSoundSpeed;
    const double delta = pressureRatio(page.value(Altitude));
    const double cas = a0 * machFromImpactPressure(delta * impactPressureRatio(s->mach));
    const double eas = a0 * s->mach * std::sqrt(delta);
    const double tas = a0 * s->mach * std::sqrt(kelvin(s->sat) / 288);
    if (!std::isfinite(cas) || !std::isfinite(eas) || !std::isfinite(tas)) {
        page.restore(before);
        return Report::beep();
    }
    if (s->satComputed) {
        page.setValue(Sat, s->sat);
        page[Sat].derived = true;
    }
    if (s->tatComputed) {
        page.setValue(Tat, s->tat);
        page[Tat].derived = true;
    }
    page.setValue(Mach, s->mach);
    page.setValue(Cas, cas);
    page.setValue(Eas, eas);
    page.setValue(Tas, tas);
    return {};
}

} // namespace zel
