// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/qtregional.h"

#include <QLocale>
#include <QString>

namespace zel {

Symbols QtRegional::localeSymbols(const std::optional<std::string>& name) {
    const QLocale locale = name ? QLocale(QString::fromStdString(*name)) : QLocale::system();
    return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

std::string QtRegional::howToChange() {
    return "You can modify your settings in the region settings of your desktop "
           "(Region & Language - Formats).";
}

bool QtRegional::isKnownLocale(const std::string& name) {
    const QLocale locale(QString::fromStdString(name));
    return locale.language() != QLocale::C || name == "C" || name == "POSIX";
}

} // namespace zel
