// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "convert/convert.h"
#include "page/units.h"

namespace zel {

// Factor values are the program's own rounded decimals and are kept as they
// stand: 2205 pounds per metric ton rather than 2204.62, 1.851999692 km per
// nautical mile rather than 1.852, 0.27777777778 m/s per km/h. The row values
// users compare with their charts depend on these exact literals.
extern const PageTable WeightPage{.name = "Weight", // base: metric ton
                                  .icon = "weight",
                                  .rows = {{{"kilogram - kg", 1000},
                                            {"pound - lbs", 2205},
                                            {"metric ton - T", 1},
                                            {"gram - g", 1000000},
                                            {"long ton - ukT", 0.984207},
                                            {"ounce - oz", 35273.96584},
                                            {"carat - ct", 5000000},
                                            {"milligram - mg", 1000000000}}},
                                  .convert = convertByFactor,
                                  .functionKey = 1};

extern const PageTable FluidPage{.name = "Fluid", // base: cubic meter
                                 .icon = "fluid",
                                 .rows = {{{"liter - L", 1000},
                                           {"cubic meter - m3", 1},
                                           {"imp gallon - Imp", -0.00454609},
                                           {"us gallon - USG", -0.00378541178},
                                           {"milliliter - ml", 1000000},
                                           {"us quart - Qt", 1056.688205},
                                           {"ounce - oz", 33814.0222},
                                           {"barrel oil", 6.289811}}},
                                 .convert = convertByFactor,
                                 .functionKey = 2};

extern const PageTable SurfacePage{.name = "Surface", // base: square meter
                                   .icon = "surface",
                                   .rows = {{{"square meter - m2", 1},
                                             {"are - a", -100},
                                             {"sq kilometer - km2", -1000000},
                                             {"hectare - ha", -10000},
                                             {"square mile - sqm", -2589988},
                                             {"square yard - sqyd", 1.195990046},
                                             {"square feet - sqft", 10.76391042},
                                             {"square inch - sqin", 1550.0031}}},
                                   .convert = convertByFactor,
                                   .functionKey = 3};

extern const PageTable SpeedPage{
    .name = "Speed", // base: kilometer per hour; rows 7 and 8 are the Beaufort scale
    .icon = "speed",
    .rows = {{{"kilometer/hour - km/h", 1},
              {"knots - kt", -units::TableKilometresPerNauticalMile},
              {"meter/second - m/s", 0.27777777778},
              {"miles/hour - mph", -1.609343871},
              {"feet/second - fps", 0.911344488},
              {"feet/minute - fpm", 54.68066929},
              row("beaufort - bft", Form::Text),
              row("beaufort - scale", Form::Text)}},
    .convert = convertSpeed,
    .functionKey = 4};

extern const PageTable DistancePage{
    .name = "Distance", // base: kilometer
    .icon = "distance",
    .rows = {{{"meter - m", 1000},
              {"nautical mile - nm", -units::TableKilometresPerNauticalMile},
              {"kilometer - km", 1},
              {"statute mile - sm", -1.609343871},
              {"centimeter - cm", 100000},
              {"yard - yd", 1093.613298},
              {"feet - ft", 3280.839895},
              {"inch - \"", 39370.07874}}},
    .convert = convertByFactor,
    .functionKey = 5};

extern const PageTable AnglePage{.name = "Angle",
                                 .icon = "angle",
                                 .rows = {{{"degrees - °"},
                                           {"radians - rad"},
                                           {"minutes - '"},
                                           {"gradian - grad"},
                                           {"pi - ||"},
                                           {"slope - %"}}},
                                 .convert = convertAngle,
                                 .functionKey = 6};

extern const PageTable TemperaturePage{
    .name = "Temperature",
    .icon = "temperature",
    .rows = {{{"celsius - °C"}, {"fahrenheit - °F"}, {"kelvin - K"}, {"rankine - °R"}}},
    .convert = convertTemperature,
    .functionKey = 7};

extern const PageTable PressurePage{.name =
                                        "Pressure", // base: kilopascal, which has no row of its own
                                    .icon = "pressure",
                                    .rows = {{{"pascal - Pa", 1000},
                                              {"atmosphere - atm", -101.325},
                                              {"hectopascal - hPa", 10},
                                              {"millibar - mb", 10},
                                              {"kg/ sq meter - kg/m2", 101.971621},
                                              {"bar - b", 0.01},
                                              {"pound / sq inch - psi", 0.145038},
                                              {"inches mercury - \"Hg", 0.295301}}},
                                    .convert = convertByFactor,
                                    .functionKey = 8};

extern const PageTable PowerPage{
    .name = "Power", // base: imperial horsepower; one unit of jet thrust K counts as 1560 HP
    .icon = "power",
    .rows = {{{"imperial - HP", 1},
              {"metric - CV pk PS", 0.986320070619531},
              {"watt - W", 745.69987158227},
              {"kilowatt - kW", 0.74569987158227},
              {"foot pound / minute", 33000},
              {"foot pound / second", 550},
              {"joule / hour", 2684519.53769617},
              {"(jet engine thrust K)", -1560}}},
    .convert = convertByFactor,
    .functionKey = 9};

} // namespace zel
