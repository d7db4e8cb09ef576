// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The helpers: the weight to move between two stations, or to add or take
// off at one, to bring the CG to a target, never more than can be loaded.
#include "balance/quantity.h"
#include "balance/sheettext.h"

#include <algorithm>
#include <cmath>

namespace zel::balance {

namespace {

/// How much more a station takes: to its max, and to every combined limit
/// it is part of; nothing when no limit bounds it.
std::optional<double> room(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t station) {
    const Station& s = aircraft.stations.at(station);
    std::optional<double> most;
    auto bound = [&](double left) { most = std::min(most.value_or(left), std::max(left, 0.0)); };
    if (s.max) {
        bound(*s.max - sheet.stations.at(station).weight);
    }
    if (s.fuel) {
        bound(s.fuel->usable * s.fuel->density - sheet.stations.at(station).weight);
    }
    for (const CombinedLimit& limit : aircraft.combined) {
        for (const std::string& name : limit.stations) {
            if (nameKey(name) == nameKey(s.name)) {
                bound(limit.max - combinedWeight(aircraft, sheet, limit));
            }
        }
    }
    return most;
}

/// How much more the aircraft takes before the ramp or the takeoff weight
/// passes its max.
std::optional<double> weightRoom(const Aircraft& aircraft, const LoadSheet& sheet) {
    std::optional<double> most;
    const MaxWeights& m = aircraft.maxWeight;
    if (m.ramp) {
        most = std::max(*m.ramp - sheet.ramp.weight, 0.0);
    }
    if (m.takeoff) {
        most =
            std::min(most.value_or(*m.takeoff), std::max(*m.takeoff - sheet.takeoff.weight, 0.0));
    }
    return most;
}

} // namespace

std::string shiftText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t from,
                      std::size_t to, double target, const Symbols& symbols) {
    const Station& a = aircraft.stations.at(from);
    const Station& b = aircraft.stations.at(to);
    const std::string au = std::string(unitWord(aircraft.units.arm));
    const std::string cg =
        " to bring the CG to " + armFigure(target, aircraft.units.arm, symbols) + " " + au;
    const auto weight = shiftWeight(aircraft, sheet, from, to, target);
    if (!weight) {
        return a.name + " and " + b.name +
               " are at one arm: moving weight between them leaves "
               "the CG where it is";
    }
    const bool forward = *weight >= 0;
    const std::size_t source = forward ? from : to;
    const std::size_t destination = forward ? to : from;
    const Station& s = aircraft.stations[source];
    const Station& d = aircraft.stations[destination];
    const std::string wu = std::string(unitWord(aircraft.units.weight));
    const double needed = std::fabs(*weight);
    // What can be moved: what the source holds, what the destination takes.
    double most = sheet.stations.at(source).weight;
    std::string why = s.name + " holds " + figure(most, symbols) + " " + wu;
    if (const auto left = room(aircraft, sheet, destination); left && *left < most) {
        most = *left;
        why = d.name + " takes at most " + figure(most, symbols) + " " + wu + " more";
    }
    if (needed > most) {
        const double moved = most * (d.arm - s.arm);
        const double reached = (sheet.takeoff.moment + moved) / sheet.takeoff.weight;
        return "No move from " + s.name + " to " + d.name + " brings the CG to " +
               armFigure(target, aircraft.units.arm, symbols) + " " + au + ": " + why +
               "; the CG would then be " + armFigure(reached, aircraft.units.arm, symbols) + " " +
               au;
    }
    return "Move " + figure(needed, symbols) + " " + wu + " from " + s.name + " to " + d.name + cg;
}

std::string ballastText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t station,
                        double target, const Symbols& symbols) {
    const Station& s = aircraft.stations.at(station);
    const std::string au = std::string(unitWord(aircraft.units.arm));
    const std::string wu = std::string(unitWord(aircraft.units.weight));
    const std::string cg =
        " to bring the CG to " + armFigure(target, aircraft.units.arm, symbols) + " " + au;
    const auto weight = ballastWeight(aircraft, sheet, station, target);
    if (!weight) {
        return s.name + " is at " + armFigure(target, aircraft.units.arm, symbols) + " " + au +
               ": weight there cannot move the CG to it";
    }
    const double needed = std::fabs(*weight);
    std::optional<double> most;
    std::string why;
    if (*weight < 0) {
        most = sheet.stations.at(station).weight;
        why = s.name + " holds " + figure(*most, symbols) + " " + wu;
    } else {
        most = room(aircraft, sheet, station);
        if (most) {
            why = s.name + " takes at most " + figure(*most, symbols) + " " + wu + " more";
        }
        if (const auto left = weightRoom(aircraft, sheet); left && (!most || *left < *most)) {
            most = left;
            why = "the aircraft takes at most " + figure(*most, symbols) + " " + wu + " more";
        }
    }
    if (most && needed > *most) {
        const double added = *weight < 0 ? -*most : *most;
        const double total = sheet.takeoff.weight + added;
        const std::string reached =
            total > 0 ? "; the CG would then be " +
                            armFigure((sheet.takeoff.moment + added * s.arm) / total,
                                      aircraft.units.arm, symbols) +
                            " " + au
                      : "";
        return "No weight " + std::string(*weight < 0 ? "taken off " : "added at ") + s.name +
               " brings the CG to " + armFigure(target, aircraft.units.arm, symbols) + " " + au +
               ": " + why + reached;
    }
    const std::string amount = figure(needed, symbols) + " " + wu;
    return *weight >= 0 ? "Add " + amount + " at " + s.name + cg
                        : "Take " + amount + " off " + s.name + cg;
}

} // namespace zel::balance
