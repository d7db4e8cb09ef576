// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "jsplatform.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <utility>

namespace zel {
namespace {

using emscripten::val;

val host() {
    return val::module_property("zelHost");
}

/// The transfers in flight by the number host.js knows them by.
std::map<int, Then<HttpReply>>& transfers() {
    static std::map<int, Then<HttpReply>> waiting;
    return waiting;
}

} // namespace

Symbols IntlRegional::localeSymbols(const std::optional<std::string>& name) {
    if (name == "C") {
        return {};
    }
    const val pair = host().call<val>("symbols", name ? val(*name) : val::undefined());
    return {pair[0].as<std::string>(), pair[1].as<std::string>()};
}

std::string IntlRegional::howToChange() {
    return host().call<std::string>("howToChange");
}

bool IntlRegional::isKnownLocale(const std::string& name) {
    return name == "C" || host().call<bool>("knownLocale", name);
}

bool FetchNetwork::connected() {
    return host().call<bool>("online");
}

void FetchNetwork::get(const std::string& url, Then<HttpReply> then) {
    static int next = 0;
    const int id = ++next;
    transfers().emplace(id, std::move(then));
    host().call<void>("get", id, url);
}

void FetchNetwork::ended(int id, const HttpReply& reply) {
    const auto it = transfers().find(id);
    if (it == transfers().end()) {
        return;
    }
    const Then<HttpReply> then = std::move(it->second);
    transfers().erase(it);
    then(reply);
}

std::size_t FetchNetwork::inFlight() {
    return transfers().size();
}

std::chrono::year_month_day DateClock::today() {
    const val date = host().call<val>("today");
    return std::chrono::year_month_day{std::chrono::year(date[0].as<int>()),
                                       std::chrono::month(date[1].as<unsigned>()),
                                       std::chrono::day(date[2].as<unsigned>())};
}

bool placeShippedSettings(Storage& storage) {
    const std::string path = settingsPath(storage.programFolder());
    if (storage.read(path).status == FileRead::Status::Missing) {
        storage.write(path, shippedSettings(), [](bool) {});
    }
    return true;
}

} // namespace zel

namespace {

void transferEnded(int id, bool ok, int error, const std::string& errorText,
                   const std::string& body) {
    zel::FetchNetwork::ended(id, {ok, error, errorText, body});
}

} // namespace

EMSCRIPTEN_BINDINGS(zel_transfers) {
    emscripten::function("transferEnded", &transferEnded);
}
