// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Rate downloads end to end: the real Qt HTTP client and real files in a
// temporary folder, against a server on 127.0.0.1 that the test runs.
#include "currency/profile.h"
#include "currency/ratepages.h"
#include "fakeplatform.h"
#include "localserver.h"
#include "platform/qthttp.h"
#include "platform/qtstorage.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QNetworkReply>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

/// The real client. Whether the machine is online is taken as given: that
/// answer belongs to the machine, not to the code under test.
class LocalHttp : public QtHttp {
  public:
    LocalHttp() : QtHttp(Limits{500, 1 << 20}) {}
    bool connected() override { return true; }
};

/// One transfer to its end, the test's event loop serving the local server meanwhile.
HttpReply fetch(Network& http, const std::string& url) {
    std::optional<HttpReply> reply;
    http.get(url, [&](HttpReply r) { reply = std::move(r); });
    while (!reply) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return *reply;
}

/// Runs the event loop until Menu's transfers have ended.
void settle(const Menu& menu) {
    while (menu.busy()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// A port with nobody listening.
QByteArray refusedUrl() {
    QTcpServer closed;
    closed.listen(QHostAddress::LocalHost);
    return "http://127.0.0.1:" + QByteArray::number(closed.serverPort()) + "/ecb.xml";
}

const QByteArray Feed = "<?xml version='1.0'?><gesmes:Envelope><Cube><Cube time='2026-11-20'>"
                        "<Cube currency='USD' rate='1.1612'/><Cube currency='JPY' rate='180.21'/>"
                        "<Cube currency='GBP' rate='0.8790'/><Cube currency='AUD' rate='1.7800'/>"
                        "<Cube currency='CAD' rate='1.6233'/><Cube currency='INR' "
                        "rate='102.8040'/></Cube></Cube></gesmes:Envelope>\n";

QByteArray converterPage(const QByteArray& rate, const QByteArray& code) {
    return "<html>\n<div id=currency_converter_result>1 EUR = <span class=bld>" + rate + " " +
           code + "</span>\n</html>\n";
}

TEST(QtHttp, TurnsEveryFailureIntoAnError) {
    LocalServer server;
    server.routes["/ok"] = {200, "rates", {}, false};
    server.routes["/moved"] = {302, {}, "/ok", false};
    server.routes["/empty"] = {200, {}, {}, false};
    server.routes["/huge"] = {200, QByteArray(1'100'000, 'x'), {}, false};
    server.routes["/broken"] = {500, "oops", {}, false};
    server.routes["/silent"] = {200, {}, {}, true};
    const std::tuple<const char*, QByteArray, int> cases[] = {
        {"a page", server.url("/ok"), QNetworkReply::NoError},
        {"a redirect is followed", server.url("/moved"), QNetworkReply::NoError},
        {"404", server.url("/missing"), QNetworkReply::ContentNotFoundError},
        {"500", server.url("/broken"), QNetworkReply::InternalServerError},
        {"an empty reply", server.url("/empty"), QNetworkReply::UnknownContentError},
        {"over 1 MiB", server.url("/huge"), QNetworkReply::UnknownContentError},
        {"no answer", server.url("/silent"), QNetworkReply::TimeoutError},
        {"connection refused", refusedUrl(), QNetworkReply::ConnectionRefusedError},
    };
    LocalHttp http;
    for (const auto& [name, url, error] : cases) {
        const HttpReply reply = fetch(http, url.toStdString());
        EXPECT_EQ(reply.ok, error == QNetworkReply::NoError) << name;
        EXPECT_EQ(reply.error, error) << name << ": " << reply.errorText;
        EXPECT_EQ(reply.body, reply.ok ? "rates" : "") << name;
    }
}

/// The calculator with its settings in a temporary folder, rates a year old.
struct Download {
    QTemporaryDir dir;
    LocalServer server;
    FakeInteraction ui;
    FakeRegional regional;
    QtStorage storage{dir.path().toStdString()};
    LocalHttp network;
    QtClock clock;
    Platform platform{ui, regional, storage, network, clock};
    Menu menu{platform};
    std::string path = dir.path().toStdString() + "/Tech/zelFLIGHTAB.ini";

    Download(const std::string& source, const std::string& own = "XXX",
             const QByteArray& ecbUrl = {}) {
        ui.answer = [this](int request, const Answer& given) { menu.answer(request, given); };
        writeNow(storage, path,
                 "; kept by hand\r\n[Rates]\r\nEUR=1\r\nUSD=1.0705\r\nmyCurrName=Mine\r\n"
                 "myCurrCode=" +
                     own + "\r\nDate=45471\r\n\r\n[Download]\r\nSource=" + source + "\r\nEcbUrl=" +
                     (ecbUrl.isEmpty() ? server.url("/ecb.xml") : ecbUrl).toStdString() +
                     "\r\nConverterUrl=" + server.url("/finance/converter").toStdString() + "\r\n");
        menu.start();
        menu.activate();
    }
    std::string settings() { return storage.read(path).bytes; }
    /// Opens the Currency page, says yes to the download, converts 100 euro.
    void openAndConvert() {
        ui.answers = {true};
        menu.openPage(page::Currency);
        settle(menu);
        for (char c : std::string("100")) {
            menu.type(static_cast<unsigned char>(c));
        }
        menu.clickRow(3);
    }
    bool saw(const std::string& text) const {
        return std::find(ui.events.begin(), ui.events.end(), text) != ui.events.end();
    }
    QStringList techFiles() const { return QDir(dir.path() + "/Tech").entryList(QDir::Files); }
};

TEST(RateDownload, TheEcbFeedGivesTheRates) {
    Download d("ecb");
    d.server.routes["/ecb.xml"] = {200, Feed, {}, false};
    d.openAndConvert();
    EXPECT_EQ(d.ui.events, (std::vector<std::string>{"question Download recent currency rates ?",
                                                     "busy on", "busy off", "beep"}));
    EXPECT_EQ(d.menu.view().rows[7 - 1].value, "116.12");
    EXPECT_EQ(d.menu.view().rows[5 - 1].value, "18,021.00");
    EXPECT_EQ(profile::read(d.settings(), "Rates", "Date"),
              std::to_string(daySerial(QtClock().today())));
    EXPECT_EQ(d.techFiles(), QStringList({"rate_ECB.xml", "zelFLIGHTAB.ini"}));
}

TEST(RateDownload, TheConverterGivesOnePagePerCurrency) {
    Download d("converter");
    for (const QByteArray code : {"AUD", "CAD", "INR", "JPY", "GBP", "USD", "XXX"}) {
        d.server.routes["/finance/converter?a=1&from=EUR&to=" + code] = {
            200, converterPage(code == "USD" ? "1.2917" : "2", code), {}, false};
    }
    // A page without a result is said, and its text stored all the same (it reads as 0).
    d.server.routes["/finance/converter?a=1&from=EUR&to=JPY"] = {
        200, "<div id=converter_result><span class=bld><i>color=red</i> JPY\n", {}, false};
    d.openAndConvert();
    EXPECT_TRUE(d.saw("critical zelFLIGHTAB: Cannot find currency rate for JPY"));
    EXPECT_EQ(profile::read(d.settings(), "Rates", "JPY"), "<i>color=red</i>");
    EXPECT_EQ(profile::read(d.settings(), "Rates", "XXX"), "2");
    EXPECT_EQ(d.server.requested.size(), 7);
    EXPECT_EQ(d.server.requested.front(), "/finance/converter?a=1&from=EUR&to=AUD");
    EXPECT_EQ(d.menu.view().rows[7 - 1].value, "129.17");
    EXPECT_EQ(d.techFiles().size(), 8);
}

TEST(RateDownload, AFaultLeavesTheSettingsFileAsItWas) {
    // A transfer that failed says so, and only that; a page that came but
    // cannot be read says "Cannot read the currency rate for AUD".
    struct Case {
        const char* name;
        const char* source;
        LocalServer::Route route; ///< every page of the source
        bool transferFails;
    };
    const Case cases[] = {
        {"404", "ecb", {404, "gone", {}, false}, true},
        {"500", "converter", {500, "oops", {}, false}, true},
        {"no answer", "ecb", {200, {}, {}, true}, true},
        {"an empty reply", "converter", {200, {}, {}, false}, true},
        {"over 1 MiB", "ecb", {200, Feed.repeated(5000), {}, false}, true},
        {"no converter_result", "converter", {200, "<html>\n<p>1.2 USD</p>\n", {}, false}, false},
        {"an empty line before it",
         "converter",
         {200, "<html>\n\n" + converterPage("1.2", "USD"), {}, false},
         false},
        {"a redirect to an unrelated page", "converter", {302, {}, "/news", false}, false},
        {"malformed XML", "ecb", {200, Feed.left(Feed.size() - 30), {}, false}, false},
    };
    for (const Case& c : cases) {
        Download d(c.source);
        d.server.routes["/ecb.xml"] = c.route;
        d.server.routes["/finance/converter"] = c.route;
        d.server.routes["/news"] = {200, "<html>\n<h1>News</h1>\n", {}, false};
        const std::string before = d.settings();
        d.openAndConvert();
        EXPECT_EQ(d.settings(), before) << c.name;
        EXPECT_EQ(d.saw("critical zelFLIGHTAB: Cannot read the currency rate for AUD"),
                  !c.transferFails)
            << c.name;
        for (const std::string& event : d.ui.events) {
            EXPECT_TRUE(!event.starts_with("critical") || !c.transferFails ||
                        event.starts_with("critical Error: The following error occurred"))
                << c.name << ": " << event;
        }
        EXPECT_TRUE(d.saw("busy off") && !d.saw("beep")) << c.name;
        for (const QString& file : d.techFiles()) { // no temporary file left behind
            EXPECT_TRUE(file == "zelFLIGHTAB.ini" || file.startsWith("rate_")) << c.name;
        }
    }
    Download refused("ecb", "XXX", refusedUrl());
    const std::string before = refused.settings();
    refused.openAndConvert();
    EXPECT_EQ(refused.settings(), before);
    EXPECT_TRUE(refused.ui.events.at(2).find("Error 1: Connection refused at line: 0") !=
                std::string::npos)
        << refused.ui.events.at(2);
}

TEST(RateDownload, AFeedWithoutTheOwnCurrencyStoresTheOthers) {
    Download d("ecb", "MXN");
    d.server.routes["/ecb.xml"] = {200, Feed, {}, false};
    const std::string before = d.settings();
    d.openAndConvert();
    EXPECT_TRUE(d.saw("critical zelFLIGHTAB: Cannot find currency rate for MXN"));
    const std::string after = d.settings();
    EXPECT_EQ(profile::read(after, "Rates", "MXN"), "");
    EXPECT_EQ(profile::read(after, "Rates", "USD"), "1.1612");
    EXPECT_EQ(after.substr(after.find("\r\n\r\n")), before.substr(before.find("\r\n\r\n")));
    EXPECT_TRUE(after.starts_with("; kept by hand\r\n[Rates]\r\nEUR=1\r\n"));
}

} // namespace
} // namespace zel::test
