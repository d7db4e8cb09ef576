// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/menuwindow.h"

#include "app/catalogue.h"
#include "ui/loadingpanel.h"
#include "ui/qtinteraction.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

// The icons are compiled into this library; a static library must load them itself.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(baked);
}

namespace zel {
namespace {

constexpr int WindowWidth = MenuWindow::DesignWidth;
constexpr int RowHeight = 45;
// The menu: a heading for each group, then its page buttons three to a line.
constexpr int MenuTop = 42;
constexpr int HeadingHeight = 18;
constexpr int ButtonHeight = 40;
constexpr int ButtonLine = 44;

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

QString text(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

} // namespace

QPixmap pageIcon(std::string_view icon, int size, const QColor& color, qreal devicePixelRatio) {
    const QString name = text(icon);
    const int side = qRound(size * devicePixelRatio);
    // The sizes the window opens with were drawn at build time, as masks; any
    // other is drawn from the SVG, so that the icon is sharp at every zoom.
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    QFile baked(QStringLiteral(":/baked/%1_%2.mask").arg(name).arg(side));
    if (baked.open(QIODevice::ReadOnly) && baked.size() == side * side) {
        const QByteArray bytes = baked.readAll();
        const QImage mask(reinterpret_cast<const uchar*>(bytes.constData()), side, side, side,
                          QImage::Format_Alpha8);
        image.fill(color);
        QPainter p(&image);
        p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        p.drawImage(0, 0, mask);
    } else {
        // Qt's SVG image plugin, loaded the first time another size is drawn.
        QImageReader reader(QStringLiteral(":/icons/%1.svg").arg(name));
        reader.setScaledSize(QSize(side, side));
        image = reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter p(&image);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(image.rect(), color);
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

ZelFrame* MenuWindow::frame(Look look, QWidget* parent, QRect geometry, const QString& caption) {
    auto* f = new ZelFrame(lookStyle(look, m_night), parent);
    f->setCaption(caption);
    m_placed.push_back({f, geometry, look});
    f->setGeometry(geometry);
    return f;
}

MenuWindow::MenuWindow(Menu& menu, QtInteraction* interaction, const QString& memoryFile,
                       bool remember, QWidget* parent)
    : QWidget(parent), m_menu(menu), m_interaction(interaction),
      m_designHeight(designHeight(menu.pages())),
      m_pageButtons(static_cast<std::size_t>(menu.pages().count() + 1)),
      m_icons(static_cast<std::size_t>(menu.pages().count() + 1)), m_memoryFile(memoryFile),
      m_remember(remember) {
    loadIcons();
    installFrameAccessibility();
    setWindowTitle(QStringLiteral("zelFLIGHTAB"));
    setAccessibleName(QStringLiteral("zelFLIGHTAB"));
    setFocusPolicy(Qt::StrongFocus);
    frame(Look::Background, this, QRect(0, 0, WindowWidth, m_designHeight))
        ->setAccessibleName(QStringLiteral("zelFLIGHTAB"));
    m_titleBar = frame(Look::TitleBar, this, QRect(0, 0, WindowWidth, 36));
    m_titleBar->setAccessibleName(QStringLiteral("Title bar"));
    m_titleIcon = frame(Look::Cell, m_titleBar, QRect(6, 4, 28, 28));
    m_titleIcon->setCursor(Qt::PointingHandCursor);
    m_titleIcon->setToolTip(QStringLiteral("About zelFLIGHTAB (Shift+F1)"));
    m_titleIcon->setAccessibleName(QStringLiteral("About zelFLIGHTAB"));
    m_titleIcon->setAccessibleRole(QAccessible::Button);
    connect(m_titleIcon, &ZelFrame::clicked, this, [this] { showAbout(); });
    m_title = frame(Look::Cell, m_titleBar, QRect(34, 0, 180, 36));
    m_title->setAlignment(Qt::AlignLeft);
    m_title->setPointSize(11);
    m_title->setBold(true);
    m_title->setAccessibleRole(QAccessible::Heading);
    buildMenuFace();
    buildPageFace();
    m_menuButton = frame(Look::MenuButton, m_titleBar, QRect(WindowWidth - 74, 6, 64, 24),
                         QStringLiteral("Menu"));
    m_menuButton->setCursor(Qt::PointingHandCursor);
    m_menuButton->setAccessibleRole(QAccessible::Button);
    m_menuButton->setToolTip(QStringLiteral("Back to the menu (Alt+M)"));
    connect(m_menuButton, &ZelFrame::clicked, this, [this] { act([this] { m_menu.goBack(); }); });
    for (ZelFrame* key :
         {m_menuButton, m_digitsKey, m_clearKey, m_divideKey, m_operatorKeys[1], m_operatorKeys[2],
          m_operatorKeys[3], m_memoryKeys[0], m_memoryKeys[1], m_memoryKeys[2]}) {
        key->setFocusPolicy(Qt::TabFocus);
    }
    m_menu.start();
    recallSettings();
    restyle();
    render();
    restorePosition();
}

MenuWindow::~MenuWindow() = default;

int MenuWindow::designHeight(const PageCatalogue& pages) {
    int height = MenuTop;
    for (const PageCatalogue::Group& group : pages.groups()) {
        const int lines = (static_cast<int>(group.pages.size()) + 2) / 3;
        height += HeadingHeight + lines * ButtonLine;
    }
    return height + 6;
}

std::string_view MenuWindow::iconName(int page) const {
    return page >= 1 && page < static_cast<int>(m_icons.size())
               ? std::string_view(m_icons[static_cast<std::size_t>(page)])
               : AppIcon;
}

void MenuWindow::buildMenuFace() {
    // Each group under its heading, three buttons to a line, in the order a
    // pilot works; each button keeps its page's number and key.
    const View view = m_menu.view();
    int y = MenuTop;
    for (const PageGroup& group : view.groups) {
        auto* heading = frame(Look::Cell, this, QRect(10, y, WindowWidth - 20, HeadingHeight),
                              text(group.heading));
        heading->setAlignment(Qt::AlignLeft);
        heading->setPointSize(8);
        heading->setBold(true);
        heading->setAccessibleRole(QAccessible::Heading);
        heading->setTextColor(textColours(m_night).row);
        m_menuHeadings.push_back(heading);
        y += HeadingHeight;
        for (std::size_t i = 0; i < group.pages.size(); ++i) {
            const PageButton& entry = view.pages[static_cast<std::size_t>(group.pages[i] - 1)];
            const int column = static_cast<int>(i % 3);
            const int line = static_cast<int>(i / 3);
            buildPageButton(entry, QRect(8 + column * 94, y + line * ButtonLine, 90, ButtonHeight));
        }
        y += static_cast<int>((group.pages.size() + 2) / 3) * ButtonLine;
    }
}

void MenuWindow::buildPageButton(const PageButton& entry, QRect geometry) {
    {
        const int page = entry.number;
        auto* button = frame(Look::PageButton, this, geometry, text(entry.name));
        button->setPointSize(8);
        button->setIconBeside(true);
        button->setCornerCaption(text(entry.key));
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleRole(QAccessible::Button);
        if (!entry.key.empty()) {
            button->setAccessibleDescription(text(entry.key));
        }
        connect(button, &ZelFrame::clicked, this,
                [this, page] { act([this, page] { m_menu.openPage(page); }); });
        m_pageButtons[static_cast<std::size_t>(page)] = button;
        m_icons[static_cast<std::size_t>(page)] = entry.icon;
    }
}

void MenuWindow::buildPageFace() {
    m_pageFace = frame(Look::Background, this, QRect(0, 36, WindowWidth, m_designHeight - 36));
    m_pageFace->setAccessibleName(QStringLiteral("Page"));
    auto* calculator = frame(Look::Panel, m_pageFace, QRect(11, 10, 273, 89));
    calculator->setAccessibleName(QStringLiteral("Calculator"));
    buildCalculator(calculator);
    m_rowsPanel = frame(Look::Sheet, m_pageFace, QRect(11, 110, 273, 8 * RowHeight + 18));
    m_rowsPanel->setAccessibleName(QStringLiteral("Rows"));
    buildRows(m_rowsPanel);
    // The Weight & Balance page's sheet takes the rows' place and the room
    // below; it is made when that page is first shown.
    m_loadingSheet = frame(Look::Sheet, m_pageFace, QRect(11, 110, 273, m_designHeight - 36 - 118));
    m_loadingSheet->setAccessibleName(QStringLiteral("Loading sheet"));
    m_loadingSheet->hide();
    buildPlaceAndNote();
}

void MenuWindow::buildPlaceAndNote() {
    // The room between the rows and the window's foot: 80 points.
    const int top = 110 + 8 * RowHeight + 22;
    m_placeEntry = new QLineEdit(m_pageFace);
    m_placeEntry->setPlaceholderText(QStringLiteral("N51°28.65′ W000°27.68′"));
    m_placeEntry->setAccessibleName(QStringLiteral("Coordinates"));
    m_placeEntry->setToolTip(
        QStringLiteral("A place as pilots write it; Enter puts it on the page"));
    // Typing goes to the calculator until the field is clicked or tabbed to.
    m_placeEntry->setFocusPolicy(Qt::StrongFocus);
    m_placed.push_back({m_placeEntry, QRect(11, top, 273, 26), std::nullopt});
    connect(m_placeEntry, &QLineEdit::returnPressed, this, [this] {
        const std::string typed = m_placeEntry->text().toStdString();
        if (typed.find_first_not_of(" \t") == std::string::npos) {
            return;
        }
        bool taken = false;
        act([this, &typed, &taken] { taken = m_menu.paste(typed); });
        if (taken) {
            m_placeEntry->clear(); // a refusal leaves the text to correct
            setFocus();
        }
    });
    m_note = new QLabel(m_pageFace);
    m_note->setWordWrap(true);
    m_note->setAccessibleName(QStringLiteral("Note"));
    m_placed.push_back({m_note, QRect(11, top + 28, 273, 50), std::nullopt});
}

void MenuWindow::renderPlaceAndNote(const View& view) {
    const bool page = view.face == Face::Page && !view.loading;
    m_placeEntry->setVisible(page && view.places);
    QFont font = m_placeEntry->font();
    font.setPixelSize(qRound(13 * m_zoom));
    m_placeEntry->setFont(font);
    font.setPixelSize(qRound(12 * m_zoom));
    // The note on the results; else what to know about the input row, or
    // why a value was refused ("1:75 refused: minutes under 60").
    const bool note = !view.note.empty();
    const std::string& said = note ? view.note : view.hint;
    m_note->setVisible(page && !said.empty());
    m_note->setText(text(said));
    font.setBold(note);
    m_note->setFont(font);
    const TextColours& colours = textColours(m_night);
    m_note->setStyleSheet(QStringLiteral("color: %1; border-left: %2px solid %3; "
                                         "padding-left: %4px;")
                              .arg(colours.row.name())
                              .arg(qRound(4 * m_zoom))
                              .arg(note ? QStringLiteral("#ffbe00") : QStringLiteral("transparent"))
                              .arg(qRound(6 * m_zoom)));
}

void MenuWindow::buildCalculator(QWidget* panel) {
    m_display = frame(Look::Display, panel, QRect(8, 8, 152, 40));
    m_display->setAlignment(Qt::AlignRight);
    m_display->setAccessibleName(QStringLiteral("Display"));
    m_display->setAccessibleRole(QAccessible::StaticText);

    m_memoryPanel = frame(Look::Cell, panel, QRect(8, 54, 152, 27));
    m_memoryPanel->setAccessibleName(QStringLiteral("Memory keys"));
    m_memoryPanel->setAccessibleRole(QAccessible::Grouping);
    for (int key = 0; key < 3; ++key) {
        auto* button = frame(Look::Key, m_memoryPanel, QRect(key * 52, 0, 48, 27));
        button->setPointSize(8.5);
        button->setAccessibleRole(QAccessible::Button);
        connect(button, &ZelFrame::clicked, this, [this, key] {
            act([this, key] { m_menu.pressMemory(static_cast<MemoryKey>(key)); });
        });
        m_memoryKeys[static_cast<std::size_t>(key)] = button;
    }
    m_digitsKey = frame(Look::Key, panel, QRect(168, 8, 56, 27));
    m_digitsKey->setToolTip(QStringLiteral(" Change number of digits "));
    m_digitsKey->setPointSize(8.5);
    m_digitsKey->setAccessibleRole(QAccessible::Button);
    m_digitsKey->setAccessibleName(QStringLiteral("Number of digits"));
    connect(m_digitsKey, &ZelFrame::clicked, this,
            [this] { act([this] { m_menu.pressDigits(); }); });
    m_clearKey = frame(Look::Key, panel, QRect(168, 54, 56, 27), QStringLiteral("C"));
    m_clearKey->setToolTip(QStringLiteral(" Clear "));
    m_clearKey->setPointSize(10);
    m_clearKey->setAccessibleRole(QAccessible::Button);
    m_clearKey->setAccessibleName(QStringLiteral("Clear"));
    connect(m_clearKey, &ZelFrame::clicked, this, [this] { act([this] { m_menu.clear(); }); });

    m_operatorPanel = frame(Look::Cell, panel, QRect(232, 6, 32, 77));
    m_operatorPanel->setAccessibleName(QStringLiteral("Operator keys"));
    m_operatorPanel->setAccessibleRole(QAccessible::Grouping);
    const QString tip =
        QStringLiteral(" Press + - x / on keyboard and press ENTER key for result ");
    const std::array<QString, 4> names{QString(), QStringLiteral("Add"), QStringLiteral("Subtract"),
                                       QStringLiteral("Multiply")};
    for (int key = 1; key <= 3; ++key) {
        auto* button = frame(Look::Key, m_operatorPanel, QRect(0, (key - 1) * 19, 32, 18));
        button->setPointSize(10);
        button->setToolTip(tip);
        button->setAccessibleRole(QAccessible::Button);
        button->setAccessibleName(names[static_cast<std::size_t>(key)]);
        connect(button, &ZelFrame::clicked, this, [this, key] {
            act([this, key] { m_menu.pressOperator(static_cast<Operator>(key)); });
        });
        m_operatorKeys[static_cast<std::size_t>(key)] = button;
    }
    // The divide key has two faces: the upper divides, the lower only lights up.
    m_divideKey = frame(Look::Key, m_operatorPanel, QRect(0, 57, 32, 20), QStringLiteral("÷"));
    m_divideKey->setPointSize(11);
    m_divideKey->setToolTip(tip);
    m_divideKey->setAccessibleRole(QAccessible::Button);
    m_divideKey->setAccessibleName(QStringLiteral("Divide"));
    connect(m_divideKey, &ZelFrame::clicked, this, [this](QPoint at) {
        const Operator key =
            at.y() < m_divideKey->height() / 2 ? Operator::Divide : Operator::DivideLower;
        act([this, key] { m_menu.pressOperator(key); });
    });
}

void MenuWindow::buildRows(QWidget* panel) {
    constexpr int Top = 9;
    for (int row = 1; row <= 8; ++row) {
        const int y = Top + (row - 1) * RowHeight;
        auto* band = frame(Look::Band, panel, QRect(2, y + 1, 269, RowHeight - 2));
        band->setAttribute(Qt::WA_TransparentForMouseEvents);
        band->setAccessibleName(QStringLiteral("Input row"));
        band->hide();
        auto* value = frame(Look::Cell, panel, QRect(4, y, 126, RowHeight));
        value->setAlignment(Qt::AlignRight);
        value->setFocusPolicy(Qt::TabFocus);
        value->setAccessibleRole(QAccessible::Button);
        auto* unit = frame(Look::Cell, panel, QRect(136, y, 135, RowHeight));
        unit->setAlignment(Qt::AlignLeft);
        unit->setPointSize(8);
        unit->setAccessibleRole(QAccessible::StaticText);
        // The whole row takes the click, its unit as well as its value.
        for (ZelFrame* cell : {value, unit}) {
            cell->setCursor(Qt::PointingHandCursor);
            connect(cell, &ZelFrame::clicked, this,
                    [this, row] { act([this, row] { m_menu.clickRow(row); }); });
        }
        m_bands[static_cast<std::size_t>(row)] = band;
        m_values[static_cast<std::size_t>(row)] = value;
        m_units[static_cast<std::size_t>(row)] = unit;
    }
    // Separator lines: one between value and unit, one under every pair of rows.
    std::vector<QRectF> lines{QRectF(134, Top + 4, 1, 8 * RowHeight - 8)};
    for (int pair = 1; pair <= 3; ++pair) {
        lines.emplace_back(10, Top + pair * 2 * RowHeight, 253, 1);
    }
    static_cast<ZelFrame*>(panel)->setLines(std::move(lines));
}

ZelFrame* MenuWindow::operatorKey(int key) const {
    return key >= 4 ? m_divideKey : m_operatorKeys.at(static_cast<std::size_t>(key));
}

int MenuWindow::rowOf(const QWidget* widget) const {
    for (int row = 1; row <= 8; ++row) {
        if (widget == valueCell(row) || widget == unitCell(row)) {
            return row;
        }
    }
    return 0;
}

void MenuWindow::act(const std::function<void()>& handler) {
    handler();
    render();
}

void MenuWindow::render() {
    const View view = m_menu.view();
    const TextColours& colours = textColours(m_night);
    const bool page = view.face == Face::Page;
    m_pageFace->setVisible(page);
    for (ZelFrame* button : m_pageButtons) {
        if (button != nullptr) {
            button->setVisible(!page);
        }
    }
    m_menuButton->setVisible(page);
    for (ZelFrame* heading : m_menuHeadings) {
        heading->setVisible(!page);
        heading->setTextColor(colours.row);
    }
    const bool loading = page && view.loading.has_value();
    m_rowsPanel->setVisible(!loading);
    m_loadingSheet->setVisible(loading);
    if (loading != m_growing) {
        allowGrowth(loading);
        placeWidgets();
    }
    if (loading) {
        if (m_loadingPanel == nullptr) {
            m_loadingPanel = new LoadingPanel(
                m_menu, [this](const std::function<void()>& handler) { act(handler); },
                m_loadingSheet);
            const QRect inside(2, 4, 269, m_designHeight - 36 - 126);
            m_placed.push_back({m_loadingPanel, inside, std::nullopt});
            placeWidgets();
            m_loadingPanel->show();
        }
        m_loadingPanel->render(*view.loading, m_night, m_zoom);
    }
    const int iconPage = page ? m_menu.currentPage() : 0;
    if (m_iconRatio != devicePixelRatioF()) {
        refreshIcons(); // drawn anew for the screen's pixel ratio
    } else if (iconPage != m_shownIconPage) {
        m_titleIcon->setIcon(pageIcon(iconName(iconPage), qRound(24 * m_zoom),
                                      textColours(m_night).row, m_iconRatio));
        m_shownIconPage = iconPage;
    }
    m_title->setCaption(text(view.title));

    m_display->setCaption(text(view.display));
    m_display->setAccessibleValue(text(view.display));
    m_display->setPointSize(view.displayEmphasis);
    m_digitsKey->setCaption(text(view.digits));
    m_memoryPanel->setVisible(view.panels);
    m_digitsKey->setVisible(view.panels);
    m_operatorPanel->setVisible(view.panels);
    for (int key = 0; key < 3; ++key) {
        ZelFrame* button = m_memoryKeys[static_cast<std::size_t>(key)];
        const KeyView& shown = view.memory[static_cast<std::size_t>(key)];
        button->setCaption(text(shown.caption));
        button->setTextColor(shown.lit ? colours.amber : colours.keyText);
    }
    for (int key = 1; key <= 3; ++key) {
        ZelFrame* button = m_operatorKeys[static_cast<std::size_t>(key)];
        const KeyView& shown = view.operators[static_cast<std::size_t>(key)];
        button->setCaption(text(shown.caption));
        button->setTextColor(shown.lit ? colours.amber : colours.keyText);
    }
    const KeyView& divide = view.operators[static_cast<std::size_t>(Operator::Divide)];
    m_divideKey->setCaption(text(divide.caption));
    m_divideKey->setTextColor(divide.lit ? colours.amber : colours.keyText);
    m_display->setShowEnd(view.report);
    m_display->setShortForm(shortForm(view.displayShortForms));
    if (page) {
        // What is not seen is not measured: the page face's fonts wait for it.
        m_display->setToolTip(m_display->fit().shortened ? m_display->caption() : QString());
    }
    renderRows(view);
    renderPlaceAndNote(view);
    if (view.face != m_shownFace) {
        // A keyboard user keeps a place to start from on the other face: the
        // page's own button on the menu, the window itself on a page.
        const bool keyboard = focusWidget() != this && focusWidget() != nullptr;
        m_shownFace = view.face;
        ZelFrame* button = page ? nullptr : pageButton(m_menu.currentPage());
        if (keyboard && button != nullptr) {
            button->setFocus(Qt::OtherFocusReason);
        } else {
            setFocus(Qt::OtherFocusReason);
        }
    }
}

ZelFrame::ShortForm MenuWindow::shortForm(const std::vector<std::string>& forms) {
    if (forms.empty()) {
        return {};
    }
    // The forms run from 15 significant digits down to 1.
    return [forms](int digits) {
        const auto at = static_cast<std::size_t>(std::clamp(15 - digits, 0, 14));
        return text(forms[std::min(at, forms.size() - 1)]);
    };
}

void MenuWindow::renderRows(const View& view) {
    const TextColours& colours = textColours(m_night);
    for (int row = 1; row <= 8; ++row) {
        const RowView& cell = view.rows[static_cast<std::size_t>(row - 1)];
        const QColor colour = cell.input ? colours.input : colours.row;
        ZelFrame* value = m_values[static_cast<std::size_t>(row)];
        value->setCaption(text(cell.value));
        value->setPointSize(cell.emphasis);
        // What the user gave stands out from what the page worked out: bold,
        // with a small mark in the cell's corner.
        value->setBold(cell.given);
        value->setCornerCaption(cell.given ? QStringLiteral("given") : QString());
        value->setTextColor(colour);
        value->setShortForm(shortForm(cell.shortForms));
        ZelFrame* unit = m_units[static_cast<std::size_t>(row)];
        unit->setCaption(text(cell.unit));
        unit->setTextColor(colour);
        // Each row names the key that clicks it, and how a value is typed
        // where that is not plain ("1.30 = 1:30").
        QString rowTip = QStringLiteral("%1 (%2)").arg(text(cell.unit), text(cell.key));
        if (!cell.hint.empty()) {
            rowTip += QStringLiteral(": ") + text(cell.hint);
        }
        value->setAccessibleDescription(cell.given ? QStringLiteral("given") : text(cell.hint));
        unit->setToolTip(cell.exists ? rowTip : QString());
        // To a screen reader the row is its unit, with the value it holds.
        value->setAccessibleName(text(cell.unit));
        // A coordinate is also said and shown in degrees and minutes.
        value->setAccessibleValue(text(cell.detail.empty() ? cell.value : cell.detail));
        const bool whole = view.face != Face::Page || cell.value.empty() ||
                           !(value->fit().shortened || value->fit().wrapped);
        value->setToolTip(!cell.detail.empty() ? text(cell.detail)
                          : whole              ? (cell.exists ? rowTip : QString())
                                               : text(cell.value));
        m_bands[static_cast<std::size_t>(row)]->setVisible(cell.input);
    }
}

void MenuWindow::flash() {
    m_display->setHighlighted(true);
    QTimer::singleShot(120, m_display, [d = m_display] { d->setHighlighted(false); });
}

bool MenuWindow::event(QEvent* e) {
    if (e->type() == QEvent::Paint && qEnvironmentVariableIsSet("ZEL_EXIT_AFTER_FIRST_FRAME")) {
        // Start-up measurement: the first frame is on screen, so stop here.
        QTimer::singleShot(0, qApp, &QApplication::quit);
    }
    if (e->type() == QEvent::Show && !m_shown) {
        // The first showing activates the window even where no window manager
        // sends an activation; the activation that follows it is the same one.
        m_shown = true;
        m_skipActivation = true;
        setFocus(Qt::OtherFocusReason); // no control has the focus until Tab gives it one
        QIcon icon;                     // for the window manager and the task bar
        for (int size : {16, 32, 64, 128}) {
            icon.addPixmap(pageIcon(AppIcon, size, textColours(false).row, 1));
        }
        setWindowIcon(icon);
        act([this] { m_menu.activate(); });
    } else if (e->type() == QEvent::WindowActivate) {
        const bool ownDialog = m_interaction && m_interaction->takeDialogClosed();
        if (!ownDialog && !std::exchange(m_skipActivation, false)) {
            act([this] { m_menu.activate(); });
        }
    } else if (e->type() == QEvent::Close) {
        m_menu.close();
    } else if (e->type() == QEvent::ScreenChangeInternal ||
               e->type() == QEvent::ApplicationPaletteChange) {
        // Another screen may have another pixel ratio; another desktop palette
        // may be dark.
        restyle();
    }
    return QWidget::event(e);
}

} // namespace zel
