// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <optional>
#include <string>

namespace zel {

/// Regional number symbols from QLocale: the system's, or those of a named
/// locale, or two given characters that replace them.
class QtRegional : public Regional {
  public:
    QtRegional() = default;
    explicit QtRegional(std::optional<std::string> localeName,
                        std::optional<Symbols> replacement = std::nullopt)
        : m_localeName(std::move(localeName)), m_replacement(std::move(replacement)) {}

    Symbols symbols() override;

    /// True when QLocale knows the name ("en_US", "de_DE", "fr_CH", "C").
    static bool isKnownLocale(const std::string& name);

  private:
    std::optional<std::string> m_localeName;
    std::optional<Symbols> m_replacement;
};

} // namespace zel
