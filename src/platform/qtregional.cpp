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

std::optional<Symbols> symbolsFromPair(const std::string& pair) {
    const QString text = QString::fromStdString(pair);
    if (text.size() != 2 || text[0].isDigit() || text[1].isDigit()) {
        return std::nullopt;
    }
    return Symbols{QString(text[0]).toStdString(), QString(text[1]).toStdString()};
}

} // namespace zel
