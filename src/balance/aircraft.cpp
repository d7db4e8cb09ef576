// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/aircraft.h"

#include "entry/text.h"

#include <array>
#include <utility>

namespace zel::balance {
namespace {

constexpr std::array WeightWords{std::pair{WeightUnit::Pound, std::string_view("lb")},
                                 std::pair{WeightUnit::Kilogram, std::string_view("kg")}};
constexpr std::array ArmWords{std::pair{ArmUnit::Inch, std::string_view("in")},
                              std::pair{ArmUnit::Millimetre, std::string_view("mm")},
                              std::pair{ArmUnit::Centimetre, std::string_view("cm")},
                              std::pair{ArmUnit::Metre, std::string_view("m")}};
constexpr std::array FuelWords{std::pair{FuelUnit::UsGallon, std::string_view("USG")},
                               std::pair{FuelUnit::Litre, std::string_view("L")},
                               std::pair{FuelUnit::ImperialGallon, std::string_view("ImpG")}};

template <typename Unit, std::size_t N>
std::string_view wordOf(const std::array<std::pair<Unit, std::string_view>, N>& words, Unit unit) {
    for (auto [u, word] : words) {
        if (u == unit) {
            return word;
        }
    }
    return words[0].second;
}

template <typename Unit, std::size_t N>
std::optional<Unit> unitOf(const std::array<std::pair<Unit, std::string_view>, N>& words,
                           std::string_view word) {
    for (auto [u, w] : words) {
        if (w == word) {
            return u;
        }
    }
    return std::nullopt;
}

} // namespace

std::string_view unitWord(WeightUnit unit) {
    return wordOf(WeightWords, unit);
}
std::string_view unitWord(ArmUnit unit) {
    return wordOf(ArmWords, unit);
}
std::string_view unitWord(FuelUnit unit) {
    return wordOf(FuelWords, unit);
}
std::optional<WeightUnit> weightUnit(std::string_view word) {
    return unitOf(WeightWords, word);
}
std::optional<ArmUnit> armUnit(std::string_view word) {
    return unitOf(ArmWords, word);
}
std::optional<FuelUnit> fuelUnit(std::string_view word) {
    return unitOf(FuelWords, word);
}

double kilograms(WeightUnit unit) {
    return unit == WeightUnit::Pound ? 0.45359237 : 1.0;
}

double millimetres(ArmUnit unit) {
    switch (unit) {
    case ArmUnit::Inch:
        return 25.4;
    case ArmUnit::Centimetre:
        return 10;
    case ArmUnit::Metre:
        return 1000;
    case ArmUnit::Millimetre:
        break;
    }
    return 1;
}

double litres(FuelUnit unit) {
    switch (unit) {
    case FuelUnit::UsGallon:
        return 3.785411784;
    case FuelUnit::ImperialGallon:
        return 4.54609;
    case FuelUnit::Litre:
        break;
    }
    return 1;
}

std::string nameKey(std::string_view name) {
    const auto first = name.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return lowerCase(name.substr(first, name.find_last_not_of(" \t") - first + 1));
}

} // namespace zel::balance
