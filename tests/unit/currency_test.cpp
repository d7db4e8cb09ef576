// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/profile.h"
#include "currency/ratepages.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr const char* Settings = "; rates per euro\r\n"
                                 "[Rates]\r\n"
                                 "EUR=1\r\n"
                                 "  usd = 1.0705 \r\n"
                                 "myCurrName=\"Mexican Peso\"\r\n"
                                 "\r\n"
                                 "[Download]\r\n"
                                 "Source=ecb\r\n";

TEST(Profile, ReadsOneKeyTheWayWindowsDoes) {
    const std::tuple<const char*, std::string, const char*, const char*, const char*> cases[] = {
        {"names match without regard to case", Settings, "rates", "USD", "1.0705"},
        {"enclosing quotes are dropped", Settings, "Rates", "myCurrName", "Mexican Peso"},
        {"a key of another section is not found", Settings, "Rates", "Source", ""},
        {"a missing section reads empty", Settings, "Nothing", "EUR", ""},
        {"a comment is no key", "[Rates]\n;EUR=2\nEUR=1\n", "Rates", "EUR", "1"},
        {"the first section of a name counts", "[A]\nk=1\n[A]\nk=2\n", "A", "k", "1"},
        {"a byte-order mark is skipped", "\xEF\xBB\xBF[A]\nk=1", "A", "k", "1"},
        {"an unassigned ANSI byte reads as a question mark", "[A]\nk=x\x81y", "A", "k", "x?y"},
        {"an overlong sequence is no UTF-8", "[A]\nk=\xE0\x80\x80", "A", "k",
         "\xC3\xA0\xE2\x82\xAC\xE2\x82\xAC"},
        {"an ANSI file is read as code page 1252",
         "[A]\nk=Qu\xE9"
         "bec \x80\n",
         "A", "k",
         "Qu\xC3\xA9"
         "bec \xE2\x82\xAC"},
        {"a value is cut at 254 characters", "[A]\nk=" + std::string(300, 'x'), "A", "k", "254"},
    };
    for (const auto& [name, file, section, key, expected] : cases) {
        const std::string value = profile::read(file, section, key);
        if (std::string_view(expected) == "254") {
            EXPECT_EQ(value.size(), 254u) << name;
        } else {
            EXPECT_EQ(value, expected) << name;
        }
    }
}

TEST(Profile, WritesOneKeyAndKeepsEverythingElse) {
    const std::tuple<const char*, std::string, const char*, const char*, const char*, std::string>
        cases[] = {
            {"a key is rewritten in place with its own spelling", Settings, "RATES", "USD", "1.08",
             "; rates per euro\r\n[Rates]\r\nEUR=1\r\n  usd=1.08\r\nmyCurrName=\"Mexican "
             "Peso\"\r\n\r\n[Download]\r\nSource=ecb\r\n"},
            {"a new key follows the section's last entry", Settings, "Rates", "Date", "46348",
             "; rates per euro\r\n[Rates]\r\nEUR=1\r\n  usd = 1.0705 \r\nmyCurrName=\"Mexican "
             "Peso\"\r\nDate=46348\r\n\r\n[Download]\r\nSource=ecb\r\n"},
            {"a new section goes at the end", "[A]\nk=1", "B", "k", "2", "[A]\nk=1\n[B]\nk=2\n"},
            {"an empty file gets its first section", "", "Rates", "EUR", "1", "[Rates]\nEUR=1\n"},
            {"a line break cannot start a new key", "[A]\n", "A", "k", "x\r\nEUR=0",
             "[A]\nk=x  EUR=0\n"},
            {"a value that is not UTF-8 is taken as ANSI", "[A]\nname=Z\xC5\x82oty\n", "A", "rate",
             "1.2\xA0", "[A]\nname=Z\xC5\x82oty\nrate=1.2\xC2\xA0\n"},
            {"an ANSI file stays ANSI",
             "[A]\nname=Qu\xE9"
             "bec\n",
             "A", "name", "Z\xC3\xBCrich \xE2\x82\xAC", "[A]\nname=Z\xFCrich \x80\n"},
            {"an ANSI file that would turn UTF-8 is written as UTF-8, its text kept",
             "[A]\nname=\xC3\xA9\nrate=\xE9\n", "A", "rate", "1",
             "[A]\nname=\xC3\x83\xC2\xA9\nrate=1\n"},
        };
    for (const auto& [name, file, section, key, value, expected] : cases) {
        EXPECT_EQ(profile::write(file, section, key, value), expected) << name;
    }
}

TEST(RatePages, CutsTheConverterRate) {
    const std::pair<const char*, std::optional<std::string>> cases[] = {
        {"<html>\n<div id=currency_converter_result>1 EUR = <span class=bld>0.8563 GBP</span>",
         "0.8563"},
        {"x\r\n<div id=converter_result>1 EUR = <span class=bld>1.2917 USD</span>\r\n", "1.2917"},
        {"<div id=converter_result><span class=bld><i>color=red</i> USD", "<i>color=red</i>"},
        {"<p id=converter_result>1 EUR", "id=converter_result>1"}, // no "bld>": from the 4th
        {"<html>\n\n<div id=converter_result><span class=bld>1.2 USD", std::nullopt},
        {"<html>\n<body>nothing here</body>", std::nullopt},
        {"<div id=converter_result><span class=bld>1.2917</span>", std::nullopt},
    };
    for (const auto& [page, rate] : cases) {
        EXPECT_EQ(cutConverterRate(page), rate) << page;
    }
}

constexpr const char* Feed = R"(<?xml version="1.0" encoding="UTF-8"?>
<gesmes:Envelope xmlns:gesmes="http://www.gesmes.org/xml/2002-08-01">
 <gesmes:subject>Reference rates</gesmes:subject>
 <Cube><Cube time='2024-06-28'>
  <Cube currency='USD' rate='1.0705'/>
  <Cube currency="JPY" rate="171.94" />
 </Cube></Cube>
</gesmes:Envelope>
)";

TEST(RatePages, ReadsTheEcbFeedOnlyWhenWellFormed) {
    const auto rates = parseEcbFeed(Feed);
    ASSERT_TRUE(rates);
    EXPECT_EQ(*rates, (std::map<std::string, std::string>{{"JPY", "171.94"}, {"USD", "1.0705"}}));
    const std::string feed = Feed;
    const std::pair<const char*, std::string> broken[] = {
        {"cut off", feed.substr(0, feed.size() / 2)},
        {"a rate that is no number", R"(<Cube><Cube currency='USD' rate='1,07'/></Cube>)"},
        {"a rate without a figure", R"(<Cube><Cube currency='USD' rate='.'/></Cube>)"},
        {"unmatched end tag", "<a><b></a></b>"},
        {"unquoted attribute", "<a><Cube currency=USD rate='1'/></a>"},
        {"text outside the document", "<a/>junk"},
        {"empty", ""},
        {"an HTML error page", "<html><body>Not found<br></body></html>"},
    };
    for (const auto& [name, xml] : broken) {
        EXPECT_FALSE(parseEcbFeed(xml)) << name;
    }
}

TEST(RatePages, KeepsTypedCodesInsideTheirPlace) {
    EXPECT_EQ(percentEncode("M/N&x=1"), "M%2FN%26x%3D1");
    EXPECT_EQ(fileSafe("../\xE2\x82\xAC"), "____");
    EXPECT_EQ(daySerial(std::chrono::year{1899} / 12 / 30), 0);
    EXPECT_EQ(daySerial(std::chrono::year{2000} / 1 / 1), 36526);
    EXPECT_EQ(daySerial(std::chrono::year{2024} / 6 / 28), 45471);
}

TEST(Settings, LiveInTheTechFolderBelowTheProgramFolder) {
    EXPECT_EQ(settingsPath("/opt/zel"), "/opt/zel/Tech/zelFLIGHTAB.ini");
    EXPECT_EQ(settingsPath("/opt/zel/"), "/opt/zel/Tech/zelFLIGHTAB.ini");
    EXPECT_EQ(techPath("C:\\", "rate_ECB.xml"), "C:/Tech/rate_ECB.xml");
    EXPECT_EQ(techPath("  ", "rate_ECB.xml"), "/Tech/rate_ECB.xml");
}

} // namespace
} // namespace zel::test
