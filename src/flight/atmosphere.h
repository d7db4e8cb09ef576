// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/units.h"

/// The ICAO standard atmosphere, as every page that needs it reads it: a
/// troposphere whose temperature falls 6.5 K per km (1.98 °C per 1000 ft) to
/// -56.5 °C at 11 km (36,089 ft), an isothermal layer up to 20 km (65,617 ft),
/// then air that warms 1 K per km. Heights are pressure altitudes in feet.
namespace zel::atmosphere {

using units::ZeroCelsius;
inline constexpr double SeaLevelPressure = 1013.25;     ///< hPa
inline constexpr double SeaLevelTemperature = 288.15;   ///< kelvin, 15 °C
inline constexpr double TropopauseTemperature = 216.65; ///< kelvin, -56.5 °C
inline constexpr double SeaLevelCelsius = 15;
inline constexpr double TropopauseCelsius = -56.5;
inline constexpr double SeaLevelSoundSpeed = 661.2454985; ///< knots
/// The lapse rate of the troposphere, 0.0065 K/m, per foot.
inline constexpr double LapsePerFoot = 0.0019812;
inline constexpr double TropopauseFeet = units::metresToFeet(11000);
/// Where the isothermal layer ends and the air warms again, 1 K per km.
inline constexpr double StratopauseFeet = units::metresToFeet(20000);
inline constexpr double WarmingPerFoot = 0.001 * units::MetresPerFoot;
/// The specific gas constant of dry air, J/(kg K).
inline constexpr double GasConstant = 287.05287;
/// The exponent n = g0 / (R x lapse) of the troposphere's pressure law, and
/// its height scale H0 = T0 / lapse (44,330.77 m) in feet.
inline constexpr double Exponent = units::Gravity / (GasConstant * 0.0065);
inline constexpr double HeightScaleFeet = SeaLevelTemperature / 0.0065 / units::MetresPerFoot;

/// The standard temperature at a pressure altitude, in kelvin.
double isaKelvin(double pressureAltitudeFeet);
/// The same in °C.
double isaCelsius(double pressureAltitudeFeet);

/// p/p0 at a pressure altitude: (1 - PA / H0)^n in the troposphere, falling
/// exponentially in the isothermal layer and by a power law above it.
double pressureRatio(double pressureAltitudeFeet);
/// The pressure altitude of a pressure ratio: the inverse of the above.
double pressureAltitude(double ratio);

/// The standard density ratio rho/rho0 at an altitude: p/p0 x T0/T.
double densityRatio(double altitudeFeet);
/// The standard altitude of a density ratio: the inverse of the above.
double densityAltitude(double ratio);

/// p/p0 as the airspeed tables were computed: the troposphere's law with its
/// coefficients rounded as the published tables print them (6.8753e-6 per ft,
/// 5.2561), then the isothermal stratosphere above 36,089 ft. The airspeeds
/// pilots check against those tables depend on these figures, so they are
/// kept as they stand.
double tablePressureRatio(double altitudeFeet);

} // namespace zel::atmosphere
