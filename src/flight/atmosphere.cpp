// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/atmosphere.h"

#include <algorithm>
#include <cmath>

namespace zel::atmosphere {
namespace {

/// The height over which pressure falls by e in isothermal air at the
/// tropopause's temperature: R T / g0, in feet (20,806 ft).
const double IsothermalScaleFeet =
    units::metresToFeet(GasConstant * TropopauseTemperature / units::Gravity);
/// The exponent of the warming layer's pressure law: g0 / (R x 0.001 K/m).
const double WarmingExponent = units::Gravity / (GasConstant * 0.001);

const double TropopauseRatio = std::pow(1 - TropopauseFeet / HeightScaleFeet, Exponent);
const double StratopauseRatio =
    TropopauseRatio * std::exp(-(StratopauseFeet - TropopauseFeet) / IsothermalScaleFeet);

} // namespace

double isaCelsius(double feet) {
    // Worked out in °C, so that the tropopause's -56.5 is that figure exactly
    // and air a pilot reads as -56.5 °C there is standard to the last digit.
    if (feet > StratopauseFeet) {
        return TropopauseCelsius + WarmingPerFoot * (feet - StratopauseFeet);
    }
    return std::max(SeaLevelCelsius - LapsePerFoot * feet, TropopauseCelsius);
}

double isaKelvin(double feet) {
    return units::kelvin(isaCelsius(feet));
}

double pressureRatio(double feet) {
    if (feet <= TropopauseFeet) {
        return std::pow(1 - feet / HeightScaleFeet, Exponent);
    }
    if (feet <= StratopauseFeet) {
        return TropopauseRatio * std::exp(-(feet - TropopauseFeet) / IsothermalScaleFeet);
    }
    return StratopauseRatio * std::pow(isaKelvin(feet) / TropopauseTemperature, -WarmingExponent);
}

double pressureAltitude(double ratio) {
    if (ratio >= TropopauseRatio) {
        return HeightScaleFeet * (1 - std::pow(ratio, 1 / Exponent));
    }
    if (ratio >= StratopauseRatio) {
        return TropopauseFeet - IsothermalScaleFeet * std::log(ratio / TropopauseRatio);
    }
    const double kelvin =
        TropopauseTemperature * std::pow(ratio / StratopauseRatio, -1 / WarmingExponent);
    return StratopauseFeet + (kelvin - TropopauseTemperature) / WarmingPerFoot;
}

double densityRatio(double feet) {
    return pressureRatio(feet) * SeaLevelTemperature / isaKelvin(feet);
}

double densityAltitude(double ratio) {
    // In the troposphere the density ratio is (1 - h / H0)^(n - 1).
    const double tropopause = densityRatio(TropopauseFeet);
    if (ratio >= tropopause) {
        return HeightScaleFeet * (1 - std::pow(ratio, 1 / (Exponent - 1)));
    }
    const double stratopause = densityRatio(StratopauseFeet);
    if (ratio >= stratopause) {
        return TropopauseFeet - IsothermalScaleFeet * std::log(ratio / tropopause);
    }
    // Above it density falls as (T / T20)^-(k + 1): p as T^-k, over T.
    const double kelvin =
        TropopauseTemperature * std::pow(ratio / stratopause, -1 / (WarmingExponent + 1));
    return StratopauseFeet + (kelvin - TropopauseTemperature) / WarmingPerFoot;
}

double tablePressureRatio(double feet) {
    if (feet < 36089) {
        return std::pow(1 - 6.8753e-6 * feet, 5.2561);
    }
    return 0.223363 * std::exp(-4.8062e-5 * (feet - 36089));
}

} // namespace zel::atmosphere
