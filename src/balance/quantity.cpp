// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/quantity.h"

#include "entry/text.h"

#include <cmath>

namespace zel::balance {

const Station* stationNamed(const Aircraft& aircraft, std::string_view name) {
    for (const Station& station : aircraft.stations) {
        if (lowerCase(station.name) == lowerCase(name)) {
            return &station;
        }
    }
    return nullptr;
}

std::variant<double, std::string> stationWeight(std::string_view text, const Aircraft& aircraft,
                                                const Station& station, const Symbols& symbols) {
    std::string_view number = text;
    std::string_view word;
    if (const auto blank = text.find_last_of(' '); blank != std::string_view::npos) {
        number = text.substr(0, blank);
        word = text.substr(blank + 1);
    }
    const auto value = readFigure(number, symbols);
    if (!value || !std::isfinite(*value)) {
        return "Not a number: " + std::string(number);
    }
    if (*value < 0) {
        return "a negative quantity: " + std::string(text);
    }
    const std::string unit = lowerCase(word);
    const double perUnit = station.fuel ? station.fuel->density : 1; // weight per unit typed
    if (unit.empty()) {
        return *value * perUnit;
    }
    // A weight unit converts to the profile's weight unit.
    for (WeightUnit w : {WeightUnit::Pound, WeightUnit::Kilogram}) {
        if (unit == lowerCase(unitWord(w)) || (w == WeightUnit::Pound && unit == "lbs")) {
            return *value * kilograms(w) / kilograms(aircraft.units.weight);
        }
    }
    if (station.fuel) {
        for (FuelUnit f : {FuelUnit::UsGallon, FuelUnit::Litre, FuelUnit::ImperialGallon}) {
            if (unit == lowerCase(unitWord(f))) {
                return *value * litres(f) / litres(aircraft.units.fuel) * station.fuel->density;
            }
        }
        return "not a unit of weight or fuel: " + std::string(word) + " (lb, kg, USG, L, ImpG)";
    }
    return "takes a weight (lb or kg), not " + std::string(text);
}

} // namespace zel::balance
