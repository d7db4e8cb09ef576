// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/options.h"
#include "console/console.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zel::test {
namespace {

struct Session : FakeMachine {
    std::ostringstream out;
    ConsoleInteraction ui{out};
    Platform platform = with(ui);
    Menu menu{platform};
    ConsoleSession session{menu, ui, out};
    Session() { session.start(); }
};

TEST(Console, RejectsLinesItCannotRead) {
    const std::string pages = std::to_string(pageCatalogue().count());
    const std::string past = "page " + std::to_string(pageCatalogue().count() + 1);
    const std::pair<std::string, std::string> cases[] = {
        {past, "page takes a number from 1 to " + pages + " or a page's name"},
        {"page nowhere", "page takes a number from 1 to " + pages + " or a page's name"},
        {"row x", "row takes a number from 1 to 8"},
        {"op 6", "op takes a number from 0 to 5"},
        {"keyup f13", "keyup takes enter, escape or f1 to f12"},
        {"key delete", "key takes backspace"},
        {"answer maybe", "answer takes yes, no, cancel or text TEXT"},
        {"show now", "show takes nothing, display, hint, note, sheet, rows or row N"},
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
    EXPECT_FALSE(s.session.run("page fuel uplift").has_value());
    EXPECT_EQ(s.session.menu().currentPage(), 10);
}

TEST(Console, PrintsDialogsAndUsesQueuedAnswers) {
    Session s;
    std::vector<std::pair<int, Answer>> answers;
    s.ui.answerWith([&](int request, const Answer& a) { answers.emplace_back(request, a); });
    s.session.run("answer text MXN");
    s.ui.open({.id = 1,
               .kind = Request::Kind::Input,
               .title = "myCurrency",
               .paragraphs = {"code", "e.g. MXN"}});
    s.ui.open({.id = 2,
               .kind = Request::Kind::Question,
               .title = "Currency",
               .paragraphs = {"Download?"}});
    s.session.run("answer yes");
    s.ui.open({.id = 3,
               .kind = Request::Kind::Question,
               .title = "Currency",
               .paragraphs = {"Download?"}});
    s.ui.open({.id = 4,
               .kind = Request::Kind::Message,
               .icon = MessageIcon::Critical,
               .title = "Error",
               .paragraphs = {"say \"hi\" \\ there"}});
    ASSERT_EQ(answers.size(), 4u);
    EXPECT_EQ(answers[0].second.text, "MXN");
    EXPECT_FALSE(answers[1].second.yes);
    EXPECT_TRUE(answers[2].second.yes);
    EXPECT_EQ(answers[3].first, 4); // a message is read, and closed
    EXPECT_EQ(s.out.str(), "input \"myCurrency\" \"code\\r\\re.g. MXN\" -> \"MXN\"\n"
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
    EXPECT_EQ(parseOptions({"--convert", "weight", "lbs", "165"}).convert,
              (std::vector<std::string>{"weight", "lbs", "165"}));
    EXPECT_EQ(parseOptions({"--convert", "weight", "lbs"}).error,
              "--convert needs a page, a row and a value");
    EXPECT_EQ(parseOptions({"--locale"}).error, "--locale needs a value");
    EXPECT_EQ(parseOptions({"--fly"}).error, "unknown argument: --fly");
}

TEST(Convert, FindsPagesAndRowsByNumberOrName) {
    const std::tuple<const char*, const char*, const char*, Symbols, int, int, const char*>
        cases[] = {
            {"weight", "lbs", "165", Dot, 1, 1, "74.83"},
            {"1", "2", "165", Dot, 1, 1, "74.83"},
            {"TEMPERATURE", "°C", "-40", Dot, 7, 2, "-40.00"},
            {"temperature", "c", "100", Dot, 7, 2, "212.00"},
            {"Fuel Uplift", "1", "1.000,5", Comma, 10, 2, "2.206,10"},
            {"mach-as", "feet", "10000", Dot, 13, 1, "10,000.00"},
        };
    for (const auto& [page, row, value, symbols, pageNumber, shownRow, caption] : cases) {
        Calculator calc(symbols);
        EXPECT_EQ(convertOnce(calc.menu, page, row, value), std::nullopt) << page << ' ' << row;
        EXPECT_EQ(calc.menu.currentPage(), pageNumber) << page;
        EXPECT_EQ(calc.caption(shownRow), caption) << page << ' ' << row;
    }
}

TEST(Convert, ExplainsWhatItCannotDo) {
    const std::string count = std::to_string(pageCatalogue().count());
    const std::string past = std::to_string(pageCatalogue().count() + 1);
    const std::string range = " (a number from 1 to " + count + ", or a page name)";
    const std::tuple<std::string, std::string, std::string, std::string> cases[] = {
        {"nowhere", "1", "1", "unknown page: nowhere" + range},
        {past, "1", "1", "unknown page: " + past + range},
        {"1a", "1", "1", "unknown page: 1a" + range},
        {"wind", "°", "90", "row ° is ambiguous on Wind: give its number"},
        {"angle", "7", "1", "row 7 is not used on Angle"},
        {"weight", "stone", "1", "no row stone on Weight"},
        {"weight", "lbs", "abc", "not a number: abc"},
        {"weight", "lbs", "1E5", "cannot type 1E5: write it with digits and . only"},
    };
    for (const auto& [page, row, value, error] : cases) {
        Calculator calc;
        EXPECT_EQ(convertOnce(calc.menu, page, row, value).value_or("converted"), error);
    }
}

} // namespace
} // namespace zel::test
