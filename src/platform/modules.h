// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <string>

/// The window (Qt Widgets) and HTTP (Qt Network) live in modules of their own,
/// loaded only when a window opens or a download starts: a conversion in the
/// terminal loads neither. They lie beside the executable (a build, a portable
/// folder) or in ../lib/zelflightab (an installed program).
namespace zel::modules {

/// The file of a module ("window", "http"); empty when none is found.
std::string find(const std::string& name);

/// Loads a module and finds a function in it; nullptr, with the reason in
/// `error`, when either cannot be.
void* load(const std::string& name, const char* function, std::string& error);

} // namespace zel::modules
