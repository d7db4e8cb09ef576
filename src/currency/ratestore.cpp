// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/ratestore.h"

#include "currency/pages.h"
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
    return charCount(code) != 3 || upperCase(code) == RateStore::NoCurrency;
}

} // namespace

std::string RateStore::techFile(std::string_view name) {
    return techPath(m_platform.storage.programFolder(), name);
}

std::string RateStore::today() {
    return std::to_string(daySerial(m_platform.clock.today()));
}

void RateStore::loadRates(const Symbols& symbols, Then<const Rates&> then) {
    m_ownCode = m_settings.read(RatesSection, "myCurrCode");
    if (charCount(m_ownCode) != 3) {
        m_ownCode = NoCurrency;
    }
    // A rate list 7 days old is kept; from the 8th day on the user is asked.
    if (readNumber(today(), symbols) - readNumber(m_settings.read(RatesSection, "Date"), symbols) >
        7) {
        downloadRates([this, symbols, then = std::move(then)](bool) { then(readRates(symbols)); });
        return;
    }
    then(readRates(symbols));
}

RateStore::Rates RateStore::readRates(const Symbols& symbols) {
    Rates rates{};
    for (std::size_t row = 0; row < rates.size(); ++row) {
        const std::string code = rowCode(static_cast<int>(row) + 1);
        std::string text;
        for (char c : m_settings.read(RatesSection, code)) {
            // Rates are stored with "." whatever the machine's decimal symbol.
            text += c == '.' ? symbols.decimal : std::string(1, c);
        }
        // Units per euro: anything that is not a positive single-precision
        // number is no rate, and converts nothing. The euro is one euro.
        const double value = code == "EUR" && text.empty() ? 1 : readNumber(text, symbols);
        rates[row] = value > 0 && value <= std::numeric_limits<float>::max()
                         ? static_cast<float>(value)
                         : 0.0f;
    }
    return rates;
}

std::string RateStore::rowCode(int row) const {
    const std::string_view code = unitSymbol(CurrencyPage.row(row).unit);
    return code.empty() ? m_ownCode : std::string(code);
}

std::string RateStore::ownCurrencyUnit() {
    const std::string code = m_settings.read(RatesSection, "myCurrCode");
    if (isNoCurrency(code)) {
        return {}; // no row 8 until a currency is named
    }
    return m_settings.read(RatesSection, "myCurrName") + " - " + code;
}

void RateStore::nameOwnCurrency(Then<bool> then) {
    m_step = Step::Naming;
    m_dialogs.ask({.kind = Request::Kind::Input,
                   .icon = MessageIcon::Question,
                   .title = "myCurrency",
                   .paragraphs = {"Enter the long name for my currency : ", "e.g. Mexican Peso"}},
                  [this, then = std::move(then)](const Answer& name) {
                      if (!name.text || name.text->empty()) {
                          m_step = Step::Idle;
                          then(false);
                          return;
                      }
                      m_settings.write(RatesSection, "myCurrName", *name.text);
                      nameCode(then);
                  });
}

void RateStore::nameCode(Then<bool> then) {
    m_dialogs.ask(
        {.kind = Request::Kind::Input,
         .icon = MessageIcon::Question,
         .title = "myCurrency",
         .paragraphs = {"Enter the official 3-character code for my currency : ", "e.g. MXN"}},
        [this, then = std::move(then)](const Answer& code) {
            m_step = Step::Idle;
            if (!code.text || charCount(*code.text) != 3) {
                m_settings.reportFailures();
                m_dialogs.message(MessageIcon::Critical, "myCurrency", {"Invalid Currency"});
                then(false);
                return;
            }
            m_ownCode = upperCase(*code.text);
            m_settings.write(RatesSection, "myCurrCode", m_ownCode);
            m_settings.reportFailures();
            downloadRates([then](bool) { then(true); });
        });
}

bool RateStore::connected() {
    if (m_platform.network.connected()) {
        return true;
    }
    m_dialogs.message(MessageIcon::Information, AppTitle,
                      {"Internet connection is required to update the currency rates..."});
    return false;
}

void RateStore::download(const std::string& url, const std::string& fileName, Then<bool> then) {
    m_platform.storage.remove(fileName);
    m_platform.network.get(url, [this, url, fileName, then = std::move(then)](HttpReply reply) {
        auto ended = [this, url, then](const HttpReply& outcome) {
            if (!outcome.ok) {
                m_dialogs.message(MessageIcon::Critical, "Error",
                                  {"The following error occurred while attempting download "
                                   "from internet :",
                                   "Error " + std::to_string(outcome.error) + ": " +
                                       outcome.errorText + " at line: 0",
                                   "URL :  " + url});
            }
            then(outcome.ok);
        };
        if (!reply.ok) {
            ended(reply);
            return;
        }
        m_platform.storage.write(fileName, reply.body, [fileName, ended](bool written) {
            ended(written ? HttpReply{true, 0, {}, {}}
                          : HttpReply{false, 75, "Path/File access error (" + fileName + ")", {}});
        });
    });
}

RateStore::Source RateStore::source() {
    return upperCase(m_settings.read("Download", "Source")) == "CONVERTER" ? Source::Converter
                                                                           : Source::Ecb;
}

std::string RateStore::ratesNote() {
    const double day = readNumber(m_settings.read(RatesSection, "Date"), {});
    if (!(day > 0 && day < 2958466)) { // a day up to 31 December 9999
        return "No rates stored yet";
    }
    return "Rates of " + dayText(static_cast<int>(day)) + " (" +
           (source() == Source::Converter ? "Google Finance" : "European Central Bank") + ")";
}

std::vector<std::string> RateStore::sourceNote() {
    const bool converter = source() == Source::Converter;
    return {"Currency Rates are retrieved from " +
                std::string(converter ? "Google Finance" : "the European Central Bank") + ".",
            "Press the Rates button to download the latest rates...", ratesNote()};
}

void RateStore::cannotRead(std::string_view code) {
    m_dialogs.message(MessageIcon::Critical, AppTitle,
                      {"Cannot read the currency rate for " + std::string(code)});
}

void RateStore::downloadRates(Then<bool> then) {
    if (m_step == Step::Offering || m_step == Step::Downloading) {
        return; // one download at a time
    }
    auto ended = [then = std::move(then)](bool done) {
        if (then) {
            then(done);
        }
    };
    if (!connected()) {
        ended(false);
        return;
    }
    m_step = Step::Offering;
    m_downloaded = ended;
    m_dialogs.ask({.kind = Request::Kind::Question,
                   .icon = MessageIcon::Question,
                   .title = "Currency",
                   .paragraphs = {"Download recent currency rates ?"}},
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
                          fetchConverterRates(codes, 0,
                                              std::make_shared<std::vector<std::string>>(), finish);
                      } else {
                          fetchEcbRates(codes, finish);
                      }
                  });
}

void RateStore::finishDownload(bool done) {
    if (done) {
        m_settings.write(RatesSection, "Date", today());
    }
    m_platform.ui.setBusy(false);
    m_settings.reportFailures();
    if (done) {
        m_platform.ui.beep();
    }
    m_step = Step::Idle;
    std::exchange(m_downloaded, {})(done);
}

void RateStore::fetchConverterRates(const Codes& codes, std::size_t next,
                                    std::shared_ptr<std::vector<std::string>> fetched,
                                    Then<bool> then) {
    if (next == codes.size()) {
        // Every transfer has ended; those that failed have said so.
        then(storeConverterRates(codes, *fetched));
        return;
    }
    std::string base = m_settings.read("Download", "ConverterUrl");
    if (base.empty()) {
        base = DefaultConverterUrl;
    }
    const std::string& code = codes[next];
    download(base + "?a=1&from=EUR&to=" + percentEncode(code),
             techFile("rate_" + fileSafe(code) + ".htm"),
             [this, codes, next, fetched, then = std::move(then)](bool ok) {
                 if (ok) {
                     fetched->push_back(codes[next]);
                 }
                 fetchConverterRates(codes, next + 1, fetched, then);
             });
}

bool RateStore::storeConverterRates(const Codes& codes, const std::vector<std::string>& fetched) {
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
            m_dialogs.message(MessageIcon::Critical, AppTitle,
                              {"Cannot find currency rate for " + code});
        }
        // Stored as the page gives it, result or not: a text that is no number reads as 0.
        m_settings.write(RatesSection, code, *rate);
    }
    return fetched.size() == codes.size(); // the date says every rate was renewed
}

void RateStore::fetchEcbRates(const Codes& codes, Then<bool> then) {
    std::string url = m_settings.read("Download", "EcbUrl");
    if (url.empty()) {
        url = DefaultEcbUrl;
    }
    const std::string kept = techFile("rate_ECB.xml");
    download(url, kept, [this, codes, kept, then = std::move(then)](bool ok) {
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
                m_dialogs.message(MessageIcon::Critical, AppTitle,
                                  {"Cannot find currency rate for " + code});
                continue;
            }
            m_settings.write(RatesSection, code, rate->second);
        }
        then(true);
    });
}

} // namespace zel
