// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// One whole row click on each factor page, and one keystroke: from the call a
// face makes to the view it then draws.
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
    void open(const zel::Request&) override {}
    void setBusy(bool) override {}
    void quit() override {}
    zel::Symbols symbols() override { return {".", ","}; }
    std::string howToChange() override { return {}; }
    std::string programFolder() override { return "/nowhere"; }
    zel::FileRead read(const std::string&) override { return {}; }
    void write(const std::string&, std::string_view, zel::Then<bool> done) override { done(false); }
    void remove(const std::string&) override {}
    std::vector<std::string> list(const std::string&) override { return {}; }
    void update(const std::string&, const Change&, zel::Then<bool> done) override { done(false); }
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
    menu.activate();
    menu.openPage(static_cast<int>(state.range(0)));
    int row = 1;
    for (auto _ : state) {
        // Type 75 once (untimed), then time the click that converts it.
        state.PauseTiming();
        menu.type('7');
        menu.type('5');
        state.ResumeTiming();
        menu.clickRow(row);
        benchmark::DoNotOptimize(menu.view());
        row = row % 8 + 1;
    }
    state.SetLabel(std::string(zel::pageCatalogue().page(static_cast<int>(state.range(0))).name));
}
BENCHMARK(RowClick)->Arg(1)->Arg(2)->Arg(3)->Arg(5)->Arg(8)->Arg(9)->Unit(benchmark::kNanosecond);

void KeyPress(benchmark::State& state) {
    Silent platform;
    zel::Platform p{platform, platform, platform, platform, platform};
    zel::Menu menu(p);
    menu.activate();
    menu.openPage(1);
    int typed = 0;
    for (auto _ : state) {
        menu.type('7');
        benchmark::DoNotOptimize(menu.view());
        if (++typed == 12) {
            state.PauseTiming();
            menu.clear();
            typed = 0;
            state.ResumeTiming();
        }
    }
}
BENCHMARK(KeyPress)->Unit(benchmark::kNanosecond);

} // namespace

BENCHMARK_MAIN();
