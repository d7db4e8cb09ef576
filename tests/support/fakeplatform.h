// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"
#include "host/platform.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace zel::test {

/// A page's number in the menu, found by its name in the catalogue.
inline int pageNumber(std::string_view name) {
    const PageCatalogue& pages = pageCatalogue();
    if (const int number = pages.numberOf(pages.find(name)); number != 0) {
        return number;
    }
    throw std::logic_error("no page " + std::string(name));
}

/// The pages by their number in the menu.
namespace page {
inline const int Weight = pageNumber("Weight"), Fluid = pageNumber("Fluid"),
                 Surface = pageNumber("Surface"), Speed = pageNumber("Speed"),
                 Distance = pageNumber("Distance"), Angle = pageNumber("Angle"),
                 Temperature = pageNumber("Temperature"), Pressure = pageNumber("Pressure"),
                 Power = pageNumber("Power"), FuelUplift = pageNumber("Fuel Uplift"),
                 Endurance = pageNumber("Endurance"), FuelRange = pageNumber("Fuel Range"),
                 MachAS = pageNumber("Mach - AS"), Snowtam = pageNumber("Snowtam"),
                 TrackTime = pageNumber("Track Time"), Wind = pageNumber("Wind"),
                 WindComp = pageNumber("Wind Comp"), Currency = pageNumber("Currency"),
                 Altitude = pageNumber("Altitude"), Descent = pageNumber("Descent"),
                 Turn = pageNumber("Turn"), FuelPlan = pageNumber("Fuel Plan"),
                 CloudBase = pageNumber("Cloud Base"), RwyCondition = pageNumber("RWY Condition"),
                 TrueAltitude = pageNumber("True Altitude"), Holding = pageNumber("Holding"),
                 Sun = pageNumber("Sun"), Variation = pageNumber("Variation"),
                 GreatCircle = pageNumber("Great Circle");
} // namespace page

/// A box's paragraphs as one text, an empty line ("\r\r") between them.
inline std::string joined(const std::vector<std::string>& paragraphs) {
    std::string text;
    for (const std::string& paragraph : paragraphs) {
        text += (text.empty() ? "" : "\r\r") + paragraph;
    }
    return text;
}

/// Records what the user would see; answers questions and input boxes from
/// queues (nothing queued is No, or Cancel) as they open, messages as read.
class FakeInteraction : public Interaction {
  public:
    std::vector<std::string> events;
    std::deque<bool> answers;
    std::deque<std::optional<std::string>> inputs;
    /// Where the answers go: the calculator's answer.
    std::function<void(int, const Answer&)> answer;
    /// Leaves the boxes open, as a window does until the user answers.
    bool holdBoxes = false;
    std::vector<Request> held;

    void beep() override { events.emplace_back("beep"); }
    void open(const Request& request) override {
        Answer given;
        switch (request.kind) {
        case Request::Kind::Message:
            events.push_back(std::string(messageIconName(request.icon)) + " " + request.title +
                             ": " + joined(request.paragraphs));
            break;
        case Request::Kind::Question:
            events.push_back("question " + joined(request.paragraphs));
            given.yes = !answers.empty() && answers.front();
            if (!answers.empty()) {
                answers.pop_front();
            }
            break;
        case Request::Kind::Input:
            events.push_back("input " + joined(request.paragraphs));
            if (!inputs.empty()) {
                given.text = inputs.front();
                inputs.pop_front();
            }
            break;
        }
        if (holdBoxes) {
            held.push_back(request);
        } else if (answer) {
            answer(request.id, given);
        }
    }
    void setBusy(bool busy) override { events.emplace_back(busy ? "busy on" : "busy off"); }
    void quit() override { events.emplace_back("quit"); }
};

class FakeRegional : public Regional {
  public:
    Symbols value;
    Symbols symbols() override { return value; }
    std::string howToChange() override { return "You can modify your settings here."; }
};

/// Files in memory; `unreadable` and `readOnly` paths fail the way a disk does.
/// Writes end at once, or when `finish` is called while `later` is set (as
/// a browser's storage ends them).
class FakeStorage : public Storage {
  public:
    std::string folder = "/pilot";
    std::map<std::string, std::string> files;
    std::vector<std::string> unreadable;
    std::vector<std::string> readOnly;
    bool later = false;
    std::vector<std::function<void()>> waiting;

    /// Ends the writes that wait.
    void finish() {
        for (auto& end : std::exchange(waiting, {})) {
            end();
        }
    }

    std::string programFolder() override { return folder; }
    FileRead read(const std::string& path) override {
        if (std::find(unreadable.begin(), unreadable.end(), path) != unreadable.end()) {
            return {FileRead::Status::Unreadable, {}};
        }
        const auto file = files.find(path);
        return file == files.end() ? FileRead{} : FileRead{FileRead::Status::Ok, file->second};
    }
    void write(const std::string& path, std::string_view bytes, Then<bool> done) override {
        end([this, path, bytes = std::string(bytes)] { return store(path, bytes); }, done);
    }
    void remove(const std::string& path) override { files.erase(path); }
    std::vector<std::string> list(const std::string& where) override {
        std::vector<std::string> names;
        const std::string prefix = where + "/";
        for (const auto& [path, bytes] : files) {
            if (path.starts_with(prefix) && path.find('/', prefix.size()) == std::string::npos) {
                names.push_back(path.substr(prefix.size()));
            }
        }
        return names;
    }
    void update(const std::string& path, const Change& change, Then<bool> done) override {
        end(
            [this, path, change] {
                const FileRead file = read(path);
                const auto changed = change(file);
                return changed && (*changed == file.bytes || store(path, *changed));
            },
            done);
    }

    std::string& settings() { return files[settingsPath(folder)]; }

  private:
    bool store(const std::string& path, const std::string& bytes) {
        if (std::find(readOnly.begin(), readOnly.end(), path) != readOnly.end()) {
            return false;
        }
        files[path] = bytes;
        return true;
    }
    void end(std::function<bool()> work, Then<bool> done) {
        if (later) {
            waiting.push_back([work, done] { done(work()); });
        } else {
            done(work());
        }
    }
};

/// Serves replies by URL; an unknown URL is refused like a closed port.
class FakeNetwork : public Network {
  public:
    bool online = true;
    std::map<std::string, HttpReply> replies;
    std::vector<std::string> requested;
    std::function<void()> during; ///< runs inside each transfer, as the window's events do

    bool connected() override { return online; }
    /// Ends each transfer at once.
    void get(const std::string& url, Then<HttpReply> then) override {
        requested.push_back(url);
        if (during) {
            during();
        }
        const auto reply = replies.find(url);
        then(reply != replies.end() ? reply->second
                                    : HttpReply{false, 1, "Connection refused", {}});
    }
    void serve(const std::string& url, std::string body) { replies[url] = {true, 0, {}, body}; }
};

class FakeClock : public Clock {
  public:
    /// 22 November 2026, day 46348.
    std::chrono::year_month_day date{std::chrono::year{2026} / 11 / 22};
    std::chrono::year_month_day today() override { return date; }
};

inline const Symbols Dot{".", ","};
inline const Symbols Comma{",", "."};

/// A write that ends before it returns (as on the desktop): whether it did.
inline bool writeNow(Storage& storage, const std::string& path, std::string_view bytes) {
    bool written = false;
    storage.write(path, bytes, [&written](bool done) { written = done; });
    return written;
}
inline bool updateNow(Storage& storage, const std::string& path, const Storage::Change& change) {
    bool stored = false;
    storage.update(path, change, [&stored](bool done) { stored = done; });
    return stored;
}

/// Every platform piece but the dialogs, fake.
struct FakeMachine {
    FakeRegional regional;
    FakeStorage storage;
    FakeNetwork network;
    FakeClock clock;

    Platform with(Interaction& ui) { return {ui, regional, storage, network, clock}; }
};

/// A started window with fake platform pieces, driven as a user drives it.
struct Calculator : FakeMachine {
    FakeInteraction ui;
    Platform platform = with(ui);
    Menu menu;

    explicit Calculator(const Symbols& symbols = Dot, int page = 0,
                        const PageCatalogue& pages = pageCatalogue())
        : menu(platform, pages) {
        ui.answer = [this](int request, const Answer& given) { menu.answer(request, given); };
        regional.value = symbols;
        menu.start();
        menu.activate();
        if (page != 0) {
            menu.openPage(page);
        }
    }
    void type(std::string_view text) {
        for (char c : text) {
            menu.type(static_cast<unsigned char>(c));
        }
    }
    /// Types a value and clicks its row.
    void enter(int row, std::string_view text) {
        type(text);
        menu.clickRow(row);
    }
    void release(Key key) { menu.keyUp({.key = key}); }
    View view() const { return menu.view(); }
    const RowView& shown(int row) const {
        m_view = menu.view();
        return m_view.rows.at(static_cast<std::size_t>(row - 1));
    }
    /// A row's value in full precision ("0" for none), and as drawn.
    std::string tag(int row) const { return shown(row).full; }
    std::string caption(int row) const { return shown(row).value; }
    double value(int row) const { return menu.row(row).value.value_or(0); }
    std::string lastEvent() const { return ui.events.empty() ? "" : ui.events.back(); }

  private:
    mutable View m_view;
};

/// What the window stores or shows that is not a finite number ("row 3
/// inf"), or nothing when all is well. The display of a page that takes a
/// report shows what was typed.
inline std::string nonFinite(const Menu& menu) {
    auto bad = [](std::string text) {
        for (char& c : text) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
    };
    const ScratchPad& pad = menu.scratchPad();
    const View view = menu.view();
    if (!std::isfinite(pad.inputValue()) || !std::isfinite(pad.accumulator()) ||
        !std::isfinite(pad.memory()) || (!view.report && bad(view.display))) {
        return "the scratch pad";
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const RowView& shown = view.rows[static_cast<std::size_t>(row - 1)];
        const std::optional<double> value = menu.row(row).value;
        if ((value && !std::isfinite(*value)) || bad(shown.full) || bad(shown.value)) {
            return "row " + std::to_string(row) + ": " + shown.full + " | " + shown.value;
        }
    }
    if (view.loading) {
        const auto& v = *view.loading;
        for (const auto& line : v.lines) {
            for (const std::string& text : {line.volume.text, line.weight.text, line.arm.text,
                                            line.moment, line.mac, line.note}) {
                if (bad(text)) {
                    return "sheet line " + line.name + ": " + text;
                }
            }
        }
        for (const auto& limit : v.limits) {
            if (bad(limit.text)) {
                return "limit: " + limit.text;
            }
        }
        for (const std::string& text : {v.verdict, v.shift, v.ballast, v.target.text}) {
            if (bad(text)) {
                return "sheet: " + text;
            }
        }
        if (v.chart && bad(v.chart->description)) {
            return "chart: " + v.chart->description;
        }
    }
    return {};
}

} // namespace zel::test
