// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

/// The planning pages: each row typed is a given, the newest win, and every
/// other row is computed from them (see flight/solver.h).
namespace zel {

/// Altitude: pressure and density altitude in the ICAO standard atmosphere.
Report Convert_Altitude(PageSheet& page, double inputValue, int& inputRow);
/// Descent (or climb): height, distance, ground speed, time, vertical speed, path.
Report Convert_Descent(PageSheet& page, double inputValue, int& inputRow);
/// Turn: a coordinated level turn's speed, bank, rate and radius.
Report Convert_Turn(PageSheet& page, double inputValue, int& inputRow);
/// Fuel Plan: trip time and fuel, reserve and the fuel required.
Report Convert_FuelPlan(PageSheet& page, double inputValue, int& inputRow);
/// Cloud Base: the base of convective cloud from temperature and dew point.
Report Convert_CloudBase(PageSheet& page, double inputValue, int& inputRow);

} // namespace zel
