// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/loadsheet.h"

#include "balance/quantity.h"

#include <algorithm>
#include <cmath>

namespace zel::balance {

Loading Loading::emptyFor(const Aircraft& aircraft) {
    Loading loading;
    loading.weights.resize(aircraft.stations.size());
    loading.burns.resize(aircraft.stations.size());
    return loading;
}

double Loading::weight(std::size_t station) const {
    return station < weights.size() ? weights[station].value_or(0) : 0;
}

double Loading::burn(std::size_t station) const {
    return station < burns.size() ? burns[station].value_or(0) : 0;
}

LoadSheet workOut(const Aircraft& aircraft, const Loading& loading) {
    LoadSheet sheet;
    if (aircraft.empty) {
        sheet.empty = {aircraft.empty->weight, aircraft.empty->weight * aircraft.empty->arm};
    }
    Condition payload; // everything but usable fuel
    Condition fuel;
    Condition taxi;
    Condition burnt;
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        LoadSheet::Line line;
        line.weight = loading.weight(i);
        line.moment = line.weight * station.arm;
        line.overMax = station.max && line.weight > *station.max;
        if (station.fuel) {
            line.overUsable = line.weight > station.fuel->usable * station.fuel->density;
            // The allowance is burnt from what the tank holds, never more.
            line.taxi = std::min(station.fuel->taxi, line.weight);
            const double burn = loading.burn(i);
            line.overBurnt = burn > line.weight - line.taxi;
            fuel.weight += line.weight;
            fuel.moment += line.moment;
            taxi.weight += line.taxi;
            taxi.moment += line.taxi * station.arm;
            burnt.weight += burn;
            burnt.moment += burn * station.arm;
            const double unusable = station.fuel->unusable * station.fuel->density;
            sheet.unusable.weight += unusable;
            sheet.unusable.moment += unusable * station.arm;
        } else {
            payload.weight += line.weight;
            payload.moment += line.moment;
        }
        sheet.stations.push_back(line);
    }
    sheet.zeroFuel = {sheet.empty.weight + sheet.unusable.weight + payload.weight,
                      sheet.empty.moment + sheet.unusable.moment + payload.moment};
    sheet.ramp = {sheet.zeroFuel.weight + fuel.weight, sheet.zeroFuel.moment + fuel.moment};
    sheet.taxi = taxi;
    sheet.takeoff = {sheet.ramp.weight - taxi.weight, sheet.ramp.moment - taxi.moment};
    sheet.landing = {sheet.takeoff.weight - burnt.weight, sheet.takeoff.moment - burnt.moment};
    sheet.burn = {sheet.takeoff.weight, sheet.takeoff.moment, -burnt.weight, -burnt.moment};
    sheet.remaining = {sheet.landing.weight, sheet.landing.moment,
                       sheet.zeroFuel.weight - sheet.landing.weight,
                       sheet.zeroFuel.moment - sheet.landing.moment};
    return sheet;
}

double macPercent(const Mac& mac, double cg) {
    return (cg - mac.leadingEdge) / mac.length * 100;
}

std::optional<double> shiftWeight(const Aircraft& aircraft, const LoadSheet& sheet,
                                  std::size_t from, std::size_t to, double target) {
    const double distance = aircraft.stations.at(to).arm - aircraft.stations.at(from).arm;
    if (distance == 0 || sheet.takeoff.weight <= 0) {
        return std::nullopt;
    }
    return sheet.takeoff.weight * (target - sheet.takeoff.cg()) / distance;
}

std::optional<double> ballastWeight(const Aircraft& aircraft, const LoadSheet& sheet,
                                    std::size_t station, double target) {
    const double distance = aircraft.stations.at(station).arm - target;
    if (distance == 0 || sheet.takeoff.weight <= 0) {
        return std::nullopt;
    }
    return sheet.takeoff.weight * (target - sheet.takeoff.cg()) / distance;
}

EnvelopeCheck check(const Aircraft& aircraft, const Envelope& envelope, const LoadSheet& sheet) {
    EnvelopeCheck c;
    for (std::size_t k = 0; k < envelope.conditions.size(); ++k) {
        const StationCondition& condition = envelope.conditions[k];
        if (const Station* station = stationNamed(aircraft, condition.station);
            station != nullptr &&
            sheet.stations.at(static_cast<std::size_t>(station - aircraft.stations.data())).weight >
                condition.max) {
            c.unmet.push_back(k);
        }
    }
    auto inside = [&](const Condition& point) {
        return point.weight > 0 && contains(envelope.corners, {point.weight, point.cg()});
    };
    c.zeroFuel = inside(sheet.zeroFuel);
    c.takeoff = inside(sheet.takeoff);
    c.landing = inside(sheet.landing);
    // The line runs from takeoff to landing and on to zero fuel; it leaves
    // the envelope where it first meets the outside.
    c.leaves = sheet.takeoff.weight;
    c.burnLine = c.takeoff && sheet.zeroFuel.weight > 0 &&
                 pathInside(envelope.corners, sheet.burn, &c.leaves) &&
                 pathInside(envelope.corners, sheet.remaining, &c.leaves);
    return c;
}

double combinedWeight(const Aircraft& aircraft, const LoadSheet& sheet,
                      const CombinedLimit& limit) {
    double weight = 0;
    for (const std::string& name : limit.stations) {
        if (const Station* station = stationNamed(aircraft, name)) {
            weight +=
                sheet.stations.at(static_cast<std::size_t>(station - aircraft.stations.data()))
                    .weight;
        }
    }
    return weight;
}

bool maximaHold(const Aircraft& aircraft, const LoadSheet& sheet) {
    const MaxWeights& m = aircraft.maxWeight;
    auto holds = [](const std::optional<double>& max, double weight) {
        return !max || weight <= *max;
    };
    for (const CombinedLimit& limit : aircraft.combined) {
        if (combinedWeight(aircraft, sheet, limit) > limit.max) {
            return false;
        }
    }
    if (!holds(m.zeroFuel, sheet.zeroFuel.weight) || !holds(m.ramp, sheet.ramp.weight) ||
        !holds(m.takeoff, sheet.takeoff.weight) || !holds(m.landing, sheet.landing.weight)) {
        return false;
    }
    for (const LoadSheet::Line& line : sheet.stations) {
        if (line.overMax || line.overUsable || line.overBurnt) {
            return false;
        }
    }
    return true;
}

bool withinLimits(const Aircraft& aircraft, const LoadSheet& sheet) {
    if (!maximaHold(aircraft, sheet)) {
        return false;
    }
    for (const Envelope& envelope : aircraft.envelopes) {
        if (const EnvelopeCheck c = check(aircraft, envelope, sheet); c.whole() && c.allowed()) {
            return true;
        }
    }
    return false;
}

} // namespace zel::balance
