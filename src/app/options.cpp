// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/options.h"

namespace zel {

Options parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        auto value = [&](std::optional<std::string>& target) {
            if (i + 1 >= arguments.size()) {
                options.error = argument + " needs a value";
                return;
            }
            target = arguments[++i];
        };
        if (argument == "--console") {
            options.console = true;
        } else if (argument == "--locale") {
            value(options.locale);
        } else if (argument == "--symbols") {
            value(options.symbols);
        } else if (argument == "--folder") {
            value(options.folder);
        } else if (argument == "--script") {
            value(options.script);
        } else if (argument == "--screenshot") {
            value(options.screenshot);
        } else if (options.console && !options.file && !argument.starts_with("--")) {
            options.file = argument;
        } else {
            options.error = "unknown argument: " + argument;
        }
        if (!options.error.empty()) {
            break;
        }
    }
    return options;
}

} // namespace zel
