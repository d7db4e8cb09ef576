// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "platform/lazynetwork.h"
#include "platform/qtregional.h"
#include "platform/qtstorage.h"

#include <memory>
#include <optional>
#include <string>

namespace zel {

/// The platform pieces that the window and the console share: regional
/// symbols, the settings folder, HTTP and the clock. Only the dialogs differ.
struct SharedPlatform {
    SharedPlatform(QtRegional symbols, QtStorage files)
        : regional(std::move(symbols)), storage(std::move(files)) {}

    QtRegional regional;
    QtStorage storage;
    LazyNetwork network; ///< loads Qt Network when a download starts
    QtClock clock;

    Platform with(Interaction& ui) { return {ui, regional, storage, network, clock}; }
};

/// What the command line may ask of the shared pieces.
struct PlatformChoice {
    std::optional<std::string> locale;  ///< QLocale name: en_US, de_DE
    std::optional<std::string> symbols; ///< decimal then grouping symbol
    std::optional<std::string> folder;  ///< the program folder
};

/// The shared pieces as the command line asks for them (--locale, --symbols,
/// --folder); nothing, with the reason in `error`, when it asks for what
/// cannot be. Needs a Qt application object.
std::unique_ptr<SharedPlatform> makeSharedPlatform(const PlatformChoice& choice,
                                                   std::string& error);

} // namespace zel
