// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <algorithm>
#include <cmath>

/// The ICAO standard atmosphere, as every page that needs it reads it.
namespace zel::atmosphere {

inline constexpr double ZeroCelsius = 273.15;             ///< kelvin
inline constexpr double SeaLevelPressure = 1013.25;       ///< hPa
inline constexpr double SeaLevelTemperature = 288.15;     ///< kelvin, 15 °C
inline constexpr double TropopauseTemperature = 216.65;   ///< kelvin, -56.5 °C
inline constexpr double LapsePerFoot = 0.0019812;         ///< kelvin: 1.98 per 1000 ft
inline constexpr double TropopauseFeet = 36089;           ///< where the lapse ends
inline constexpr double SeaLevelSoundSpeed = 661.2454985; ///< knots
/// The lapse rate 0.0065 K/m, g0 = 9.80665 m/s² and R = 287.05287 J/(kg K)
/// give the exponent n = g0 / (R x lapse) of the pressure law and its height
/// scale H0 = T0 / lapse: 44,330.77 m, in feet.
inline constexpr double Exponent = 9.80665 / (287.05287 * 0.0065);
inline constexpr double HeightScaleFeet = SeaLevelTemperature / 0.0065 / 0.3048;

/// The standard temperature at a pressure altitude, °C: 15 - 0.0019812 x PA
/// below the tropopause.
inline double isaCelsius(double pressureAltitudeFeet) {
    return 15 - LapsePerFoot * pressureAltitudeFeet;
}

/// The standard temperature in kelvin, constant above the tropopause.
inline double isaKelvin(double pressureAltitudeFeet) {
    return std::max(SeaLevelTemperature - LapsePerFoot * pressureAltitudeFeet,
                    TropopauseTemperature);
}

/// p/p0 at a pressure altitude below the tropopause: (1 - PA / H0)^n.
inline double pressureRatio(double pressureAltitudeFeet) {
    return std::pow(1 - pressureAltitudeFeet / HeightScaleFeet, Exponent);
}

/// The pressure altitude of a pressure ratio: the inverse of the above.
inline double pressureAltitude(double ratio) {
    return HeightScaleFeet * (1 - std::pow(ratio, 1 / Exponent));
}

/// p/p0 as the airspeed tables were computed: the same law with its
/// coefficients rounded as the published tables print them (6.8753e-6 per ft,
/// 5.2561), then the isothermal stratosphere above 36,089 ft. The airspeeds
/// pilots check against those tables depend on these figures, so they are
/// kept as they stand.
inline double tablePressureRatio(double altitudeFeet) {
    if (altitudeFeet < TropopauseFeet) {
        return std::pow(1 - 6.8753e-6 * altitudeFeet, 5.2561);
    }
    return 0.223363 * std::exp(-4.8062e-5 * (altitudeFeet - TropopauseFeet));
}

} // namespace zel::atmosphere
