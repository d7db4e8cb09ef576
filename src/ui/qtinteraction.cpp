// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/qtinteraction.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace zel {
namespace {

/// Message texts break lines with a lone carriage return; Qt wants line feeds.
QString shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace

bool QtInteraction::takeDialogClosed() {
    return std::exchange(m_dialogClosed, false);
}

void QtInteraction::beep() {
    QApplication::beep();
    if (m_flash) {
        m_flash();
    }
}

void QtInteraction::message(MessageIcon icon, std::string_view title, std::string_view text) {
    const QMessageBox::Icon icons[] = {QMessageBox::Information, QMessageBox::Warning,
                                       QMessageBox::Critical};
    QMessageBox box(icons[static_cast<int>(icon)], shown(title), shown(text), QMessageBox::Ok,
                    m_parent);
    box.exec();
    m_dialogClosed = true;
}

bool QtInteraction::question(std::string_view title, std::string_view text) {
    const auto answer = QMessageBox::question(m_parent, shown(title), shown(text),
                                              QMessageBox::Yes | QMessageBox::No);
    m_dialogClosed = true;
    return answer == QMessageBox::Yes;
}

std::optional<std::string> QtInteraction::input(std::string_view title, std::string_view prompt) {
    bool ok = false;
    const QString text = QInputDialog::getText(m_parent, shown(title), shown(prompt),
                                               QLineEdit::Normal, QString(), &ok);
    m_dialogClosed = true;
    if (!ok) {
        return std::nullopt;
    }
    return text.toStdString();
}

void QtInteraction::setBusy(bool busy) {
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtInteraction::quit() {
    QApplication::closeAllWindows();
    QApplication::exit(0);
}

} // namespace zel
