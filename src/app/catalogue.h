// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/catalogue.h"

namespace zel {

/// Every page of the menu, from the tables of the unit converters, the flight
/// calculators and the runway-state decoder.
const PageCatalogue& pageCatalogue();

} // namespace zel
