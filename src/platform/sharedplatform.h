// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "platform/qthttp.h"
#include "platform/qtregional.h"
#include "platform/qtstorage.h"

namespace zel {

/// The platform pieces that the window and the console share: regional
/// symbols, the settings folder, HTTP and the clock. Only the dialogs differ.
struct SharedPlatform {
    QtRegional regional;
    QtStorage storage;
    QtHttp network;
    QtClock clock;

    Platform with(Interaction& ui) { return {ui, regional, storage, network, clock}; }
};

} // namespace zel
