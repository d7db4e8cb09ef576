// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

// The platform pieces that JavaScript gives, in the browser and under node
// alike: regional symbols from Intl.NumberFormat, HTTP with fetch, today's
// date from Date. host.js, run before the program, is the JavaScript side.

#include "host/platform.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zel {

/// Regional symbols from Intl.NumberFormat.
class IntlRegional : public LocaleRegional {
  public:
    using LocaleRegional::LocaleRegional;

    /// True when Intl knows the name, or it is "C".
    static bool isKnownLocale(const std::string& name);
    std::string howToChange() override;

  protected:
    Symbols localeSymbols(const std::optional<std::string>& name) override;
};

/// HTTP with fetch: one transfer of at most 1 MiB, cut after 15 seconds.
class FetchNetwork : public Network {
  public:
    bool connected() override;
    void get(const std::string& url, Then<HttpReply> then) override;
    /// A transfer has ended: host.js calls this through the binding.
    static void ended(int id, const HttpReply& reply);
    /// How many transfers have not ended.
    static std::size_t inFlight();
};

class DateClock : public Clock {
  public:
    std::chrono::year_month_day today() override;
};

/// The settings file as it ships.
std::string_view shippedSettings();
/// Puts the shipped settings file in place when there is none.
bool placeShippedSettings(Storage& storage);

} // namespace zel
