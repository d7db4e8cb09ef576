// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "currency/settings.h"
#include "entry/numbertext.h"
#include "host/platform.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// The Currency page's rates and the user's own currency, kept in the settings
/// file, section "Rates": one key per currency code holding units of that
/// currency per euro ("1.0705" US dollars), "myCurrName" and "myCurrCode" for
/// the user's own currency, and "Date", the day number of the last download.
/// Section "Download" chooses the rate source.
class RateStore {
  public:
    RateStore(Platform& platform, Dialogs& dialogs)
        : m_platform(platform), m_dialogs(dialogs), m_settings(platform.storage, dialogs) {}

    /// "XXX", the code of no currency: no own currency is set.
    static constexpr std::string_view NoCurrency = "XXX";
    /// The currency code of a row of the Currency page: its unit's symbol
    /// ("USD" of "US Dollar - USD"); row 8 is the user's own currency.
    std::string rowCode(int row) const;

    using Rates = std::array<float, 8>;
    /// The eight rates of the Currency page, 0 for a rate that is missing or
    /// unreadable, handed to `then`. Stored rates more than 7 days old are
    /// offered for download first.
    void loadRates(const Symbols& symbols, Then<const Rates&> then);
    /// Row 8's unit, "Mexican Peso - MXN"; empty while no own currency is set.
    std::string ownCurrencyUnit();
    /// The two input boxes that name the user's own currency, then a download;
    /// `then` learns whether the Currency page must be loaded again.
    void nameOwnCurrency(Then<bool> then);

    /// Asks, then refreshes every rate from the source the settings name;
    /// `then` runs when the download has ended, whichever way.
    void downloadRates(Then<bool> then = {});
    /// True from the question that offers a download until it has ended, and
    /// while the own currency is being named: the window takes no other
    /// action meanwhile.
    bool downloading() const { return m_step != Step::Idle; }
    /// Transfers run: the busy pointer shows.
    bool transferring() const { return m_step == Step::Downloading; }

    /// The text of the Currency page's "i" key: where the rates come from.
    std::vector<std::string> sourceNote();
    /// "Rates of 28 Jun 2024 (European Central Bank)", or "No rates stored yet".
    std::string ratesNote();
    Settings& settings() { return m_settings; }

  private:
    /// Where a flow that spans requests stands.
    enum class Step {
        Idle,
        Naming,      ///< the input boxes of the own currency are open
        Offering,    ///< "Download recent currency rates ?" is asked
        Downloading, ///< transfers run; the busy pointer shows
    };
    enum class Source { Ecb, Converter };
    using Codes = std::array<std::string, 7>;
    Source source();
    std::string techFile(std::string_view name);
    std::string today();
    Rates readRates(const Symbols& symbols);
    void nameCode(Then<bool> then);
    /// Whether the Internet can be reached; says so when it cannot.
    bool connected();
    /// Fetches `url` into `fileName`; says why when it cannot. `then` learns
    /// whether the file is there.
    void download(const std::string& url, const std::string& fileName, Then<bool> then);
    void fetchConverterRates(const Codes& codes, std::size_t next,
                             std::shared_ptr<std::vector<std::string>> fetched, Then<bool> then);
    bool storeConverterRates(const Codes& codes, const std::vector<std::string>& fetched);
    void fetchEcbRates(const Codes& codes, Then<bool> then);
    void finishDownload(bool done);
    void cannotRead(std::string_view code);

    Platform& m_platform;
    Dialogs& m_dialogs;
    Settings m_settings;
    std::string m_ownCode{NoCurrency};
    Step m_step = Step::Idle;
    Then<bool> m_downloaded; ///< what runs when the download has ended
};

} // namespace zel
