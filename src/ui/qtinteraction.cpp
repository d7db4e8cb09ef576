// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/qtinteraction.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace zel {
namespace {

/// A box's paragraphs, an empty line between them.
QString shown(const std::vector<std::string>& paragraphs) {
    QStringList texts;
    for (const std::string& paragraph : paragraphs) {
        texts << QString::fromStdString(paragraph);
    }
    return texts.join(QStringLiteral("\n\n"));
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

void QtInteraction::open(const Request& request) {
    const QString title = QString::fromStdString(request.title);
    const QString text = shown(request.paragraphs);
    const int id = request.id;
    auto answer = [this, id](const Answer& given) {
        if (m_answer) {
            m_dispatch([&] { m_answer(id, given); });
        }
    };
    switch (request.kind) {
    case Request::Kind::Message: {
        const QMessageBox::Icon icons[] = {QMessageBox::Information, QMessageBox::Warning,
                                           QMessageBox::Critical, QMessageBox::Question};
        const QMessageBox::Icon kind = icons[static_cast<int>(request.icon)];
        queue({[kind, title, text](QWidget* parent) -> QDialog* {
                   return new QMessageBox(kind, title, text, QMessageBox::Ok, parent);
               },
               [answer](QDialog&, int) { answer({}); }});
        break;
    }
    case Request::Kind::Question:
        queue({[title, text](QWidget* parent) -> QDialog* {
                   return new QMessageBox(QMessageBox::Question, title, text,
                                          QMessageBox::Yes | QMessageBox::No, parent);
               },
               [answer](QDialog& box, int) {
                   const auto& question = static_cast<QMessageBox&>(box);
                   answer({question.clickedButton() == question.button(QMessageBox::Yes), {}});
               }});
        break;
    case Request::Kind::Input:
        queue({[title, text](QWidget* parent) -> QDialog* {
                   auto* box = new QInputDialog(parent);
                   box->setWindowTitle(title);
                   box->setLabelText(text);
                   return box;
               },
               [answer](QDialog& box, int result) {
                   Answer given;
                   if (result == QDialog::Accepted) {
                       given.text = static_cast<QInputDialog&>(box).textValue().toStdString();
                   }
                   answer(given);
               }});
        break;
    }
}

void QtInteraction::queue(Box box) {
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
