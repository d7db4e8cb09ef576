// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"
#include "ui/zelframe.h"

#include <QWidget>
#include <array>
#include <functional>
#include <set>
#include <vector>

namespace zel {

class QtInteraction;

/// The one window: the menu face (eighteen page buttons) and the page face
/// (title bar, calculator panel, eight rows). It forwards every click and key
/// to Menu and then draws what Menu holds; it has no page logic of its own.
class MenuWindow : public QWidget {
    Q_OBJECT
  public:
    /// `interaction` is told when its dialogs close, so that the window's own
    /// re-activation after a message box is not taken for the user's return.
    MenuWindow(Menu& menu, QtInteraction* interaction = nullptr, QWidget* parent = nullptr);

    /// Draws the state of Menu.
    void render();
    /// A short flash of the display, seen where the bell is muted.
    void flash();

    ZelFrame* pageButton(int page) const {
        return m_pageButtons.at(static_cast<std::size_t>(page));
    }
    ZelFrame* valueCell(int row) const { return m_values.at(static_cast<std::size_t>(row)); }
    /// The light band behind the input row.
    QWidget* inputBand(int row) const { return m_bands.at(static_cast<std::size_t>(row)); }
    ZelFrame* unitCell(int row) const { return m_units.at(static_cast<std::size_t>(row)); }
    ZelFrame* operatorKey(int key) const;
    ZelFrame* memoryKey(int key) const { return m_memoryKeys.at(static_cast<std::size_t>(key)); }
    ZelFrame* display() const { return m_display; }
    ZelFrame* digitsKey() const { return m_digitsKey; }
    ZelFrame* clearKey() const { return m_clearKey; }
    ZelFrame* menuButton() const { return m_menuButton; }
    ZelFrame* title() const { return m_title; }
    QWidget* pageFace() const { return m_pageFace; }
    QWidget* memoryPanel() const { return m_memoryPanel; }
    QWidget* digitsPanel() const { return m_digitsKey; }
    QWidget* operatorPanel() const { return m_operatorPanel; }

  protected:
    bool event(QEvent* event) override;
    // The keys (windowkeys.cpp): typed characters on press, Enter, Escape and
    // the function keys on release, Tab and the arrows move the focus.
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void buildMenuFace();
    void buildPageFace();
    void buildCalculator(QWidget* panel);
    void buildRows(QWidget* panel);
    /// Runs one event handler of Menu, then draws the result.
    void act(const std::function<void()>& handler);
    /// The controls Tab moves over on the face shown, in order.
    std::vector<ZelFrame*> focusChain() const;
    /// Moves the focus `step` places along the chain (or the menu grid).
    void moveFocus(int step);
    /// The row whose value or unit cell this is; 0 for another widget.
    int rowOf(const QWidget* widget) const;
    void renderRows();

    Menu& m_menu;
    QtInteraction* m_interaction;
    ZelFrame* m_titleBar = nullptr;
    ZelFrame* m_titleIcon = nullptr;
    ZelFrame* m_title = nullptr;
    ZelFrame* m_menuButton = nullptr;
    QWidget* m_pageFace = nullptr;
    ZelFrame* m_display = nullptr;
    ZelFrame* m_digitsKey = nullptr;
    ZelFrame* m_clearKey = nullptr;
    QWidget* m_memoryPanel = nullptr;
    QWidget* m_operatorPanel = nullptr;
    ZelFrame* m_divideKey = nullptr;
    std::array<ZelFrame*, 25> m_pageButtons{};
    std::array<ZelFrame*, 9> m_values{};
    std::array<ZelFrame*, 9> m_units{};
    std::array<QWidget*, 9> m_bands{};
    std::array<ZelFrame*, 4> m_operatorKeys{}; // + - x; the divide key is one face for two
    std::array<ZelFrame*, 3> m_memoryKeys{};
    int m_shownIconPage = -1;
    bool m_shown = false;
    bool m_skipActivation = false;
    Face m_shownFace = Face::Menu;
    /// Keys whose press reached this window: only their release acts, never
    /// the release of a key that closed a dialog.
    std::set<int> m_pressed;
};

/// The icon of a page (0: the application), drawn in one colour at a size.
QPixmap pageIcon(int page, int size, const QColor& color, qreal devicePixelRatio);

} // namespace zel
