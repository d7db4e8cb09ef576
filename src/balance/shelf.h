// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/aircraft.h"
#include "host/platform.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel::balance {

/// The profiles that ship with the program (data/aircraft), as JSON.
std::span<const std::string_view> shippedProfiles();

/// Where the user's profiles are kept: the Aircraft folder beside the settings file.
inline constexpr std::string_view ProfileFolder = "Aircraft";

/// The aircraft profiles the page offers: those the program ships, and the
/// user's own, each kept in a file of its own beside the settings. A user's
/// profile of a shipped one's name (the copy that holds the aircraft's own
/// empty weight) takes its place.
class ProfileShelf {
  public:
    explicit ProfileShelf(Storage& storage) : m_storage(storage) {}

    struct Profile {
        Aircraft aircraft;
        bool shipped = false; ///< as the program ships it; not kept as a file
        std::string file;     ///< the kept file's path
    };

    /// Reads the shipped and kept profiles afresh, in name order. A kept file
    /// that is not a profile is left as it is and not offered: the reasons,
    /// one per such file, are returned.
    std::vector<std::string> load();
    const std::vector<Profile>& profiles() const { return m_profiles; }
    /// The profile of this name (compared without case); nothing for none.
    std::optional<std::size_t> find(std::string_view name) const;
    /// A name no profile has: `base`, else "base (2)", "base (3)"...
    std::string freeName(std::string_view base) const;

    /// Keeps `aircraft` as the user's own, replacing the kept profile named
    /// `replacing` (the same name, or the one it had before a rename). The
    /// file is replaced whole; `done` learns whether it was written, and on
    /// failure the shelf is read back as it is stored.
    void keep(const Aircraft& aircraft, std::optional<std::string> replacing, Then<bool> done);
    /// Deletes the user's profile of this name; a shipped one it stood for
    /// is offered again.
    void remove(std::string_view name);

  private:
    std::string folder();
    std::string fileFor(std::string_view name, std::string_view keepingFile) const;
    void sort();
    /// Offers each profile as it ships that no kept profile stands for.
    void offerShipped();

    Storage& m_storage;
    std::vector<Profile> m_profiles;
};

} // namespace zel::balance
