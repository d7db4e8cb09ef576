// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <functional>

class QWidget;

namespace zel {

/// The window's dialogs with Qt: message boxes, the Yes/No question, input
/// boxes, the bell (with a flash, as many desktops mute it) and the busy pointer.
class QtInteraction : public Interaction {
  public:
    explicit QtInteraction(QWidget* parent = nullptr) : m_parent(parent) {}

    void setParent(QWidget* parent) { m_parent = parent; }
    void setFlash(std::function<void()> flash) { m_flash = std::move(flash); }
    /// True once after one of these dialogs closed: the window's activation that
    /// follows is its own, not the user's return to it.
    bool takeDialogClosed();

    void beep() override;
    void message(MessageIcon icon, std::string_view title, std::string_view text) override;
    bool question(std::string_view title, std::string_view text) override;
    std::optional<std::string> input(std::string_view title, std::string_view prompt) override;
    void setBusy(bool busy) override;
    void quit() override;

  private:
    QWidget* m_parent;
    std::function<void()> m_flash;
    bool m_dialogClosed = false;
};

} // namespace zel
