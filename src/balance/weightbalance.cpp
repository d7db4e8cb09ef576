// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/weightbalance.h"

#include "entry/text.h"

#include <cmath>
#include <cstdio>
#include <variant>

namespace zel::balance {
namespace {

constexpr std::string_view Title = "Weight & Balance";

std::string key(std::string_view name) {
    return lowerCase(name);
}

/// The reason of a refused profile without the words that open it.
std::string reasonOf(const std::string& refusal) {
    constexpr std::string_view Opening = "Not an aircraft profile: ";
    return refusal.starts_with(Opening) ? refusal.substr(Opening.size()) : refusal;
}

std::string isoDate(std::chrono::year_month_day day) {
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    return text;
}

} // namespace

static std::string bookPath(Storage& storage) {
    return techPath(storage.programFolder(), LoadingBookName);
}

void WeightBalance::open() {
    if (!m_loaded) {
        m_loaded = true;
        std::vector<std::string> faults = m_shelf.load();
        if (!faults.empty()) {
            faults.insert(faults.begin(), "These kept profiles are not offered; their files are "
                                          "left as they are:");
            m_dialogs.message(MessageIcon::Exclamation, Title, std::move(faults));
        }
        const FileRead file = m_storage.read(bookPath(m_storage));
        if (file.status == FileRead::Status::Ok) {
            const LoadingBook book = readBook(file.bytes);
            if (m_shelf.find(book.chosen)) {
                m_chosen = book.chosen;
            }
            for (const KeptLoading& kept : book.current) {
                if (const auto at = m_shelf.find(kept.aircraft)) {
                    const Aircraft& aircraft = m_shelf.profiles()[*at].aircraft;
                    m_loadings[key(aircraft.name)] = loadingFrom(aircraft, kept);
                } else {
                    m_unplaced[key(kept.aircraft)] = kept;
                }
            }
            m_named = book.named;
        }
    }
    if (!m_shelf.find(m_chosen) && !m_shelf.profiles().empty()) {
        m_chosen = m_shelf.profiles().front().aircraft.name;
    }
}

const ProfileShelf::Profile* WeightBalance::shown() const {
    const auto at = m_shelf.find(m_chosen);
    return at ? &m_shelf.profiles()[*at] : nullptr;
}

Loading& WeightBalance::loading() {
    const Aircraft& aircraft = shown()->aircraft;
    Loading& l = m_loadings[key(aircraft.name)];
    if (l.weights.size() != aircraft.stations.size()) {
        l = Loading::emptyFor(aircraft); // its stations were edited
    }
    return l;
}

const Loading* WeightBalance::loadingOf(const Aircraft& aircraft) const {
    const auto it = m_loadings.find(key(aircraft.name));
    return it != m_loadings.end() && it->second.weights.size() == aircraft.stations.size()
               ? &it->second
               : nullptr;
}

std::vector<WeightBalance::Entry> WeightBalance::entries() const {
    std::vector<Entry> list;
    const ProfileShelf::Profile* profile = shown();
    if (profile == nullptr) {
        return list;
    }
    list.push_back({EntryKind::EmptyWeight});
    list.push_back({EntryKind::EmptyArm});
    const auto& stations = profile->aircraft.stations;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        if (stations[i].fuel) {
            list.push_back({EntryKind::FuelVolume, i});
        }
        list.push_back({EntryKind::Weight, i});
    }
    for (std::size_t i = 0; i < stations.size(); ++i) {
        if (stations[i].fuel) {
            list.push_back({EntryKind::BurnVolume, i});
            list.push_back({EntryKind::BurnWeight, i});
        }
    }
    list.push_back({EntryKind::Target});
    return list;
}

int WeightBalance::entryCount() const {
    return static_cast<int>(entries().size());
}

Report WeightBalance::enter(int entry, double value, const Symbols& symbols) {
    const std::vector<Entry> list = entries();
    if (entry < 1 || entry > static_cast<int>(list.size()) || m_editor) {
        return {};
    }
    const Entry e = list[static_cast<std::size_t>(entry - 1)];
    if (!std::isfinite(value)) {
        return Report::beep();
    }
    if (value > MaxFigure) {
        return Report::warning("Enter at most 10,000,000.");
    }
    if (value < 0) {
        switch (e.kind) {
        case EntryKind::EmptyArm:
        case EntryKind::Target:
            return Report::warning("An arm is measured aft of the datum: enter 0 or more.");
        case EntryKind::FuelVolume:
        case EntryKind::BurnVolume:
            return Report::warning("Enter a quantity of fuel of 0 or more.");
        default:
            return Report::warning("Enter a weight of 0 or more.");
        }
    }
    const Aircraft& aircraft = shown()->aircraft;
    std::optional<std::string> fault;
    switch (e.kind) {
    case EntryKind::EmptyWeight:
        fault = emptyWeightFault(aircraft, value, symbols);
        break;
    case EntryKind::Weight:
        fault = weightFault(aircraft, value, symbols);
        break;
    case EntryKind::FuelVolume:
        fault = weightFault(aircraft, value * aircraft.stations[e.station].fuel->density, symbols);
        break;
    case EntryKind::BurnVolume:
    case EntryKind::BurnWeight: {
        const double density = aircraft.stations[e.station].fuel->density;
        const Loading* held = loadingOf(aircraft);
        const Loading empty = Loading::emptyFor(aircraft);
        fault = burnFault(aircraft, held ? *held : empty, e.station,
                          e.kind == EntryKind::BurnVolume ? value * density : value, symbols);
        break;
    }
    case EntryKind::EmptyArm:
    case EntryKind::Target:
        break;
    }
    if (fault) {
        return Report::warning(*fault);
    }
    m_input = entry;
    switch (e.kind) {
    case EntryKind::EmptyWeight:
    case EntryKind::EmptyArm: {
        Aircraft copy = aircraft;
        std::optional<double> weight = copy.empty ? copy.empty->weight : m_pendingWeight;
        std::optional<double> arm = copy.empty ? copy.empty->arm : m_pendingArm;
        (e.kind == EntryKind::EmptyWeight ? weight : arm) = value;
        if (weight && arm) {
            // The aircraft's own empty weight goes into the user's copy of its profile.
            copy.empty = Mass{*weight, *arm};
            m_pendingWeight.reset();
            m_pendingArm.reset();
            keep(copy, copy.name);
        } else {
            m_pendingWeight = weight;
            m_pendingArm = arm;
        }
        break;
    }
    case EntryKind::Weight:
        loading().weights[e.station] = value;
        break;
    case EntryKind::FuelVolume:
        loading().weights[e.station] = value * aircraft.stations[e.station].fuel->density;
        break;
    case EntryKind::BurnVolume:
        loading().burns[e.station] = value * aircraft.stations[e.station].fuel->density;
        break;
    case EntryKind::BurnWeight:
        loading().burns[e.station] = value;
        break;
    case EntryKind::Target:
        m_target = value;
        break;
    }
    keepLoadings();
    return {};
}

std::optional<double> WeightBalance::value(int entry) const {
    const std::vector<Entry> list = entries();
    if (entry < 1 || entry > static_cast<int>(list.size())) {
        return std::nullopt;
    }
    const Entry e = list[static_cast<std::size_t>(entry - 1)];
    const Aircraft& aircraft = shown()->aircraft;
    const Loading* l = loadingOf(aircraft);
    auto density = [&] { return aircraft.stations[e.station].fuel->density; };
    switch (e.kind) {
    case EntryKind::EmptyWeight:
        return aircraft.empty ? std::optional(aircraft.empty->weight) : m_pendingWeight;
    case EntryKind::EmptyArm:
        return aircraft.empty ? std::optional(aircraft.empty->arm) : m_pendingArm;
    case EntryKind::Weight:
        return l ? l->weights[e.station] : std::nullopt;
    case EntryKind::FuelVolume:
        if (l && l->weights[e.station]) {
            return *l->weights[e.station] / density();
        }
        return std::nullopt;
    case EntryKind::BurnVolume:
        if (l && l->burns[e.station]) {
            return *l->burns[e.station] / density();
        }
        return std::nullopt;
    case EntryKind::BurnWeight:
        return l ? l->burns[e.station] : std::nullopt;
    case EntryKind::Target:
        return m_target;
    }
    return std::nullopt;
}

void WeightBalance::clear() {
    if (shown() != nullptr && !m_editor) {
        loading() = Loading::emptyFor(shown()->aircraft);
        m_target.reset();
        m_input = 0;
        keepLoadings();
    }
}

void WeightBalance::keepLoadings() {
    LoadingBook book;
    book.chosen = m_chosen;
    for (const auto& profile : m_shelf.profiles()) {
        if (const Loading* l = loadingOf(profile.aircraft)) {
            KeptLoading kept = keptLoading(profile.aircraft, *l);
            if (!kept.weights.empty() || !kept.burns.empty()) {
                book.current.push_back(std::move(kept));
            }
        }
    }
    for (const auto& [name, kept] : m_unplaced) {
        if (!m_shelf.find(kept.aircraft)) {
            book.current.push_back(kept);
        }
    }
    book.named = m_named;
    m_storage.update(
        bookPath(m_storage),
        [bytes = writeBook(book)](const FileRead&) -> std::optional<std::string> { return bytes; },
        [this](bool saved) {
            if (!saved && !m_bookFailed) {
                message("The loadings could not be kept in the storage: they stay as they are "
                        "while the program runs.");
            }
            m_bookFailed = !saved;
        });
}

std::vector<std::size_t> WeightBalance::namedOfShown() const {
    std::vector<std::size_t> list;
    for (std::size_t i = 0; i < m_named.size(); ++i) {
        if (key(m_named[i].aircraft) == key(m_chosen)) {
            list.push_back(i);
        }
    }
    return list;
}

void WeightBalance::saveLoading() {
    const auto* profile = shown();
    if (profile == nullptr || m_editor) {
        return;
    }
    Request box;
    box.kind = Request::Kind::Input;
    box.icon = MessageIcon::Question;
    box.title = std::string(Title);
    box.paragraphs = {"A name for this loading of " + profile->aircraft.name +
                      " (\"Solo, full fuel\"):"};
    m_dialogs.ask(std::move(box), [this, aircraft = profile->aircraft.name](const Answer& answer) {
        if (!answer.text) {
            return;
        }
        std::string name = *answer.text;
        name.erase(0, name.find_first_not_of(" \t"));
        name.erase(name.find_last_not_of(" \t") + 1);
        const auto at = m_shelf.find(aircraft);
        if (name.empty() || !at) {
            return;
        }
        const Aircraft& a = m_shelf.profiles()[*at].aircraft;
        const Loading* held = loadingOf(a);
        KeptLoading kept = keptLoading(a, held ? *held : Loading::emptyFor(a), name);
        // A name saved again for the aircraft replaces what it held.
        std::erase_if(m_named, [&](const KeptLoading& k) {
            return key(k.aircraft) == key(aircraft) && key(k.name) == key(name);
        });
        m_named.push_back(std::move(kept));
        keepLoadings();
    });
}

void WeightBalance::recallLoading(int index) {
    const std::vector<std::size_t> list = namedOfShown();
    if (index < 0 || index >= static_cast<int>(list.size()) || m_editor) {
        return;
    }
    loading() = loadingFrom(shown()->aircraft, m_named[list[static_cast<std::size_t>(index)]]);
    m_input = 0;
    keepLoadings();
}

void WeightBalance::deleteLoading(int index) {
    const std::vector<std::size_t> list = namedOfShown();
    if (index < 0 || index >= static_cast<int>(list.size()) || m_editor) {
        return;
    }
    m_named.erase(m_named.begin() + static_cast<long>(list[static_cast<std::size_t>(index)]));
    keepLoadings();
}

void WeightBalance::chooseAircraft(int index) {
    if (index >= 0 && index < static_cast<int>(m_shelf.profiles().size()) && !m_editor) {
        m_chosen = m_shelf.profiles()[static_cast<std::size_t>(index)].aircraft.name;
        m_pendingWeight.reset();
        m_pendingArm.reset();
        m_shiftFrom = m_shiftTo = m_ballastAt = 0;
        m_input = 0;
        keepLoadings();
    }
}

void WeightBalance::chooseShift(int from, int to) {
    const int count = shown() ? static_cast<int>(shown()->aircraft.stations.size()) : 0;
    m_shiftFrom = from >= 0 && from <= count ? from : 0;
    m_shiftTo = to >= 0 && to <= count ? to : 0;
}

void WeightBalance::chooseBallast(int station) {
    const int count = shown() ? static_cast<int>(shown()->aircraft.stations.size()) : 0;
    m_ballastAt = station >= 0 && station <= count ? station : 0;
}

void WeightBalance::message(std::string text) {
    m_dialogs.message(MessageIcon::Exclamation, Title, {std::move(text)});
}

void WeightBalance::keep(const Aircraft& aircraft, std::optional<std::string> replacing) {
    // The loading goes with the aircraft to its new name.
    if (replacing && key(*replacing) != key(aircraft.name)) {
        const auto it = m_loadings.find(key(*replacing));
        if (it != m_loadings.end()) {
            m_loadings[key(aircraft.name)] = it->second;
        }
        for (KeptLoading& kept : m_named) {
            if (key(kept.aircraft) == key(*replacing)) {
                kept.aircraft = aircraft.name;
            }
        }
    }
    m_chosen = aircraft.name;
    keepLoadings();
    m_shelf.keep(aircraft, std::move(replacing), [this, name = aircraft.name](bool ok) {
        if (!ok) {
            message("The profile \"" + name +
                    "\" could not be written to the storage; the "
                    "profiles are as they were.");
            open();
        }
    });
}

void WeightBalance::newProfile(const Symbols& symbols) {
    if (m_editor) {
        return;
    }
    Aircraft blank;
    blank.name = m_shelf.freeName("New aircraft");
    blank.stations.push_back({"Front seats", 0, {}, {}});
    blank.envelopes.push_back({"Normal", {}, {}});
    m_editor = std::make_unique<ProfileEditor>(blank, std::nullopt, symbols);
    m_editor->apply({FormAction::Kind::RemoveEnvelope, 1, 0});
    m_editor->apply({FormAction::Kind::AddEnvelope, 0, 0});
    m_editor->edit("envelope.1.name", "Normal");
}

void WeightBalance::duplicateProfile() {
    if (const auto* profile = shown(); profile && !m_editor) {
        Aircraft copy = profile->aircraft;
        copy.name = m_shelf.freeName(copy.name);
        m_loadings[key(copy.name)] = m_loadings[key(profile->aircraft.name)];
        keep(copy, std::nullopt);
    }
}

void WeightBalance::editProfile(const Symbols& symbols) {
    if (const auto* profile = shown(); profile && !m_editor) {
        m_editor =
            std::make_unique<ProfileEditor>(profile->aircraft, profile->aircraft.name, symbols);
    }
}

void WeightBalance::renameProfile() {
    const auto* profile = shown();
    if (profile == nullptr || m_editor) {
        return;
    }
    const std::string name = profile->aircraft.name;
    Request box;
    box.kind = Request::Kind::Input;
    box.icon = MessageIcon::Question;
    box.title = std::string(Title);
    box.paragraphs = {"A new name for \"" + name + "\":"};
    m_dialogs.ask(std::move(box), [this, name](const Answer& answer) {
        if (!answer.text) {
            return;
        }
        std::string now = *answer.text;
        while (!now.empty() && (now.back() == ' ' || now.back() == '\t')) {
            now.pop_back();
        }
        while (!now.empty() && (now.front() == ' ' || now.front() == '\t')) {
            now.erase(0, 1);
        }
        const auto at = m_shelf.find(name);
        if (now.empty() || !at) {
            return;
        }
        if (const auto other = m_shelf.find(now); other && *other != *at) {
            message("Another profile is named \"" + now + "\".");
            return;
        }
        Aircraft renamed = m_shelf.profiles()[*at].aircraft;
        renamed.name = now;
        keep(renamed, name);
    });
}

void WeightBalance::deleteProfile() {
    const auto* profile = shown();
    if (profile == nullptr || m_editor) {
        return;
    }
    const std::string name = profile->aircraft.name;
    if (profile->shipped) {
        message("\"" + name + "\" ships with the program and cannot be deleted.");
        return;
    }
    bool ships = false;
    for (std::string_view json : shippedProfiles()) {
        const ProfileRead read = readProfile(json);
        ships = ships || (std::holds_alternative<Aircraft>(read) &&
                          key(std::get<Aircraft>(read).name) == key(name));
    }
    Request box;
    box.kind = Request::Kind::Question;
    box.icon = MessageIcon::Question;
    box.title = std::string(Title);
    box.paragraphs = {"Delete the profile \"" + name + "\"?"};
    if (ships) {
        box.paragraphs.push_back("The profile as it ships takes its place, without this "
                                 "aircraft's empty weight.");
    }
    m_dialogs.ask(std::move(box), [this, name](const Answer& answer) {
        if (answer.yes) {
            m_shelf.remove(name);
            m_loadings.erase(key(name));
            open();
        }
    });
}

void WeightBalance::importProfile(std::string_view bytes) {
    if (m_editor) {
        return;
    }
    open();
    ProfileRead read = readProfile(bytes);
    if (const auto* refusal = std::get_if<std::string>(&read)) {
        message(*refusal);
        return;
    }
    const Aircraft aircraft = std::get<Aircraft>(std::move(read));
    const auto at = m_shelf.find(aircraft.name);
    if (!at || m_shelf.profiles()[*at].shipped) {
        keep(aircraft, std::nullopt);
        return;
    }
    Request box;
    box.kind = Request::Kind::Question;
    box.icon = MessageIcon::Question;
    box.title = std::string(Title);
    box.paragraphs = {"A profile named \"" + aircraft.name + "\" is kept already. Replace it?"};
    m_dialogs.ask(std::move(box), [this, aircraft](const Answer& answer) {
        if (answer.yes) {
            keep(aircraft, aircraft.name);
        }
    });
}

std::string WeightBalance::exportProfile() const {
    const auto* profile = shown();
    return profile ? writeProfile(profile->aircraft) : std::string();
}

void WeightBalance::editField(std::string_view field, std::string_view text) {
    if (m_editor) {
        m_editor->edit(field, text);
    }
}

void WeightBalance::pressFormButton(const FormAction& action, const Symbols& symbols) {
    if (!m_editor) {
        return;
    }
    if (action.kind == FormAction::Kind::Cancel) {
        m_editor.reset();
        return;
    }
    if (action.kind != FormAction::Kind::Save) {
        m_editor->apply(action);
        return;
    }
    ProfileRead read = m_editor->profile(symbols);
    if (const auto* refusal = std::get_if<std::string>(&read)) {
        message("The profile cannot be saved: " + reasonOf(*refusal)); // the editor stays open
        return;
    }
    const Aircraft aircraft = std::get<Aircraft>(std::move(read));
    const std::optional<std::string> replacing = m_editor->replacing();
    const auto other = m_shelf.find(aircraft.name);
    const bool itself = replacing && key(*replacing) == key(aircraft.name);
    if (other && !itself && !m_shelf.profiles()[*other].shipped) {
        message("Another profile is named \"" + aircraft.name + "\".");
        return;
    }
    m_editor.reset();
    keep(aircraft, replacing);
}

LoadingView WeightBalance::view(const Symbols& symbols, std::chrono::year_month_day today) const {
    LoadingView v;
    for (const auto& p : m_shelf.profiles()) {
        v.profiles.push_back({p.aircraft.name, p.shipped});
    }
    if (m_editor) {
        v.editor = m_editor->form();
    }
    const ProfileShelf::Profile* profile = shown();
    if (profile == nullptr) {
        return v;
    }
    v.chosen = static_cast<int>(*m_shelf.find(m_chosen));
    const Aircraft& aircraft = profile->aircraft;
    v.aircraft = aircraft.name;
    v.source = aircraft.source;
    v.canRename = !profile->shipped;
    v.canDelete = !profile->shipped;
    v.weightUnit = std::string(unitWord(aircraft.units.weight));
    v.armUnit = std::string(unitWord(aircraft.units.arm));
    v.fuelUnit = std::string(unitWord(aircraft.units.fuel));
    v.momentUnit = momentUnit(aircraft);
    v.columns = {"Station", "Weight - " + v.weightUnit, "Arm - " + v.armUnit,
                 "Moment - " + v.momentUnit};
    v.exportName = aircraft.name + ".json";
    for (char& c : v.exportName) {
        if (c == '/' || c == '\\' || c == ':') {
            c = '_';
        }
    }
    v.heading = aircraft.name + ", loading sheet of " + isoDate(today);

    const std::vector<Entry> list = entries();
    auto cell = [&](EntryKind kind, std::size_t station, std::string name) {
        LoadingCell c;
        for (std::size_t n = 0; n < list.size(); ++n) {
            if (list[n].kind == kind &&
                (list[n].station == station || kind == EntryKind::EmptyWeight ||
                 kind == EntryKind::EmptyArm || kind == EntryKind::Target)) {
                c.entry = static_cast<int>(n + 1);
            }
        }
        if (const auto held = value(c.entry)) {
            const bool arm = kind == EntryKind::EmptyArm || kind == EntryKind::Target;
            c.text = arm ? armFigure(*held, aircraft.units.arm, symbols) : figure(*held, symbols);
        }
        c.input = c.entry == m_input;
        c.name = std::move(name);
        return c;
    };

    const Loading empty = Loading::emptyFor(aircraft);
    const Loading* held = loadingOf(aircraft);
    const Loading& l = held ? *held : empty;
    Aircraft complete = aircraft;
    if (!complete.empty) {
        complete.empty = Mass{m_pendingWeight.value_or(0), m_pendingArm.value_or(0)};
    }
    const LoadSheet sheet = workOut(complete, l);
    const double divisor = aircraft.momentDivisor;

    LoadingLine emptyLine;
    emptyLine.name = "Empty";
    emptyLine.weight = cell(EntryKind::EmptyWeight, 0, "Empty weight - " + v.weightUnit);
    emptyLine.arm = cell(EntryKind::EmptyArm, 0, "Empty arm - " + v.armUnit);
    if (aircraft.empty) {
        emptyLine.moment = figure(sheet.empty.moment / divisor, symbols);
    } else {
        v.missing = "Enter this aircraft's own empty weight and arm, from its weighing record: "
                    "type each and click its cell. They are kept in your copy of the profile.";
    }
    v.lines.push_back(emptyLine);
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        const LoadSheet::Line& worked = sheet.stations[i];
        LoadingLine line;
        line.name = station.name;
        if (station.fuel) {
            line.volume =
                cell(EntryKind::FuelVolume, i, station.name + " quantity - " + v.fuelUnit);
        }
        line.weight = cell(EntryKind::Weight, i, station.name + " weight - " + v.weightUnit);
        line.arm.text = armFigure(station.arm, aircraft.units.arm, symbols);
        if (l.weights[i]) {
            line.moment = figure(worked.moment / divisor, symbols);
        }
        if (worked.overMax) {
            line.flagged = true;
            line.note = figure(worked.weight - *station.max, symbols) + " " + v.weightUnit +
                        " over its max " + figure(*station.max, symbols) + " " + v.weightUnit;
        } else if (worked.overUsable) {
            line.flagged = true;
            line.note =
                figure(worked.weight / station.fuel->density - station.fuel->usable, symbols) +
                " " + v.fuelUnit + " over its usable " + figure(station.fuel->usable, symbols) +
                " " + v.fuelUnit;
        }
        v.lines.push_back(line);
    }
    if (sheet.unusable.weight > 0) {
        LoadingLine line;
        line.name = "Unusable fuel";
        line.weight.text = figure(sheet.unusable.weight, symbols);
        line.moment = figure(sheet.unusable.moment / divisor, symbols);
        v.lines.push_back(line);
    }
    auto total = [&](Point point, const Condition& c) {
        LoadingLine line;
        line.name = std::string(pointName(point));
        line.total = true;
        line.weight.text = figure(c.weight, symbols);
        line.arm.text = armFigure(c.cg(), aircraft.units.arm, symbols);
        line.moment = figure(c.moment / divisor, symbols);
        if (aircraft.mac) {
            line.mac = figure(macPercent(*aircraft.mac, c.cg()), symbols) + " %MAC";
        }
        return line;
    };
    if (aircraft.empty) {
        v.lines.push_back(total(Point::ZeroFuel, sheet.zeroFuel));
        if (sheet.taxi.weight > 0) {
            v.lines.push_back(total(Point::Ramp, sheet.ramp));
            LoadingLine taxi;
            taxi.name = "Taxi fuel";
            taxi.weight.text = figure(-sheet.taxi.weight, symbols);
            taxi.moment = figure(-sheet.taxi.moment / divisor, symbols);
            v.lines.push_back(taxi);
        }
        v.lines.push_back(total(Point::Takeoff, sheet.takeoff));
    }
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        if (!station.fuel) {
            continue;
        }
        LoadingLine line;
        line.name = "Burn " + station.name;
        line.volume = cell(EntryKind::BurnVolume, i, line.name + " quantity - " + v.fuelUnit);
        line.weight = cell(EntryKind::BurnWeight, i, line.name + " weight - " + v.weightUnit);
        if (sheet.stations[i].overBurnt) {
            line.flagged = true;
            line.note = sheet.stations[i].taxi > 0 ? "more than the fuel loaded less the taxi fuel"
                                                   : "more than the fuel loaded";
        }
        v.lines.push_back(line);
    }
    if (aircraft.empty) {
        v.lines.push_back(total(Point::Landing, sheet.landing));
        v.limits = limitLines(aircraft, sheet, symbols);
        const Verdict said = verdict(aircraft, sheet, symbols);
        v.withinLimits = said.holds;
        v.verdict = said.text;
        v.chart = chart(aircraft, sheet, symbols);
    }

    for (const Station& station : aircraft.stations) {
        v.stations.push_back(station.name);
    }
    for (std::size_t i : namedOfShown()) {
        v.savedLoadings.push_back(m_named[i].name);
    }
    v.shiftFrom = m_shiftFrom;
    v.shiftTo = m_shiftTo;
    v.ballastAt = m_ballastAt;
    v.target = cell(EntryKind::Target, 0, "Target CG - " + v.armUnit);
    if (aircraft.empty && m_target) {
        if (m_shiftFrom > 0 && m_shiftTo > 0) {
            v.shift = shiftText(aircraft, sheet, static_cast<std::size_t>(m_shiftFrom - 1),
                                static_cast<std::size_t>(m_shiftTo - 1), *m_target, symbols);
        }
        if (m_ballastAt > 0) {
            v.ballast = ballastText(aircraft, sheet, static_cast<std::size_t>(m_ballastAt - 1),
                                    *m_target, symbols);
        }
    }
    if (aircraft.empty) {
        std::optional<Helper> helper;
        if (!v.shift.empty()) {
            helper =
                Helper{Helper::Kind::Shift, *m_target, static_cast<std::size_t>(m_shiftFrom - 1),
                       static_cast<std::size_t>(m_shiftTo - 1)};
        } else if (!v.ballast.empty()) {
            helper = Helper{Helper::Kind::Ballast, *m_target,
                            static_cast<std::size_t>(m_ballastAt - 1), 0};
        }
        v.sheet = sheetText(aircraft, l, symbols, helper);
        v.printed = printedSheet(aircraft, l, symbols, isoDate(today), helper);
    }
    return v;
}

} // namespace zel::balance
