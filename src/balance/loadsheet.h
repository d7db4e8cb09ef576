// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/aircraft.h"
#include "balance/envelope.h"

#include <optional>
#include <string>
#include <vector>

namespace zel::balance {

/// What is loaded, in the profile's weight unit, by station: each station's
/// weight (a fuel station's: the weight of the usable fuel in it), and the
/// weight of fuel burnt from each fuel station on the way.
struct Loading {
    std::vector<std::optional<double>> weights;
    std::vector<std::optional<double>> burns;

    /// An empty loading for the stations of `aircraft`.
    static Loading emptyFor(const Aircraft& aircraft);
    double weight(std::size_t station) const;
    double burn(std::size_t station) const;
};

/// A weight and its moment (weight times arm, not divided): the aircraft at
/// one moment of the flight.
struct Condition {
    double weight = 0;
    double moment = 0;
    double cg() const { return weight > 0 ? moment / weight : 0; }
};

/// The loading worked out.
struct LoadSheet {
    struct Line {
        double weight = 0;
        double moment = 0;
        bool overMax = false;    ///< more than the station's max
        bool overUsable = false; ///< more fuel than the tank's usable
        bool overBurnt = false;  ///< more fuel burnt than it holds after taxiing
        double taxi = 0;         ///< the taxi fuel burnt from it, as a weight
    };
    Condition empty;
    std::vector<Line> stations;
    /// Fuel that cannot be used and is not in the empty weight, in every condition.
    Condition unusable;
    Condition zeroFuel;
    /// Everything loaded, on the ramp before engine start.
    Condition ramp;
    /// The fuel burnt for start, taxi and run-up: Takeoff = Ramp - taxi fuel.
    Condition taxi;
    Condition takeoff;
    Condition landing;
    /// The fuel burnt from takeoff to landing, then the fuel left, from
    /// landing to zero fuel: the paths the CG takes as it burns.
    Path burn;
    Path remaining;
};

/// The sheet of a loading; the aircraft must have its empty weight.
LoadSheet workOut(const Aircraft& aircraft, const Loading& loading);

/// The percentage of the mean aerodynamic chord a CG lies at.
double macPercent(const Mac& mac, double cg);

/// The weight to move from station `from` to station `to` to bring the
/// takeoff CG to `target`: total weight times the CG's change over the
/// stations' distance. Negative: move it the other way. Nothing when the
/// stations are at one arm.
std::optional<double> shiftWeight(const Aircraft& aircraft, const LoadSheet& sheet,
                                  std::size_t from, std::size_t to, double target);
/// The weight to add at `station` to bring the takeoff CG to `target`:
/// weight times the CG's change over the distance from the station to the
/// target. Negative: weight to take off there. Nothing when the station is at
/// the target.
std::optional<double> ballastWeight(const Aircraft& aircraft, const LoadSheet& sheet,
                                    std::size_t station, double target);

/// Which of the conditions.
enum class Point { ZeroFuel, Ramp, Takeoff, Landing };

/// Whether each point, and the burn line through them, lies in one envelope,
/// and which of the category's conditions the loading does not meet.
struct EnvelopeCheck {
    bool zeroFuel = false;
    bool takeoff = false;
    bool landing = false;
    bool burnLine = false;
    double leaves = 0;              ///< where the burn line first leaves it, when it does
    std::vector<std::size_t> unmet; ///< indexes into the envelope's conditions

    bool whole() const { return zeroFuel && takeoff && landing && burnLine; }
    bool allowed() const { return unmet.empty(); }
};
EnvelopeCheck check(const Aircraft& aircraft, const Envelope& envelope, const LoadSheet& sheet);

/// What the stations of a combined limit hold together.
double combinedWeight(const Aircraft& aircraft, const LoadSheet& sheet, const CombinedLimit& limit);

/// Whether every maximum holds: the weights (the ramp weight against the
/// max ramp, the takeoff weight against the max takeoff), each station's
/// max, each combined limit, the usable fuel, no more burnt than loaded.
bool maximaHold(const Aircraft& aircraft, const LoadSheet& sheet);
/// Whether the maxima hold and the whole loading lies inside at least one
/// envelope whose conditions it meets.
bool withinLimits(const Aircraft& aircraft, const LoadSheet& sheet);

} // namespace zel::balance
