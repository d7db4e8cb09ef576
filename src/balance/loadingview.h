// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/chart.h"
#include "balance/editor.h"
#include "balance/sheettext.h"

#include <optional>
#include <string>
#include <vector>

namespace zel::balance {

/// A figure of the sheet; one the user gives is a cell a click (or Enter on
/// it) takes the typed number into: Menu::clickRow(entry).
struct LoadingCell {
    std::string text;   ///< "340.00"; empty for none
    int entry = 0;      ///< > 0: the entry a click takes the typed number into
    bool input = false; ///< the cell last typed into
    /// What a screen reader calls it: "Front seats weight - lb".
    std::string name;

    bool operator==(const LoadingCell&) const = default;
};

/// One line of the loading sheet: a station, the empty aircraft, a burn, or
/// one of the three conditions.
struct LoadingLine {
    std::string name;   ///< "Front seats", "Burn Fuel", "Takeoff"
    LoadingCell volume; ///< fuel in the fuel unit, on fuel and burn lines
    LoadingCell weight;
    LoadingCell arm;
    std::string moment;
    /// A condition's %MAC, where the profile gives the MAC (its CG is in the arm cell).
    std::string mac;
    bool total = false;   ///< Zero fuel, Takeoff, Landing
    bool flagged = false; ///< over its max or its usable fuel, or burnt more than loaded
    std::string note;     ///< why it is flagged: "10.00 lb over its max 120.00 lb"

    bool operator==(const LoadingLine&) const = default;
};

struct ProfileChoice {
    std::string name;
    bool shipped = false; ///< as it ships, without an empty weight of its own

    bool operator==(const ProfileChoice&) const = default;
};

/// The Weight & Balance page as every face draws it, below the calculator:
/// the aircraft, the sheet, the limits, the picture, the helpers, and the
/// profile editor while it is open.
struct LoadingView {
    std::vector<ProfileChoice> profiles;
    int chosen = -1; ///< the aircraft shown, an index into profiles
    std::string aircraft;
    std::string source; ///< where its figures come from
    std::string weightUnit, armUnit, fuelUnit, momentUnit;
    /// What the sheet still needs: the aircraft's own empty weight and arm.
    std::string missing;
    /// The headings of the sheet's columns.
    std::vector<std::string> columns;
    std::vector<LoadingLine> lines;
    std::vector<LimitLine> limits;
    bool withinLimits = false;
    /// "Within limits" or "Out of limits"; empty while the sheet is not worked out.
    std::string verdict;
    std::optional<Chart> chart;

    /// The loadings saved by name for this aircraft, in the order they were saved.
    std::vector<std::string> savedLoadings;

    /// The helpers: the stations by name, the ones chosen (counted from 1,
    /// 0 for none), the target CG and what each helper says.
    std::vector<std::string> stations;
    int shiftFrom = 0;
    int shiftTo = 0;
    int ballastAt = 0;
    LoadingCell target;
    std::string shift;
    std::string ballast;

    /// The sheet for print and the clipboard: its heading (the aircraft and
    /// today's date) and its text.
    std::string heading;
    std::string sheet;
    /// The page printed to be signed; nothing while the sheet is not worked out.
    std::optional<PrintedSheet> printed;
    /// The file name an export is offered under: "Cessna 172S.json".
    std::string exportName;
    bool canRename = false; ///< a kept profile, not one as it ships
    bool canDelete = false;

    std::optional<ProfileForm> editor;

    bool operator==(const LoadingView&) const = default;
};

} // namespace zel::balance
