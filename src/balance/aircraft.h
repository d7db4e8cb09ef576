// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel::balance {

enum class WeightUnit { Pound, Kilogram };
enum class ArmUnit { Inch, Millimetre, Centimetre, Metre };
enum class FuelUnit { UsGallon, Litre, ImperialGallon };

/// The units a profile is written in: every weight, arm and fuel quantity of
/// it and of its loadings is in these.
struct Units {
    WeightUnit weight = WeightUnit::Pound;
    ArmUnit arm = ArmUnit::Inch;
    FuelUnit fuel = FuelUnit::UsGallon;
};

/// The largest figure a profile or a loading holds: ten million of any unit,
/// far beyond any aircraft's weight or arm (an A380 is 575,000 kg, 80,000 mm
/// long), so that no moment runs past what a double holds exactly enough.
inline constexpr double MaxFigure = 1e7;

/// A name as two names of aircraft or stations are compared: blanks around
/// it left out, letters in lower case ("Fuel " and "fuel" are one station).
std::string nameKey(std::string_view name);

/// The words a profile writes its units with: "lb", "mm", "USG".
std::string_view unitWord(WeightUnit unit);
std::string_view unitWord(ArmUnit unit);
std::string_view unitWord(FuelUnit unit);
/// The unit a word names; nothing for another word.
std::optional<WeightUnit> weightUnit(std::string_view word);
std::optional<ArmUnit> armUnit(std::string_view word);
std::optional<FuelUnit> fuelUnit(std::string_view word);

/// How many kilograms one unit weighs: the pound is 0.45359237 kg by definition.
double kilograms(WeightUnit unit);
/// How many millimetres one unit is: the inch is 25.4 mm by definition.
double millimetres(ArmUnit unit);
/// How many litres one unit holds: the US gallon is 231 cubic inches
/// (3.785411784 L), the imperial gallon 4.54609 L.
double litres(FuelUnit unit);

/// A weight at an arm: the empty aircraft, a corner of an envelope.
struct Mass {
    double weight = 0;
    double arm = 0;

    bool operator==(const Mass&) const = default;
};

/// A station that holds fuel: how much of it can be used, what it weighs (in
/// the profile's weight unit per fuel unit: 6.0 lb/USG for AVGAS, 0.72 kg/L),
/// and how much stays in the tank unused and is not in the empty weight.
struct FuelTank {
    double usable = 0;
    double density = 0;
    double unusable = 0;
    /// Fuel allowed for engine start, taxi and run-up, as a weight in the
    /// profile's weight unit (as handbooks' sample loadings and airlines'
    /// load sheets give it): burnt between the ramp and the takeoff, so
    /// Takeoff = Ramp - taxi fuel.
    double taxi = 0;
};

/// A place where the aircraft is loaded, at its arm aft of the datum.
struct Station {
    std::string name;
    double arm = 0;
    std::optional<double> max; ///< the most weight it takes
    std::optional<FuelTank> fuel;
};

/// What a category asks of one station: that it hold at most `max` (0: that
/// it be empty, as the utility category asks of a C172S's rear seats).
struct StationCondition {
    std::string station;
    double max = 0;
};

/// The CG limits of a category as a polygon of (weight, arm) corners, and
/// what the category asks of the stations besides.
struct Envelope {
    std::string name;
    std::vector<Mass> corners;
    std::vector<StationCondition> conditions;
};

/// A limit on what several stations hold together: a C172S's baggage areas
/// A and B take 120 lb and 50 lb, but at most 120 lb between them.
struct CombinedLimit {
    std::vector<std::string> stations;
    double max = 0;
};

/// The structural weight limits the handbook gives; each may be missing.
struct MaxWeights {
    std::optional<double> ramp;
    std::optional<double> takeoff;
    std::optional<double> landing;
    std::optional<double> zeroFuel;
};

/// The mean aerodynamic chord: where it starts aft of the datum, and how long it is.
struct Mac {
    double leadingEdge = 0;
    double length = 0;
};

/// An aircraft as its profile describes it.
struct Aircraft {
    std::string name;
    std::string source; ///< where the figures come from
    Units units;
    /// The aircraft's own empty weight and arm, from its weighing record;
    /// nothing in a profile as it ships.
    std::optional<Mass> empty;
    /// Moments are shown divided by it (1000 for "lb-in/1000").
    double momentDivisor = 1;
    std::optional<Mac> mac;
    MaxWeights maxWeight;
    std::vector<Station> stations;
    std::vector<CombinedLimit> combined;
    std::vector<Envelope> envelopes;
};

} // namespace zel::balance
