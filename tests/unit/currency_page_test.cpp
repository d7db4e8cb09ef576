// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The Currency page with its settings file, own currency and downloads, on fake
// storage, network and clock (today is day 46348).
#include "currency/profile.h"
#include "fakeplatform.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr const char* EcbUrl = "http://rates.test/eurofxref-daily.xml";
constexpr const char* ConverterUrl = "http://rates.test/finance/converter";

struct CurrencyPage : Calculator {
    explicit CurrencyPage(int age = 0, const std::string& own = "myCurrCode=XXX\n",
                          const std::string& source = "ecb", const Symbols& symbols = Dot)
        : Calculator(symbols) {
        storage.settings() = "[Rates]\nEUR=1\nAUD=1.6079\nCAD=1.4670\nINR=89.2495\n"
                             "JPY=171.94\nGBP=0.84638\nUSD=1.0705\n" +
                             own + "Date=" + std::to_string(46348 - age) +
                             "\n\n; where rates come from\n[Download]\nSource=" + source +
                             "\nEcbUrl=" + EcbUrl + "\nConverterUrl=" + ConverterUrl + "\n";
    }
    std::string ini(std::string_view key) {
        return profile::read(storage.settings(), "Rates", key);
    }
    bool saw(std::string_view event) const {
        return std::find(ui.events.begin(), ui.events.end(), event) != ui.events.end();
    }
    void serveFeed(const std::string& extra = "") {
        network.serve(EcbUrl, "<Envelope><Cube><Cube time='2026-11-20'>"
                              "<Cube currency='USD' rate='1.1612'/><Cube currency='JPY' "
                              "rate='180.21'/><Cube currency='GBP' rate='0.8790'/>"
                              "<Cube currency='AUD' rate='1.7800'/><Cube currency='CAD' "
                              "rate='1.6233'/><Cube currency='INR' rate='102.8040'/>" +
                                  extra + "</Cube></Cube></Envelope>");
    }
};

TEST(CurrencyPage, ConvertsWithTheStoredRatesOnEitherDecimalSymbol) {
    for (const auto& [symbols, usd, jpy] :
         {std::tuple{Dot, "107.05", "17,194.00"}, std::tuple{Comma, "107,05", "17.194,00"}}) {
        CurrencyPage page(0, "myCurrCode=XXX\n", "ecb", symbols);
        page.menu.openPage(page::Currency);
        page.enter(3, "100");
        EXPECT_EQ(page.caption(7), usd);
        EXPECT_EQ(page.caption(5), jpy);
        EXPECT_EQ(page.menu.row(8).unit, "") << "no own currency, no row 8";
        EXPECT_TRUE(page.ui.events.empty());
    }
}

TEST(CurrencyPage, AsksToDownloadFromTheEighthDay) {
    for (const auto& [age, asks] : {std::pair{7, false}, std::pair{8, true}}) {
        CurrencyPage page(age);
        page.menu.openPage(page::Currency);
        EXPECT_EQ(page.saw("question Download recent currency rates ?"), asks) << age;
    }
}

TEST(CurrencyPage, ShowsRowEightOnlyForAThreeCharacterCode) {
    const std::pair<const char*, const char*> cases[] = {
        {"myCurrName=Mexican Peso\nmyCurrCode=MX\nMX=19.5\n", ""},
        {"myCurrName=Mexican Peso\nmyCurrCode=MXNN\nMXNN=19.5\n", ""},
        {"myCurrName=Mexican Peso\nmyCurrCode=MXN\nMXN=19.5654\n", "Mexican Peso - MXN"},
    };
    for (const auto& [own, unit] : cases) {
        CurrencyPage page(0, own);
        page.menu.openPage(page::Currency);
        EXPECT_EQ(page.menu.row(8).unit, std::string(unit)) << own;
    }
    CurrencyPage page(0, cases[2].first);
    page.menu.openPage(page::Currency);
    page.enter(3, "10");
    EXPECT_EQ(page.caption(8), "195.65");
}

TEST(CurrencyPage, SetNamesTheOwnCurrency) {
    using Answers = std::deque<std::optional<std::string>>;
    const std::tuple<const char*, Answers, const char*, const char*, const char*> cases[] = {
        {"a cancelled first box changes nothing", {std::nullopt}, "", "XXX", ""},
        {"the code is stored in capitals",
         {"Mexican Peso", "mxn"},
         "Mexican Peso",
         "MXN",
         "Mexican Peso - MXN"},
        {"four letters are refused, the name stays",
         {"Mexican Peso", "MXNN"},
         "Mexican Peso",
         "XXX",
         ""},
    };
    for (const auto& [name, answers, storedName, code, unit] : cases) {
        CurrencyPage page;
        page.menu.openPage(page::Currency);
        page.ui.inputs = answers;
        page.menu.pressMemory(MemoryKey::Add);
        EXPECT_EQ(page.ini("myCurrName"), storedName) << name;
        EXPECT_EQ(page.ini("myCurrCode"), code) << name;
        EXPECT_EQ(page.menu.row(8).unit, unit) << name;
        EXPECT_EQ(page.saw("critical myCurrency: Invalid Currency"),
                  code == std::string("XXX") && answers.size() == 2)
            << name;
    }
}

TEST(CurrencyPage, NoDownloadWhenOfflineOrDeclined) {
    for (const bool online : {false, true}) {
        CurrencyPage page;
        page.network.online = online;
        page.menu.openPage(page::Currency);
        const std::string before = page.storage.settings();
        page.menu.pressMemory(MemoryKey::Recall); // unanswered: No
        EXPECT_EQ(page.storage.settings(), before);
        EXPECT_TRUE(page.network.requested.empty());
        EXPECT_EQ(page.saw("information zelFLIGHTAB: Internet connection is required to update "
                           "the currency rates..."),
                  !online);
    }
}

TEST(CurrencyPage, TakesNoActionWhileDownloading) {
    CurrencyPage page;
    page.menu.openPage(page::Currency);
    page.serveFeed();
    page.ui.answers = {true, true};
    page.network.during = [&] {
        page.menu.pressMemory(MemoryKey::Recall); // a second "Rates"
        page.menu.openPage(page::Weight);
        page.type("5");
    };
    page.menu.pressMemory(MemoryKey::Recall);
    EXPECT_EQ(page.network.requested.size(), 1u);
    EXPECT_EQ(page.menu.currentPage(), 18);
    EXPECT_EQ(page.menu.view().display, "0.");
}

TEST(CurrencyPage, ATypedCodeStaysInTheQueryAndTheTechFolder) {
    CurrencyPage page(0, "myCurrCode=XXX\n", "converter");
    const std::string settings = page.storage.settings();
    page.storage.files.clear();
    page.storage.folder = "/"; // the program at the root of its drive
    page.storage.files["/Tech/zelFLIGHTAB.ini"] = settings;
    page.menu.openPage(page::Currency);
    page.ui.inputs = {"Odd", "./&"};
    page.ui.answers = {true};
    page.menu.pressMemory(MemoryKey::Add);
    EXPECT_EQ(page.network.requested.back(),
              std::string(ConverterUrl) + "?a=1&from=EUR&to=.%2F%26");
    EXPECT_EQ(profile::read(page.storage.files["/Tech/zelFLIGHTAB.ini"], "Rates", "myCurrCode"),
              "./&");
    for (const auto& [path, bytes] : page.storage.files) {
        EXPECT_TRUE(path.starts_with("/Tech/") && path.find("/", 6) == std::string::npos) << path;
    }
}

TEST(CurrencyPage, SaysWhatItCouldNotSaveAndLeavesTheFileAlone) {
    for (const bool readable : {true, false}) {
        CurrencyPage page;
        const std::string path = "/pilot/Tech/zelFLIGHTAB.ini";
        (readable ? page.storage.readOnly : page.storage.unreadable).push_back(path);
        const std::string before = page.storage.settings();
        page.menu.openPage(page::Currency);
        page.ui.inputs = {"Mexican Peso", "MXN"};
        page.menu.pressMemory(MemoryKey::Add);
        EXPECT_EQ(page.storage.settings(), before);
        EXPECT_EQ(std::count_if(page.ui.events.begin(), page.ui.events.end(),
                                [](const std::string& e) {
                                    return e.starts_with("critical zelFLIGHTAB: Cannot save the "
                                                         "settings file:\r\r/pilot/Tech/");
                                }),
                  1)
            << "told once, readable " << readable;
        EXPECT_EQ(page.menu.row(8).unit, "");
    }
}

TEST(CurrencyPage, TheInfoKeyNamesTheSourceAndTheDateOfTheRates) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"ecb", "the European Central Bank", "Rates of 28 Jun 2024 (European Central Bank)"},
        {"converter", "Google Finance", "Rates of 28 Jun 2024 (Google Finance)"},
    };
    for (const auto& [source, from, rates] : cases) {
        CurrencyPage page(46348 - 45471, "myCurrCode=XXX\n", source);
        page.ui.answers = {false};
        page.menu.openPage(page::Currency);
        page.menu.pressMemory(MemoryKey::Subtract);
        EXPECT_EQ(page.lastEvent(), "information Currency: Currency Rates are retrieved from " +
                                        std::string(from) +
                                        ".\r\rPress the Rates button to download the latest "
                                        "rates...\r\r" +
                                        rates);
    }
    CurrencyPage none;
    none.storage.settings() = "[Rates]\nEUR=1\n";
    none.ui.answers = {false};
    none.menu.openPage(page::Currency);
    none.menu.pressMemory(MemoryKey::Subtract);
    EXPECT_TRUE(none.lastEvent().ends_with("\r\rNo rates stored yet"));
    none.storage.settings() = "[Rates]\nEUR=1\nDate=2958466\n"; // past 31 December 9999
    none.menu.pressMemory(MemoryKey::Subtract);
    EXPECT_TRUE(none.lastEvent().ends_with("\r\rNo rates stored yet"));
}

TEST(CurrencyPage, AMissingRateIsUnknownAndNeverOneToOne) {
    // Mexican Peso is named, but no rate was ever downloaded; the yen's is 0.
    CurrencyPage page(0, "myCurrName=Mexican Peso\nmyCurrCode=MXN\n");
    page.storage.settings().replace(page.storage.settings().find("JPY=171.94"), 10, "JPY=0");
    page.menu.openPage(page::Currency);
    page.enter(3, "100");
    EXPECT_EQ(page.caption(7), "107.05");
    EXPECT_EQ(page.caption(8), "");
    EXPECT_EQ(page.caption(5), "");
    page.enter(8, "50"); // typed into the peso row
    EXPECT_EQ(page.ui.events, std::vector<std::string>{"beep"});
    EXPECT_EQ(page.caption(7), "107.05");
}

} // namespace
} // namespace zel::test
