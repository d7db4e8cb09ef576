// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "flight/atmosphere.h"
#include "page/pagetable.h"

namespace zel {

using atmosphere::SeaLevelSoundSpeed;

/// Static pressure ratio p/p0 at a pressure altitude in feet (troposphere to
/// 36089 ft, then the isothermal stratosphere).
double pressureRatio(double altitudeFeet);

/// Impact pressure over static pressure at a Mach number: isentropic flow up
/// to Mach 1, the Rayleigh pitot relation behind the normal shock above it.
double impactPressureRatio(double mach);

/// The Mach number whose impact pressure ratio is `ratio` (inverse of the above).
double machFromImpactPressure(double ratio);

/// Mach - AS page: altitude, Mach, SAT, CAS, TAT, EAS, recovery factor, TAS.
Report convertAirspeeds(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
