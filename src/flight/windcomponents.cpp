// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Wind Comp: a reported wind split along and across a runway.
#include "page/pagetable.h"
#include "page/units.h"

#include <cmath>

namespace zel {
namespace {

constexpr std::string_view InvalidDirection = "Invalid direction (range 1 - 360°)";

bool isDirection(double x) {
    return x >= 1 && x <= 360;
}

/// Axis (- head, + tail) and cross wind (+ from the right) for a runway.
Report convertWindComponents(PageSheet& page, double x, int& inputRow) {
    page.clear(6);
    page.clear(8);
    if (inputRow == 1 || inputRow == 3) {
        if (!isDirection(x)) {
            return Report::warning(InvalidDirection);
        }
    } else if (inputRow == 6 || inputRow == 8 || x < 0) {
        return Report::beep();
    }
    page.setValue(inputRow, x);
    const double windDirection = page.value(1);
    const double windVelocity = page.value(2);
    const double runway = page.value(3);
    // A calm (0 kt) has no component either way.
    if (page.holds(1) && page.holds(2) && page.holds(3)) {
        const double alpha = (runway - windDirection) * static_cast<double>(units::TablePi) / 180;
        page.setValue(6, -windVelocity * std::cos(alpha));
        page.setValue(8, -windVelocity * std::sin(alpha));
    }
    return {};
}

} // namespace

extern const PageTable WindCompPage{
    .name = "Wind Comp",
    .icon = "windComp",
    .rows = {{row("Wind Direction - °", Form::Direction),
              row("Wind Velocity - kt", Form::Number),
              row("RWY heading - °", Form::Direction),
              {},
              {},
              row("Axis Wind - kt", Form::HeadTail),
              {},
              row("Cross Wind - kt", Form::Side)}},
    .convert = convertWindComponents,
    .functionKey = 12,
};

} // namespace zel
