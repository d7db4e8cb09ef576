// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/sheettext.h"

#include "balance/quantity.h"
#include "entry/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace zel::balance {
namespace {

std::string word(WeightUnit unit) {
    return std::string(unitWord(unit));
}
std::string word(ArmUnit unit) {
    return std::string(unitWord(unit));
}
std::string word(FuelUnit unit) {
    return std::string(unitWord(unit));
}

/// Where a condition stands against one envelope, in words.
std::string margin(const Envelope& envelope, const Condition& c, const Aircraft& aircraft,
                   const Symbols& symbols) {
    const std::string wu = word(aircraft.units.weight);
    const std::string au = word(aircraft.units.arm);
    const double cg = c.cg();
    double weight = c.weight;
    const auto [lowest, highest] =
        std::minmax_element(envelope.corners.begin(), envelope.corners.end(),
                            [](Mass a, Mass b) { return a.weight < b.weight; });
    const bool inside = contains(envelope.corners, {weight, cg});
    if (inside) {
        // On the top or bottom edge within the tolerance: its range is there.
        weight = std::clamp(weight, lowest->weight, highest->weight);
    }
    const std::string at = " at " + figure(c.weight, symbols) + " " + wu;
    const auto ranges = cgRanges(envelope.corners, weight);
    if (ranges.empty()) {
        return c.weight > highest->weight ? figure(c.weight - highest->weight, symbols) + " " + wu +
                                                " above the " + envelope.name + " envelope"
                                          : figure(lowest->weight - c.weight, symbols) + " " + wu +
                                                " below the " + envelope.name + " envelope";
    }
    // The range the CG is in, or the nearest.
    auto distance = [cg](std::pair<double, double> r) {
        return cg < r.first ? r.first - cg : cg > r.second ? cg - r.second : 0.0;
    };
    const auto range = *std::min_element(ranges.begin(), ranges.end(),
                                         [&](auto a, auto b) { return distance(a) < distance(b); });
    if (inside) {
        const double fromForward = std::max(cg - range.first, 0.0);
        const double fromAft = std::max(range.second - cg, 0.0);
        return fromForward <= fromAft
                   ? "CG " + armFigure(fromForward, aircraft.units.arm, symbols) + " " + au +
                         " aft of the " + envelope.name + " forward limit" + at
                   : "CG " + armFigure(fromAft, aircraft.units.arm, symbols) + " " + au +
                         " forward of the " + envelope.name + " aft limit" + at;
    }
    return cg < range.first ? "CG " + armFigure(range.first - cg, aircraft.units.arm, symbols) +
                                  " " + au + " forward of the " + envelope.name + " limit" + at
                            : "CG " + armFigure(cg - range.second, aircraft.units.arm, symbols) +
                                  " " + au + " aft of the " + envelope.name + " limit" + at;
}

/// A station's name inside a sentence: "rear seats", "baggage A".
std::string inSentence(std::string name) {
    if (name.size() > 1 && std::isupper(static_cast<unsigned char>(name[0])) &&
        std::islower(static_cast<unsigned char>(name[1]))) {
        name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
    }
    return name;
}

/// Names joined as a sentence lists them: "A", "A and B", "A, B and C".
std::string listed(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    }
    return text;
}

/// A text padded with blanks to `width` characters, on the left or the right.
std::string padded(const std::string& text, std::size_t width, bool right) {
    const std::size_t length = charCount(text);
    const std::string blanks(width > length ? width - length : 0, ' ');
    return right ? blanks + text : text + blanks;
}

} // namespace

std::string figure(double value, const Symbols& symbols) {
    std::string text = formatNumber(value, "#,#0.00", symbols);
    if (text == "-0" + symbols.decimal + "00") {
        text.erase(0, 1);
    }
    return text;
}

std::string isoDate(std::chrono::year_month_day day) {
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    return text;
}

std::string armFigure(double value, ArmUnit unit, const Symbols& symbols) {
    // Enough decimals to redo a moment by hand in each unit: hundredths of
    // an inch or a centimetre, tenths of a millimetre, millimetres of a metre.
    const std::string pattern = unit == ArmUnit::Metre        ? "#,#0.000"
                                : unit == ArmUnit::Millimetre ? "#,#0.0"
                                                              : "#,#0.00";
    std::string text = formatNumber(value, pattern, symbols);
    if (text.starts_with("-") && text.find_first_of("123456789") == std::string::npos) {
        text.erase(0, 1);
    }
    return text;
}

std::string combinedName(const CombinedLimit& limit) {
    std::string name;
    for (const std::string& station : limit.stations) {
        name += (name.empty() ? "" : " + ") + station;
    }
    return name;
}

std::string unmetText(const Aircraft& aircraft, const Envelope& envelope,
                      const EnvelopeCheck& check, const Symbols& symbols) {
    std::vector<std::string> occupied;
    std::vector<std::string> parts;
    for (std::size_t k : check.unmet) {
        const StationCondition& condition = envelope.conditions.at(k);
        const Station* station = stationNamed(aircraft, condition.station);
        const std::string name = inSentence(station ? station->name : condition.station);
        if (condition.max == 0) {
            occupied.push_back(name);
        } else {
            parts.push_back(name + " over " + figure(condition.max, symbols) + " " +
                            word(aircraft.units.weight));
        }
    }
    if (!occupied.empty()) {
        parts.insert(parts.begin(), listed(occupied) + " occupied");
    }
    return listed(parts);
}

Verdict verdict(const Aircraft& aircraft, const LoadSheet& sheet, const Symbols& symbols) {
    std::vector<std::string> over;
    for (const LimitLine& line : limitLines(aircraft, sheet, symbols)) {
        if (line.envelope < 0 && !line.holds) {
            over.push_back(line.text);
        }
    }
    if (!over.empty()) {
        std::string text = "Out of limits: ";
        for (std::size_t i = 0; i < over.size(); ++i) {
            text += (i == 0 ? "" : "; ") + over[i];
        }
        return {false, text + "."};
    }
    std::vector<std::string> inside;
    std::string others;
    for (const Envelope& envelope : aircraft.envelopes) {
        const EnvelopeCheck c = check(aircraft, envelope, sheet);
        if (c.whole() && c.allowed()) {
            inside.push_back(envelope.name);
        } else {
            others += " " + envelope.name + ": " +
                      (c.allowed() ? std::string("outside")
                                   : "not allowed, " + unmetText(aircraft, envelope, c, symbols)) +
                      ".";
        }
    }
    if (inside.empty()) {
        return {false, "Out of limits:" + others};
    }
    return {true, "Within limits: " + listed(inside) +
                      (inside.size() > 1 ? " categories." : " category.") + others};
}

std::optional<std::string> emptyWeightFault(const Aircraft& aircraft, double weight,
                                            const Symbols& symbols) {
    if (weight <= 0) {
        return "An empty weight is more than 0.";
    }
    return weightFault(aircraft, weight, symbols);
}

std::optional<std::string> weightFault(const Aircraft& aircraft, double weight,
                                       const Symbols& symbols) {
    const MaxWeights& m = aircraft.maxWeight;
    const std::optional<double> max = m.takeoff ? m.takeoff : m.ramp;
    if (max && *max > 0 && weight > 10 * *max) {
        return "Enter at most ten times the max " + std::string(m.takeoff ? "takeoff" : "ramp") +
               " weight, " + figure(10 * *max, symbols) + " " + word(aircraft.units.weight) + ".";
    }
    return std::nullopt;
}

std::optional<std::string> burnFault(const Aircraft& aircraft, const Loading& loading,
                                     std::size_t station, double burn, const Symbols& symbols) {
    const Station& s = aircraft.stations.at(station);
    if (!s.fuel) {
        return s.name + " holds no fuel to burn.";
    }
    const double loaded = loading.weight(station);
    const double taxi = std::min(s.fuel->taxi, loaded);
    if (burn > loaded - taxi) {
        const std::string wu = word(aircraft.units.weight);
        std::string held = figure(loaded, symbols) + " " + wu;
        if (taxi > 0) {
            held += " (" + figure(loaded - taxi, symbols) + " " + wu + " after taxiing)";
        }
        return "The burn from " + s.name + " is more than the " + held + " loaded there.";
    }
    return std::nullopt;
}

std::string momentUnit(const Aircraft& aircraft) {
    std::string unit = word(aircraft.units.weight) + "-" + word(aircraft.units.arm);
    if (aircraft.momentDivisor != 1) {
        unit += "/" + generalText(aircraft.momentDivisor, Symbols{".", ""});
    }
    return unit;
}

std::string_view pointName(Point point) {
    switch (point) {
    case Point::ZeroFuel:
        return "Zero fuel";
    case Point::Landing:
        return "Landing";
    case Point::Ramp:
        return "Ramp";
    case Point::Takeoff:
        break;
    }
    return "Takeoff";
}

std::vector<LimitLine> limitLines(const Aircraft& aircraft, const LoadSheet& sheet,
                                  const Symbols& symbols) {
    std::vector<LimitLine> lines;
    const std::string wu = word(aircraft.units.weight);
    const std::string fu = word(aircraft.units.fuel);
    auto maximum = [&](Point point, const Condition& c, const std::optional<double>& max,
                       std::string_view name) {
        if (!max) {
            return;
        }
        const double spare = *max - c.weight;
        lines.push_back({std::string(pointName(point)) + ": " + figure(std::fabs(spare), symbols) +
                             " " + wu + (spare >= 0 ? " under" : " over") + " max " +
                             std::string(name),
                         spare >= 0});
    };
    const MaxWeights& m = aircraft.maxWeight;
    maximum(Point::ZeroFuel, sheet.zeroFuel, m.zeroFuel, "zero fuel");
    maximum(Point::Ramp, sheet.ramp, m.ramp, "ramp");
    maximum(Point::Takeoff, sheet.takeoff, m.takeoff, "takeoff");
    maximum(Point::Landing, sheet.landing, m.landing, "landing");
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        const LoadSheet::Line& line = sheet.stations[i];
        if (line.overMax) {
            lines.push_back({station.name + ": " + figure(line.weight - *station.max, symbols) +
                                 " " + wu + " over its max " + figure(*station.max, symbols) + " " +
                                 wu,
                             false});
        }
        if (line.overUsable) {
            const double volume = line.weight / station.fuel->density;
            lines.push_back({station.name + ": " + figure(volume - station.fuel->usable, symbols) +
                                 " " + fu + " over its usable " +
                                 figure(station.fuel->usable, symbols) + " " + fu,
                             false});
        }
        if (line.overBurnt) {
            // The burn is kept as a weight; the sheet takes it from the loading.
            lines.push_back(
                {station.name +
                     (line.taxi > 0 ? ": the taxi fuel and the burn are" : ": the burn is") +
                     " more than the fuel loaded",
                 false});
        }
    }
    for (const CombinedLimit& limit : aircraft.combined) {
        const double held = combinedWeight(aircraft, sheet, limit);
        if (held > limit.max) {
            lines.push_back({combinedName(limit) + ": " + figure(held - limit.max, symbols) + " " +
                                 wu + " over their max " + figure(limit.max, symbols) + " " + wu,
                             false});
        }
    }
    for (std::size_t k = 0; k < aircraft.envelopes.size(); ++k) {
        const Envelope& envelope = aircraft.envelopes[k];
        const EnvelopeCheck inside = check(aircraft, envelope, sheet);
        const int index = static_cast<int>(k);
        if (!inside.allowed()) {
            lines.push_back(
                {envelope.name + ": not allowed, " + unmetText(aircraft, envelope, inside, symbols),
                 false, index});
            continue;
        }
        struct Placed {
            Point point;
            const Condition& condition;
            bool inside;
        };
        for (const Placed& p : {Placed{Point::ZeroFuel, sheet.zeroFuel, inside.zeroFuel},
                                Placed{Point::Takeoff, sheet.takeoff, inside.takeoff},
                                Placed{Point::Landing, sheet.landing, inside.landing}}) {
            lines.push_back({std::string(pointName(p.point)) + ": " +
                                 margin(envelope, p.condition, aircraft, symbols),
                             p.inside, index});
        }
        std::string burn = "Burn line: ";
        if (inside.burnLine) {
            burn += "inside " + envelope.name;
        } else if (!inside.takeoff) {
            burn += "starts outside " + envelope.name;
        } else {
            burn += "leaves " + envelope.name + " at " + figure(inside.leaves, symbols) + " " + wu;
        }
        lines.push_back({burn, inside.burnLine, index});
    }
    return lines;
}

std::vector<SheetRow> sheetRows(const Aircraft& aircraft, const Loading& loading,
                                const Symbols& symbols) {
    const LoadSheet sheet = workOut(aircraft, loading);
    const std::string wu = word(aircraft.units.weight);
    const std::string au = word(aircraft.units.arm);
    const std::string fu = word(aircraft.units.fuel);
    const double divisor = aircraft.momentDivisor;
    const double emptyArm = aircraft.empty ? aircraft.empty->arm : 0;
    std::vector<SheetRow> rows;
    rows.push_back({{"Station", "Weight " + wu, "Arm " + au, "Moment " + momentUnit(aircraft)},
                    "",
                    false,
                    false});
    rows.push_back({{"Empty", figure(sheet.empty.weight, symbols),
                     armFigure(emptyArm, aircraft.units.arm, symbols),
                     figure(sheet.empty.moment / divisor, symbols)},
                    "",
                    false,
                    false});
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        const LoadSheet::Line& line = sheet.stations[i];
        std::string note;
        if (station.fuel) {
            note = figure(line.weight / station.fuel->density, symbols) + " " + fu;
            if (loading.burns.size() > i && loading.burns[i]) {
                const double burn = *loading.burns[i];
                note += ", burn " + figure(burn / station.fuel->density, symbols) + " " + fu +
                        " (" + figure(burn, symbols) + " " + wu + ")";
            }
        }
        const bool over = line.overMax || line.overUsable || line.overBurnt;
        if (over) {
            note += note.empty() ? "OVER" : "   OVER";
        }
        rows.push_back({{station.name, figure(line.weight, symbols),
                         armFigure(station.arm, aircraft.units.arm, symbols),
                         figure(line.moment / divisor, symbols)},
                        note,
                        false,
                        over});
    }
    if (sheet.unusable.weight > 0) {
        rows.push_back({{"Unusable fuel", figure(sheet.unusable.weight, symbols), "",
                         figure(sheet.unusable.moment / divisor, symbols)},
                        "",
                        false,
                        false});
    }
    auto total = [&](Point point, const Condition& c) {
        std::string rest = "CG " + armFigure(c.cg(), aircraft.units.arm, symbols) + " " + au;
        if (aircraft.mac) {
            rest += "   " + figure(macPercent(*aircraft.mac, c.cg()), symbols) + " %MAC";
        }
        rows.push_back({{std::string(pointName(point)), figure(c.weight, symbols), "",
                         figure(c.moment / divisor, symbols)},
                        rest,
                        true,
                        false});
    };
    total(Point::ZeroFuel, sheet.zeroFuel);
    if (sheet.taxi.weight > 0) {
        total(Point::Ramp, sheet.ramp);
        rows.push_back({{"Taxi fuel", figure(-sheet.taxi.weight, symbols), "",
                         figure(-sheet.taxi.moment / divisor, symbols)},
                        "",
                        false,
                        false});
    }
    total(Point::Takeoff, sheet.takeoff);
    total(Point::Landing, sheet.landing);
    return rows;
}

namespace {

std::string helperText(const Aircraft& aircraft, const LoadSheet& sheet,
                       const std::optional<Helper>& helper, const Symbols& symbols) {
    if (!helper) {
        return {};
    }
    return helper->kind == Helper::Kind::Shift
               ? shiftText(aircraft, sheet, helper->from, helper->to, helper->target, symbols)
               : ballastText(aircraft, sheet, helper->from, helper->target, symbols);
}

} // namespace

PrintedSheet printedSheet(const Aircraft& aircraft, const Loading& loading, const Symbols& symbols,
                          std::string_view date, const std::optional<Helper>& helper) {
    const LoadSheet sheet = workOut(aircraft, loading);
    PrintedSheet printed;
    printed.title = "Loading sheet";
    printed.facts = {{"Aircraft", aircraft.name},
                     {"Registration", ""},
                     {"Date", std::string(date)},
                     {"Pilot", ""}};
    printed.rows = sheetRows(aircraft, loading, symbols);
    printed.verdict = verdict(aircraft, sheet, symbols);
    printed.verdictWord = printed.verdict.holds ? "WITHIN LIMITS" : "OUT OF LIMITS";
    printed.limits = limitLines(aircraft, sheet, symbols);
    printed.chart = chart(aircraft, sheet, symbols);
    printed.helper = helperText(aircraft, sheet, helper, symbols);
    printed.signatures = {"Loaded by", "Pilot in command"};
    printed.source = aircraft.source;
    return printed;
}

std::string sheetText(const Aircraft& aircraft, const Loading& loading, const Symbols& symbols,
                      const std::optional<Helper>& helper) {
    const LoadSheet sheet = workOut(aircraft, loading);
    const std::vector<SheetRow> rows = sheetRows(aircraft, loading, symbols);
    std::array<std::size_t, 4> widths{};
    for (const SheetRow& row : rows) {
        for (std::size_t k = 0; k < widths.size(); ++k) {
            widths[k] = std::max(widths[k], charCount(row.cells[k]));
        }
    }
    std::string out = aircraft.name + "\n";
    for (const SheetRow& row : rows) {
        std::string line = padded(row.cells[0], widths[0], false);
        for (std::size_t k = 1; k < widths.size(); ++k) {
            line += "   " + padded(row.cells[k], widths[k], true);
        }
        if (!row.rest.empty()) {
            line += "   " + row.rest;
        }
        while (!line.empty() && line.back() == ' ') {
            line.pop_back();
        }
        out += line + "\n";
    }
    const std::vector<LimitLine> limits = limitLines(aircraft, sheet, symbols);
    for (const LimitLine& limit : limits) {
        if (limit.envelope < 0) {
            out += limit.text + "\n";
        }
    }
    for (std::size_t k = 0; k < aircraft.envelopes.size(); ++k) {
        const EnvelopeCheck c = check(aircraft, aircraft.envelopes[k], sheet);
        std::string line =
            c.allowed() ? aircraft.envelopes[k].name + (c.whole() ? ": inside; " : ": outside; ")
                        : "";
        for (const LimitLine& limit : limits) {
            if (limit.envelope == static_cast<int>(k)) {
                line += limit.text + "; ";
            }
        }
        line.resize(line.size() - 2);
        out += line + "\n";
    }
    if (helper) {
        out += helperText(aircraft, sheet, helper, symbols) + "\n";
    }
    out += verdict(aircraft, sheet, symbols).text + "\n";
    return out;
}

} // namespace zel::balance
