// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/catalogue.h"

namespace zel {

/// Every page of the menu, from the tables of the unit converters, the flight
/// calculators, the runway-state decoders and the currency page.
const PageCatalogue& pageCatalogue();

} // namespace zel
