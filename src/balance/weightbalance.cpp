// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/weightbalance.h"

#include "entry/text.h"

#include <cmath>
#include <cstdio>
#include <variant>

namespace zel::balance {
namespace {

constexpr std::string_view Title = WeightBalanceTitle;

std::string key(std::string_view name) {
    return lowerCase(name);
}

/// The reason of a refused profile without the words that open it.
std::string reasonOf(const std::string& refusal) {
    constexpr std::string_view Opening = "Not an aircraft profile: ";
    return refusal.starts_with(Opening) ? refusal.substr(Opening.size()) : refusal;
}

} // namespace

void WeightBalance::open() {
    if (!m_loaded) {
        m_loaded = true;
        std::vector<std::string> faults = m_shelf.load();
        if (!faults.empty()) {
            faults.insert(faults.begin(), "These kept profiles are not offered; their files are "
                                          "left as they are:");
            m_dialogs.message(MessageIcon::Exclamation, Title, std::move(faults));
        }
        const FileRead file = m_storage.read(techPath(m_storage.programFolder(), LoadingBookName));
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

} // namespace zel::balance
