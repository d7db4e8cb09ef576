// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <array>
#include <string_view>

namespace zel {

/// The procedure a row click on a page runs.
enum class Converter {
    Standard,
    Speed,
    Angle,
    Temperature,
    FuelUplift,
    Endurance,
    Range,
    MachAS,
    Snowtam,
    TrackTime,
    Wind,
    WindComp,
};

/// One page of the menu: its name, its converter, and per row the unit caption
/// and the factor of the factor-table converter. A factor f > 0 is how many row
/// units make one base unit of the page; f < 0 says that one row unit is |f|
/// base units (so a published unit size can be written exactly); 0 means the
/// row is not converted by factor.
struct PageInfo {
    std::string_view name;
    Converter converter;
    std::array<std::string_view, 8> units;
    std::array<double, 8> factors;
};

inline constexpr int PageCount = 18;

namespace page {
inline constexpr int Weight = 1, Fluid = 2, Surface = 3, Speed = 4, Distance = 5, Angle = 6,
                     Temperature = 7, Pressure = 8, Power = 9, FuelUplift = 10, Endurance = 11,
                     FuelRange = 12, MachAS = 13, Snowtam = 14, TrackTime = 15, Wind = 16,
                     WindComp = 17, Currency = 18;
}

/// The page with this number, 1..18.
const PageInfo& pageInfo(int page);

/// The page a function key F1..F12 opens from the menu face, 0 for none.
int pageOfFunctionKey(int number);

/// The F-key caption drawn on a page button ("F1".."F12"), empty for none.
/// F12 is drawn on the Currency button although it opens Wind Comp.
std::string_view functionKeyCaption(int page);

} // namespace zel
