// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <QPointer>

#include <deque>
#include <functional>

class QDialog;
class QWidget;

namespace zel {

/// Runs a reply to a request as one of the window's events: the window draws
/// what Menu holds afterwards.
using Dispatch = std::function<void(const std::function<void()>& handler)>;

/// The window's dialogs with Qt: message boxes, the Yes/No question, input
/// boxes, the bell (with a flash, as many desktops mute it) and the busy
/// pointer. Boxes are window-modal and opened without an event loop of their
/// own: one at a time, in the order they were made; the answer goes to the
/// calculator, through `Dispatch`, when its box closes.
class QtInteraction : public Interaction {
  public:
    explicit QtInteraction(QWidget* parent = nullptr) : m_parent(parent) {}
    ~QtInteraction() override;

    void setParent(QWidget* parent) { m_parent = parent; }
    void setFlash(std::function<void()> flash) { m_flash = std::move(flash); }
    void setDispatch(Dispatch dispatch) { m_dispatch = std::move(dispatch); }
    /// Where the answers go: the calculator's answer.
    void setAnswer(std::function<void(int request, const Answer& answer)> answer) {
        m_answer = std::move(answer);
    }
    /// True once after one of these dialogs closed: the window's activation that
    /// follows is its own, not the user's return to it.
    bool takeDialogClosed();

    void beep() override;
    void open(const Request& request) override;
    void setBusy(bool busy) override;
    void quit() override;

  private:
    struct Box {
        std::function<QDialog*(QWidget* parent)> make;
        std::function<void(QDialog& box, int result)> closed; ///< may be empty
    };
    void queue(Box box);
    void showNext();

    QWidget* m_parent;
    std::function<void()> m_flash;
    Dispatch m_dispatch = [](const std::function<void()>& handler) { handler(); };
    std::function<void(int, const Answer&)> m_answer;
    std::deque<Box> m_waiting;
    QPointer<QDialog> m_shown;
    bool m_dialogClosed = false;
};

/// HTTP whose replies come back as the window's events.
class DispatchedNetwork : public Network {
  public:
    DispatchedNetwork(Network& network, Dispatch dispatch)
        : m_network(network), m_dispatch(std::move(dispatch)) {}

    bool connected() override { return m_network.connected(); }
    void get(const std::string& url, Then<HttpReply> then) override;

  private:
    Network& m_network;
    Dispatch m_dispatch;
};

} // namespace zel
