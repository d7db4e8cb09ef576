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
#include <vector>

namespace zel::test {

/// A page's number in the menu, found by its name in the catalogue.
inline int pageNumber(std::string_view name) {
    const PageCatalogue& pages = pageCatalogue();
    for (int number = 1; number <= pages.count(); ++number) {
        if (const PageTable* table = pages.find(number); table && table->name == name) {
            return number;
        }
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
                 Sun = pageNumber("Sun");
} // namespace page

/// Records what the user would see; answers questions and input boxes from queues.
class FakeInteraction : public Interaction {
  public:
    std::vector<std::string> events;
    std::deque<bool> answers;
    std::deque<std::optional<std::string>> inputs;

    void beep() override { events.emplace_back("beep"); }
    void message(MessageIcon icon, std::string_view title, std::string_view text) override {
        static constexpr const char* Icons[] = {"information", "exclamation", "critical"};
        events.push_back(std::string(Icons[static_cast<int>(icon)]) + " " + std::string(title) +
                         ": " + std::string(text));
    }
    /// Answers at once, from the queues; nothing queued is No, or Cancel.
    void ask(const Request& request, Then<const Answer&> then) override {
        Answer answer;
        if (request.kind == Request::Kind::Question) {
            events.push_back("question " + request.text);
            answer.yes = !answers.empty() && answers.front();
            if (!answers.empty()) {
                answers.pop_front();
            }
        } else {
            events.push_back("input " + request.text);
            if (!inputs.empty()) {
                answer.text = inputs.front();
                inputs.pop_front();
            }
        }
        then(answer);
    }
    void setBusy(bool busy) override { events.emplace_back(busy ? "busy on" : "busy off"); }
    void quit() override { events.emplace_back("quit"); }
};

class FakeRegional : public Regional {
  public:
    Symbols value;
    Symbols symbols() override { return value; }
};

/// Files in memory; `unreadable` and `readOnly` paths fail the way a disk does.
class FakeStorage : public Storage {
  public:
    std::string folder = "/pilot";
    std::map<std::string, std::string> files;
    std::vector<std::string> unreadable;
    std::vector<std::string> readOnly;

    std::string programFolder() override { return folder; }
    FileRead read(const std::string& path) override {
        if (std::find(unreadable.begin(), unreadable.end(), path) != unreadable.end()) {
            return {FileRead::Status::Unreadable, {}};
        }
        const auto file = files.find(path);
        return file == files.end() ? FileRead{} : FileRead{FileRead::Status::Ok, file->second};
    }
    bool write(const std::string& path, std::string_view bytes) override {
        if (std::find(readOnly.begin(), readOnly.end(), path) != readOnly.end()) {
            return false;
        }
        files[path] = std::string(bytes);
        return true;
    }
    void remove(const std::string& path) override { files.erase(path); }
    bool update(const std::string& path, const Change& change) override {
        const FileRead file = read(path);
        const auto changed = change(file);
        return changed && (*changed == file.bytes || write(path, *changed));
    }

    std::string& settings() { return files[folder + "/Tech/zelFLIGHTAB.ini"]; }
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
        regional.value = symbols;
        menu.Form_Load();
        menu.Form_Activate();
        if (page != 0) {
            menu.LabMenu_Click(page);
        }
    }
    void type(std::string_view text) {
        for (char c : text) {
            menu.Form_KeyPress(static_cast<unsigned char>(c));
        }
    }
    /// Types a value and clicks its row.
    void enter(int row, std::string_view text) {
        type(text);
        menu.LabValue_Click(row);
    }
    const std::string& tag(int row) const { return menu.row(row).tag; }
    const std::string& caption(int row) const { return menu.row(row).caption; }
    double value(int row) const { return textValue(tag(row), menu.symbols()); }
    std::string lastEvent() const { return ui.events.empty() ? "" : ui.events.back(); }
};

/// What the window stores or shows that is not a finite number ("row 3 tag
/// inf"), or nothing when all is well. The display of a page that takes a report shows what was
/// typed.
inline std::string nonFinite(const Menu& menu) {
    auto bad = [](std::string text) {
        for (char& c : text) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        return text.find("inf") != std::string::npos || text.find("nan") != std::string::npos;
    };
    const ScratchPad& pad = menu.scratchPad();
    const bool report = menu.page() != nullptr && menu.page()->isText();
    if (!std::isfinite(pad.inputValue()) || !std::isfinite(pad.accumulator()) ||
        !std::isfinite(pad.memory()) || (!report && bad(menu.display()))) {
        return "the scratch pad";
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        const RowCell& cell = menu.row(row);
        if (bad(cell.tag) || bad(cell.caption)) {
            return "row " + std::to_string(row) + ": " + cell.tag + " | " + cell.caption;
        }
    }
    return {};
}

} // namespace zel::test
