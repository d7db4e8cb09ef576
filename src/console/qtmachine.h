// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "console/console.h"
#include "platform/sharedplatform.h"

#include <memory>

namespace zel {

/// Names the application and makes the platform pieces the command line asks
/// for; nothing, having said why on standard error, when it cannot. Needs the
/// application object.
std::unique_ptr<SharedPlatform> startPlatform(const Options& options);

/// Runs the application's event loop until the transfers that Menu started
/// have ended: their replies come through it.
void waitForTransfers(const Menu& menu);

/// The desktop as the terminal's ways see it.
ConsoleMachine consoleMachine(SharedPlatform& shared);

} // namespace zel
