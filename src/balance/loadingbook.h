// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/loadsheet.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

// What the Weight & Balance page keeps between runs, in Tech/Loadings.json:
// the aircraft shown, the loading of each aircraft as the pilot left it, and
// the loadings saved by name ("Solo, full fuel"). Weights are kept by
// station name, so that a loading survives a profile whose stations were
// reordered; a station it no longer names is left out.

namespace zel::balance {

/// The file below the Tech folder the book is kept in.
inline constexpr std::string_view LoadingBookName = "Loadings.json";

/// One loading of one aircraft: what each station holds and each fuel
/// station burns, in the profile's weight unit, by station name.
struct KeptLoading {
    std::string name; ///< empty for the loading as the pilot left it
    std::string aircraft;
    std::map<std::string, double> weights;
    std::map<std::string, double> burns;

    bool operator==(const KeptLoading&) const = default;
};

struct LoadingBook {
    std::string chosen; ///< the aircraft shown
    std::vector<KeptLoading> current;
    std::vector<KeptLoading> named;

    bool operator==(const LoadingBook&) const = default;
};

/// The book as JSON; readBook reads it back as the same book.
std::string writeBook(const LoadingBook& book);
/// Reads a book; what is not a loading (a text that is no JSON, a weight that
/// is no finite number of 0 or more) is left out, never guessed.
LoadingBook readBook(std::string_view json);

/// A loading kept for `aircraft`, and back.
KeptLoading keptLoading(const Aircraft& aircraft, const Loading& loading, std::string name = {});
Loading loadingFrom(const Aircraft& aircraft, const KeptLoading& kept);

} // namespace zel::balance
