// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/options.h"
#include "console/console.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zel::test {
namespace {

struct Session {
    std::ostringstream out;
    ConsoleInteraction ui{out};
    FakeRegional regional;
    FakeStorage storage;
    FakeNetwork network;
    FakeClock clock;
    Platform platform{ui, regional, storage, network, clock};
    Menu menu{platform};
    ConsoleSession session{menu, ui, out};
    Session() { session.start(); }
};

TEST(Console, RejectsLinesItCannotRead) {
    const std::pair<const char*, const char*> cases[] = {
        {"page 19", "page takes a number from 1 to 18"},
        {"row x", "row takes a number from 1 to 8"},
        {"op 6", "op takes a number from 0 to 5"},
        {"keyup f13", "keyup takes enter, escape or f1 to f12"},
        {"key delete", "key takes backspace"},
        {"answer maybe", "answer takes yes, no, cancel or text TEXT"},
        {"show now", "show takes no argument"},
        {"fly", "unknown command: fly"},
        {"type", "type needs the text to type"},
    };
    for (const auto& [line, reason] : cases) {
        Session s;
        EXPECT_EQ(s.session.run(line).value_or("accepted"), reason) << line;
    }
}

TEST(Console, SkipsCommentsAndBlankLinesAndReadsWindowsLineEnds) {
    Session s;
    EXPECT_FALSE(s.session.run("# a comment").has_value());
    EXPECT_FALSE(s.session.run("").has_value());
    EXPECT_FALSE(s.session.run("page 2\r").has_value());
    EXPECT_EQ(s.session.menu().currentPage(), 2);
}

TEST(Console, PrintsDialogsAndUsesQueuedAnswers) {
    Session s;
    s.session.run("answer text MXN");
    EXPECT_EQ(s.ui.input("myCurrency", "code\r"), "MXN");
    EXPECT_FALSE(s.ui.question("Currency", "Download?"));
    s.session.run("answer yes");
    EXPECT_TRUE(s.ui.question("Currency", "Download?"));
    s.ui.message(MessageIcon::Critical, "Error", "say \"hi\" \\ there");
    EXPECT_EQ(s.out.str(), "input \"myCurrency\" \"code\\r\" -> \"MXN\"\n"
                           "question \"Currency\" \"Download?\" -> no\n"
                           "question \"Currency\" \"Download?\" -> yes\n"
                           "message critical \"Error\" \"say \\\"hi\\\" \\\\ there\"\n");
}

TEST(Console, StopsAtQuit) {
    Session s;
    s.session.run("keyup escape");
    EXPECT_TRUE(s.session.finished());
    EXPECT_EQ(s.out.str(), "quit\n");
}

TEST(Options, ReadTheCommandLine) {
    const Options o =
        parseOptions({"--console", "run.txt", "--locale", "de_DE", "--symbols", ",."});
    EXPECT_TRUE(o.console);
    EXPECT_EQ(o.file, "run.txt");
    EXPECT_EQ(o.locale, "de_DE");
    EXPECT_EQ(o.symbols, ",.");
    EXPECT_EQ(parseOptions({"--locale"}).error, "--locale needs a value");
    EXPECT_EQ(parseOptions({"--fly"}).error, "unknown argument: --fly");
}

} // namespace
} // namespace zel::test
