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

QtInteraction::~QtInteraction() {
    m_waiting.clear();
    delete m_shown; // never answered: the window is going
}

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
    const QMessageBox::Icon kind = icons[static_cast<int>(icon)];
    open({[kind, title = shown(title), text = shown(text)](QWidget* parent) -> QDialog* {
              return new QMessageBox(kind, title, text, QMessageBox::Ok, parent);
          },
          {}});
}

void QtInteraction::ask(const Request& request, Then<const Answer&> then) {
    const QString title = shown(request.title);
    const QString text = shown(request.text);
    if (request.kind == Request::Kind::Question) {
        open({[title, text](QWidget* parent) -> QDialog* {
                  return new QMessageBox(QMessageBox::Question, title, text,
                                         QMessageBox::Yes | QMessageBox::No, parent);
              },
              [this, then](QDialog& box, int) {
                  const auto& question = static_cast<QMessageBox&>(box);
                  const bool yes = question.clickedButton() == question.button(QMessageBox::Yes);
                  m_dispatch([&] { then(Answer{yes, std::nullopt}); });
              }});
        return;
    }
    open({[title, text](QWidget* parent) -> QDialog* {
              auto* box = new QInputDialog(parent);
              box->setWindowTitle(title);
              box->setLabelText(text);
              return box;
          },
          [this, then](QDialog& box, int result) {
              Answer answer;
              if (result == QDialog::Accepted) {
                  answer.text = static_cast<QInputDialog&>(box).textValue().toStdString();
              }
              m_dispatch([&] { then(answer); });
          }});
}

void QtInteraction::open(Box box) {
    m_waiting.push_back(std::move(box));
    showNext();
}

void QtInteraction::showNext() {
    if (m_shown || m_waiting.empty()) {
        return;
    }
    Box box = std::move(m_waiting.front());
    m_waiting.pop_front();
    QDialog* dialog = box.make(m_parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::finished, dialog,
                     [this, dialog, closed = std::move(box.closed)](int result) {
                         m_shown = nullptr;
                         m_dialogClosed = true;
                         if (closed) {
                             closed(*dialog, result);
                         }
                         showNext();
                     });
    m_shown = dialog;
    dialog->open();
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

void DispatchedNetwork::get(const std::string& url, Then<HttpReply> then) {
    m_network.get(url, [dispatch = m_dispatch, then = std::move(then)](HttpReply reply) {
        dispatch([&] { then(std::move(reply)); });
    });
}

} // namespace zel
