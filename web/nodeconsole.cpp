// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// zelflightab's terminal ways (--console, --convert, --help) as WebAssembly
// under node: the same session as the desktop program's, on the machine's own
// files, with Intl's regional symbols and fetch for HTTP.
#include "app/options.h"
#include "console/console.h"
#include "jsplatform.h"

#include <emscripten/emscripten.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

/// The machine's files, read whole and replaced whole (a temporary file, then
/// a rename). One program runs at a time here, so a change needs no lock.
class FileStorage : public zel::Storage {
  public:
    explicit FileStorage(std::string folder) : m_folder(std::move(folder)) {}

    std::string programFolder() override { return m_folder; }
    zel::FileRead read(const std::string& path) override {
        std::error_code error;
        if (!fs::exists(path, error)) {
            return {zel::FileRead::Status::Missing, {}};
        }
        std::ifstream in(path, std::ios::binary);
        std::ostringstream bytes;
        if (!in || !(bytes << in.rdbuf())) {
            return {in ? zel::FileRead::Status::Ok : zel::FileRead::Status::Unreadable, {}};
        }
        return {zel::FileRead::Status::Ok, bytes.str()};
    }
    void write(const std::string& path, std::string_view bytes, zel::Then<bool> done) override {
        done(writeFile(path, bytes));
    }
    void remove(const std::string& path) override {
        std::error_code error;
        fs::remove(path, error);
    }
    std::vector<std::string> list(const std::string& folder) override {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& entry : fs::directory_iterator(folder, error)) {
            if (entry.is_regular_file(error)) {
                names.push_back(entry.path().filename().string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    void update(const std::string& path, const Change& change, zel::Then<bool> done) override {
        const auto bytes = change(read(path));
        done(bytes && writeFile(path, *bytes));
    }

  private:
    static bool writeFile(const std::string& path, std::string_view bytes) {
        std::error_code error;
        fs::create_directories(fs::path(path).parent_path(), error);
        const std::string temporary = path + ".new";
        {
            std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
            if (!out || !out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())) ||
                !out.flush()) {
                fs::remove(temporary, error);
                return false;
            }
        }
        fs::rename(temporary, path, error);
        return !error;
    }

    std::string m_folder;
};

} // namespace

int main(int argc, char** argv) {
    const zel::Options options = zel::parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto status = zel::answerAtOnce(options)) {
        return *status;
    }
    if (!options.console && options.convert.empty() && !options.loadsheet) {
        std::cerr << "error: this build has no window: use --console, --convert or --loadsheet\n";
        return 2;
    }
    std::optional<zel::Symbols> replacement;
    if (options.symbols && !(replacement = zel::symbolsFromPair(*options.symbols))) {
        std::cerr
            << "error: --symbols takes two characters, the decimal then the grouping symbol\n";
        return 2;
    }
    if (options.locale && !zel::IntlRegional::isKnownLocale(*options.locale)) {
        std::cerr << "error: unknown locale: " << *options.locale << '\n';
        return 2;
    }
    zel::IntlRegional regional(options.locale, replacement);
    std::error_code error;
    FileStorage storage(options.folder ? *options.folder : fs::current_path(error).string());
    zel::placeShippedSettings(storage);
    zel::FetchNetwork network;
    zel::DateClock clock;
    const zel::ConsoleMachine machine{
        [&](zel::Interaction& ui) {
            return zel::Platform{ui, regional, storage, network, clock};
        },
        // The script waits while node carries the transfer on.
        [](const zel::Menu& menu) {
            while (menu.busy()) {
                emscripten_sleep(10);
            }
        }};
    const int status = options.loadsheet ? zel::runLoadsheet(options, machine)
                       : options.console ? zel::runConsole(options, machine)
                                         : zel::runConvert(options, machine);
    std::cout.flush();
    return status;
}
