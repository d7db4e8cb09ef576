// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <optional>
#include <string>

namespace zel {

/// Regional number symbols from QLocale.
class QtRegional : public LocaleRegional {
  public:
    using LocaleRegional::LocaleRegional;

    /// True when QLocale knows the name ("en_US", "de_DE", "fr_CH", "C").
    static bool isKnownLocale(const std::string& name);
    std::string howToChange() override;

  protected:
    Symbols localeSymbols(const std::optional<std::string>& name) override;
};

} // namespace zel
