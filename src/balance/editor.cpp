// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/editor.h"

#include <algorithm>
#include <charconv>

namespace zel::balance {
namespace {

std::string numberText(double value, const Symbols& symbols) {
    return generalText(value, symbols);
}
std::string numberText(const std::optional<double>& value, const Symbols& symbols) {
    return value ? numberText(*value, symbols) : std::string();
}

bool blank(std::string_view text) {
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

/// Parses the number "ids" of a field id: "station.2.arm" gives 2.
int indexAt(std::string_view id, std::size_t& at) {
    int value = 0;
    const auto [end, error] = std::from_chars(id.data() + at, id.data() + id.size(), value);
    if (error != std::errc()) {
        return -1;
    }
    at = static_cast<std::size_t>(end - id.data()) + 1; // past the dot
    return value;
}

/// Reads the number fields: a blank one is nothing, one that is no number
/// stops the reading with the reason.
class Numbers {
  public:
    explicit Numbers(const Symbols& symbols) : m_symbols(symbols) {}
    std::optional<std::string> fault;

    std::optional<double> read(const std::string& text, const std::string& what) {
        if (fault || blank(text)) {
            return std::nullopt;
        }
        const auto value = readFigure(text, m_symbols);
        if (!value) {
            fault = what + " \"" + text + "\" is not a number";
        }
        return value;
    }
    /// A field that must be there.
    double need(const std::string& text, const std::string& what, const std::string& missing) {
        if (!fault && blank(text)) {
            fault = missing;
        }
        return read(text, what).value_or(0);
    }

  private:
    const Symbols& m_symbols;
};

} // namespace

ProfileEditor::ProfileEditor(const Aircraft& a, std::optional<std::string> replacing,
                             const Symbols& symbols)
    : m_replacing(std::move(replacing)), m_symbols(symbols) {
    m_name = a.name;
    m_source = a.source;
    m_weightUnit = std::string(unitWord(a.units.weight));
    m_armUnit = std::string(unitWord(a.units.arm));
    m_fuelUnit = std::string(unitWord(a.units.fuel));
    if (a.empty) {
        m_emptyWeight = numberText(a.empty->weight, symbols);
        m_emptyArm = numberText(a.empty->arm, symbols);
    }
    m_divisor = numberText(a.momentDivisor, symbols);
    if (a.mac) {
        m_macEdge = numberText(a.mac->leadingEdge, symbols);
        m_macLength = numberText(a.mac->length, symbols);
    }
    m_maxRamp = numberText(a.maxWeight.ramp, symbols);
    m_maxTakeoff = numberText(a.maxWeight.takeoff, symbols);
    m_maxLanding = numberText(a.maxWeight.landing, symbols);
    m_maxZeroFuel = numberText(a.maxWeight.zeroFuel, symbols);
    for (const Station& s : a.stations) {
        StationFields f{s.name, numberText(s.arm, symbols), numberText(s.max, symbols), {}, {}, {},
                        {}};
        if (s.fuel) {
            f.usable = numberText(s.fuel->usable, symbols);
            f.density = numberText(s.fuel->density, symbols);
            f.unusable = s.fuel->unusable != 0 ? numberText(s.fuel->unusable, symbols) : "";
            f.taxi = s.fuel->taxi != 0 ? numberText(s.fuel->taxi, symbols) : "";
        }
        m_stations.push_back(std::move(f));
    }
    for (const CombinedLimit& c : a.combined) {
        std::string names;
        for (const std::string& name : c.stations) {
            names += (names.empty() ? "" : " + ") + name;
        }
        m_combined.push_back({names, numberText(c.max, symbols)});
    }
    for (const Envelope& e : a.envelopes) {
        EnvelopeFields f{e.name, {}, {}};
        for (Mass corner : e.corners) {
            f.corners.push_back(
                {numberText(corner.weight, symbols), numberText(corner.arm, symbols)});
        }
        for (const StationCondition& c : e.conditions) {
            f.conditions.push_back({c.station, numberText(c.max, symbols)});
        }
        m_envelopes.push_back(std::move(f));
    }
}

std::string* ProfileEditor::field(std::string_view id) {
    static const std::pair<std::string_view, std::string ProfileEditor::*> Named[] = {
        {"name", &ProfileEditor::m_name},
        {"source", &ProfileEditor::m_source},
        {"weightUnit", &ProfileEditor::m_weightUnit},
        {"armUnit", &ProfileEditor::m_armUnit},
        {"fuelUnit", &ProfileEditor::m_fuelUnit},
        {"emptyWeight", &ProfileEditor::m_emptyWeight},
        {"emptyArm", &ProfileEditor::m_emptyArm},
        {"momentDivisor", &ProfileEditor::m_divisor},
        {"macLeadingEdge", &ProfileEditor::m_macEdge},
        {"macLength", &ProfileEditor::m_macLength},
        {"maxRamp", &ProfileEditor::m_maxRamp},
        {"maxTakeoff", &ProfileEditor::m_maxTakeoff},
        {"maxLanding", &ProfileEditor::m_maxLanding},
        {"maxZeroFuel", &ProfileEditor::m_maxZeroFuel},
    };
    for (auto [name, member] : Named) {
        if (id == name) {
            return &(this->*member);
        }
    }
    std::size_t at = 0;
    if (id.starts_with("station.")) {
        at = 8;
        const int i = indexAt(id, at);
        if (i < 1 || i > static_cast<int>(m_stations.size()) || at > id.size()) {
            return nullptr;
        }
        StationFields& s = m_stations[static_cast<std::size_t>(i - 1)];
        const std::string_view part = id.substr(at);
        return part == "name"       ? &s.name
               : part == "arm"      ? &s.arm
               : part == "max"      ? &s.max
               : part == "usable"   ? &s.usable
               : part == "density"  ? &s.density
               : part == "unusable" ? &s.unusable
               : part == "taxi"     ? &s.taxi
                                    : nullptr;
    }
    if (id.starts_with("combined.")) {
        at = 9;
        const int i = indexAt(id, at);
        if (i < 1 || i > static_cast<int>(m_combined.size()) || at > id.size()) {
            return nullptr;
        }
        CombinedFields& c = m_combined[static_cast<std::size_t>(i - 1)];
        const std::string_view part = id.substr(at);
        return part == "stations" ? &c.stations : part == "max" ? &c.max : nullptr;
    }
    if (id.starts_with("envelope.")) {
        at = 9;
        const int j = indexAt(id, at);
        if (j < 1 || j > static_cast<int>(m_envelopes.size()) || at > id.size()) {
            return nullptr;
        }
        EnvelopeFields& e = m_envelopes[static_cast<std::size_t>(j - 1)];
        std::string_view part = id.substr(at);
        if (part == "name") {
            return &e.name;
        }
        if (part.starts_with("corner.")) {
            at += 7;
            const int k = indexAt(id, at);
            if (k < 1 || k > static_cast<int>(e.corners.size()) || at > id.size()) {
                return nullptr;
            }
            CornerFields& c = e.corners[static_cast<std::size_t>(k - 1)];
            part = id.substr(at);
            return part == "weight" ? &c.weight : part == "arm" ? &c.arm : nullptr;
        }
        if (part.starts_with("condition.")) {
            at += 10;
            const int k = indexAt(id, at);
            if (k < 1 || k > static_cast<int>(e.conditions.size()) || at > id.size()) {
                return nullptr;
            }
            ConditionFields& c = e.conditions[static_cast<std::size_t>(k - 1)];
            part = id.substr(at);
            return part == "station" ? &c.station : part == "max" ? &c.max : nullptr;
        }
    }
    return nullptr;
}

void ProfileEditor::edit(std::string_view id, std::string_view text) {
    if (id == "weightUnit" || id == "armUnit" || id == "fuelUnit") {
        changeUnit(id, text);
        return;
    }
    if (std::string* f = field(id)) {
        *f = std::string(text);
    }
}

void ProfileEditor::changeUnit(std::string_view id, std::string_view text) {
    // A unit changed converts every figure of its kind, so that the profile
    // states the same aircraft: 2,550 lb becomes 1,156.66 kg, not 2,550 kg.
    // A figure that is no number stays as typed, to be refused on Save.
    double factor = 1;    // one old unit in new units
    double densityBy = 1; // how a density (weight per fuel unit) changes
    std::vector<std::string*> figures;
    if (id == "weightUnit") {
        const auto from = weightUnit(m_weightUnit);
        const auto to = weightUnit(text);
        if (from && to) {
            factor = kilograms(*from) / kilograms(*to);
            densityBy = factor;
        }
        figures = {&m_emptyWeight, &m_maxRamp, &m_maxTakeoff, &m_maxLanding, &m_maxZeroFuel};
        for (StationFields& s : m_stations) {
            figures.insert(figures.end(), {&s.max, &s.taxi});
        }
        for (CombinedFields& c : m_combined) {
            figures.push_back(&c.max);
        }
        for (EnvelopeFields& e : m_envelopes) {
            for (CornerFields& c : e.corners) {
                figures.push_back(&c.weight);
            }
            for (ConditionFields& c : e.conditions) {
                figures.push_back(&c.max);
            }
        }
        m_weightUnit = std::string(text);
    } else if (id == "armUnit") {
        const auto from = armUnit(m_armUnit);
        const auto to = armUnit(text);
        if (from && to) {
            factor = millimetres(*from) / millimetres(*to);
        }
        figures = {&m_emptyArm, &m_macEdge, &m_macLength};
        for (StationFields& s : m_stations) {
            figures.push_back(&s.arm);
        }
        for (EnvelopeFields& e : m_envelopes) {
            for (CornerFields& c : e.corners) {
                figures.push_back(&c.arm);
            }
        }
        m_armUnit = std::string(text);
    } else {
        const auto from = fuelUnit(m_fuelUnit);
        const auto to = fuelUnit(text);
        if (from && to) {
            factor = litres(*from) / litres(*to);
            densityBy = 1 / factor; // the same weight in a larger unit of fuel
        }
        for (StationFields& s : m_stations) {
            figures.insert(figures.end(), {&s.usable, &s.unusable});
        }
        m_fuelUnit = std::string(text);
    }
    auto convert = [this](std::string* figure, double by) {
        if (by == 1 || blank(*figure)) {
            return;
        }
        if (const auto value = readFigure(*figure, m_symbols)) {
            *figure = numberText(*value * by, m_symbols);
        }
    };
    for (std::string* figure : figures) {
        convert(figure, factor);
    }
    if (id != "armUnit") {
        for (StationFields& s : m_stations) {
            convert(&s.density, densityBy);
        }
    }
}

void ProfileEditor::apply(const FormAction& action) {
    auto inRange = [](int n, std::size_t size) { return n >= 1 && n <= static_cast<int>(size); };
    const auto group = static_cast<std::size_t>(action.group - 1);
    const auto item = static_cast<std::size_t>(action.item - 1);
    switch (action.kind) {
    case FormAction::Kind::AddStation:
        m_stations.push_back({});
        break;
    case FormAction::Kind::RemoveStation:
        if (inRange(action.item, m_stations.size())) {
            m_stations.erase(m_stations.begin() + static_cast<long>(item));
        }
        break;
    case FormAction::Kind::AddEnvelope:
        m_envelopes.push_back({"", {{}, {}, {}}, {}});
        break;
    case FormAction::Kind::RemoveEnvelope:
        if (inRange(action.group, m_envelopes.size())) {
            m_envelopes.erase(m_envelopes.begin() + static_cast<long>(group));
        }
        break;
    case FormAction::Kind::AddCorner:
        if (inRange(action.group, m_envelopes.size())) {
            m_envelopes[group].corners.push_back({});
        }
        break;
    case FormAction::Kind::RemoveCorner:
        if (inRange(action.group, m_envelopes.size()) &&
            inRange(action.item, m_envelopes[group].corners.size())) {
            auto& corners = m_envelopes[group].corners;
            corners.erase(corners.begin() + static_cast<long>(item));
        }
        break;
    case FormAction::Kind::AddCombined:
        m_combined.push_back({});
        break;
    case FormAction::Kind::RemoveCombined:
        if (inRange(action.item, m_combined.size())) {
            m_combined.erase(m_combined.begin() + static_cast<long>(item));
        }
        break;
    case FormAction::Kind::AddCondition:
        if (inRange(action.group, m_envelopes.size())) {
            m_envelopes[group].conditions.push_back({});
        }
        break;
    case FormAction::Kind::RemoveCondition:
        if (inRange(action.group, m_envelopes.size()) &&
            inRange(action.item, m_envelopes[group].conditions.size())) {
            auto& conditions = m_envelopes[group].conditions;
            conditions.erase(conditions.begin() + static_cast<long>(item));
        }
        break;
    case FormAction::Kind::Save:
    case FormAction::Kind::Cancel:
        break;
    }
}

ProfileRead ProfileEditor::profile(const Symbols& symbols) const {
    constexpr std::string_view Refusal = "Not an aircraft profile: ";
    Numbers n(symbols);
    Aircraft a;
    a.name = m_name;
    a.source = blank(m_source) ? std::string() : m_source;
    const auto weight = weightUnit(m_weightUnit);
    const auto arm = armUnit(m_armUnit);
    const auto fuel = fuelUnit(m_fuelUnit);
    if (!weight || !arm || !fuel) {
        return std::string(Refusal) + "unknown unit " +
               (!weight ? m_weightUnit
                : !arm  ? m_armUnit
                        : m_fuelUnit);
    }
    a.units = {*weight, *arm, *fuel};
    if (!blank(m_emptyWeight) || !blank(m_emptyArm)) {
        const double w = n.need(m_emptyWeight, "the empty weight", "its empty weight is missing");
        const double e = n.need(m_emptyArm, "the empty arm", "its empty arm is missing");
        a.empty = Mass{w, e};
    }
    a.momentDivisor = n.read(m_divisor, "the moment divisor").value_or(1);
    if (!blank(m_macEdge) || !blank(m_macLength)) {
        const double edge =
            n.need(m_macEdge, "the MAC's leading edge", "its mac leading edge is missing");
        const double length = n.need(m_macLength, "the MAC's length", "its mac length is missing");
        a.mac = Mac{edge, length};
    }
    a.maxWeight = {n.read(m_maxRamp, "the max ramp weight"),
                   n.read(m_maxTakeoff, "the max takeoff weight"),
                   n.read(m_maxLanding, "the max landing weight"),
                   n.read(m_maxZeroFuel, "the max zero fuel weight")};
    for (std::size_t i = 0; i < m_stations.size(); ++i) {
        const StationFields& s = m_stations[i];
        const std::string place = "station " + std::to_string(i + 1);
        const std::string its = place + " (" + s.name + "): its ";
        Station station;
        station.name = s.name;
        station.arm = n.need(s.arm, its + "arm", place + " has no arm");
        station.max = n.read(s.max, its + "max");
        if (!blank(s.usable) || !blank(s.density) || !blank(s.unusable) || !blank(s.taxi)) {
            const std::string named = place + " (" + s.name + ")";
            const double usable =
                n.need(s.usable, its + "usable fuel", named + " has no usable fuel");
            const double density =
                n.need(s.density, its + "fuel density", named + " has no fuel density");
            station.fuel =
                FuelTank{usable, density, n.read(s.unusable, its + "unusable fuel").value_or(0),
                         n.read(s.taxi, its + "taxi fuel").value_or(0)};
        }
        a.stations.push_back(std::move(station));
    }
    for (std::size_t i = 0; i < m_combined.size(); ++i) {
        const CombinedFields& c = m_combined[i];
        if (blank(c.stations) && blank(c.max)) {
            continue; // a limit added and left empty
        }
        const std::string place = "combined limit " + std::to_string(i + 1);
        CombinedLimit limit;
        for (std::size_t from = 0; from <= c.stations.size();) {
            const std::size_t plus = std::min(c.stations.find('+', from), c.stations.size());
            std::string name = c.stations.substr(from, plus - from);
            name.erase(0, name.find_first_not_of(" \t"));
            name.erase(name.find_last_not_of(" \t") + 1);
            if (!name.empty()) {
                limit.stations.push_back(std::move(name));
            }
            from = plus + 1;
        }
        limit.max = n.need(c.max, place + ": its max", place + " has no max");
        a.combined.push_back(std::move(limit));
    }
    for (std::size_t j = 0; j < m_envelopes.size(); ++j) {
        const EnvelopeFields& e = m_envelopes[j];
        Envelope envelope{e.name, {}, {}};
        for (std::size_t k = 0; k < e.conditions.size(); ++k) {
            const ConditionFields& c = e.conditions[k];
            if (blank(c.station) && blank(c.max)) {
                continue;
            }
            const std::string which = "envelope " + std::to_string(j + 1) + " (" + e.name +
                                      "): condition " + std::to_string(k + 1);
            // A station left without a most it may hold must be empty.
            envelope.conditions.push_back(
                {c.station, n.read(c.max, which + ": its max").value_or(0)});
        }
        for (std::size_t k = 0; k < e.corners.size(); ++k) {
            const CornerFields& c = e.corners[k];
            if (blank(c.weight) && blank(c.arm)) {
                continue; // a corner added and left empty
            }
            const std::string corner = "envelope " + std::to_string(j + 1) + " (" + e.name +
                                       "): corner " + std::to_string(k + 1) + ": its ";
            const double w = n.need(c.weight, corner + "weight", corner + "weight is missing");
            const double x = n.need(c.arm, corner + "arm", corner + "arm is missing");
            envelope.corners.push_back({w, x});
        }
        a.envelopes.push_back(std::move(envelope));
    }
    if (n.fault) {
        return std::string(Refusal) + *n.fault;
    }
    if (const auto fault = checkProfile(a)) {
        return std::string(Refusal) + *fault;
    }
    return a;
}

ProfileForm ProfileEditor::form() const {
    ProfileForm f;
    f.title = m_replacing ? "Edit " + *m_replacing : "New profile";
    const std::string wu = "- " + m_weightUnit;
    const std::string au = "- " + m_armUnit;
    const std::string fu = "- " + m_fuelUnit;
    auto text = [](std::string id, std::string label, const std::string& value) {
        return FormField{std::move(id), std::move(label), value, {}};
    };
    FormSection aircraft{"Aircraft", {}, {}, {}, {}};
    aircraft.fields = {
        text("name", "Name", m_name),
        FormField{"weightUnit", "Weight unit", m_weightUnit, {"lb", "kg"}},
        FormField{"armUnit", "Arm unit", m_armUnit, {"in", "mm", "cm", "m"}},
        FormField{"fuelUnit", "Fuel unit", m_fuelUnit, {"USG", "L", "ImpG"}},
        text("emptyWeight", "Empty weight " + wu, m_emptyWeight),
        text("emptyArm", "Empty arm " + au, m_emptyArm),
        text("momentDivisor", "Moment divisor", m_divisor),
        text("macLeadingEdge", "MAC leading edge " + au, m_macEdge),
        text("macLength", "MAC length " + au, m_macLength),
        text("maxRamp", "Max ramp " + wu, m_maxRamp),
        text("maxTakeoff", "Max takeoff " + wu, m_maxTakeoff),
        text("maxLanding", "Max landing " + wu, m_maxLanding),
        text("maxZeroFuel", "Max zero fuel " + wu, m_maxZeroFuel),
        text("source", "Source of the figures", m_source),
    };
    f.sections.push_back(std::move(aircraft));
    FormSection stations{"Stations",
                         {},
                         {"Name", "Arm " + au, "Max " + wu, "Usable fuel " + fu,
                          "Density " + m_weightUnit + "/" + m_fuelUnit, "Unusable fuel " + fu,
                          "Taxi fuel " + wu},
                         {},
                         {{"Add station", {FormAction::Kind::AddStation, 0, 0}}}};
    for (std::size_t i = 0; i < m_stations.size(); ++i) {
        const StationFields& s = m_stations[i];
        const std::string id = "station." + std::to_string(i + 1) + ".";
        const int n = static_cast<int>(i + 1);
        stations.rows.push_back(
            {{{id + "name", "Name", s.name, {}},
              {id + "arm", "Arm " + au, s.arm, {}},
              {id + "max", "Max " + wu, s.max, {}},
              {id + "usable", "Usable fuel " + fu, s.usable, {}},
              {id + "density", "Density " + m_weightUnit + "/" + m_fuelUnit, s.density, {}},
              {id + "unusable", "Unusable fuel " + fu, s.unusable, {}},
              {id + "taxi", "Taxi fuel " + wu, s.taxi, {}}},
             FormButton{"Remove", {FormAction::Kind::RemoveStation, 0, n}}});
    }
    f.sections.push_back(std::move(stations));
    FormSection combined{"Combined limits",
                         {},
                         {"Stations (joined by +)", "Max " + wu},
                         {},
                         {{"Add combined limit", {FormAction::Kind::AddCombined, 0, 0}}}};
    for (std::size_t i = 0; i < m_combined.size(); ++i) {
        const std::string id = "combined." + std::to_string(i + 1) + ".";
        combined.rows.push_back(
            {{{id + "stations", "Stations (joined by +)", m_combined[i].stations, {}},
              {id + "max", "Max " + wu, m_combined[i].max, {}}},
             FormButton{"Remove", {FormAction::Kind::RemoveCombined, 0, static_cast<int>(i + 1)}}});
    }
    f.sections.push_back(std::move(combined));
    for (std::size_t j = 0; j < m_envelopes.size(); ++j) {
        const EnvelopeFields& e = m_envelopes[j];
        const int g = static_cast<int>(j + 1);
        const std::string id = "envelope." + std::to_string(g) + ".";
        FormSection envelope{"Envelope " + std::to_string(g),
                             {text(id + "name", "Name", e.name)},
                             {"Weight " + wu, "Arm " + au},
                             {},
                             {{"Add corner", {FormAction::Kind::AddCorner, g, 0}},
                              {"Remove envelope", {FormAction::Kind::RemoveEnvelope, g, 0}}}};
        for (std::size_t k = 0; k < e.corners.size(); ++k) {
            const std::string cid = id + "corner." + std::to_string(k + 1) + ".";
            envelope.rows.push_back(
                {{{cid + "weight", "Weight " + wu, e.corners[k].weight, {}},
                  {cid + "arm", "Arm " + au, e.corners[k].arm, {}}},
                 FormButton{"Remove",
                            {FormAction::Kind::RemoveCorner, g, static_cast<int>(k + 1)}}});
        }
        f.sections.push_back(std::move(envelope));
        FormSection conditions{"Conditions of envelope " + std::to_string(g),
                               {},
                               {"Station", "At most " + wu + " (blank: empty)"},
                               {},
                               {{"Add condition", {FormAction::Kind::AddCondition, g, 0}}}};
        for (std::size_t k = 0; k < e.conditions.size(); ++k) {
            const std::string cid = id + "condition." + std::to_string(k + 1) + ".";
            conditions.rows.push_back(
                {{{cid + "station", "Station", e.conditions[k].station, {}},
                  {cid + "max", "At most " + wu + " (blank: empty)", e.conditions[k].max, {}}},
                 FormButton{"Remove",
                            {FormAction::Kind::RemoveCondition, g, static_cast<int>(k + 1)}}});
        }
        f.sections.push_back(std::move(conditions));
    }
    FormSection more{"", {}, {}, {}, {{"Add envelope", {FormAction::Kind::AddEnvelope, 0, 0}}}};
    f.sections.push_back(std::move(more));
    f.buttons = {{"Save", {FormAction::Kind::Save, 0, 0}},
                 {"Cancel", {FormAction::Kind::Cancel, 0, 0}}};
    return f;
}

} // namespace zel::balance
