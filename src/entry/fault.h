// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <optional>
#include <string_view>

namespace zel {

/// An arithmetic result that cannot be stored: the calculation stops where it
/// arose, and the window reports it instead of keeping an infinite or NaN value.
enum class Fault { DivisionByZero, Overflow };

/// What the window says of a fault: "Division by zero", "Overflow".
constexpr std::string_view faultText(Fault fault) {
    return fault == Fault::DivisionByZero ? "Division by zero" : "Overflow";
}

/// Nothing, or the fault that stopped a calculation.
using Faulted = std::optional<Fault>;

} // namespace zel
