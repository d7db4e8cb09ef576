// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// One whole row click (LabValue_Click through DisplayTags) on each factor page,
// and one keystroke (Form_KeyPress through DisplayValue).
#include "app/catalogue.h"
#include "app/menu.h"

#include <benchmark/benchmark.h>

namespace {

class Silent : public zel::Interaction,
               public zel::Regional,
               public zel::Storage,
               public zel::Network,
               public zel::Clock {
  public:
    void beep() override {}
    void message(zel::MessageIcon, std::string_view, std::string_view) override {}
    void ask(const zel::Request&, zel::Then<const zel::Answer&> then) override { then({}); }
    void setBusy(bool) override {}
    void quit() override {}
    zel::Symbols symbols() override { return {".", ","}; }
    std::string programFolder() override { return "/nowhere"; }
    zel::FileRead read(const std::string&) override { return {}; }
    bool write(const std::string&, std::string_view) override { return false; }
    void remove(const std::string&) override {}
    bool update(const std::string&, const Change&) override { return false; }
    bool connected() override { return false; }
    void get(const std::string&, zel::Then<zel::HttpReply> then) override { then({}); }
    std::chrono::year_month_day today() override {
        return std::chrono::year{2026} / std::chrono::November / 22;
    }
};

void RowClick(benchmark::State& state) {
    Silent platform;
    zel::Platform p{platform, platform, platform, platform, platform};
    zel::Menu menu(p);
    menu.Form_Activate();
    menu.LabMenu_Click(static_cast<int>(state.range(0)));
    int row = 1;
    for (auto _ : state) {
        // Type 75 once (untimed), then time the click that converts it.
        state.PauseTiming();
        menu.Form_KeyPress('7');
        menu.Form_KeyPress('5');
        state.ResumeTiming();
        menu.LabValue_Click(row);
        row = row % 8 + 1;
    }
    state.SetLabel(std::string(zel::pageCatalogue().page(static_cast<int>(state.range(0))).name));
}
BENCHMARK(RowClick)->Arg(1)->Arg(2)->Arg(3)->Arg(5)->Arg(8)->Arg(9)->Unit(benchmark::kNanosecond);

void KeyPress(benchmark::State& state) {
    Silent platform;
    zel::Platform p{platform, platform, platform, platform, platform};
    zel::Menu menu(p);
    menu.Form_Activate();
    menu.LabMenu_Click(1);
    int typed = 0;
    for (auto _ : state) {
        menu.Form_KeyPress('7');
        if (++typed == 12) {
            state.PauseTiming();
            menu.LabC_Click();
            typed = 0;
            state.ResumeTiming();
        }
    }
}
BENCHMARK(KeyPress)->Unit(benchmark::kNanosecond);

} // namespace

BENCHMARK_MAIN();
