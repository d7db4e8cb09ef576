// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "balance/chart.h"

#include "balance/sheettext.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zel::balance {

Chart::Axis axis(std::string title, double low, double high, const Symbols& symbols, int count) {
    Chart::Axis a;
    a.title = std::move(title);
    if (!std::isfinite(low) || !std::isfinite(high) || count < 1) {
        return a;
    }
    // A span too narrow to tell apart at this size (a single point, or
    // figures that differ only in their last digits) is widened around it.
    if (!(high - low > std::max(std::fabs(low), std::fabs(high)) * 1e-6)) {
        const double pad = std::max(std::fabs(low) * 0.05, 1.0);
        low -= pad;
        high += pad;
    }
    const double rough = (high - low) / count;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    // The round step nearest the rough one.
    const double scaled = rough / power;
    const double step = power * (scaled < 1.5 ? 1 : scaled < 3 ? 2 : scaled < 7 ? 5 : 10);
    if (!std::isfinite(step) || step <= 0) {
        return a;
    }
    a.low = std::floor(low / step) * step;
    a.high = std::ceil(high / step) * step;
    // As many decimals as the step has (a step of 0.05 shows two).
    const double places = std::clamp(-std::floor(std::log10(step) + 1e-9), 0.0, 6.0);
    const auto decimals = static_cast<std::size_t>(places);
    const std::string pattern = decimals == 0 ? "#,#0" : "#,#0." + std::string(decimals, '0');
    const auto steps = static_cast<int>(std::lround((a.high - a.low) / step));
    for (int i = 0; i <= steps; ++i) {
        const double value = a.low + i * step;
        a.ticks.push_back({value, formatNumber(value, pattern, symbols)});
    }
    return a;
}

Chart chart(const Aircraft& aircraft, const LoadSheet& sheet, const Symbols& symbols) {
    Chart c;
    const std::string wu(unitWord(aircraft.units.weight));
    const std::string au(unitWord(aircraft.units.arm));
    double lowW = std::numeric_limits<double>::max();
    double highW = std::numeric_limits<double>::lowest();
    double lowA = lowW;
    double highA = highW;
    auto take = [&](Mass m) {
        lowW = std::min(lowW, m.weight);
        highW = std::max(highW, m.weight);
        lowA = std::min(lowA, m.arm);
        highA = std::max(highA, m.arm);
    };
    for (const Envelope& e : aircraft.envelopes) {
        c.envelopes.push_back({e.name, e.corners, true});
        std::for_each(e.corners.begin(), e.corners.end(), take);
    }
    // Only a category whose conditions the loading meets can hold a point.
    auto insideAny = [&](Mass m) {
        return std::any_of(aircraft.envelopes.begin(), aircraft.envelopes.end(),
                           [&](const Envelope& e) {
                               return check(aircraft, e, sheet).allowed() && contains(e.corners, m);
                           });
    };
    bool lineInside = false;
    for (const Envelope& e : aircraft.envelopes) {
        const EnvelopeCheck inside = check(aircraft, e, sheet);
        lineInside = lineInside || (inside.allowed() && inside.burnLine);
    }
    // The line is a curve (the CG is moment over weight): drawn through
    // enough of its points to look smooth at any size.
    constexpr int Pieces = 24;
    for (const Path& path : {sheet.burn, sheet.remaining}) {
        if (path.dWeight == 0 || path.weight <= 0 || path.weight + path.dWeight <= 0) {
            continue;
        }
        Chart::Shape line{"Burn line", {}, lineInside};
        for (int i = 0; i <= Pieces; ++i) {
            line.points.push_back(path.at(static_cast<double>(i) / Pieces));
        }
        c.lines.push_back(std::move(line));
    }
    std::string marks;
    for (auto [point, condition] :
         {std::pair{Point::Takeoff, sheet.takeoff}, std::pair{Point::Landing, sheet.landing},
          std::pair{Point::ZeroFuel, sheet.zeroFuel}}) {
        if (condition.weight <= 0) {
            continue;
        }
        const Mass at{condition.weight, condition.cg()};
        const bool inside = insideAny(at);
        c.marks.push_back({std::string(pointName(point)), at, inside});
        take(at);
        marks += " " + std::string(pointName(point)) + " " + figure(at.weight, symbols) + " " + wu +
                 " at " + armFigure(at.arm, aircraft.units.arm, symbols) + " " + au + ", " +
                 (inside ? "inside." : "outside.");
    }
    if (lowW > highW) {
        lowW = highW = 0;
        lowA = highA = 0;
    }
    c.cg = axis("CG - " + au, lowA, highA, symbols);
    c.weight = axis("Weight - " + wu, lowW, highW, symbols);
    std::string names;
    for (const Envelope& e : aircraft.envelopes) {
        names += (names.empty() ? "" : ", ") + e.name;
    }
    c.description = "CG envelope of " + aircraft.name + ": weight in " + wu + " up, CG in " + au +
                    " across. Envelopes: " + names + "." + marks;
    if (!c.lines.empty()) {
        c.description += lineInside ? " The burn line is inside." : " The burn line is outside.";
    }
    return c;
}

} // namespace zel::balance
