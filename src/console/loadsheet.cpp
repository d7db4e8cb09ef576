// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Weight & Balance in the terminal: --loadsheet, and the console's commands
// for the page (aircraft, shift, ballast, profile, field, form).
#include "app/options.h"
#include "balance/profile.h"
#include "balance/quantity.h"
#include "balance/shelf.h"
#include "console/console.h"
#include "entry/text.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

namespace zel {
namespace {

std::optional<std::string> readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    if (!in || !(bytes << in.rdbuf())) {
        return std::nullopt;
    }
    return bytes.str();
}

std::optional<int> count(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

/// NAME=VALUE into its two halves.
std::optional<std::pair<std::string, std::string>> pair(const std::string& text) {
    const auto equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        return std::nullopt;
    }
    return std::pair{text.substr(0, equals), text.substr(equals + 1)};
}

std::string cellText(const balance::LoadingCell& cell) {
    std::string out;
    if (cell.entry > 0) {
        out += "[" + std::to_string(cell.entry) + "]";
    }
    out += quotedText(cell.text);
    if (cell.input) {
        out += "*";
    }
    return out;
}

} // namespace

int runLoadsheet(const Options& options, const ConsoleMachine& machine, const SheetPdf& pdf) {
    using namespace balance;
    // A file, else a profile that ships, by its name ("Cessna 172S").
    std::optional<std::string> bytes = readFile(*options.loadsheet);
    if (!bytes) {
        for (std::string_view json : shippedProfiles()) {
            const ProfileRead shipped = readProfile(json);
            const auto* a = std::get_if<Aircraft>(&shipped);
            if (a != nullptr && nameKey(a->name) == nameKey(*options.loadsheet)) {
                bytes = std::string(json);
            }
        }
    }
    if (!bytes) {
        std::cerr << "error: cannot read " << *options.loadsheet
                  << ", and no profile that ships is named so\n";
        return 2;
    }
    ProfileRead read = readProfile(*bytes);
    if (const auto* refusal = std::get_if<std::string>(&read)) {
        std::cerr << "error: " << *options.loadsheet << ": " << *refusal << '\n';
        return 2;
    }
    Aircraft aircraft = std::get<Aircraft>(std::move(read));
    ConsoleInteraction interaction(std::cout);
    Platform platform = machine.platform(interaction);
    const Symbols symbols = platform.regional.symbols();
    if (options.emptyWeight) {
        const auto weight = readFigure(*options.emptyWeight, symbols);
        const auto arm = readFigure(*options.emptyArm, symbols);
        if (!weight || !std::isfinite(*weight)) {
            std::cerr << "error: --empty-weight: Not a number: " << *options.emptyWeight << '\n';
            return 2;
        }
        if (!arm || !std::isfinite(*arm) || *arm < 0 || *arm > MaxFigure) {
            std::cerr << "error: --empty-arm: "
                      << (arm ? "An arm is measured aft of the datum: "
                                "0 to 10,000,000: "
                              : "Not a number: ")
                      << *options.emptyArm << '\n';
            return 2;
        }
        if (const auto fault = emptyWeightFault(aircraft, *weight, symbols)) {
            std::cerr << "error: --empty-weight: " << *fault << '\n';
            return 2;
        }
        aircraft.empty = Mass{*weight, *arm};
    }
    if (!aircraft.empty) {
        std::cerr << "error: " << aircraft.name
                  << " has no empty weight: give the aircraft's own from its weighing record, "
                  << "with --empty-weight and --empty-arm or in the profile (\"empty\": "
                  << "{\"weight\": ..., \"arm\": ...})\n";
        return 2;
    }
    Loading loading = Loading::emptyFor(aircraft);
    auto station = [&](const std::string& name) -> std::optional<std::size_t> {
        const Station* s = stationNamed(aircraft, name);
        if (s == nullptr) {
            std::cerr << "error: " << aircraft.name << " has no station " << name << '\n';
            return std::nullopt;
        }
        return static_cast<std::size_t>(s - aircraft.stations.data());
    };
    for (const bool burn : {false, true}) {
        for (const std::string& given : burn ? options.burns : options.loads) {
            const auto halves = pair(given);
            if (!halves) {
                std::cerr << "error: " << (burn ? "--burn" : "--load") << " takes NAME=VALUE, not "
                          << given << '\n';
                return 2;
            }
            const auto at = station(halves->first);
            if (!at) {
                return 2;
            }
            const Station& s = aircraft.stations[*at];
            if (burn && !s.fuel) {
                std::cerr << "error: " << s.name << " holds no fuel to burn\n";
                return 2;
            }
            const auto weight = stationWeight(halves->second, aircraft, s, symbols);
            if (const auto* error = std::get_if<std::string>(&weight)) {
                std::cerr << "error: " << s.name << ": " << *error << '\n';
                return 2;
            }
            const double value = std::get<double>(weight);
            if (const auto fault = burn ? burnFault(aircraft, loading, *at, value, symbols)
                                        : weightFault(aircraft, value, symbols)) {
                std::cerr << "error: " << s.name << ": " << *fault << '\n';
                return 2;
            }
            (burn ? loading.burns : loading.weights)[*at] = value;
        }
    }
    std::optional<Helper> helper;
    if (options.targetCg) {
        const auto target = readFigure(*options.targetCg, symbols);
        if (!target) {
            std::cerr << "error: --target-cg: not a number: " << *options.targetCg << '\n';
            return 2;
        }
        helper = Helper{Helper::Kind::Ballast, *target, 0, 0};
        if (options.shift) {
            const auto halves = pair(*options.shift);
            if (!halves) {
                std::cerr << "error: --shift takes FROM=TO, not " << *options.shift << '\n';
                return 2;
            }
            const auto from = station(halves->first);
            const auto to = from ? station(halves->second) : std::nullopt;
            if (!to) {
                return 2;
            }
            *helper = Helper{Helper::Kind::Shift, *target, *from, *to};
        } else {
            const auto at = station(*options.ballast);
            if (!at) {
                return 2;
            }
            helper->from = *at;
        }
    }
    std::cout << sheetText(aircraft, loading, symbols, helper);
    if (pdf) {
        if (const auto fault = pdf(printedSheet(aircraft, loading, symbols,
                                                isoDate(platform.clock.today()), helper))) {
            std::cerr << "error: " << *fault << '\n';
            return 2;
        }
    }
    return withinLimits(aircraft, workOut(aircraft, loading)) ? 0 : 1;
}

std::optional<std::string> importAircraft(Menu& menu, const std::string& path) {
    const auto bytes = readFile(path);
    if (!bytes) {
        return "cannot read " + path;
    }
    const balance::ProfileRead read = balance::readProfile(*bytes);
    if (const auto* refusal = std::get_if<std::string>(&read)) {
        return path + ": " + *refusal;
    }
    menu.importProfile(*bytes);
    return std::nullopt;
}

std::optional<std::optional<std::string>> runLoadingCommand(Menu& menu, std::string_view command,
                                                            std::string_view argument) {
    using Kind = balance::FormAction::Kind;
    const std::string arg(argument);
    if (command == "aircraft") {
        const View view = menu.view();
        if (!view.loading) {
            return "aircraft is a command of the Weight & Balance page";
        }
        const auto& profiles = view.loading->profiles;
        for (std::size_t i = 0; i < profiles.size(); ++i) {
            if (lowerCase(profiles[i].name) == lowerCase(argument)) {
                menu.chooseAircraft(static_cast<int>(i));
                return std::optional<std::string>();
            }
        }
        const auto n = count(argument);
        if (!n || *n < 1 || *n > static_cast<int>(profiles.size())) {
            return "aircraft takes a profile's name or its number from 1 to " +
                   std::to_string(profiles.size());
        }
        menu.chooseAircraft(*n - 1);
        return std::optional<std::string>();
    }
    if (command == "loading") {
        const View view = menu.view();
        if (!view.loading) {
            return "loading is a command of the Weight & Balance page";
        }
        if (argument == "save") {
            menu.saveLoading();
            return std::optional<std::string>();
        }
        std::istringstream words(arg);
        std::string verb;
        int n = 0;
        const int saved = static_cast<int>(view.loading->savedLoadings.size());
        if ((words >> verb >> n) && (verb == "recall" || verb == "delete") && n >= 1 &&
            n <= saved && (words >> std::ws).eof()) {
            if (verb == "recall") {
                menu.recallLoading(n - 1);
            } else {
                menu.deleteLoading(n - 1);
            }
            return std::optional<std::string>();
        }
        if (saved == 0) {
            return std::string("loading takes save: no loading of this aircraft is saved to "
                               "recall or delete");
        }
        return "loading takes save, recall N or delete N, N from 1 to " + std::to_string(saved);
    }
    if (command == "shift" || command == "ballast") {
        const View view = menu.view();
        const int stations = view.loading ? static_cast<int>(view.loading->stations.size()) : 0;
        std::istringstream words(arg);
        int a = -1;
        int b = 0;
        words >> a;
        if (command == "shift") {
            words >> b;
        }
        if (!words || a < 0 || b < 0 || a > stations || b > stations || !(words >> std::ws).eof()) {
            const std::string range = " from 0 (none) to " + std::to_string(stations);
            return command == "shift" ? "shift takes two station numbers" + range
                                      : "ballast takes a station number" + range;
        }
        if (command == "shift") {
            menu.chooseShift(a, b);
        } else {
            menu.chooseBallast(a);
        }
        return std::optional<std::string>();
    }
    if (command == "profile") {
        if (argument == "new") {
            menu.newProfile();
        } else if (argument == "duplicate") {
            menu.duplicateProfile();
        } else if (argument == "edit") {
            menu.editProfile();
        } else if (argument == "rename") {
            menu.renameProfile();
        } else if (argument == "delete") {
            menu.deleteProfile();
        } else if (argument.starts_with("import ")) {
            const auto bytes = readFile(arg.substr(7));
            if (!bytes) {
                return "cannot read " + arg.substr(7);
            }
            menu.importProfile(*bytes);
        } else if (argument.starts_with("export ")) {
            std::ofstream out(arg.substr(7), std::ios::binary);
            const std::string json = menu.exportProfile();
            if (!(out << json)) {
                return "cannot write " + arg.substr(7);
            }
        } else {
            return std::string("profile takes new, duplicate, edit, rename, delete, "
                               "import FILE or export FILE");
        }
        return std::optional<std::string>();
    }
    if (command == "field") {
        const auto blank = argument.find(' ');
        if (blank == std::string_view::npos) {
            return std::string("field takes an id and a text");
        }
        menu.editField(argument.substr(0, blank), argument.substr(blank + 1));
        return std::optional<std::string>();
    }
    if (command == "form") {
        std::istringstream words(arg);
        std::string verb;
        std::string what;
        int group = 0;
        int item = 0;
        words >> verb;
        if (verb == "save" || verb == "cancel") {
            menu.pressFormButton({verb == "save" ? Kind::Save : Kind::Cancel, 0, 0});
            return std::optional<std::string>();
        }
        words >> what;
        if (verb == "add" && what == "station") {
            menu.pressFormButton({Kind::AddStation, 0, 0});
        } else if (verb == "remove" && what == "station" && (words >> item)) {
            menu.pressFormButton({Kind::RemoveStation, 0, item});
        } else if (verb == "add" && what == "envelope") {
            menu.pressFormButton({Kind::AddEnvelope, 0, 0});
        } else if (verb == "remove" && what == "envelope" && (words >> group)) {
            menu.pressFormButton({Kind::RemoveEnvelope, group, 0});
        } else if (verb == "add" && what == "corner" && (words >> group)) {
            menu.pressFormButton({Kind::AddCorner, group, 0});
        } else if (verb == "remove" && what == "corner" && (words >> group >> item)) {
            menu.pressFormButton({Kind::RemoveCorner, group, item});
        } else {
            return std::string("form takes save, cancel, add station, remove station N, add "
                               "envelope, remove envelope N, add corner E or remove corner E N");
        }
        return std::optional<std::string>();
    }
    return std::nullopt;
}

void showLoading(const balance::LoadingView& v, std::ostream& out) {
    out << "aircraft " << (v.chosen + 1) << ' ' << quotedText(v.aircraft) << '\n';
    out << "profiles";
    for (const balance::ProfileChoice& p : v.profiles) {
        out << ' ' << quotedText(p.name) << (p.shipped ? "(shipped)" : "");
    }
    out << '\n';
    if (!v.missing.empty()) {
        out << "missing " << quotedText(v.missing) << '\n';
    }
    if (!v.savedLoadings.empty()) {
        out << "saved";
        for (const std::string& name : v.savedLoadings) {
            out << ' ' << quotedText(name);
        }
        out << '\n';
    }
    out << "columns";
    for (const std::string& column : v.columns) {
        out << ' ' << quotedText(column);
    }
    out << '\n';
    for (const balance::LoadingLine& line : v.lines) {
        out << (line.total ? "total " : "line ") << quotedText(line.name);
        if (line.volume.entry > 0) {
            out << " quantity " << cellText(line.volume);
        }
        out << " weight " << cellText(line.weight) << " arm " << cellText(line.arm) << " moment "
            << quotedText(line.moment);
        if (!line.mac.empty()) {
            out << ' ' << quotedText(line.mac);
        }
        if (line.flagged) {
            out << " OVER " << quotedText(line.note);
        }
        out << '\n';
    }
    for (const balance::LimitLine& limit : v.limits) {
        out << "limit " << (limit.holds ? "holds " : "FAILS ") << quotedText(limit.text) << '\n';
    }
    if (!v.verdict.empty()) {
        out << "verdict " << quotedText(v.verdict) << '\n';
    }
    if (v.chart) {
        const balance::Chart& c = *v.chart;
        out << "chart " << quotedText(c.weight.title) << ' '
            << quotedText(c.weight.ticks.front().label) << ".."
            << quotedText(c.weight.ticks.back().label) << ' ' << quotedText(c.cg.title) << ' '
            << quotedText(c.cg.ticks.front().label) << ".." << quotedText(c.cg.ticks.back().label)
            << '\n';
        for (const balance::Chart::Mark& mark : c.marks) {
            out << "mark " << quotedText(mark.name) << (mark.inside ? " inside" : " OUTSIDE")
                << '\n';
        }
        for (const balance::Chart::Shape& line : c.lines) {
            out << "burn line " << line.points.size() << " points"
                << (line.inside ? " inside" : " OUTSIDE") << '\n';
        }
    }
    out << "target " << cellText(v.target) << " shift " << v.shiftFrom << ' ' << v.shiftTo
        << " ballast " << v.ballastAt << '\n';
    if (!v.shift.empty()) {
        out << "shift " << quotedText(v.shift) << '\n';
    }
    if (!v.ballast.empty()) {
        out << "ballast " << quotedText(v.ballast) << '\n';
    }
    if (v.editor) {
        out << "editor " << quotedText(v.editor->title) << '\n';
        for (const balance::FormSection& section : v.editor->sections) {
            if (!section.title.empty()) {
                out << "section " << quotedText(section.title) << '\n';
            }
            for (const balance::FormField& field : section.fields) {
                out << "field " << field.id << ' ' << quotedText(field.text) << '\n';
            }
            for (const balance::FormRow& row : section.rows) {
                for (const balance::FormField& field : row.fields) {
                    out << "field " << field.id << ' ' << quotedText(field.text) << '\n';
                }
            }
        }
    }
}

} // namespace zel
