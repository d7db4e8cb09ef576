// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/chart.h"
#include "balance/loadsheet.h"
#include "entry/numbertext.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

// The loading sheet in words: the figures with the regional symbols and two
// decimals, the margin to each limit, the helpers' answers, and the sheet as
// text for the terminal and for print.

namespace zel::balance {

/// A figure as the sheet shows it: grouped, two decimals ("2,105.00").
std::string figure(double value, const Symbols& symbols);

/// An arm or a CG as the sheet shows it in its unit: 40.33 in, 461.9 mm,
/// 0.523 m, 104.75 cm.
std::string armFigure(double value, ArmUnit unit, const Symbols& symbols);

/// A day as the sheet dates it: "2026-11-25".
std::string isoDate(std::chrono::year_month_day day);

/// "lb-in", "kg-mm", "lb-in/1000": the unit of the moments shown.
std::string momentUnit(const Aircraft& aircraft);

/// The stations of a combined limit: "Baggage A + Baggage B".
std::string combinedName(const CombinedLimit& limit);

/// The conditions of a category a loading does not meet, in words: "rear
/// seats and baggage A occupied", "baggage B over 20.00 lb".
std::string unmetText(const Aircraft& aircraft, const Envelope& envelope,
                      const EnvelopeCheck& check, const Symbols& symbols);

/// The name of a condition: "Zero fuel", "Ramp", "Takeoff", "Landing".
std::string_view pointName(Point point);

/// One limit checked, with its margin in words: "Takeoff: 38.00 lb under max
/// takeoff", "Takeoff: CG 0.40 in forward of the Normal limit at 2,550.00 lb".
struct LimitLine {
    std::string text;
    bool holds = true;
    int envelope = -1; ///< the envelope it is about; -1 for a maximum

    bool operator==(const LimitLine&) const = default;
};

/// Every limit of the aircraft against the sheet: the maximum weights, then
/// the stations over their max and the fuel over its usable, then each
/// envelope with each condition and the burn line.
std::vector<LimitLine> limitLines(const Aircraft& aircraft, const LoadSheet& sheet,
                                  const Symbols& symbols);

/// The sheet's verdict in a sentence that names what holds: "Within limits:
/// Normal category. Utility: not allowed, rear seats occupied.", "Out of
/// limits: Ramp: 12.00 lb over max ramp."
struct Verdict {
    bool holds = false;
    std::string text;

    bool operator==(const Verdict&) const = default;
};
Verdict verdict(const Aircraft& aircraft, const LoadSheet& sheet, const Symbols& symbols);

/// Why a figure cannot go into the sheet, in a sentence; nothing when it
/// can. An empty weight of zero or less; a weight (of a station, or the
/// empty aircraft) over ten times the max takeoff weight (the ramp weight
/// where no takeoff weight is given), as no aircraft is ever loaded so;
/// a burn greater than the fuel the station holds after taxiing.
std::optional<std::string> emptyWeightFault(const Aircraft& aircraft, double weight,
                                            const Symbols& symbols);
std::optional<std::string> weightFault(const Aircraft& aircraft, double weight,
                                       const Symbols& symbols);
std::optional<std::string> burnFault(const Aircraft& aircraft, const Loading& loading,
                                     std::size_t station, double burn, const Symbols& symbols);

/// What a helper says: "Move 100.00 lb from Rear seats to Baggage A to bring
/// the CG to 78.50 in", "Add 128.93 lb at Baggage A to ...", or why it cannot.
std::string shiftText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t from,
                      std::size_t to, double target, const Symbols& symbols);
std::string ballastText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t station,
                        double target, const Symbols& symbols);

/// A helper asked for on the sheet.
struct Helper {
    enum class Kind { Shift, Ballast } kind = Kind::Shift;
    double target = 0;
    std::size_t from = 0; ///< the station weight moves from, or the ballast's
    std::size_t to = 0;
};

/// One line of the sheet's table: the station, its weight, arm and moment,
/// and what more it says (a fuel quantity, a CG and %MAC, "OVER").
struct SheetRow {
    std::array<std::string, 4> cells;
    std::string rest;
    bool total = false;   ///< Zero fuel, Ramp, Takeoff, Landing
    bool flagged = false; ///< over a max, or more burnt than loaded

    bool operator==(const SheetRow&) const = default;
};

/// The headings and the lines of the table, with the regional symbols.
std::vector<SheetRow> sheetRows(const Aircraft& aircraft, const Loading& loading,
                                const Symbols& symbols);

/// The loading sheet as it is printed on one page to be signed: what is
/// filled in (the aircraft, the date) and what is left to write on (the
/// registration where the aircraft's name is none, the pilot), the table,
/// the verdict in a word and a sentence, the limits, the chart, the helper's
/// answer, and the lines for the signatures.
struct PrintedSheet {
    std::string title;                                      ///< "Loading sheet"
    std::vector<std::pair<std::string, std::string>> facts; ///< label, value (empty: a line)
    std::vector<SheetRow> rows;                             ///< the first holds the headings
    std::string verdictWord;                                ///< "WITHIN LIMITS" or "OUT OF LIMITS"
    Verdict verdict;
    std::vector<LimitLine> limits;
    std::optional<Chart> chart;
    std::string helper;
    std::vector<std::string> signatures; ///< what each signature line is for
    std::string source;                  ///< where the profile's figures come from

    bool operator==(const PrintedSheet&) const = default;
};

PrintedSheet printedSheet(const Aircraft& aircraft, const Loading& loading, const Symbols& symbols,
                          std::string_view date,
                          const std::optional<Helper>& helper = std::nullopt);

/// The sheet as text: the aircraft, one line per station, the lines "Zero
/// fuel", "Takeoff" and "Landing", then one line per maximum and per
/// envelope with its margin, then the helper's answer when one is asked.
std::string sheetText(const Aircraft& aircraft, const Loading& loading, const Symbols& symbols,
                      const std::optional<Helper>& helper = std::nullopt);

} // namespace zel::balance
