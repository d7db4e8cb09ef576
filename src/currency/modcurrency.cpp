// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/modcurrency.h"

#include "currency/pages.h"
#include "currency/profile.h"
#include "currency/ratepages.h"

#include <limits>
#include <utility>
#include <vector>

namespace zel {
namespace {

constexpr std::string_view AppTitle = "zelFLIGHTAB";
constexpr std::string_view RatesSection = "Rates";
constexpr std::string_view DefaultConverterUrl = "https://www.google.com/finance/converter";
constexpr std::string_view DefaultEcbUrl =
    "https://www.ecb.europa.eu/stats/eurofxref/eurofxref-daily.xml";

bool isNoCurrency(std::string_view code) {
    return charCount(code) != 3 || upperCase(code) == ModCurrency::NoCurrency;
}

} // namespace

std::string ModCurrency::NormalizePath(std::string_view path) {
    if (path.find_first_not_of(" \t") == std::string_view::npos) {
        return {};
    }
    if (path.back() == '/' || path.back() == '\\') {
        path.remove_suffix(1);
    }
    return std::string(path);
}

double ModCurrency::ToNumber(std::optional<std::string_view> value, const Symbols& symbols) {
    if (!value || value->empty() || !readRegional(*value, symbols)) {
        return 0;
    }
    return symbols.decimal == "." ? CGetal(*value, symbols) : *readRegional(*value, symbols);
}

std::string ModCurrency::techFile(std::string_view name) {
    return NormalizePath(m_platform.storage.programFolder()) + "/" + std::string(TechFolder) + "/" +
           std::string(name);
}

std::string ModCurrency::settingsFile() {
    return techFile(SettingsName);
}

std::string ModCurrency::ReadIni(std::string_view section, std::string_view key) {
    const FileRead file = m_platform.storage.read(settingsFile());
    return file.status == FileRead::Status::Ok ? profile::read(file.bytes, section, key)
                                               : std::string();
}

bool ModCurrency::WriteIni(std::string_view section, std::string_view key, std::string_view value) {
    // The file is read again under the lock, so that a key another window
    // wrote meanwhile is kept.
    // The change owns its words: a browser applies it again later, under a
    // lock that it can only wait for asynchronously.
    const bool saved = m_platform.storage.update(
        settingsFile(),
        [section = std::string(section), key = std::string(key),
         value = std::string(value)](const FileRead& file) -> std::optional<std::string> {
            if (file.status == FileRead::Status::Unreadable) {
                return std::nullopt; // writing over it would lose what it holds
            }
            return profile::write(file.bytes, section, key, value);
        });
    m_unsaved = m_unsaved || !saved;
    return saved;
}

void ModCurrency::reportUnsaved() {
    if (m_unsaved) {
        m_unsaved = false;
        m_platform.ui.message(MessageIcon::Critical, AppTitle,
                              "Cannot save the settings file:\r\r" + settingsFile() +
                                  "\r\rThe file is left as it was, so what was to be saved is "
                                  "lost. Check that its folder exists and can be written to.");
    }
}

std::string ModCurrency::today() {
    return std::to_string(daySerial(m_platform.clock.today()));
}

void ModCurrency::LoadRates(const Symbols& symbols, Then<const Rates&> then) {
    m_myCurrCode = ReadIni(RatesSection, "myCurrCode");
    if (charCount(m_myCurrCode) != 3) {
        m_myCurrCode = NoCurrency;
    }
    // A rate list 7 days old is kept; from the 8th day on the user is asked.
    if (ToNumber(today(), symbols) - ToNumber(ReadIni(RatesSection, "Date"), symbols) > 7) {
        DownloadRates([this, symbols, then = std::move(then)](bool) { then(readRates(symbols)); });
        return;
    }
    then(readRates(symbols));
}

ModCurrency::Rates ModCurrency::readRates(const Symbols& symbols) {
    Rates rates{};
    for (std::size_t row = 0; row < rates.size(); ++row) {
        const std::string code = rowCode(static_cast<int>(row) + 1);
        std::string text;
        for (char c : ReadIni(RatesSection, code)) {
            // Rates are stored with "." whatever the machine's decimal symbol.
            text += c == '.' ? symbols.decimal : std::string(1, c);
        }
        // Units per euro: anything that is not a positive single-precision
        // number is no rate, and converts nothing. The euro is one euro.
        const double value = code == "EUR" && text.empty() ? 1 : ToNumber(text, symbols);
        rates[row] = value > 0 && value <= std::numeric_limits<float>::max()
                         ? static_cast<float>(value)
                         : 0.0f;
    }
    return rates;
}

std::string ModCurrency::rowCode(int row) const {
    const std::string_view unit = currencyPages().front().row(row).unit;
    const auto dash = unit.rfind(" - ");
    return dash == std::string_view::npos ? m_myCurrCode : std::string(unit.substr(dash + 3));
}

std::string ModCurrency::ownCurrencyCaption() {
    const std::string code = ReadIni(RatesSection, "myCurrCode");
    if (isNoCurrency(code)) {
        return {}; // no row 8 until a currency is named
    }
    return ReadIni(RatesSection, "myCurrName") + " - " + code;
}

void ModCurrency::SetMyCurrency(Then<bool> then) {
    m_step = Step::Naming;
    m_platform.ui.ask({Request::Kind::Input, "myCurrency",
                       "Enter the long name for my currency : \r\re.g. Mexican Peso"},
                      [this, then = std::move(then)](const Answer& name) {
                          if (!name.text || name.text->empty()) {
                              m_step = Step::Idle;
                              then(false);
                              return;
                          }
                          WriteIni(RatesSection, "myCurrName", *name.text);
                          nameCode(then);
                      });
}

void ModCurrency::nameCode(Then<bool> then) {
    m_platform.ui.ask({Request::Kind::Input, "myCurrency",
                       "Enter the official 3-character code for my currency : \r\re.g. MXN"},
                      [this, then = std::move(then)](const Answer& code) {
                          m_step = Step::Idle;
                          if (!code.text || charCount(*code.text) != 3) {
                              reportUnsaved();
                              m_platform.ui.message(MessageIcon::Critical, "myCurrency",
                                                    "Invalid Currency");
                              then(false);
                              return;
                          }
                          m_myCurrCode = upperCase(*code.text);
                          WriteIni(RatesSection, "myCurrCode", m_myCurrCode);
                          reportUnsaved();
                          DownloadRates([then](bool) { then(true); });
                      });
}

bool ModCurrency::IsConnected() {
    if (m_platform.network.connected()) {
        return true;
    }
    m_platform.ui.message(MessageIcon::Information, AppTitle,
                          "Internet connection is required to update the currency rates...");
    return false;
}

void ModCurrency::DownloadFile(const std::string& url, const std::string& fileName,
                               Then<bool> then) {
    m_platform.storage.remove(fileName);
    m_platform.network.get(url, [this, url, fileName, then = std::move(then)](HttpReply reply) {
        if (reply.ok && !m_platform.storage.write(fileName, reply.body)) {
            reply = {false, 75, "Path/File access error (" + fileName + ")", {}};
        }
        if (!reply.ok) {
            m_platform.ui.message(
                MessageIcon::Critical, "Error",
                "The following error occurred while attempting download from internet :\r\rError " +
                    std::to_string(reply.error) + ": " + reply.errorText +
                    " at line: 0\r\rURL :  " + url);
        }
        then(reply.ok);
    });
}

ModCurrency::Source ModCurrency::source() {
    return upperCase(ReadIni("Download", "Source")) == "CONVERTER" ? Source::Converter
                                                                   : Source::Ecb;
}

std::string ModCurrency::ratesNote() {
    const double day = ToNumber(ReadIni(RatesSection, "Date"), {});
    if (!(day > 0 && day < 2958466)) { // a day up to 31 December 9999
        return "No rates stored yet";
    }
    return "Rates of " + dayText(static_cast<int>(day)) + " (" +
           (source() == Source::Converter ? "Google Finance" : "European Central Bank") + ")";
}

std::string ModCurrency::sourceNote() {
    const bool converter = source() == Source::Converter;
    return "Currency Rates are retrieved from " +
           std::string(converter ? "Google Finance" : "the European Central Bank") +
           ".\r\rPress the Rates button to download the latest rates...\r\r" + ratesNote();
}

void ModCurrency::cannotRead(std::string_view code) {
    m_platform.ui.message(MessageIcon::Critical, AppTitle,
                          "Cannot read the currency rate for " + std::string(code));
}

void ModCurrency::DownloadRates(Then<bool> then) {
    if (m_step == Step::Offering || m_step == Step::Downloading) {
        return; // one download at a time
    }
    auto ended = [then = std::move(then)](bool done) {
        if (then) {
            then(done);
        }
    };
    if (!IsConnected()) {
        ended(false);
        return;
    }
    m_step = Step::Offering;
    m_downloaded = ended;
    m_platform.ui.ask({Request::Kind::Question, "Currency", "Download recent currency rates ?"},
                      [this](const Answer& answer) {
                          if (!answer.yes) {
                              m_step = Step::Idle;
                              std::exchange(m_downloaded, {})(false);
                              return;
                          }
                          m_step = Step::Downloading;
                          m_platform.ui.setBusy(true);
                          // Euro is the base and is never fetched.
                          Codes codes;
                          std::size_t next = 0;
                          for (int row = 1; row <= PageSheet::Rows; ++row) {
                              if (rowCode(row) != "EUR") {
                                  codes.at(next++) = rowCode(row);
                              }
                          }
                          auto finish = [this](bool done) { finishDownload(done); };
                          if (source() == Source::Converter) {
                              fetchConverterRates(
                                  codes, 0, std::make_shared<std::vector<std::string>>(), finish);
                          } else {
                              fetchEcbRates(codes, finish);
                          }
                      });
}

void ModCurrency::finishDownload(bool done) {
    if (done) {
        WriteIni(RatesSection, "Date", today());
    }
    m_platform.ui.setBusy(false);
    reportUnsaved();
    if (done) {
        m_platform.ui.beep();
    }
    m_step = Step::Idle;
    std::exchange(m_downloaded, {})(done);
}

void ModCurrency::fetchConverterRates(const Codes& codes, std::size_t next,
                                      std::shared_ptr<std::vector<std::string>> fetched,
                                      Then<bool> then) {
    if (next == codes.size()) {
        // Every transfer has ended; those that failed have said so.
        then(storeConverterRates(codes, *fetched));
        return;
    }
    std::string base = ReadIni("Download", "ConverterUrl");
    if (base.empty()) {
        base = DefaultConverterUrl;
    }
    const std::string& code = codes[next];
    DownloadFile(base + "?a=1&from=EUR&to=" + percentEncode(code),
                 techFile("rate_" + fileSafe(code) + ".htm"),
                 [this, codes, next, fetched, then = std::move(then)](bool ok) {
                     if (ok) {
                         fetched->push_back(codes[next]);
                     }
                     fetchConverterRates(codes, next + 1, fetched, then);
                 });
}

bool ModCurrency::storeConverterRates(const Codes& codes, const std::vector<std::string>& fetched) {
    // A transfer that failed has said so; its page is not read.
    for (const std::string& code : fetched) {
        const FileRead page = m_platform.storage.read(techFile("rate_" + fileSafe(code) + ".htm"));
        const auto rate =
            page.status == FileRead::Status::Ok ? cutConverterRate(page.bytes) : std::nullopt;
        if (!rate) {
            cannotRead(code); // the rates stored so far stay; the date is not renewed
            return false;
        }
        if (rate->find("color") != std::string::npos && code != NoCurrency) {
            m_platform.ui.message(MessageIcon::Critical, AppTitle,
                                  "Cannot find currency rate for " + code);
        }
        // Stored as the page gives it, result or not: a text that is no number reads as 0.
        WriteIni(RatesSection, code, *rate);
    }
    return fetched.size() == codes.size(); // the date says every rate was renewed
}

void ModCurrency::fetchEcbRates(const Codes& codes, Then<bool> then) {
    std::string url = ReadIni("Download", "EcbUrl");
    if (url.empty()) {
        url = DefaultEcbUrl;
    }
    const std::string kept = techFile("rate_ECB.xml");
    DownloadFile(url, kept, [this, codes, kept, then = std::move(then)](bool ok) {
        if (!ok) {
            then(false); // it said why; there is nothing to read
            return;
        }
        const FileRead feed = m_platform.storage.read(kept);
        const auto rates =
            feed.status == FileRead::Status::Ok ? parseEcbFeed(feed.bytes) : std::nullopt;
        if (!rates) {
            cannotRead(codes.front());
            then(false);
            return;
        }
        for (const std::string& code : codes) {
            if (code == NoCurrency) {
                continue;
            }
            const auto rate = rates->find(code);
            if (rate == rates->end()) {
                m_platform.ui.message(MessageIcon::Critical, AppTitle,
                                      "Cannot find currency rate for " + code);
                continue;
            }
            WriteIni(RatesSection, code, rate->second);
        }
        then(true);
    });
}

} // namespace zel
