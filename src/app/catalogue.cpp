// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/catalogue.h"

#include "convert/convert.h"
#include "currency/pages.h"
#include "flight/pages.h"
#include "snowtam/snowtam.h"

namespace zel {

const PageCatalogue& pageCatalogue() {
    static const PageCatalogue catalogue{
        {unitPages(), flightPages(), snowtamPages(), currencyPages()}, planningPages()};
    return catalogue;
}

} // namespace zel
