// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/profile.h"

#include <nlohmann/json.hpp>

namespace zel::balance {

std::string writeProfile(const Aircraft& aircraft) {
    using Ordered = nlohmann::ordered_json;
    Ordered root;
    root["format"] = ProfileFormat;
    root["name"] = aircraft.name;
    if (!aircraft.source.empty()) {
        root["source"] = aircraft.source;
    }
    root["units"] = {{"weight", unitWord(aircraft.units.weight)},
                     {"arm", unitWord(aircraft.units.arm)},
                     {"fuel", unitWord(aircraft.units.fuel)}};
    if (aircraft.empty) {
        root["empty"] = {{"weight", aircraft.empty->weight}, {"arm", aircraft.empty->arm}};
    }
    if (aircraft.momentDivisor != 1) {
        root["momentDivisor"] = aircraft.momentDivisor;
    }
    if (aircraft.mac) {
        root["mac"] = {{"leadingEdge", aircraft.mac->leadingEdge},
                       {"length", aircraft.mac->length}};
    }
    Ordered max = Ordered::object();
    const MaxWeights& m = aircraft.maxWeight;
    for (auto [key, value] : {std::pair{"ramp", m.ramp}, std::pair{"takeoff", m.takeoff},
                              std::pair{"landing", m.landing}, std::pair{"zeroFuel", m.zeroFuel}}) {
        if (value) {
            max[key] = *value;
        }
    }
    if (!max.empty()) {
        root["maxWeight"] = max;
    }
    Ordered stations = Ordered::array();
    for (const Station& s : aircraft.stations) {
        Ordered station = {{"name", s.name}, {"arm", s.arm}};
        if (s.max) {
            station["max"] = *s.max;
        }
        if (s.fuel) {
            Ordered fuel = {{"usable", s.fuel->usable}, {"density", s.fuel->density}};
            if (s.fuel->unusable != 0) {
                fuel["unusable"] = s.fuel->unusable;
            }
            if (s.fuel->taxi != 0) {
                fuel["taxi"] = s.fuel->taxi;
            }
            station["fuel"] = fuel;
        }
        stations.push_back(station);
    }
    root["stations"] = stations;
    if (!aircraft.combined.empty()) {
        Ordered combined = Ordered::array();
        for (const CombinedLimit& c : aircraft.combined) {
            combined.push_back({{"stations", c.stations}, {"max", c.max}});
        }
        root["combined"] = combined;
    }
    Ordered envelopes = Ordered::array();
    for (const Envelope& e : aircraft.envelopes) {
        Ordered points = Ordered::array();
        for (Mass corner : e.corners) {
            points.push_back({corner.weight, corner.arm});
        }
        Ordered envelope = {{"name", e.name}, {"points", points}};
        if (!e.conditions.empty()) {
            Ordered conditions = Ordered::array();
            for (const StationCondition& c : e.conditions) {
                conditions.push_back({{"station", c.station}, {"max", c.max}});
            }
            envelope["conditions"] = conditions;
        }
        envelopes.push_back(envelope);
    }
    root["envelopes"] = envelopes;
    return root.dump(2) + "\n";
}

} // namespace zel::balance
