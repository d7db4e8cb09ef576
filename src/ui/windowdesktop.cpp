// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// What a pilot expects of a desktop program besides the calculator: the
// clipboard, zoom, a night palette, a window that comes back where it was,
// and an About box.
#include "app/options.h"
#include "ui/loadingpanel.h"
#include "ui/menuwindow.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace zel {
namespace {

/// Where the window keeps what it remembers, apart from the rates file.
QString memoryPath(const QString& chosen) {
    return chosen.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                                  QStringLiteral("/window.ini")
                            : chosen;
}

/// A desktop whose windows are dark wants the night palette.
bool darkDesktop() {
    return QApplication::palette().color(QPalette::Window).lightnessF() < 0.5;
}

QString escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

} // namespace

void MenuWindow::recallSettings() {
    // The zoom and palette as they were left; the palette of a dark desktop
    // until the user chooses one.
    if (!m_remember) {
        m_night = darkDesktop();
        return;
    }
    QSettings memory(memoryPath(m_memoryFile), QSettings::IniFormat);
    const qreal zoom = memory.value(QStringLiteral("zoom"), 1.0).toDouble();
    m_zoom =
        std::find(Zooms.begin(), Zooms.end(), zoom) != Zooms.end() && fitsScreen(zoom) ? zoom : 1.0;
    const QString palette = memory.value(QStringLiteral("palette")).toString();
    m_nightChosen = !palette.isEmpty();
    m_night = m_nightChosen ? palette == QLatin1String("night") : darkDesktop();
}

void MenuWindow::restyle() {
    if (!m_nightChosen) {
        m_night = darkDesktop();
    }
    const bool growing = m_growing;
    m_growing = !growing; // set again, for the zoom
    allowGrowth(growing);
    placeWidgets();
    for (const Placed& placed : m_placed) {
        if (auto* f = qobject_cast<ZelFrame*>(placed.widget.data()); f && placed.look) {
            f->setStyle(lookStyle(*placed.look, m_night)); // render colours what has a state
            f->setScale(m_zoom);
        }
    }
    m_rowsPanel->setLineColor(textColours(m_night).line);
    refreshIcons();
    render();
}

void MenuWindow::allowGrowth(bool growing) {
    if (growing == m_growing) {
        return;
    }
    m_growing = growing;
    const QSize calculator = QSize(DesignWidth, m_designHeight) * m_zoom;
    if (growing) {
        setMinimumSize(calculator);
        setMaximumSize(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    } else {
        setFixedSize(calculator); // back to the calculator's size, maximised or not
        if (isMaximized()) {
            showNormal();
        }
    }
}

void MenuWindow::placeWidgets() {
    const QSize calculator = QSize(DesignWidth, m_designHeight) * m_zoom;
    const QSize extra = m_growing ? (size() - calculator).expandedTo(QSize(0, 0)) : QSize(0, 0);
    for (const Placed& placed : m_placed) {
        if (placed.widget == nullptr) {
            continue;
        }
        const QRect r = placed.geometry;
        QRect at(QPoint(qRound(r.x() * m_zoom), qRound(r.y() * m_zoom)),
                 QSize(qRound(r.width() * m_zoom), qRound(r.height() * m_zoom)));
        // The sheet, and the page face and the title bar that hold it, take
        // the room the window grew by; the calculator keeps its place.
        const QWidget* w = placed.widget.data();
        if (w == m_pageFace || w == m_loadingSheet || w == static_cast<QWidget*>(m_loadingPanel)) {
            at.setSize(at.size() + extra);
        } else if (w == m_titleBar) {
            at.setWidth(at.width() + extra.width());
        }
        placed.widget->setGeometry(at);
    }
}

void MenuWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (m_growing) {
        placeWidgets();
    }
}

void MenuWindow::refreshIcons() {
    const qreal ratio = devicePixelRatioF();
    m_iconRatio = ratio;
    const TextColours& colours = textColours(m_night);
    const int page = m_menu.face() == Face::Page ? m_menu.currentPage() : 0;
    m_titleIcon->setIcon(pageIcon(iconName(page), qRound(24 * m_zoom), colours.row, ratio));
    m_shownIconPage = page;
    for (int p = 1; p < static_cast<int>(m_pageButtons.size()); ++p) {
        if (ZelFrame* button = m_pageButtons[static_cast<std::size_t>(p)]) {
            button->setIcon(
                pageIcon(iconName(p), qRound(22 * m_zoom), colours.pageButtonText, ratio));
        }
    }
}

bool MenuWindow::fitsScreen(qreal zoom) const {
    if (!m_remember || zoom <= 1.0) {
        return true; // a picture is no window on a screen; 100 % is the least there is
    }
    const QScreen* shown = screen() != nullptr ? screen() : QGuiApplication::primaryScreen();
    if (shown == nullptr) {
        return true;
    }
    // The window with the frame the window manager draws around it.
    const QSize frame = frameGeometry().size() - geometry().size();
    const QSize needed = QSize(DesignWidth, m_designHeight) * zoom + frame;
    const QSize room = shown->availableGeometry().size();
    return needed.width() <= room.width() && needed.height() <= room.height();
}

void MenuWindow::setZoom(qreal zoom) {
    if (std::find(Zooms.begin(), Zooms.end(), zoom) == Zooms.end() || zoom == m_zoom ||
        !fitsScreen(zoom)) {
        return; // a step that would not fit the screen is not taken
    }
    m_zoom = zoom;
    restyle();
    rememberSettings();
}

void MenuWindow::setNight(bool night) {
    m_night = night;
    m_nightChosen = true;
    restyle();
    rememberSettings();
}

void MenuWindow::rememberSettings() {
    // Written when something to remember changed: the zoom, the palette
    // chosen, or the place of a window that closes.
    if (!m_remember) {
        return;
    }
    QSettings memory(memoryPath(m_memoryFile), QSettings::IniFormat);
    memory.setValue(QStringLiteral("zoom"), m_zoom);
    if (m_nightChosen) {
        memory.setValue(QStringLiteral("palette"), m_night ? "night" : "day");
    }
    if (m_shown) {
        memory.setValue(QStringLiteral("position"), pos());
    }
}

void MenuWindow::restorePosition() {
    if (!m_remember) {
        return;
    }
    QSettings memory(memoryPath(m_memoryFile), QSettings::IniFormat);
    const QVariant stored = memory.value(QStringLiteral("position"));
    if (!stored.isValid()) {
        return; // the window manager places a new window
    }
    // A place off every screen there is now (a screen unplugged) is not used.
    const QPoint at = stored.toPoint();
    const QRect title(at, QSize(width(), 36 * m_zoom));
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen->availableGeometry().intersects(title)) {
            move(at);
            return;
        }
    }
}

void MenuWindow::closeEvent(QCloseEvent* event) {
    rememberSettings();
    QWidget::closeEvent(event);
}

void MenuWindow::copy(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void MenuWindow::paste() {
    act([this] { m_menu.paste(QGuiApplication::clipboard()->text().toStdString()); });
}

QMenu* MenuWindow::rowMenu(int row) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Copy value"), this, [this, row] { copy(m_menu.rowText(row)); });
    menu->addAction(QStringLiteral("Copy page"), this, [this] { copy(m_menu.pageText()); });
    return menu;
}

void MenuWindow::contextMenuEvent(QContextMenuEvent* event) {
    const int row = rowOf(childAt(event->pos()));
    if (m_menu.face() == Face::Page && row != 0 && m_menu.page()->row(row).unit.size() != 0) {
        rowMenu(row)->popup(event->globalPos());
    }
}

QString MenuWindow::aboutText() {
    QString table;
    for (const HelpLine& line : m_menu.view().help) {
        table += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                     .arg(escaped(line.keys), escaped(line.does));
    }
    QString notes;
    for (const std::string& note : licenceNotes()) {
        notes += QStringLiteral("<p>%1</p>").arg(escaped(note));
    }
    return QStringLiteral("<h3>%1</h3><p>A calculator for aircraft pilots.</p>"
                          "<table cellspacing='4'>%2</table>"
                          "<p>Settings file: %3<br>%4</p>%5")
        .arg(escaped(versionText()), table, escaped(m_menu.settingsFile()),
             escaped(m_menu.ratesNote()), notes);
}

void MenuWindow::showAbout() {
    auto* box = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("About zelFLIGHTAB"),
                                aboutText(), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::RichText);
    box->setIconPixmap(pageIcon(AppIcon, 48, textColours(false).row, devicePixelRatioF()));
    box->open();
}

} // namespace zel
