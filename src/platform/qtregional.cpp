// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/qtregional.h"

#include <QLocale>
#include <QString>

namespace zel {

Symbols QtRegional::symbols() {
    if (m_replacement) {
        return *m_replacement;
    }
    const QLocale locale =
        m_localeName ? QLocale(QString::fromStdString(*m_localeName)) : QLocale::system();
    return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

bool QtRegional::isKnownLocale(const std::string& name) {
    const QLocale locale(QString::fromStdString(name));
    return locale.language() != QLocale::C || name == "C" || name == "POSIX";
}

} // namespace zel
