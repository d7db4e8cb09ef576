// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/profile.h"

#include "balance/envelope.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

// nlohmann::ordered_json (one kind of JSON value for reading and writing, so
// that the WebAssembly build holds its code once) is read here without exceptions (the WebAssembly
// build has none to catch): parse errors come through its SAX interface, and every value is checked
// for its type before it is taken.

namespace zel::balance {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view Refusal = "Not an aircraft profile: ";

/// Learns where and why a text is not JSON.
struct ParseFault : nlohmann::json_sax<Json> {
    std::size_t position = 0;
    std::string reason;

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t at, const std::string&,
                     const nlohmann::detail::exception& fault) override {
        position = at;
        // "[json.exception.parse_error.101] parse error at line 3, column 5:
        // syntax error while parsing value - ...": the reason is what follows
        // the library's name for it and the place.
        std::string_view what = fault.what();
        if (const auto name = what.find("] "); what.starts_with("[") && name != what.npos) {
            what.remove_prefix(name + 2);
        }
        if (what.starts_with("parse error")) {
            if (const auto colon = what.find(": "); colon != what.npos) {
                what.remove_prefix(colon + 2);
            }
        }
        reason = std::string(what);
        return false;
    }
};

/// The 1-based line of a byte of the text.
int lineOf(std::string_view text, std::size_t position) {
    position = std::min(position, text.size());
    return 1 + static_cast<int>(
                   std::count(text.begin(), text.begin() + static_cast<long>(position), '\n'));
}

/// Reads the fields of a profile, each of the type it must be. The first
/// that is not gives the reason the text is no profile, and the rest is not
/// read; what the values must be is checked by checkProfile afterwards.
class Reader {
  public:
    bool failed() const { return m_fault.has_value(); }
    const std::string& fault() const { return *m_fault; }
    void fail(std::string reason) {
        if (!m_fault) {
            m_fault = std::move(reason);
        }
    }

    /// A number at `key` of `object`; nothing when it is missing and
    /// `optional`, or when it is refused.
    std::optional<double> number(const Json& object, std::string_view key, const std::string& what,
                                 bool optional = false) {
        const auto it = object.find(key);
        if (it == object.end() || it->is_null()) {
            if (!optional) {
                fail(what + " is missing");
            }
            return std::nullopt;
        }
        return value(*it, what);
    }
    std::optional<double> value(const Json& v, const std::string& what) {
        if (!v.is_number()) {
            fail(what + " is not a number");
            return std::nullopt;
        }
        return v.get<double>();
    }
    std::string text(const Json& object, std::string_view key) {
        const auto it = object.find(key);
        return it != object.end() && it->is_string() ? it->get<std::string>() : std::string();
    }
    /// An object at `key`, or nothing when it is missing (or refused: not an object).
    const Json* object(const Json& parent, std::string_view key, const std::string& what) {
        const auto it = parent.find(key);
        if (it == parent.end() || it->is_null()) {
            return nullptr;
        }
        if (!it->is_object()) {
            fail(what + " is not an object");
            return nullptr;
        }
        return &*it;
    }

  private:
    std::optional<std::string> m_fault;
};

std::string inQuotes(std::string_view s) {
    return "\"" + std::string(s) + "\"";
}

Units readUnits(Reader& r, const Json& root) {
    Units units;
    const Json* words = r.object(root, "units", "its units");
    if (words == nullptr) {
        r.fail("it has no units");
        return units;
    }
    auto word = [&](std::string_view key) -> std::string {
        const auto w = words->find(key);
        if (w == words->end() || !w->is_string()) {
            r.fail("it has no " + std::string(key) + " unit");
            return {};
        }
        return w->get<std::string>();
    };
    const std::string weight = word("weight");
    const std::string arm = word("arm");
    const std::string fuel = word("fuel");
    if (r.failed()) {
        return units;
    }
    if (auto u = weightUnit(weight)) {
        units.weight = *u;
    } else {
        r.fail("unknown weight unit " + inQuotes(weight) + " (lb or kg)");
    }
    if (auto u = armUnit(arm)) {
        units.arm = *u;
    } else {
        r.fail("unknown arm unit " + inQuotes(arm) + " (in, mm, cm or m)");
    }
    if (auto u = fuelUnit(fuel)) {
        units.fuel = *u;
    } else {
        r.fail("unknown fuel unit " + inQuotes(fuel) + " (USG, L or ImpG)");
    }
    return units;
}

/// The names of stations a combined limit or a condition is about.
std::vector<std::string> stationNames(Reader& r, const Json& list, const std::string& what) {
    std::vector<std::string> names;
    if (!list.is_array()) {
        r.fail(what + " is not a list of station names");
        return names;
    }
    for (const Json& name : list) {
        if (!name.is_string()) {
            r.fail(what + " is not a list of station names");
            break;
        }
        names.push_back(name.get<std::string>());
    }
    return names;
}

void readCombined(Reader& r, const Json& root, Aircraft& aircraft) {
    const auto combined = root.find("combined");
    if (combined == root.end() || combined->is_null()) {
        return;
    }
    if (!combined->is_array()) {
        r.fail("its combined limits are not a list");
        return;
    }
    for (std::size_t i = 0; i < combined->size() && !r.failed(); ++i) {
        const Json& c = (*combined)[i];
        const std::string place = "combined limit " + std::to_string(i + 1);
        if (!c.is_object() || !c.contains("stations")) {
            r.fail(place + " has no stations");
            break;
        }
        CombinedLimit limit;
        limit.stations = stationNames(r, c["stations"], place + ": its stations");
        limit.max = r.number(c, "max", place + ": its max").value_or(0);
        aircraft.combined.push_back(std::move(limit));
    }
}

std::vector<StationCondition> readConditions(Reader& r, const Json& envelope,
                                             const std::string& named) {
    std::vector<StationCondition> conditions;
    const auto list = envelope.find("conditions");
    if (list == envelope.end() || list->is_null()) {
        return conditions;
    }
    if (!list->is_array()) {
        r.fail(named + ": its conditions are not a list");
        return conditions;
    }
    for (std::size_t i = 0; i < list->size() && !r.failed(); ++i) {
        const Json& c = (*list)[i];
        const std::string which = named + ": condition " + std::to_string(i + 1);
        const auto station = c.is_object() ? c.find("station") : c.end();
        if (!c.is_object() || station == c.end() || !station->is_string()) {
            r.fail(which + " names no station");
            break;
        }
        conditions.push_back(
            {station->get<std::string>(), r.number(c, "max", which + ": its max").value_or(0)});
    }
    return conditions;
}

Station readStation(Reader& r, const Json& s, std::size_t index) {
    const std::string place = "station " + std::to_string(index + 1);
    Station station;
    if (!s.is_object()) {
        r.fail(place + " is not an object");
        return station;
    }
    station.name = r.text(s, "name");
    const std::string named = place + " (" + station.name + ")";
    if (const auto arm = s.find("arm"); arm == s.end() || arm->is_null()) {
        r.fail(place + " has no arm");
        return station;
    }
    station.arm = r.number(s, "arm", named + ": its arm").value_or(0);
    station.max = r.number(s, "max", named + ": its max", true);
    if (const Json* fuel = r.object(s, "fuel", named + ": its fuel")) {
        if (!fuel->contains("usable")) {
            r.fail(named + " has no usable fuel");
        } else if (!fuel->contains("density")) {
            r.fail(named + " has no fuel density");
        }
        const auto usable = r.number(*fuel, "usable", named + ": its usable fuel");
        const auto density = r.number(*fuel, "density", named + ": its fuel density");
        const auto unusable = r.number(*fuel, "unusable", named + ": its unusable fuel", true);
        const auto taxi = r.number(*fuel, "taxi", named + ": its taxi fuel", true);
        if (usable && density) {
            station.fuel = FuelTank{*usable, *density, unusable.value_or(0), taxi.value_or(0)};
        }
    }
    return station;
}

Envelope readEnvelope(Reader& r, const Json& e, std::size_t index) {
    const std::string place = "envelope " + std::to_string(index + 1);
    Envelope envelope;
    if (!e.is_object()) {
        r.fail(place + " is not an object");
        return envelope;
    }
    envelope.name = r.text(e, "name");
    const std::string named = place + " (" + envelope.name + ")";
    const auto points = e.find("points");
    if (points == e.end() || !points->is_array()) {
        r.fail(named + " has no points");
        return envelope;
    }
    for (std::size_t i = 0; i < points->size() && !r.failed(); ++i) {
        const Json& corner = (*points)[i];
        const std::string which = named + ": corner " + std::to_string(i + 1);
        if (!corner.is_array() || corner.size() != 2) {
            r.fail(which + " is not a [weight, arm] pair");
            break;
        }
        const auto weight = r.value(corner[0], which + ": its weight");
        const auto arm = r.value(corner[1], which + ": its arm");
        if (weight && arm) {
            envelope.corners.push_back({*weight, *arm});
        }
    }
    if (!r.failed()) {
        envelope.conditions = readConditions(r, e, named);
    }
    return envelope;
}

void readFormat(Reader& r, const Json& root) {
    const auto format = root.find("format");
    if (format == root.end() || !format->is_string()) {
        r.fail("it has no format (" + std::string(ProfileFormat) + ")");
        return;
    }
    const std::string name = format->get<std::string>();
    constexpr std::string_view Family = "zelflightab-aircraft/";
    if (name == ProfileFormat || name == std::string(Family) + "1") {
        return;
    }
    if (name.starts_with(Family)) {
        r.fail("it is version " + name.substr(Family.size()) +
               " of the format; this program reads versions 1 and 2");
    } else {
        r.fail("its format is " + inQuotes(name) + ", not " + std::string(ProfileFormat));
    }
}

void readLimits(Reader& r, const Json& root, Aircraft& aircraft) {
    if (const Json* empty = r.object(root, "empty", "its empty weight")) {
        const auto weight = r.number(*empty, "weight", "its empty weight");
        const auto arm = r.number(*empty, "arm", "its empty arm");
        if (weight && arm) {
            aircraft.empty = Mass{*weight, *arm};
        }
    }
    aircraft.momentDivisor =
        r.number(root, "momentDivisor", "its moment divisor", true).value_or(1);
    if (const Json* mac = r.object(root, "mac", "its mac")) {
        const auto edge = r.number(*mac, "leadingEdge", "its mac leading edge");
        const auto length = r.number(*mac, "length", "its mac length");
        if (edge && length) {
            aircraft.mac = Mac{*edge, *length};
        }
    }
    if (const Json* max = r.object(root, "maxWeight", "its maxWeight")) {
        MaxWeights& m = aircraft.maxWeight;
        m.ramp = r.number(*max, "ramp", "its max ramp weight", true);
        m.takeoff = r.number(*max, "takeoff", "its max takeoff weight", true);
        m.landing = r.number(*max, "landing", "its max landing weight", true);
        m.zeroFuel = r.number(*max, "zeroFuel", "its max zero fuel weight", true);
    }
}

void readAircraft(Reader& r, const Json& root, Aircraft& aircraft) {
    if (!root.is_object()) {
        r.fail("it is not a JSON object");
        return;
    }
    readFormat(r, root);
    if (r.failed()) {
        return;
    }
    aircraft.name = r.text(root, "name");
    aircraft.source = r.text(root, "source");
    aircraft.units = readUnits(r, root);
    readLimits(r, root, aircraft);
    const auto stations = root.find("stations");
    if (!r.failed() && stations != root.end() && stations->is_array()) {
        for (std::size_t i = 0; i < stations->size() && !r.failed(); ++i) {
            aircraft.stations.push_back(readStation(r, (*stations)[i], i));
        }
    }
    if (!r.failed()) {
        readCombined(r, root, aircraft);
    }
    const auto envelopes = root.find("envelopes");
    if (!r.failed() && envelopes != root.end() && envelopes->is_array()) {
        for (std::size_t i = 0; i < envelopes->size() && !r.failed(); ++i) {
            aircraft.envelopes.push_back(readEnvelope(r, (*envelopes)[i], i));
        }
    }
}

/// The first value of the aircraft that is negative or not finite, in words.
std::optional<std::string>
badNumber(std::initializer_list<std::pair<std::optional<double>, std::string>> values) {
    for (const auto& [value, what] : values) {
        if (value && !std::isfinite(*value)) {
            return what + " is not a finite number";
        }
        if (value && *value < 0) {
            return what + " is negative";
        }
        if (value && *value > MaxFigure) {
            return what + " is more than 10,000,000";
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> checkProfile(const Aircraft& a) {
    if (a.name.find_first_not_of(" \t") == std::string::npos) {
        return "it has no name";
    }
    std::optional<double> emptyWeight, emptyArm, edge, length;
    if (a.empty) {
        emptyWeight = a.empty->weight;
        emptyArm = a.empty->arm;
    }
    if (a.mac) {
        edge = a.mac->leadingEdge;
        length = a.mac->length;
    }
    const MaxWeights& m = a.maxWeight;
    if (auto bad = badNumber({{emptyWeight, "its empty weight"},
                              {emptyArm, "its empty arm"},
                              {a.momentDivisor, "its moment divisor"},
                              {edge, "its mac leading edge"},
                              {length, "its mac length"},
                              {m.ramp, "its max ramp weight"},
                              {m.takeoff, "its max takeoff weight"},
                              {m.landing, "its max landing weight"},
                              {m.zeroFuel, "its max zero fuel weight"}})) {
        return bad;
    }
    if (a.momentDivisor == 0) {
        return "its moment divisor is 0";
    }
    if (length && *length == 0) {
        return "its mac length is 0";
    }
    if (a.stations.empty()) {
        return "it has no stations";
    }
    for (std::size_t i = 0; i < a.stations.size(); ++i) {
        const Station& s = a.stations[i];
        const std::string place = "station " + std::to_string(i + 1);
        if (s.name.find_first_not_of(" \t") == std::string::npos) {
            return place + " has no name";
        }
        const std::string named = place + " (" + s.name + "): its ";
        std::optional<double> usable, density, unusable, taxi;
        if (s.fuel) {
            usable = s.fuel->usable;
            density = s.fuel->density;
            unusable = s.fuel->unusable;
            taxi = s.fuel->taxi;
        }
        if (auto bad = badNumber({{s.arm, named + "arm"},
                                  {s.max, named + "max"},
                                  {usable, named + "usable fuel"},
                                  {density, named + "fuel density"},
                                  {unusable, named + "unusable fuel"},
                                  {taxi, named + "taxi fuel"}})) {
            return bad;
        }
        if (density && *density == 0) {
            return named + "fuel density is 0";
        }
        if (taxi && *taxi > *usable * *density) {
            return named + "taxi fuel is more than its usable fuel";
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (nameKey(a.stations[j].name) == nameKey(s.name)) {
                return "two stations are named " + inQuotes(s.name);
            }
        }
    }
    auto known = [&](const std::string& name) {
        return std::any_of(a.stations.begin(), a.stations.end(),
                           [&](const Station& s) { return nameKey(s.name) == nameKey(name); });
    };
    for (std::size_t i = 0; i < a.combined.size(); ++i) {
        const CombinedLimit& c = a.combined[i];
        const std::string place = "combined limit " + std::to_string(i + 1);
        if (auto bad = badNumber({{c.max, place + ": its max"}})) {
            return bad;
        }
        if (c.stations.size() < 2) {
            return place + " names fewer than two stations";
        }
        for (std::size_t k = 0; k < c.stations.size(); ++k) {
            if (!known(c.stations[k])) {
                return place + " names no station " + inQuotes(c.stations[k]);
            }
            for (std::size_t j = 0; j < k; ++j) {
                if (nameKey(c.stations[j]) == nameKey(c.stations[k])) {
                    return place + " names " + inQuotes(c.stations[k]) + " twice";
                }
            }
        }
    }
    if (a.envelopes.empty()) {
        return "it has no envelope";
    }
    for (std::size_t i = 0; i < a.envelopes.size(); ++i) {
        const Envelope& e = a.envelopes[i];
        const std::string place = "envelope " + std::to_string(i + 1);
        if (e.name.find_first_not_of(" \t") == std::string::npos) {
            return place + " has no name";
        }
        const std::string named = place + " (" + e.name + ")";
        for (std::size_t k = 0; k < e.corners.size(); ++k) {
            const std::string corner = named + ": corner " + std::to_string(k + 1) + ": its ";
            if (auto bad = badNumber({{e.corners[k].weight, corner + "weight"},
                                      {e.corners[k].arm, corner + "arm"}})) {
                return bad;
            }
        }
        if (e.corners.size() < 3) {
            return named + " has fewer than three corners";
        }
        for (std::size_t k = 0; k < e.conditions.size(); ++k) {
            const std::string which = named + ": condition " + std::to_string(k + 1);
            if (auto bad = badNumber({{e.conditions[k].max, which + ": its max"}})) {
                return bad;
            }
            if (!known(e.conditions[k].station)) {
                return which + " names no station " + inQuotes(e.conditions[k].station);
            }
        }
        if (const auto fault = shapeFault(e.corners)) {
            return named + ": " + std::string(*fault);
        }
    }
    return std::nullopt;
}

ProfileRead readProfile(std::string_view text) {
    const Json root = Json::parse(text, nullptr, false);
    if (root.is_discarded()) {
        ParseFault fault;
        Json::sax_parse(text, &fault);
        return std::string(Refusal) + "line " + std::to_string(lineOf(text, fault.position)) +
               ": " + fault.reason;
    }
    Reader reader;
    Aircraft aircraft;
    readAircraft(reader, root, aircraft);
    if (reader.failed()) {
        return std::string(Refusal) + reader.fault();
    }
    if (const auto fault = checkProfile(aircraft)) {
        return std::string(Refusal) + *fault;
    }
    return aircraft;
}

} // namespace zel::balance
