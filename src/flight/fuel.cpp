// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/fuel.h"

#include "entry/fault.h"

namespace zel {
namespace {

/// Quantity and flow rows by unit system: kg, litres, US gallons.
constexpr int Pairs[3][2] = {{1, 2}, {3, 4}, {5, 6}};

/// Takes a quantity or flow into its row (rows 1 to 6). Mass and volume are
/// never converted into each other (no density is known): a mass clears the
/// volume rows of its kind and a volume clears the mass row; litres and US
/// gallons follow each other.
void takeQuantityOrFlow(PageSheet& page, double x, int row) {
    const bool flow = row % 2 == 0;
    const int kg = flow ? 2 : 1;
    const int litres = kg + 2;
    const int gallons = kg + 4;
    if (row == kg) {
        page.setValue(kg, x);
        page.clear(litres);
        page.clear(gallons);
    } else if (row == litres) {
        page.clear(kg);
        page.setValue(litres, x);
        page.setValue(gallons, x / LitresPerUsGallon);
    } else {
        page.clear(kg);
        page.setValue(litres, x * LitresPerUsGallon);
        page.setValue(gallons, x);
    }
}

/// The first unit system whose quantity and flow are both known, or 0.
int completePair(const PageSheet& page) {
    for (const auto& pair : Pairs) {
        if (page.value(pair[0]) != 0 && page.value(pair[1]) != 0) {
            return pair[0];
        }
    }
    return 0;
}

void clearRows(PageSheet& page, int from, int to) {
    for (int row = from; row <= to; ++row) {
        page.clear(row);
    }
}

/// With no complete pair, a known quantity gives the flow and a known flow the
/// quantity, kg first, then litres. US gallons are never tested: a value in
/// gallons always fills the litre row too. The other unit system is cleared.
template <typename FlowOf, typename QuantityOf>
bool solveQuantityOrFlow(PageSheet& page, FlowOf flowOf, QuantityOf quantityOf) {
    if (page.value(1) != 0) {
        page.setValue(2, flowOf(page.value(1)));
        clearRows(page, 3, 6);
    } else if (page.value(2) != 0) {
        page.setValue(1, quantityOf(page.value(2)));
        clearRows(page, 3, 6);
    } else if (page.value(3) != 0) {
        clearRows(page, 1, 2);
        page.setValue(4, flowOf(page.value(3)));
        page.setValue(6, page.value(4) / LitresPerUsGallon);
    } else if (page.value(4) != 0) {
        clearRows(page, 1, 2);
        page.setValue(3, quantityOf(page.value(4)));
        page.setValue(5, page.value(3) / LitresPerUsGallon);
    } else {
        return false;
    }
    return true;
}

} // namespace

Report convertFuelUplift(PageSheet& page, double x, int& inputRow) {
    if (x < 0) {
        return Report::beep();
    }
    switch (inputRow) {
    case 1:
        page.setValue(1, x);
        page.setValue(2, x * PoundsPerKilogram);
        break;
    case 2:
        page.setValue(2, x);
        page.setValue(1, x / PoundsPerKilogram);
        break;
    case 3:
        page.setValue(3, x);
        page.setValue(4, x / LitresPerUsGallon);
        break;
    case 4:
        page.setValue(4, x);
        page.setValue(3, x * LitresPerUsGallon);
        break;
    case 5:
        page.setValue(5, x);
        page.setValue(6, x * PoundsPerKilogram * LitresPerUsGallon);
        break;
    case 6:
        page.setValue(6, x);
        page.setValue(5, x / LitresPerUsGallon / PoundsPerKilogram);
        break;
    default:
        break; // the totals are results
    }
    // Jet fuel weighs about 0.8 kg/L (6.7 lbs/USG); anything heavier than water
    // is almost certainly a unit mix-up, so it is flagged at every entry.
    Report report;
    if (page.value(5) > 1.0 || page.value(6) > 10.0) {
        report = Report::warning("Verify Fuel Density !");
    }
    if (page.value(3) == 0 || page.value(5) == 0) {
        return report;
    }
    // Each total in its own unit system, from its own rows; the warning is read
    // before a total that overflows is reported.
    page.setValue(7, page.value(3) * page.value(5) + page.value(1));
    page.setValue(8, page.value(4) * page.value(6) + page.value(2));
    report.fault = page.takeFault();
    return report;
}

Report convertEndurance(PageSheet& page, double x, int& inputRow) {
    if (x < 0) {
        return Report::beep();
    }
    if (inputRow == 7) {
        page.setValue(7, x);
        page.setValue(8, x * 60);
    } else if (inputRow == 8) {
        page.setValue(7, x / 60);
        page.setValue(8, x);
    } else {
        takeQuantityOrFlow(page, x, inputRow);
    }
    if (const int quantity = completePair(page)) {
        page.setValue(7, page.value(quantity) / page.value(quantity + 1));
        page.setValue(8, page.value(7) * 60);
        return {};
    }
    const double hours = page.value(7);
    if (hours != 0 && solveQuantityOrFlow(
                          page, [&](double quantity) { return quantity / hours; },
                          [&](double flow) { return flow * hours; })) {
        return {};
    }
    if (inputRow <= 6) {
        page.clear(7);
        page.clear(8);
    }
    return {};
}

Report convertFuelRange(PageSheet& page, double x, int& inputRow) {
    if (x < 0) {
        return Report::beep();
    }
    if (inputRow == 8) {
        page.setValue(8, x);
    } else {
        // A range is never left standing against changed data.
        if (inputRow == 7) {
            page.setValue(7, x);
        } else {
            takeQuantityOrFlow(page, x, inputRow);
        }
        page.clear(8);
    }
    if (page.value(inputRow) == 0) {
        return {};
    }
    const double groundSpeed = page.value(7);
    if (const int quantity = completePair(page)) {
        page.setValue(8, page.value(quantity) / page.value(quantity + 1) * groundSpeed);
        return {};
    }
    const double range = page.value(8);
    // A known flow with a ground speed of 0 never reaches the range: no answer.
    if (range != 0 && solveQuantityOrFlow(
                          page, [&](double quantity) { return quantity / range * groundSpeed; },
                          [&](double flow) { return page.divide(flow * range, groundSpeed); })) {
        return {};
    }
    if (inputRow <= 6) {
        page.clear(7);
        page.clear(8);
    }
    return {};
}

} // namespace zel
