// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "console/console.h"

#include <cstring>

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--console") == 0) {
            return zel::runConsole(argc, argv);
        }
    }
    return zel::runConsole(argc, argv);
}
