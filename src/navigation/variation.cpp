// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Variation: the angle between true north and magnetic north at a place and
// date, by the World Magnetic Model, and a course or heading turned from one
// to the other. Magnetic = true - variation, east variation positive
// ("variation east, magnetic least").
#include "navigation/magneticmodel.h"
#include "page/pagetable.h"
#include "page/places.h"
#include "page/units.h"

#include <chrono>
#include <cmath>

namespace zel {
namespace {

enum Row {
    Latitude = 1,
    Longitude = 2,
    Altitude = 3,
    Date = 4,
    Variation = 5,
    AnnualChange = 6,
    True = 7,
    Magnetic = 8
};

constexpr Range AltitudeRange{-1000, 60000, false, "Invalid altitude (range -1000 - 60000 ft)"};
constexpr Range DirectionRange{0, 360, false, "Invalid direction (range 0 - 360°)"};
constexpr std::string_view OutsideModel = "Invalid date (WMM2025: 20241113 - 20291231)";

/// The model's life: from its release to the end of its fifth year.
constexpr double FirstDay = 20241113;
constexpr double LastDay = 20291231;

/// Near the magnetic poles the horizontal field is too weak for a compass
/// to settle, and the variation swings widely over a short distance.
constexpr double WeakestHorizontalField = 2000; // nT
/// Below this the model's makers mark a caution zone: the compass still
/// settles, but slowly and with errors that grow as the field weakens.
constexpr double CautionHorizontalField = 6000; // nT

/// The day as a decimal year: 2025.0 is the first of January 2025.
double decimalYear(std::chrono::year_month_day day) {
    using namespace std::chrono;
    const sys_days start{day.year() / January / 1};
    const sys_days next{(day.year() + years(1)) / January / 1};
    return static_cast<int>(day.year()) + static_cast<double>((sys_days(day) - start).count()) /
                                              static_cast<double>((next - start).count());
}

Report convertVariation(PageSheet& page, double x, int& inputRow) {
    if (inputRow == Date && !places::dayOf(x)) {
        return Report::warning(places::BadDate);
    }
    if (inputRow == Date && !(x >= FirstDay && x <= LastDay)) {
        return Report::warning(OutsideModel);
    }
    page.setValue(inputRow, x);
    page.markGiven(inputRow);
    // The newest of the two directions typed is the one that holds.
    if (inputRow == True || inputRow == Magnetic) {
        const int other = inputRow == True ? Magnetic : True;
        page.forgetGiven(other);
    }
    if (!page.holds(Date)) {
        page.setValue(Date, places::numberOf(page.today()));
    }
    page.clear(Variation);
    page.clear(AnnualChange);
    const int typed = page[True].isGiven() ? True : page[Magnetic].isGiven() ? Magnetic : 0;
    if (typed != 0) {
        page.clear(typed == True ? Magnetic : True);
    }
    if (!page.holds(Latitude) || !page.holds(Longitude)) {
        return {};
    }
    const double date = page.value(Date);
    if (!(date >= FirstDay && date <= LastDay)) {
        return Report::warning(OutsideModel); // today is outside the model's life
    }
    // The model's height is above the ellipsoid; the geoid lies within about
    // 110 m of it, which moves the variation far less than its last digit.
    const navigation::MagneticField field = navigation::wmm2025().field(
        page.value(Latitude), page.value(Longitude),
        units::feetToMetres(page.value(Altitude)) / 1000, decimalYear(*places::dayOf(date)));
    if (field.horizontal < WeakestHorizontalField) {
        page.setText(Variation, "Unreliable");
        page.clear(True);
        page.clear(Magnetic);
        page.forgetGiven(True);
        page.forgetGiven(Magnetic);
        return {};
    }
    if (field.horizontal < CautionHorizontalField) {
        page.setNote("Caution: weak horizontal field (" +
                     formatNumber(std::round(field.horizontal), "#,##0", page.symbols()) +
                     "\u00A0nT), compass less reliable"); // figure and unit on one line
    }
    page.setValue(Variation, field.declination);
    page.setValue(AnnualChange, field.declinationPerYear);
    if (typed == True) {
        page.setValue(Magnetic, places::compass(page.value(True) - field.declination));
    } else if (typed == Magnetic) {
        page.setValue(True, places::compass(page.value(Magnetic) + field.declination));
    }
    return {};
}

} // namespace

extern const PageTable VariationPage{
    .name = "Variation",
    .icon = "variation",
    .rows = {{
        places::latitudeRow("Latitude - °"),
        places::longitudeRow("Longitude - °"),
        {.unit = "Altitude - ft", .range = AltitudeRange},
        row("Date - yyyymmdd", Form::Date),
        row("Variation - °", Form::EastWest, OutputOnly),
        row("Annual Change - °/yr", Form::EastWest, OutputOnly),
        {.unit = "True - °", .form = Form::Direction, .range = DirectionRange},
        {.unit = "Magnetic - °", .form = Form::Direction, .range = DirectionRange},
    }},
    .convert = convertVariation,
};

} // namespace zel
