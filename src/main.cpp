// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// zelflightab: the window, or the calculator in the terminal. The terminal's
// ways (--convert, --console, --help, --version) need Qt Core only; the
// window's libraries are loaded from a module when a window opens.
#include "app/options.h"
#include "console/qtmachine.h"
#include "platform/modules.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const zel::Options options = zel::parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (const auto status = zel::answerAtOnce(options)) {
        return *status;
    }
    // The window, or a loading sheet drawn into a PDF, with the window's libraries.
    if (options.pdf || (!options.console && options.convert.empty() && !options.loadsheet)) {
        std::string error;
        void* entry = zel::modules::load(
            "window", options.pdf ? "zelflightab_loadsheet_pdf" : "zelflightab_window_main", error);
        if (entry == nullptr) {
            std::cerr << "error: cannot open the window: " << error << '\n';
            return 2;
        }
        return reinterpret_cast<int (*)(int, char**)>(entry)(argc, argv);
    }
    // HTTP, when a download starts, runs in this application's event loop.
    QCoreApplication application(argc, argv);
    const auto shared = zel::startPlatform(options);
    if (!shared) {
        return 2;
    }
    const zel::ConsoleMachine machine = zel::consoleMachine(*shared);
    if (options.loadsheet) {
        return zel::runLoadsheet(options, machine);
    }
    return options.console ? zel::runConsole(options, machine) : zel::runConvert(options, machine);
}
