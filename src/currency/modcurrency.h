// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

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
/// file <program folder>/Tech/zelFLIGHTAB.ini, section "Rates": one key per
/// currency code holding units of that currency per euro ("1.0705" US dollars),
/// "myCurrName" and "myCurrCode" for the user's own currency, and "Date", the
/// day number of the last download. Section "Download" chooses the rate source.
class ModCurrency {
  public:
    /// The currency code of a row of the Currency page: the code its unit
    /// caption ends with ("US Dollar - USD"); row 8 is the user's own currency.
    std::string rowCode(int row) const;
    /// "XXX", the code of no currency: no own currency is set.
    static constexpr std::string_view NoCurrency = "XXX";

    explicit ModCurrency(Platform& platform) : m_platform(platform) {}

    /// One key of the settings file; "" when the file or the key is missing.
    std::string ReadIni(std::string_view section, std::string_view key);
    /// Writes one key, keeping the rest of the file; false when the file could
    /// not be written (or exists but could not be read, and so is left alone).
    /// The user is told once, when the action that wrote ends.
    bool WriteIni(std::string_view section, std::string_view key, std::string_view value);
    /// The folder without its trailing separator ("/" or "\"); "" for a blank path.
    static std::string NormalizePath(std::string_view path);
    /// The number in a text, 0 when there is none. With "." as decimal symbol the
    /// text is read from its start as a plain number; otherwise the regional way.
    static double ToNumber(std::optional<std::string_view> value, const Symbols& symbols);

    using Rates = std::array<float, 8>;

    /// The eight rates of the Currency page, 0 for a rate that is missing or
    /// unreadable, handed to `then`. Stored rates more than 7 days old are
    /// offered for download first.
    void LoadRates(const Symbols& symbols, Then<const Rates&> then);
    /// Row 8's caption, "Mexican Peso - MXN"; empty while no own currency is set.
    std::string ownCurrencyCaption();
    /// The two input boxes that name the user's own currency, then a download;
    /// `then` learns whether the Currency page must be loaded again.
    void SetMyCurrency(Then<bool> then);

    /// Whether the Internet can be reached; says so when it cannot.
    bool IsConnected();
    /// Fetches `url` into `fileName`; says why when it cannot. `then` learns
    /// whether the file is there.
    void DownloadFile(const std::string& url, const std::string& fileName, Then<bool> then);
    /// Asks, then refreshes every rate from the source the settings name;
    /// `then` runs when the download has ended, whichever way.
    void DownloadRates(Then<bool> then = {});
    /// True from the question that offers a download until it has ended, and
    /// while the own currency is being named: the window takes no other
    /// action meanwhile.
    bool downloading() const { return m_step != Step::Idle; }

    /// The text of the Currency page's "i" key: where the rates come from.
    std::string sourceNote();
    /// "Rates of 28 Jun 2024 (European Central Bank)", or "No rates stored yet".
    std::string ratesNote();
    /// The settings file: <program folder>/Tech/zelFLIGHTAB.ini.
    std::string settingsFile();

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
    void fetchConverterRates(const Codes& codes, std::size_t next,
                             std::shared_ptr<std::vector<std::string>> fetched, Then<bool> then);
    bool storeConverterRates(const Codes& codes, const std::vector<std::string>& fetched);
    void fetchEcbRates(const Codes& codes, Then<bool> then);
    void finishDownload(bool done);
    void cannotRead(std::string_view code);
    void reportUnsaved();

    Platform& m_platform;
    std::string m_myCurrCode{NoCurrency};
    Step m_step = Step::Idle;
    Then<bool> m_downloaded; ///< what runs when the download has ended
    bool m_unsaved = false;  ///< a write failed since the user was last told
};

} // namespace zel
