// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/sharedplatform.h"

namespace zel {

std::unique_ptr<SharedPlatform> makeSharedPlatform(const PlatformChoice& options,
                                                   std::string& error) {
    std::optional<Symbols> replacement;
    if (options.symbols && !(replacement = symbolsFromPair(*options.symbols))) {
        error = "--symbols takes two characters, the decimal then the grouping symbol";
        return nullptr;
    }
    if (options.locale && !QtRegional::isKnownLocale(*options.locale)) {
        error = "unknown locale: " + *options.locale;
        return nullptr;
    }
    return std::make_unique<SharedPlatform>(
        QtRegional(options.locale, replacement),
        QtStorage(QtStorage::locateProgramFolder(options.folder)));
}

} // namespace zel
