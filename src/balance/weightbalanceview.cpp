// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The Weight & Balance page as every face draws it: the sheet of the
// aircraft shown, its cells, limits, verdict, chart and helpers.
#include "balance/weightbalance.h"

namespace zel::balance {

LoadingView WeightBalance::view(const Symbols& symbols, std::chrono::year_month_day today) const {
    LoadingView v;
    for (const auto& p : m_shelf.profiles()) {
        v.profiles.push_back({p.aircraft.name, p.shipped});
    }
    if (m_editor) {
        v.editor = m_editor->form();
    }
    const ProfileShelf::Profile* profile = shown();
    if (profile == nullptr) {
        return v;
    }
    v.chosen = static_cast<int>(*m_shelf.find(m_chosen));
    const Aircraft& aircraft = profile->aircraft;
    v.aircraft = aircraft.name;
    v.source = aircraft.source;
    v.canRename = !profile->shipped;
    v.canDelete = !profile->shipped;
    v.weightUnit = std::string(unitWord(aircraft.units.weight));
    v.armUnit = std::string(unitWord(aircraft.units.arm));
    v.fuelUnit = std::string(unitWord(aircraft.units.fuel));
    v.momentUnit = momentUnit(aircraft);
    v.columns = {"Station", "Weight - " + v.weightUnit, "Arm - " + v.armUnit,
                 "Moment - " + v.momentUnit};
    v.exportName = aircraft.name + ".json";
    for (char& c : v.exportName) {
        if (c == '/' || c == '\\' || c == ':') {
            c = '_';
        }
    }
    v.heading = aircraft.name + ", loading sheet of " + isoDate(today);

    const std::vector<Entry> list = entries();
    auto cell = [&](EntryKind kind, std::size_t station, std::string name) {
        LoadingCell c;
        for (std::size_t n = 0; n < list.size(); ++n) {
            if (list[n].kind == kind &&
                (list[n].station == station || kind == EntryKind::EmptyWeight ||
                 kind == EntryKind::EmptyArm || kind == EntryKind::Target)) {
                c.entry = static_cast<int>(n + 1);
            }
        }
        if (const auto held = value(c.entry)) {
            const bool arm = kind == EntryKind::EmptyArm || kind == EntryKind::Target;
            c.text = arm ? armFigure(*held, aircraft.units.arm, symbols) : figure(*held, symbols);
        }
        c.input = c.entry == m_input;
        c.name = std::move(name);
        return c;
    };

    const Loading empty = Loading::emptyFor(aircraft);
    const Loading* held = loadingOf(aircraft);
    const Loading& l = held ? *held : empty;
    Aircraft complete = aircraft;
    if (!complete.empty) {
        complete.empty = Mass{m_pendingWeight.value_or(0), m_pendingArm.value_or(0)};
    }
    const LoadSheet sheet = workOut(complete, l);
    const double divisor = aircraft.momentDivisor;

    LoadingLine emptyLine;
    emptyLine.name = "Empty";
    emptyLine.weight = cell(EntryKind::EmptyWeight, 0, "Empty weight - " + v.weightUnit);
    emptyLine.arm = cell(EntryKind::EmptyArm, 0, "Empty arm - " + v.armUnit);
    if (aircraft.empty) {
        emptyLine.moment = figure(sheet.empty.moment / divisor, symbols);
    } else {
        v.missing = "Enter this aircraft's own empty weight and arm, from its weighing record: "
                    "type each and click its cell. They are kept in your copy of the profile.";
    }
    v.lines.push_back(emptyLine);
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        const LoadSheet::Line& worked = sheet.stations[i];
        LoadingLine line;
        line.name = station.name;
        if (station.fuel) {
            line.volume =
                cell(EntryKind::FuelVolume, i, station.name + " quantity - " + v.fuelUnit);
        }
        line.weight = cell(EntryKind::Weight, i, station.name + " weight - " + v.weightUnit);
        line.arm.text = armFigure(station.arm, aircraft.units.arm, symbols);
        if (l.weights[i]) {
            line.moment = figure(worked.moment / divisor, symbols);
        }
        if (worked.overMax) {
            line.flagged = true;
            line.note = figure(worked.weight - *station.max, symbols) + " " + v.weightUnit +
                        " over its max " + figure(*station.max, symbols) + " " + v.weightUnit;
        } else if (worked.overUsable) {
            line.flagged = true;
            line.note =
                figure(worked.weight / station.fuel->density - station.fuel->usable, symbols) +
                " " + v.fuelUnit + " over its usable " + figure(station.fuel->usable, symbols) +
                " " + v.fuelUnit;
        }
        v.lines.push_back(line);
    }
    if (sheet.unusable.weight > 0) {
        LoadingLine line;
        line.name = "Unusable fuel";
        line.weight.text = figure(sheet.unusable.weight, symbols);
        line.moment = figure(sheet.unusable.moment / divisor, symbols);
        v.lines.push_back(line);
    }
    auto total = [&](Point point, const Condition& c) {
        LoadingLine line;
        line.name = std::string(pointName(point));
        line.total = true;
        line.weight.text = figure(c.weight, symbols);
        line.arm.text = armFigure(c.cg(), aircraft.units.arm, symbols);
        line.moment = figure(c.moment / divisor, symbols);
        if (aircraft.mac) {
            line.mac = figure(macPercent(*aircraft.mac, c.cg()), symbols) + " %MAC";
        }
        return line;
    };
    if (aircraft.empty) {
        v.lines.push_back(total(Point::ZeroFuel, sheet.zeroFuel));
        if (sheet.taxi.weight > 0) {
            v.lines.push_back(total(Point::Ramp, sheet.ramp));
            LoadingLine taxi;
            taxi.name = "Taxi fuel";
            taxi.weight.text = figure(-sheet.taxi.weight, symbols);
            taxi.moment = figure(-sheet.taxi.moment / divisor, symbols);
            v.lines.push_back(taxi);
        }
        v.lines.push_back(total(Point::Takeoff, sheet.takeoff));
    }
    for (std::size_t i = 0; i < aircraft.stations.size(); ++i) {
        const Station& station = aircraft.stations[i];
        if (!station.fuel) {
            continue;
        }
        LoadingLine line;
        line.name = "Burn " + station.name;
        line.volume = cell(EntryKind::BurnVolume, i, line.name + " quantity - " + v.fuelUnit);
        line.weight = cell(EntryKind::BurnWeight, i, line.name + " weight - " + v.weightUnit);
        if (sheet.stations[i].overBurnt) {
            line.flagged = true;
            line.note = sheet.stations[i].taxi > 0 ? "more than the fuel loaded less the taxi fuel"
                                                   : "more than the fuel loaded";
        }
        v.lines.push_back(line);
    }
    if (aircraft.empty) {
        v.lines.push_back(total(Point::Landing, sheet.landing));
        v.limits = limitLines(aircraft, sheet, symbols);
        const Verdict said = verdict(aircraft, sheet, symbols);
        v.withinLimits = said.holds;
        v.verdict = said.text;
        v.chart = chart(aircraft, sheet, symbols);
    }

    for (const Station& station : aircraft.stations) {
        v.stations.push_back(station.name);
    }
    for (std::size_t i : namedOfShown()) {
        v.savedLoadings.push_back(m_named[i].name);
    }
    v.shiftFrom = m_shiftFrom;
    v.shiftTo = m_shiftTo;
    v.ballastAt = m_ballastAt;
    v.target = cell(EntryKind::Target, 0, "Target CG - " + v.armUnit);
    if (aircraft.empty && m_target) {
        if (m_shiftFrom > 0 && m_shiftTo > 0) {
            v.shift = shiftText(aircraft, sheet, static_cast<std::size_t>(m_shiftFrom - 1),
                                static_cast<std::size_t>(m_shiftTo - 1), *m_target, symbols);
        }
        if (m_ballastAt > 0) {
            v.ballast = ballastText(aircraft, sheet, static_cast<std::size_t>(m_ballastAt - 1),
                                    *m_target, symbols);
        }
    }
    if (aircraft.empty) {
        std::optional<Helper> helper;
        if (!v.shift.empty()) {
            helper =
                Helper{Helper::Kind::Shift, *m_target, static_cast<std::size_t>(m_shiftFrom - 1),
                       static_cast<std::size_t>(m_shiftTo - 1)};
        } else if (!v.ballast.empty()) {
            helper = Helper{Helper::Kind::Ballast, *m_target,
                            static_cast<std::size_t>(m_ballastAt - 1), 0};
        }
        v.sheet = sheetText(aircraft, l, symbols, helper);
        v.printed = printedSheet(aircraft, l, symbols, isoDate(today), helper);
    }
    return v;
}

} // namespace zel::balance
