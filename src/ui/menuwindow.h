// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"
#include "ui/windowstyle.h"
#include "ui/zelframe.h"

#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <set>
#include <vector>

class QLabel;
class QLineEdit;
class QMenu;

namespace zel {

class LoadingPanel;
class QtInteraction;

/// The one window: the menu face (the page buttons) and the page face (title
/// bar, calculator panel, eight rows). It forwards every click and key to
/// Menu and then draws what Menu holds; it has no page logic of its own.
/// Beyond the calculator it does what a desktop program does: the clipboard,
/// screen readers, zoom, a night palette, an About box, and it remembers its
/// zoom, palette and place between runs.
class MenuWindow : public QWidget {
    Q_OBJECT
  public:
    /// `interaction` is told when its dialogs close, so that the window's own
    /// re-activation after a message box is not taken for the user's return.
    /// `memoryFile` keeps the zoom, palette and position; empty: the user's
    /// configuration folder. A window that does not `remember` starts at 100 %
    /// in the desktop's palette and writes nothing (a picture for the README).
    explicit MenuWindow(Menu& menu, QtInteraction* interaction = nullptr,
                        const QString& memoryFile = {}, bool remember = true,
                        QWidget* parent = nullptr);
    ~MenuWindow() override;

    /// Draws the state of Menu.
    void render();
    /// Runs an event of Menu that comes from outside the window (the answer to
    /// a box, the end of a transfer), then draws what Menu holds.
    void dispatch(const std::function<void()>& handler) { act(handler); }
    /// A short flash of the display, seen where the bell is muted.
    void flash();

    /// The window's width at 100 %: 295 pixels.
    static constexpr int DesignWidth = 295;
    /// The window's height at 100 %: the menu's groups, each a heading and
    /// as many lines of three page buttons as it fills.
    static int designHeight(const PageCatalogue& pages);
    /// The zoom steps, 100 % to 250 %.
    static constexpr std::array<qreal, 6> Zooms{1.0, 1.25, 1.5, 1.75, 2.0, 2.5};
    qreal zoom() const { return m_zoom; }
    /// Sets one of the zoom steps, unless the window would then be larger than
    /// the screen it is on.
    void setZoom(qreal zoom);
    bool fitsScreen(qreal zoom) const;
    bool night() const { return m_night; }
    void setNight(bool night);
    /// The About box's text: version, keys, settings file, rates, licence.
    QString aboutText();
    /// The right-click menu of a row: "Copy value", "Copy page".
    QMenu* rowMenu(int row);

    ZelFrame* pageButton(int page) const {
        return m_pageButtons.at(static_cast<std::size_t>(page));
    }
    ZelFrame* valueCell(int row) const { return m_values.at(static_cast<std::size_t>(row)); }
    ZelFrame* unitCell(int row) const { return m_units.at(static_cast<std::size_t>(row)); }
    /// The light band behind the input row.
    QWidget* inputBand(int row) const { return m_bands.at(static_cast<std::size_t>(row)); }
    ZelFrame* operatorKey(int key) const;
    ZelFrame* memoryKey(int key) const { return m_memoryKeys.at(static_cast<std::size_t>(key)); }
    ZelFrame* display() const { return m_display; }
    ZelFrame* digitsKey() const { return m_digitsKey; }
    ZelFrame* clearKey() const { return m_clearKey; }
    ZelFrame* menuButton() const { return m_menuButton; }
    ZelFrame* title() const { return m_title; }
    QWidget* pageFace() const { return m_pageFace; }
    QWidget* memoryPanel() const { return m_memoryPanel; }
    QWidget* operatorPanel() const { return m_operatorPanel; }
    /// The Weight & Balance page's sheet, in place of the rows.
    LoadingPanel* loadingPanel() const { return m_loadingPanel; }

  protected:
    bool event(QEvent* event) override;
    // The keys (windowkeys.cpp): typed characters on press, Enter, Escape and
    // the function keys on release, Tab and the arrows move the focus.
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildMenuFace();
    void buildPageButton(const PageButton& entry, QRect geometry);
    void buildPageFace();
    void buildCalculator(QWidget* panel);
    void buildRows(QWidget* panel);
    /// Under the rows: the field for a place as pilots write it, and the
    /// page's note on its results.
    void buildPlaceAndNote();
    void renderPlaceAndNote(const View& view);
    /// A frame of the window, placed at its 100 % geometry and looking as `look`.
    ZelFrame* frame(Look look, QWidget* parent, QRect geometry, const QString& caption = {});
    /// Runs one event handler of Menu, then draws the result.
    void act(const std::function<void()>& handler);
    /// The icon of a page, or the program's own for 0.
    std::string_view iconName(int page) const;
    /// The controls Tab moves over on the face shown, in order.
    std::vector<QWidget*> focusChain() const;
    /// Moves the focus `step` places along the chain (or the menu grid).
    void moveFocus(int step);
    /// The row whose value or unit cell this is; 0 for another widget.
    int rowOf(const QWidget* widget) const;
    void renderRows(const View& view);
    /// A face's short form from the view's forms, by the digits that fit.
    static ZelFrame::ShortForm shortForm(const std::vector<std::string>& forms);
    // The desktop's conventions (windowdesktop.cpp).
    /// Sizes and colours for the zoom and palette, icons for the pixel ratio.
    void restyle();
    void recallSettings();
    void refreshIcons();
    void rememberSettings();
    void restorePosition();
    void copy(const std::string& text);
    void paste();
    void showAbout();
    /// A Qt key event in the calculator's words.
    Chord chordOf(const QKeyEvent* event) const;
    /// Does what a key asked of the window itself.
    void perform(FaceAction action);

    Menu& m_menu;
    QtInteraction* m_interaction;
    int m_designHeight;
    std::vector<ZelFrame*> m_pageButtons; ///< by page number; 0 unused
    std::vector<ZelFrame*> m_menuHeadings;
    std::vector<std::string> m_icons; ///< each page's icon, by page number
    QString m_memoryFile;
    bool m_remember = true;
    ZelFrame* m_titleBar = nullptr;
    ZelFrame* m_titleIcon = nullptr;
    ZelFrame* m_title = nullptr;
    ZelFrame* m_menuButton = nullptr;
    ZelFrame* m_pageFace = nullptr;
    ZelFrame* m_display = nullptr;
    ZelFrame* m_digitsKey = nullptr;
    ZelFrame* m_clearKey = nullptr;
    ZelFrame* m_memoryPanel = nullptr;
    ZelFrame* m_operatorPanel = nullptr;
    ZelFrame* m_rowsPanel = nullptr;
    ZelFrame* m_divideKey = nullptr;
    LoadingPanel* m_loadingPanel = nullptr;
    ZelFrame* m_loadingSheet = nullptr;
    std::array<ZelFrame*, 9> m_values{};
    std::array<ZelFrame*, 9> m_units{};
    std::array<ZelFrame*, 9> m_bands{};
    std::array<ZelFrame*, 4> m_operatorKeys{}; // + - x; the divide key is one face for two
    std::array<ZelFrame*, 3> m_memoryKeys{};
    /// Every widget with its geometry and, for a frame, its look at 100 %.
    struct Placed {
        QPointer<QWidget> widget;
        QRect geometry;
        std::optional<Look> look;
    };
    std::vector<Placed> m_placed;
    /// Whether the window may be resized: on a sheet page only, which grows
    /// with it; elsewhere it keeps the calculator's size.
    bool m_growing = false;
    /// Places the widgets at the zoom, the sheet and its page grown by what
    /// the window is larger than the calculator.
    void placeWidgets();
    /// Lets the window be resized on a sheet page, and brings it back to the
    /// calculator's size elsewhere.
    void allowGrowth(bool growing);
    QLineEdit* m_placeEntry = nullptr;
    QLabel* m_note = nullptr;
    qreal m_zoom = 1;
    bool m_night = false;
    bool m_nightChosen = false; ///< the user chose the palette; else the desktop's
    qreal m_iconRatio = 0;      ///< the pixel ratio the icons were drawn for
    int m_shownIconPage = -1;
    bool m_shown = false;
    bool m_skipActivation = false;
    Face m_shownFace = Face::Menu;
    /// Keys whose press reached this window: only their release acts, never
    /// the release of a key that closed a dialog.
    std::set<int> m_pressed;
};

/// The icon of a page (0: the application), drawn in one colour at a size.
QPixmap pageIcon(std::string_view icon, int size, const QColor& color, qreal devicePixelRatio);
/// The program's own icon, beside the pages' icons.
inline constexpr std::string_view AppIcon = "app";

} // namespace zel
