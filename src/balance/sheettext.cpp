// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/sheettext.h"

#include "entry/text.h"

#include <algorithm>
#include <array>
#include <cmath>

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
        return fromForward <= fromAft ? "CG " + figure(fromForward, symbols) + " " + au +
                                            " aft of the " + envelope.name + " forward limit" + at
                                      : "CG " + figure(fromAft, symbols) + " " + au +
                                            " forward of the " + envelope.name + " aft limit" + at;
    }
    return cg < range.first ? "CG " + figure(range.first - cg, symbols) + " " + au +
                                  " forward of the " + envelope.name + " limit" + at
                            : "CG " + figure(cg - range.second, symbols) + " " + au +
                                  " aft of the " + envelope.name + " limit" + at;
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
    maximum(Point::Takeoff, sheet.takeoff, m.ramp, "ramp");
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
            lines.push_back({station.name + ": the burn is more than the fuel loaded", false});
        }
    }
    for (std::size_t k = 0; k < aircraft.envelopes.size(); ++k) {
        const Envelope& envelope = aircraft.envelopes[k];
        const EnvelopeCheck inside = check(envelope, sheet);
        const int index = static_cast<int>(k);
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

std::string shiftText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t from,
                      std::size_t to, double target, const Symbols& symbols) {
    const Station& a = aircraft.stations.at(from);
    const Station& b = aircraft.stations.at(to);
    const std::string cg =
        " to bring the CG to " + figure(target, symbols) + " " + word(aircraft.units.arm);
    const auto weight = shiftWeight(aircraft, sheet, from, to, target);
    if (!weight) {
        return a.name + " and " + b.name +
               " are at one arm: moving weight between them leaves "
               "the CG where it is";
    }
    const bool forward = *weight >= 0;
    const std::size_t source = forward ? from : to;
    const std::string wu = word(aircraft.units.weight);
    std::string text = "Move " + figure(std::fabs(*weight), symbols) + " " + wu + " from " +
                       (forward ? a.name : b.name) + " to " + (forward ? b.name : a.name) + cg;
    const double held = sheet.stations.at(source).weight;
    if (std::fabs(*weight) > held) {
        text += ": more than the " + figure(held, symbols) + " " + wu + " " +
                aircraft.stations[source].name + " holds";
    }
    return text;
}

std::string ballastText(const Aircraft& aircraft, const LoadSheet& sheet, std::size_t station,
                        double target, const Symbols& symbols) {
    const Station& s = aircraft.stations.at(station);
    const std::string cg =
        " to bring the CG to " + figure(target, symbols) + " " + word(aircraft.units.arm);
    const auto weight = ballastWeight(aircraft, sheet, station, target);
    if (!weight) {
        return s.name + " is at " + figure(target, symbols) + " " + word(aircraft.units.arm) +
               ": weight there cannot move the CG to it";
    }
    const std::string amount =
        figure(std::fabs(*weight), symbols) + " " + word(aircraft.units.weight);
    return *weight >= 0 ? "Add " + amount + " at " + s.name + cg
                        : "Take " + amount + " off " + s.name + cg;
}

std::string sheetText(const Aircraft& aircraft, const Loading& loading, const Symbols& symbols,
                      const std::optional<Helper>& helper) {
    const LoadSheet sheet = workOut(aircraft, loading);
    const std::string wu = word(aircraft.units.weight);
    const std::string au = word(aircraft.units.arm);
    const std::string fu = word(aircraft.units.fuel);
    const double divisor = aircraft.momentDivisor;
    // The table first, then each column as wide as its widest cell.
    struct Row {
        std::array<std::string, 4> cells; // name, weight, arm, moment
        std::string rest;
    };
    std::vector<Row> rows;
    rows.push_back(
        {{"Station", "Weight " + wu, "Arm " + au, "Moment " + momentUnit(aircraft)}, ""});
    rows.push_back(
        {{"Empty", figure(sheet.empty.weight, symbols), figure(aircraft.empty->arm, symbols),
          figure(sheet.empty.moment / divisor, symbols)},
         ""});
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
        if (line.overMax || line.overUsable || line.overBurnt) {
            note += note.empty() ? "OVER" : "   OVER";
        }
        rows.push_back({{station.name, figure(line.weight, symbols), figure(station.arm, symbols),
                         figure(line.moment / divisor, symbols)},
                        note});
    }
    if (sheet.unusable.weight > 0) {
        rows.push_back({{"Unusable fuel", figure(sheet.unusable.weight, symbols), "",
                         figure(sheet.unusable.moment / divisor, symbols)},
                        ""});
    }
    for (auto [point, c] :
         {std::pair{Point::ZeroFuel, sheet.zeroFuel}, std::pair{Point::Takeoff, sheet.takeoff},
          std::pair{Point::Landing, sheet.landing}}) {
        std::string rest = "CG " + figure(c.cg(), symbols) + " " + au;
        if (aircraft.mac) {
            rest += "   " + figure(macPercent(*aircraft.mac, c.cg()), symbols) + " %MAC";
        }
        rows.push_back({{std::string(pointName(point)), figure(c.weight, symbols), "",
                         figure(c.moment / divisor, symbols)},
                        rest});
    }
    std::array<std::size_t, 4> widths{};
    for (const Row& row : rows) {
        for (std::size_t k = 0; k < widths.size(); ++k) {
            widths[k] = std::max(widths[k], charCount(row.cells[k]));
        }
    }
    std::string out = aircraft.name + "\n";
    for (const Row& row : rows) {
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
        const bool whole = check(aircraft.envelopes[k], sheet).whole();
        std::string line = aircraft.envelopes[k].name + (whole ? ": inside" : ": outside");
        for (const LimitLine& limit : limits) {
            if (limit.envelope == static_cast<int>(k)) {
                line += "; " + limit.text;
            }
        }
        out += line + "\n";
    }
    if (helper) {
        out += (helper->kind == Helper::Kind::Shift
                    ? shiftText(aircraft, sheet, helper->from, helper->to, helper->target, symbols)
                    : ballastText(aircraft, sheet, helper->from, helper->target, symbols)) +
               "\n";
    }
    return out;
}

} // namespace zel::balance
