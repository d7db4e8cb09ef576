// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <numbers>

/// The units the pages share, each defined once: lengths and speeds by their
/// international definitions (the foot is 0.3048 m, the nautical mile 1852 m),
/// angles, and temperatures in kelvin.
namespace zel::units {

inline constexpr double Pi = std::numbers::pi;

/// The π of the Angle page and the wind pages: the single-precision value
/// 3.1415927 (as a double exactly 3.1415927410125732). Pilots' tables were
/// made with it, so 180° shows 3.14159274101257 radians there, as they print.
inline constexpr float TablePi = 3.14159274101257324f;

inline constexpr double MetresPerFoot = 0.3048;
inline constexpr double MetresPerNauticalMile = 1852;
inline constexpr double FeetPerNauticalMile = MetresPerNauticalMile / MetresPerFoot;
/// Kilometres per nautical mile on the distance, speed and track time pages:
/// 1.851999692, the rounded figure of pilots' distance tables, deliberately
/// not 1.852, so that the rows match those tables to the last digit.
inline constexpr double TableKilometresPerNauticalMile = 1.851999692;
/// A knot is a nautical mile an hour.
inline constexpr double MetresPerSecondPerKnot = MetresPerNauticalMile / 3600;

/// 0 °C in kelvin.
inline constexpr double ZeroCelsius = 273.15;
/// The standard acceleration of gravity, m/s².
inline constexpr double Gravity = 9.80665;

constexpr double radians(double degrees) {
    return degrees * Pi / 180;
}
constexpr double degrees(double radians) {
    return radians * 180 / Pi;
}
constexpr double feetToMetres(double feet) {
    return feet * MetresPerFoot;
}
constexpr double metresToFeet(double metres) {
    return metres / MetresPerFoot;
}
constexpr double kelvin(double celsius) {
    return celsius + ZeroCelsius;
}
constexpr double celsius(double kelvin) {
    return kelvin - ZeroCelsius;
}

} // namespace zel::units
