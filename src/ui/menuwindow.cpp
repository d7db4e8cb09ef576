// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/menuwindow.h"

#include "app/catalogue.h"
#include "ui/qtinteraction.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>

#include <cmath>

#include <utility>

// The icons are compiled into this library; a static library must load them itself.
static void loadIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace zel {
namespace {

// The window is 295 device-independent pixels wide, as the original 4420
// twips; it holds eight lines of page buttons, each 61 pixels high.
constexpr int WindowWidth = 295;
constexpr int WindowHeight = 535;
constexpr int RowHeight = 45;

const QColor RowColour(0, 69, 125);
const QColor InputColour(85, 142, 191);
const QColor PageButtonText(224, 224, 224);
const QColor KeyText(255, 255, 255);
const QColor Amber(255, 190, 0);

// One calm instrument panel: a light sheet, slate keys, a dark display.
const ZelFrame::Style Background{
    QColor(0xd9, 0xe1, 0xe9), QColor(0xa9, 0xb8, 0xc7), {}, {}, 0, false};
const ZelFrame::Style TitleBar{QColor(0xf7, 0xf9, 0xfb),
                               QColor(0xd4, 0xdd, 0xe6),
                               QColor(0x9a, 0xab, 0xbc),
                               RowColour,
                               0,
                               false};
const ZelFrame::Style Sheet{QColor(0xfb, 0xfc, 0xfd),
                            QColor(0xe3, 0xea, 0xf0),
                            QColor(0xa4, 0xb4, 0xc4),
                            RowColour,
                            9,
                            true};
const ZelFrame::Style Panel{
    QColor(0x5b, 0x6e, 0x81), QColor(0x3b, 0x4b, 0x5b), QColor(0x2c, 0x38, 0x44), KeyText, 9, true};
const ZelFrame::Style Key{
    QColor(0x4f, 0x62, 0x76), QColor(0x2b, 0x38, 0x46), QColor(0x1d, 0x27, 0x31), KeyText, 5, true};
const ZelFrame::Style PageButton{QColor(0x50, 0x64, 0x79),
                                 QColor(0x2a, 0x37, 0x45),
                                 QColor(0x1d, 0x27, 0x31),
                                 PageButtonText,
                                 8,
                                 true};
const ZelFrame::Style Display{QColor(0x1c, 0x27, 0x31),
                              QColor(0x2a, 0x38, 0x45),
                              QColor(0x10, 0x17, 0x1e),
                              QColor(0xe8, 0xf2, 0xfa),
                              5,
                              false};
const ZelFrame::Style MenuButton{QColor(0xff, 0xff, 0xff),
                                 QColor(0xc9, 0xd5, 0xe0),
                                 QColor(0x8a, 0x9d, 0xb0),
                                 RowColour,
                                 6,
                                 true};
const ZelFrame::Style Cell{Qt::transparent, Qt::transparent, {}, RowColour, 0, false};
// The input row stands on a pale amber band, with a bar in the input colour.
const ZelFrame::Style Band{
    QColor(0xff, 0xf3, 0xd1), QColor(0xfc, 0xe8, 0xb5), InputColour, RowColour, 4, false};

constexpr std::array<const char*, 25> IconNames{
    "app",         "weight",    "fluid",     "surface",     "speed",     "distance",  "angle",
    "temperature", "pressure",  "power",     "fuelUplift",  "endurance", "fuelRange", "machAs",
    "snowtam",     "trackTime", "wind",      "windComp",    "currency",  "altitude",  "descent",
    "turn",        "fuelPlan",  "cloudBase", "rwyCondition"};

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

QString text(std::string_view s) {
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

ZelFrame* frame(const ZelFrame::Style& style, QWidget* parent, QRect geometry,
                const QString& caption = {}) {
    auto* f = new ZelFrame(style, parent);
    f->setGeometry(geometry);
    f->setCaption(caption);
    return f;
}

} // namespace

QPixmap pageIcon(int page, int size, const QColor& color, qreal devicePixelRatio) {
    QSvgRenderer svg(
        QStringLiteral(":/icons/%1.svg").arg(IconNames.at(static_cast<std::size_t>(page))));
    QPixmap pixmap(QSize(size, size) * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    {
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(pixmap.rect(), color);
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

MenuWindow::MenuWindow(Menu& menu, QtInteraction* interaction, QWidget* parent)
    : QWidget(parent), m_menu(menu), m_interaction(interaction) {
    loadIcons();
    setWindowTitle(QStringLiteral("zelFLIGHTAB"));
    setWindowIcon(QIcon(pageIcon(0, 64, RowColour, 1)));
    setFixedSize(WindowWidth, WindowHeight);
    setFocusPolicy(Qt::StrongFocus);
    frame(Background, this, rect());
    m_titleBar = frame(TitleBar, this, QRect(0, 0, WindowWidth, 36));
    m_titleIcon = frame(Cell, m_titleBar, QRect(6, 4, 28, 28));
    m_title = frame(Cell, m_titleBar, QRect(34, 0, 180, 36));
    m_title->setAlignment(Qt::AlignLeft);
    m_title->setPointSize(11);
    m_title->setBold(true);
    buildMenuFace();
    buildPageFace();
    m_menuButton =
        frame(MenuButton, m_titleBar, QRect(WindowWidth - 74, 6, 64, 24), QStringLiteral("Menu"));
    m_menuButton->setCursor(Qt::PointingHandCursor);
    connect(m_menuButton, &ZelFrame::clicked, this,
            [this] { act([this] { m_menu.LabelMenu_Click(); }); });
    for (ZelFrame* key :
         {m_menuButton, m_digitsKey, m_clearKey, m_divideKey, m_operatorKeys[1], m_operatorKeys[2],
          m_operatorKeys[3], m_memoryKeys[0], m_memoryKeys[1], m_memoryKeys[2]}) {
        key->setFocusPolicy(Qt::TabFocus);
    }
    m_menu.Form_Load();
    render();
}

void MenuWindow::buildMenuFace() {
    // Three columns by eight lines, in page order.
    const PageCatalogue& pages = pageCatalogue();
    for (int page = 1; page <= pages.count(); ++page) {
        const PageTable* table = pages.find(page);
        if (table == nullptr) {
            continue;
        }
        const int column = (page - 1) % 3;
        const int line = (page - 1) / 3;
        auto* button = frame(PageButton, this, QRect(8 + column * 94, 44 + line * 61, 90, 57),
                             text(table->name));
        button->setPointSize(8);
        button->setIcon(pageIcon(page, 22, PageButtonText, devicePixelRatioF()));
        button->setCornerCaption(text(table->keyCaption));
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &ZelFrame::clicked, this,
                [this, page] { act([this, page] { m_menu.LabMenu_Click(page); }); });
        m_pageButtons[static_cast<std::size_t>(page)] = button;
    }
}

void MenuWindow::buildPageFace() {
    m_pageFace = frame(Background, this, QRect(0, 36, WindowWidth, WindowHeight - 36));
    auto* calculator = frame(Panel, m_pageFace, QRect(11, 10, 273, 89));
    buildCalculator(calculator);
    auto* rows = frame(Sheet, m_pageFace, QRect(11, 110, 273, 8 * RowHeight + 18));
    buildRows(rows);
}

void MenuWindow::buildCalculator(QWidget* panel) {
    m_display = frame(Display, panel, QRect(8, 8, 152, 40));
    m_display->setAlignment(Qt::AlignRight);

    m_memoryPanel = new QWidget(panel);
    m_memoryPanel->setGeometry(8, 54, 152, 27);
    for (int key = 0; key < 3; ++key) {
        auto* button = frame(Key, m_memoryPanel, QRect(key * 52, 0, 48, 27));
        button->setPointSize(8.5);
        connect(button, &ZelFrame::clicked, this,
                [this, key] { act([this, key] { m_menu.LabMEM_Click(key); }); });
        m_memoryKeys[static_cast<std::size_t>(key)] = button;
    }
    m_digitsKey = frame(Key, panel, QRect(168, 8, 56, 27));
    m_digitsKey->setToolTip(QStringLiteral(" Change number of digits "));
    m_digitsKey->setPointSize(8.5);
    connect(m_digitsKey, &ZelFrame::clicked, this,
            [this] { act([this] { m_menu.LabDEC_Click(); }); });
    m_clearKey = frame(Key, panel, QRect(168, 54, 56, 27), QStringLiteral("C"));
    m_clearKey->setToolTip(QStringLiteral(" Clear "));
    m_clearKey->setPointSize(10);
    connect(m_clearKey, &ZelFrame::clicked, this, [this] { act([this] { m_menu.LabC_Click(); }); });

    m_operatorPanel = new QWidget(panel);
    m_operatorPanel->setGeometry(232, 6, 32, 77);
    const QString tip =
        QStringLiteral(" Press + - x / on keyboard and press ENTER key for result ");
    for (int key = 1; key <= 3; ++key) {
        auto* button = frame(Key, m_operatorPanel, QRect(0, (key - 1) * 19, 32, 18));
        button->setPointSize(10);
        button->setToolTip(tip);
        connect(button, &ZelFrame::clicked, this,
                [this, key] { act([this, key] { m_menu.LabOP_Click(key); }); });
        m_operatorKeys[static_cast<std::size_t>(key)] = button;
    }
    // The divide key has two faces: the upper divides, the lower only lights up.
    m_divideKey = frame(Key, m_operatorPanel, QRect(0, 57, 32, 20), QStringLiteral("÷"));
    m_divideKey->setPointSize(11);
    m_divideKey->setToolTip(tip);
    connect(m_divideKey, &ZelFrame::clicked, this, [this](QPoint at) {
        const int key = at.y() < m_divideKey->height() / 2 ? 4 : 5;
        act([this, key] { m_menu.LabOP_Click(key); });
    });
}

void MenuWindow::buildRows(QWidget* panel) {
    constexpr int Top = 9;
    for (int row = 1; row <= 8; ++row) {
        const int y = Top + (row - 1) * RowHeight;
        auto* band = frame(Band, panel, QRect(2, y + 1, 269, RowHeight - 2));
        band->setAttribute(Qt::WA_TransparentForMouseEvents);
        band->hide();
        auto* value = frame(Cell, panel, QRect(4, y, 126, RowHeight));
        value->setAlignment(Qt::AlignRight);
        value->setFocusPolicy(Qt::TabFocus);
        auto* unit = frame(Cell, panel, QRect(136, y, 135, RowHeight));
        unit->setAlignment(Qt::AlignLeft);
        unit->setPointSize(8);
        // The whole row takes the click, its unit as well as its value.
        for (ZelFrame* cell : {value, unit}) {
            cell->setCursor(Qt::PointingHandCursor);
            connect(cell, &ZelFrame::clicked, this,
                    [this, row] { act([this, row] { m_menu.LabValue_Click(row); }); });
        }
        m_bands[static_cast<std::size_t>(row)] = band;
        m_values[static_cast<std::size_t>(row)] = value;
        m_units[static_cast<std::size_t>(row)] = unit;
    }
    // Separator lines: one between value and unit, one under every pair of rows.
    auto line = [panel](QRect r) {
        auto* l = new QWidget(panel);
        l->setGeometry(r);
        l->setAutoFillBackground(true);
        QPalette palette = l->palette();
        palette.setColor(QPalette::Window, QColor(0xb8, 0xc6, 0xd3));
        l->setPalette(palette);
        l->setAttribute(Qt::WA_TransparentForMouseEvents);
    };
    line(QRect(134, Top + 4, 1, 8 * RowHeight - 8));
    for (int pair = 1; pair <= 3; ++pair) {
        line(QRect(10, Top + pair * 2 * RowHeight, 253, 1));
    }
}

ZelFrame* MenuWindow::operatorKey(int key) const {
    return key >= 4 ? m_divideKey : m_operatorKeys.at(static_cast<std::size_t>(key));
}

void MenuWindow::act(const std::function<void()>& handler) {
    handler();
    render();
}

void MenuWindow::render() {
    const bool page = m_menu.face() == Face::Page;
    m_pageFace->setVisible(page);
    for (ZelFrame* button : m_pageButtons) {
        if (button != nullptr) {
            button->setVisible(!page);
        }
    }
    m_menuButton->setVisible(page);
    const int iconPage = page ? m_menu.currentPage() : 0;
    if (iconPage != m_shownIconPage) {
        m_titleIcon->setIcon(pageIcon(iconPage, 24, RowColour, devicePixelRatioF()));
        m_shownIconPage = iconPage;
    }
    m_title->setCaption(page ? text(m_menu.title()) : QStringLiteral("zelFLIGHTAB"));

    m_display->setCaption(text(m_menu.display()));
    m_display->setPointSize(m_menu.displaySize());
    m_digitsKey->setCaption(text(m_menu.digitsCaption()));
    m_memoryPanel->setVisible(m_menu.panelsVisible());
    m_digitsKey->setVisible(m_menu.panelsVisible());
    m_operatorPanel->setVisible(m_menu.panelsVisible());
    for (int key = 0; key < 3; ++key) {
        ZelFrame* button = m_memoryKeys[static_cast<std::size_t>(key)];
        button->setCaption(text(m_menu.memoryCaption(key)));
        button->setTextColor(m_menu.memoryLit(key) ? Amber : KeyText);
    }
    for (int key = 1; key <= 3; ++key) {
        ZelFrame* button = m_operatorKeys[static_cast<std::size_t>(key)];
        button->setCaption(text(m_menu.operatorCaption(key)));
        button->setTextColor(m_menu.operatorLit(key) ? Amber : KeyText);
    }
    m_divideKey->setTextColor(m_menu.operatorLit(4) || m_menu.operatorLit(5) ? Amber : KeyText);
    const bool report = page && m_menu.page()->isText();
    m_display->setShowEnd(report);
    m_display->setShortForm(report ? ZelFrame::ShortForm() : [this](int digits) {
        return text(exponentText(m_menu.scratchPad().inputValue(), digits, m_menu.symbols()));
    });
    m_display->setToolTip(m_display->fit().shortened ? m_display->caption() : QString());
    renderRows();
    if (m_menu.face() != m_shownFace) {
        // A keyboard user keeps a place to start from on the other face: the
        // page's own button on the menu, the window itself on a page.
        const bool keyboard = focusWidget() != this && focusWidget() != nullptr;
        m_shownFace = m_menu.face();
        ZelFrame* button = page ? nullptr : pageButton(m_menu.currentPage());
        if (keyboard && button != nullptr) {
            button->setFocus(Qt::OtherFocusReason);
        } else {
            setFocus(Qt::OtherFocusReason);
        }
    }
}

void MenuWindow::renderRows() {
    const Symbols& symbols = m_menu.symbols();
    for (int row = 1; row <= 8; ++row) {
        const RowCell& cell = m_menu.row(row);
        const QColor colour = cell.input ? InputColour : RowColour;
        ZelFrame* value = m_values[static_cast<std::size_t>(row)];
        value->setCaption(text(cell.caption));
        value->setPointSize(cell.fontSize);
        value->setTextColor(colour);
        // A number too long for its cell is drawn in exponent form, after
        // the side or head/tail letter it may carry ("R 1.5E+20").
        const std::string& caption = cell.caption;
        const bool lettered = caption.size() > 2 && caption[1] == ' ' &&
                              std::string_view("RLTH").find(caption[0]) != std::string_view::npos;
        const double v = textValue(cell.tag, symbols);
        ZelFrame::ShortForm shortForm;
        if (cell.held || v != 0) {
            shortForm = [prefix = lettered ? caption.substr(0, 2) : std::string(),
                         v = lettered ? std::fabs(v) : v, symbols](int digits) {
                return text(prefix + exponentText(v, digits, symbols));
            };
        }
        value->setShortForm(shortForm);
        ZelFrame* unit = m_units[static_cast<std::size_t>(row)];
        unit->setCaption(text(cell.unit));
        unit->setTextColor(colour);
        unit->setToolTip(text(cell.unit));
        value->setToolTip(value->fit().shortened || value->fit().wrapped ? text(cell.caption)
                                                                         : text(cell.unit));
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
        act([this] { m_menu.Form_Activate(); });
    } else if (e->type() == QEvent::WindowActivate) {
        const bool ownDialog = m_interaction && m_interaction->takeDialogClosed();
        if (!ownDialog && !std::exchange(m_skipActivation, false)) {
            act([this] { m_menu.Form_Activate(); });
        }
    } else if (e->type() == QEvent::Close) {
        m_menu.Form_QueryUnload();
    }
    return QWidget::event(e);
}

} // namespace zel
