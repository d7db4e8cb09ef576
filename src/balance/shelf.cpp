// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/shelf.h"

#include "balance/profile.h"
#include "entry/text.h"

#include <algorithm>
#include <variant>

namespace zel::balance {
namespace {

/// A file name for a profile's name: letters, digits and a few signs kept,
/// anything else (a slash, a colon) made an underscore.
std::string safeName(std::string_view name) {
    std::string out;
    for (char c : name) {
        const bool kept = isDigit(c) || isLetter(c) || c == ' ' || c == '-' || c == '_' ||
                          c == '(' || c == ')' || c == '.' || static_cast<unsigned char>(c) >= 0x80;
        out += kept ? c : '_';
    }
    while (!out.empty() && (out.front() == ' ' || out.front() == '.')) {
        out.erase(0, 1);
    }
    while (!out.empty() && out.back() == ' ') {
        out.pop_back();
    }
    return out.empty() ? "aircraft" : out;
}

} // namespace

std::string ProfileShelf::folder() {
    return techPath(m_storage.programFolder(), ProfileFolder);
}

std::vector<std::string> ProfileShelf::load() {
    std::vector<std::string> faults;
    m_profiles.clear();
    const std::string where = folder();
    for (const std::string& name : m_storage.list(where)) {
        if (!name.ends_with(".json")) {
            continue;
        }
        const std::string path = where + "/" + name;
        const FileRead file = m_storage.read(path);
        if (file.status != FileRead::Status::Ok) {
            faults.push_back(path + " cannot be read.");
            continue;
        }
        ProfileRead read = readProfile(file.bytes);
        if (auto* reason = std::get_if<std::string>(&read)) {
            faults.push_back(path + ": " + *reason);
            continue;
        }
        Aircraft aircraft = std::get<Aircraft>(std::move(read));
        if (find(aircraft.name)) {
            faults.push_back(path + ": another kept profile is named \"" + aircraft.name + "\".");
            continue;
        }
        m_profiles.push_back({std::move(aircraft), false, path});
    }
    offerShipped();
    return faults;
}

void ProfileShelf::offerShipped() {
    for (std::string_view json : shippedProfiles()) {
        ProfileRead read = readProfile(json);
        if (auto* aircraft = std::get_if<Aircraft>(&read); aircraft && !find(aircraft->name)) {
            m_profiles.push_back({std::move(*aircraft), true, {}});
        }
    }
    sort();
}

void ProfileShelf::sort() {
    std::stable_sort(m_profiles.begin(), m_profiles.end(), [](const Profile& a, const Profile& b) {
        return nameKey(a.aircraft.name) < nameKey(b.aircraft.name);
    });
}

std::optional<std::size_t> ProfileShelf::find(std::string_view name) const {
    const std::string key = nameKey(name);
    for (std::size_t i = 0; i < m_profiles.size(); ++i) {
        if (nameKey(m_profiles[i].aircraft.name) == key) {
            return i;
        }
    }
    return std::nullopt;
}

std::string ProfileShelf::freeName(std::string_view base) const {
    std::string name(base);
    for (int n = 2; find(name); ++n) {
        name = std::string(base) + " (" + std::to_string(n) + ")";
    }
    return name;
}

std::string ProfileShelf::fileFor(std::string_view name, std::string_view keepingFile) const {
    const std::string where = techPath(m_storage.programFolder(), ProfileFolder);
    const std::string stem = safeName(name);
    std::string path = where + "/" + stem + ".json";
    // Two names may make one file name ("A/B", "A_B"): the second takes a number.
    auto taken = [&](const std::string& candidate) {
        return candidate != keepingFile &&
               std::any_of(m_profiles.begin(), m_profiles.end(),
                           [&](const Profile& p) { return !p.shipped && p.file == candidate; });
    };
    for (int n = 2; taken(path); ++n) {
        path = where + "/" + stem + " " + std::to_string(n) + ".json";
    }
    return path;
}

void ProfileShelf::keep(const Aircraft& aircraft, std::optional<std::string> replacing,
                        Then<bool> done) {
    std::string oldFile;
    if (replacing) {
        // A kept profile gives way to its new version; one as it ships stays
        // offered unless the new one takes its name.
        if (const auto at = find(*replacing); at && !m_profiles[*at].shipped) {
            oldFile = m_profiles[*at].file;
            m_profiles.erase(m_profiles.begin() + static_cast<long>(*at));
        }
    }
    // A kept profile of the new name is replaced too (an import the user let replace it).
    if (const auto same = find(aircraft.name)) {
        if (!m_profiles[*same].shipped && oldFile.empty()) {
            oldFile = m_profiles[*same].file;
        }
        m_profiles.erase(m_profiles.begin() + static_cast<long>(*same));
    }
    const std::string path = fileFor(aircraft.name, oldFile);
    m_profiles.push_back({aircraft, false, path});
    offerShipped(); // one the replaced profile stood for
    sort();
    m_storage.write(path, writeProfile(aircraft),
                    [this, path, oldFile, done = std::move(done)](bool ok) {
                        if (ok && !oldFile.empty() && oldFile != path) {
                            m_storage.remove(oldFile);
                        }
                        if (!ok) {
                            load();
                        }
                        if (done) {
                            done(ok);
                        }
                    });
}

void ProfileShelf::remove(std::string_view name) {
    const auto at = find(name);
    if (!at || m_profiles[*at].shipped) {
        return;
    }
    m_storage.remove(m_profiles[*at].file);
    load();
}

} // namespace zel::balance
