// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/fuel.h"

#include "entry/fault.h"

#include <optional>

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

/// The first unit system whose quantity and flow are both known, 0 included,
/// or 0 for none.
int completePair(const PageSheet& page) {
    for (const auto& pair : Pairs) {
        if (page.holds(pair[0]) && page.holds(pair[1])) {
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

/// Writes a result the page could work out; one it could not (a division by a
/// zero it was given) leaves the row empty, never an old figure beside the zero.
void setOrClear(PageSheet& page, int row, std::optional<double> value) {
    if (value) {
        page.setValue(row, *value);
    } else {
        page.clear(row);
    }
}

std::optional<double> quotient(double a, double b) {
    if (b == 0) {
        return std::nullopt;
    }
    return a / b;
}

/// With no complete pair, a known quantity gives the flow and a known flow the
/// quantity, kg first, then litres. US gallons are never tested: a value in
/// gallons always fills the litre row too. The other unit system is cleared.
template <typename FlowOf, typename QuantityOf>
bool solveQuantityOrFlow(PageSheet& page, FlowOf flowOf, QuantityOf quantityOf) {
    if (page.holds(1)) {
        setOrClear(page, 2, flowOf(page.value(1)));
        clearRows(page, 3, 6);
    } else if (page.holds(2)) {
        setOrClear(page, 1, quantityOf(page.value(2)));
        clearRows(page, 3, 6);
    } else if (page.holds(3)) {
        clearRows(page, 1, 2);
        const std::optional<double> flow = flowOf(page.value(3));
        setOrClear(page, 4, flow);
        setOrClear(page, 6, flow ? std::optional(*flow / LitresPerUsGallon) : std::nullopt);
    } else if (page.holds(4)) {
        clearRows(page, 1, 2);
        const std::optional<double> quantity = quantityOf(page.value(4));
        setOrClear(page, 3, quantity);
        setOrClear(page, 5, quantity ? std::optional(*quantity / LitresPerUsGallon) : std::nullopt);
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
    // A total needs what is in the tanks, the uplift (0 included) and a
    // density fuel can have: without one of them the totals are empty, never
    // left from figures that no longer stand.
    if (!page.holds(1) || !page.holds(3) || !page.holds(5) || page.value(5) == 0) {
        page.clear(7);
        page.clear(8);
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
        // A flow of 0 never empties the tanks: no endurance to show.
        const std::optional<double> hours =
            quotient(page.value(quantity), page.value(quantity + 1));
        setOrClear(page, 7, hours);
        setOrClear(page, 8, hours ? std::optional(*hours * 60) : std::nullopt);
        return {};
    }
    const double hours = page.value(7);
    if (page.holds(7) && solveQuantityOrFlow(
                             page, [&](double quantity) { return quotient(quantity, hours); },
                             [&](double flow) { return std::optional(flow * hours); })) {
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
    const double groundSpeed = page.value(7);
    if (const int quantity = completePair(page)) {
        // The range needs a ground speed, and a flow that is not 0; a range
        // typed before the ground speed is known stays as typed.
        const std::optional<double> hours =
            quotient(page.value(quantity), page.value(quantity + 1));
        if (page.holds(7) || inputRow != 8) {
            setOrClear(page, 8,
                       hours && page.holds(7) ? std::optional(*hours * groundSpeed) : std::nullopt);
        }
        return {};
    }
    const double range = page.value(8);
    // From a range, the flow or the quantity needs the ground speed too; a
    // range or ground speed of 0 gives no flow or quantity.
    if (page.holds(8) && page.holds(7) &&
        solveQuantityOrFlow(
            page,
            [&](double quantity) {
                const auto perMile = quotient(quantity, range);
                return perMile ? std::optional(*perMile * groundSpeed) : std::nullopt;
            },
            [&](double flow) { return quotient(flow * range, groundSpeed); })) {
        return {};
    }
    if (inputRow <= 6) {
        page.clear(7);
        page.clear(8);
    }
    return {};
}

} // namespace zel
