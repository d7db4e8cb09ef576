// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Console command lines, any bytes: a line is run or refused with a reason,
// and the calculator behind it never stores or shows anything non-finite.
#include "fakeplatform.h"
#include "console/console.h"
#include "menucheck.h"

#include <sstream>

using namespace zel;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    std::ostringstream out;
    ConsoleInteraction ui(out);
    test::FakeMachine machine;
    machine.regional.value = size > 0 && data[0] % 2 ? test::Comma : test::Dot;
    Platform platform = machine.with(ui);
    Menu menu(platform);
    ConsoleSession session(menu, ui, out);
    session.start();
    std::istringstream lines(std::string(fuzz::text(data, size)));
    std::string line;
    for (int count = 0; count < 64 && !session.finished() && std::getline(lines, line); ++count) {
        if (const auto error = session.run(line)) {
            ZEL_CHECK(!error->empty());
        }
        fuzz::checkFinite(menu);
    }
    return 0;
}
