// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/pages.h"

#include <stdexcept>

namespace zel {
namespace {

// Factor values are the program's own rounded decimals and are kept as they
// stand: 2205 pounds per metric ton rather than 2204.62, 1.851999692 km per
// nautical mile rather than 1.852, 0.27777777778 m/s per km/h. The row values
// users compare with their charts depend on these exact literals.
constexpr std::array<PageInfo, PageCount> Pages{{
    {"Weight", // base: metric ton
     Converter::Standard,
     {"kilogram - kg", "pound - lbs", "metric ton - T", "gram - g", "long ton - ukT", "ounce - oz",
      "carat - ct", "milligram - mg"},
     {1000, 2205, 1, 1000000, 0.984207, 35273.96584, 5000000, 1000000000}},
    {"Fluid", // base: cubic meter
     Converter::Standard,
     {"liter - L", "cubic meter - m3", "imp gallon - Imp", "us gallon - USG", "milliliter - ml",
      "us quart - Qt", "ounce - oz", "barrel oil"},
     {1000, 1, -0.00454609, -0.00378541178, 1000000, 1056.688205, 33814.0222, 6.289811}},
    {"Surface", // base: square meter
     Converter::Standard,
     {"square meter - m2", "are - a", "sq kilometer - km2", "hectare - ha", "square mile - sqm",
      "square yard - sqyd", "square feet - sqft", "square inch - sqin"},
     {1, -100, -1000000, -10000, -2589988, 1.195990046, 10.76391042, 1550.0031}},
    {"Speed", // base: kilometer per hour; rows 7 and 8 are the Beaufort scale
     Converter::Speed,
     {"kilometer/hour - km/h", "knots - kt", "meter/second - m/s", "miles/hour - mph",
      "feet/second - fps", "feet/minute - fpm", "beaufort - bft", "beaufort - scale"},
     {1, -1.851999692, 0.27777777778, -1.609343871, 0.911344488, 54.68066929, 0, 0}},
    {"Distance", // base: kilometer
     Converter::Standard,
     {"meter - m", "nautical mile - nm", "kilometer - km", "statute mile - sm", "centimeter - cm",
      "yard - yd", "feet - ft", "inch - \""},
     {1000, -1.851999692, 1, -1.609343871, 100000, 1093.613298, 3280.839895, 39370.07874}},
    {"Angle",
     Converter::Angle,
     {"degrees - °", "radians - rad", "minutes - '", "gradian - grad", "pi - ||", "slope - %", "",
      ""},
     {}},
    {"Temperature",
     Converter::Temperature,
     {"celsius - °C", "fahrenheit - °F", "kelvin - K", "rankine - °R", "", "", "", ""},
     {}},
    {"Pressure", // base: kilopascal, which has no row of its own
     Converter::Standard,
     {"pascal - Pa", "atmosphere - atm", "hectopascal - hPa", "millibar - mb",
      "kg/ sq meter - kg/m2", "bar - b", "pound / sq inch - psi", "inches mercury - \"Hg"},
     {1000, -101.325, 10, 10, 101.971621, 0.01, 0.145038, 0.295301}},
    {"Power", // base: imperial horsepower; one unit of jet thrust K counts as 1560 HP
     Converter::Standard,
     {"imperial - HP", "metric - CV pk PS", "watt - W", "kilowatt - kW", "foot pound / minute",
      "foot pound / second", "joule / hour", "(jet engine thrust K)"},
     {1, 0.986320070619531, 745.69987158227, 0.74569987158227, 33000, 550, 2684519.53769617,
      -1560}},
    {"Fuel Uplift",
     Converter::FuelUplift,
     {"Remaining Fuel - kg", "Remaining Fuel - lbs", "Fuel Uplift - L", "Fuel Uplift - USG",
      "Density - kg/L", "Density - lbs/USG", "Total Fuel - kg", "Total Fuel - lbs"},
     {}},
    {"Endurance",
     Converter::Endurance,
     {"Fuel Quantity - kg", "Fuel Flow - kg/hr", "Fuel Quantity - L", "Fuel Flow - L/hr",
      "Fuel Quantity - USG", "Fuel Flow - USG/hr", "Endurance - h:mm", "Endurance - min"},
     {}},
    {"Fuel Range",
     Converter::Range,
     {"Fuel Quantity - kg", "Fuel Flow - kg/hr", "Fuel Quantity - L", "Fuel Flow - L/hr",
      "Fuel Quantity - USG", "Fuel Flow - USG/hr", "Ground Speed - kt", "Range - nm"},
     {}},
    {"Mach - AS",
     Converter::MachAS,
     {"Altitude - feet", "Mach - M", "(OAT) SAT - °C", "(IAS) CAS - kt", "(RAT) TAT - °C",
      "EAS - kt", "Recovery Factor - Kr", "TAS - kt"},
     {}},
    {"Snowtam",
     Converter::Snowtam,
     {"Runway", "Type of Deposit", "", "Extent of Deposit", "", "Depth of Deposit",
      "Brake Coefficient", "Braking Action"},
     {}},
    {"Track Time",
     Converter::TrackTime,
     {"Distance - km", "Distance - nm", "Elapse Time - h:mm", "Ground Speed - kt",
      "Track (Course) - °", "TAS - kt", "Wind Direction - °", "Wind Speed - kt"},
     {}},
    {"Wind",
     Converter::Wind,
     {"Heading - °", "TAS - kt", "Course - °", "Ground Speed - kt", "Wind Direction - °",
      "Wind Velocity - kt", "Drift - °", "Wind Comp. - kt"},
     {}},
    {"Wind Comp",
     Converter::WindComp,
     {"Wind Direction - °", "Wind Velocity - kt", "RWY heading - °", "", "", "Axis Wind - kt", "",
      "Cross Wind - kt"},
     {}},
    {"Currency", // factors and the eighth caption come from the rate store
     Converter::Standard,
     {"Australian $ - AUD", "Canadian $ - CAD", "Euro - EUR", "Indian Rupee - INR",
      "Japan Yen - JPY", "UK Pound - GBP", "US Dollar - USD", ""},
     {}},
}};

} // namespace

const PageInfo& pageInfo(int page) {
    if (page < 1 || page > PageCount) {
        throw std::out_of_range("no such page");
    }
    return Pages[static_cast<std::size_t>(page - 1)];
}

int pageOfFunctionKey(int number) {
    if (number >= 1 && number <= 10) {
        return number;
    }
    if (number == 11) {
        return page::Snowtam;
    }
    if (number == 12) {
        return page::WindComp;
    }
    return 0;
}

std::string_view functionKeyCaption(int page) {
    static constexpr std::array<std::string_view, PageCount + 1> Captions{
        "",    "F1", "F2", "F3", "F4",  "F5", "F6", "F7", "F8", "F9",
        "F10", "",   "",   "",   "F11", "",   "",   "",   "F12"};
    return page >= 1 && page <= PageCount ? Captions[static_cast<std::size_t>(page)] : "";
}

} // namespace zel
