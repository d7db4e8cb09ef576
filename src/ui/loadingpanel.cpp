// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/loadingpanel.h"

#include "ui/chartpainter.h"
#include "ui/sheetprinter.h"
#include "ui/windowstyle.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QVBoxLayout>

#include <sstream>

namespace zel {
namespace {

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

/// A cell of the sheet: a button as wide as its figure, not as a dialog's
/// push buttons are, so that four columns fit a phone-wide panel.
class CellButton : public QPushButton {
  public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override {
        const QFontMetrics metrics(font());
        return {metrics.horizontalAdvance(text()) + 8, metrics.height() + 4};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace

LoadingPanel::LoadingPanel(Menu& menu, Act act, QWidget* parent)
    : QScrollArea(parent), m_menu(menu), m_act(std::move(act)) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // Should a sheet still be wider than the window, it scrolls: no figure is ever cut off.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(QStringLiteral("Loading sheet"));
    // The control the keyboard moves to is scrolled into view.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && m_content != nullptr && m_content->isAncestorOf(now)) {
            ensureWidgetVisible(now, 8, 24);
        }
    });
}

void LoadingPanel::render(const balance::LoadingView& view, bool night, qreal zoom) {
    // The widgets are built again only when what they show changes, so that
    // the focus and a field being typed in stay put.
    const bool same = m_built && view == m_view && night == m_night && zoom == m_zoom;
    m_view = view;
    m_night = night;
    m_zoom = zoom;
    if (!same) {
        m_built = true;
        rebuild();
    }
}

std::vector<QWidget*> LoadingPanel::focusChain() const {
    return m_chain;
}

QLabel* LoadingPanel::label(const std::string& s, bool bold, bool wrap) {
    auto* l = new QLabel(text(s));
    QFont font = l->font();
    font.setBold(bold);
    l->setFont(font);
    l->setWordWrap(wrap);
    l->setTextFormat(Qt::PlainText);
    return l;
}

QPushButton* LoadingPanel::cellButton(const balance::LoadingCell& cell, Qt::Alignment alignment) {
    auto* button = new CellButton(text(cell.text.empty() ? std::string("    ") : cell.text));
    button->setObjectName(QStringLiteral("entry-%1").arg(cell.entry));
    button->setProperty("cell", true);
    button->setProperty("input", cell.input);
    button->setFocusPolicy(Qt::TabFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setAccessibleName(text(cell.name));
    button->setAccessibleDescription(cell.text.empty() ? QStringLiteral("empty") : text(cell.text));
    button->setToolTip(text(cell.name) + QStringLiteral(": type a number and click"));
    button->setStyleSheet(alignment & Qt::AlignRight ? QStringLiteral("text-align: right;")
                                                     : QStringLiteral("text-align: left;"));
    const int entry = cell.entry;
    connect(button, &QPushButton::clicked, this,
            [this, entry] { m_act([this, entry] { m_menu.clickRow(entry); }); });
    m_chain.push_back(button);
    return button;
}

void LoadingPanel::rebuild() {
    // The keyboard's place and the scroll position outlive the rebuild.
    const QString focused = focusWidget() != nullptr && isAncestorOf(focusWidget())
                                ? focusWidget()->objectName()
                                : QString();
    const int scrolled = verticalScrollBar()->value();
    m_chain.clear();
    m_content = new QWidget;
    m_content->setObjectName(QStringLiteral("loading"));
    const TextColours& colours = textColours(m_night);
    const ChartColours& chart = chartColours(m_night);
    const QString band = m_night ? QStringLiteral("#3d3318") : QStringLiteral("#fff3d1");
    m_content->setStyleSheet(
        QStringLiteral("#loading { background: transparent; }"
                       "QLabel { color: %1; }"
                       "QLabel[flag=\"true\"] { color: %2; }"
                       "QLabel[holds=\"true\"] { color: %3; }"
                       "QPushButton[cell=\"true\"] { color: %1; background: transparent;"
                       " border: none; border-bottom: 1px solid %4; padding: 1px 2px; }"
                       "QPushButton[cell=\"true\"][input=\"true\"] { background: %5; }"
                       "QPushButton[cell=\"true\"]:focus { border: 2px solid #ffbe00; }")
            .arg(colours.row.name(), chart.outside.name(), chart.inside.name(), colours.line.name(),
                 band));
    QFont font = m_content->font();
    font.setPointSizeF(8 * m_zoom);
    m_content->setFont(font);
    // Wide, the sheet keeps a width to read across and the chart takes the
    // rest beside it; narrow, the chart follows the limits.
    m_wide = wide() && !m_view.editor;
    m_beside = nullptr;
    auto* outer = new QHBoxLayout(m_content);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(qRound(4 * m_zoom), qRound(4 * m_zoom), qRound(4 * m_zoom),
                               qRound(6 * m_zoom));
    layout->setSpacing(qRound(4 * m_zoom));
    if (!m_wide) {
        outer->addLayout(layout, 1);
    } else {
        auto* left = new QWidget;
        left->setLayout(layout);
        left->setMaximumWidth(qRound(430 * m_zoom));
        outer->addWidget(left, 0, Qt::AlignTop);
        m_beside = new QVBoxLayout;
        m_beside->setContentsMargins(qRound(8 * m_zoom), qRound(4 * m_zoom), qRound(4 * m_zoom),
                                     qRound(6 * m_zoom));
        outer->addLayout(m_beside, 1);
    }
    if (m_view.editor) {
        buildEditor(layout);
    } else {
        buildSheet(layout);
    }
    layout->addStretch(1);
    if (m_beside != nullptr) {
        m_beside->addStretch(1);
    }
    // The old widgets go when the event that rebuilt them has ended: one of
    // them may be what sent it (an aircraft chosen from its list).
    if (QWidget* old = takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    setWidget(m_content);
    verticalScrollBar()->setValue(scrolled);
    if (!focused.isEmpty()) {
        if (auto* again = m_content->findChild<QWidget*>(focused)) {
            again->setFocus(Qt::OtherFocusReason);
        }
    }
}

void LoadingPanel::buildSheet(QVBoxLayout* layout) {
    // The aircraft, and what can be done with its profile.
    auto* top = new QHBoxLayout;
    auto* aircraft = new QComboBox;
    aircraft->setObjectName(QStringLiteral("aircraft"));
    aircraft->setAccessibleName(QStringLiteral("Aircraft"));
    aircraft->setFocusPolicy(Qt::TabFocus);
    // As narrow as the panel: a long name shows in full in the list.
    aircraft->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    aircraft->setMinimumContentsLength(8);
    for (const auto& p : m_view.profiles) {
        aircraft->addItem(text(p.name) +
                          (p.shipped ? QStringLiteral(" (as it ships)") : QString()));
    }
    aircraft->setCurrentIndex(m_view.chosen);
    connect(aircraft, &QComboBox::activated, this,
            [this](int index) { m_act([this, index] { m_menu.chooseAircraft(index); }); });
    m_chain.push_back(aircraft);
    top->addWidget(aircraft, 1);
    auto* profiles = new QPushButton(QStringLiteral("Profiles"));
    profiles->setObjectName(QStringLiteral("profiles"));
    profiles->setFocusPolicy(Qt::TabFocus);
    auto* menu = new QMenu(profiles);
    auto item = [&](const QString& caption, bool enabled, const std::function<void()>& does) {
        QAction* action = menu->addAction(caption);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, does);
    };
    item(QStringLiteral("New"), true, [this] { m_act([this] { m_menu.newProfile(); }); });
    item(QStringLiteral("Duplicate"), true,
         [this] { m_act([this] { m_menu.duplicateProfile(); }); });
    item(QStringLiteral("Edit"), true, [this] { m_act([this] { m_menu.editProfile(); }); });
    item(QStringLiteral("Rename"), m_view.canRename,
         [this] { m_act([this] { m_menu.renameProfile(); }); });
    item(QStringLiteral("Delete"), m_view.canDelete,
         [this] { m_act([this] { m_menu.deleteProfile(); }); });
    menu->addSeparator();
    item(QStringLiteral("Import..."), true, [this] { chooseFile(true); });
    item(QStringLiteral("Export..."), !m_view.aircraft.empty(), [this] { chooseFile(false); });
    item(QStringLiteral("Print..."), !m_view.sheet.empty(), [this] { printSheet(); });
    profiles->setMenu(menu);
    m_chain.push_back(profiles);
    top->addWidget(profiles);
    // The loadings saved by name: recall one, save the one shown, delete one.
    auto* loadings = new QPushButton(QStringLiteral("Loadings"));
    loadings->setObjectName(QStringLiteral("loadings"));
    loadings->setFocusPolicy(Qt::TabFocus);
    auto* kept = new QMenu(loadings);
    QAction* save = kept->addAction(QStringLiteral("Save as..."));
    connect(save, &QAction::triggered, this, [this] { m_act([this] { m_menu.saveLoading(); }); });
    if (!m_view.savedLoadings.empty()) {
        kept->addSeparator();
        QMenu* remove = nullptr;
        for (std::size_t i = 0; i < m_view.savedLoadings.size(); ++i) {
            const int index = static_cast<int>(i);
            QAction* recall = kept->addAction(text(m_view.savedLoadings[i]));
            connect(recall, &QAction::triggered, this,
                    [this, index] { m_act([this, index] { m_menu.recallLoading(index); }); });
        }
        kept->addSeparator();
        remove = kept->addMenu(QStringLiteral("Delete"));
        for (std::size_t i = 0; i < m_view.savedLoadings.size(); ++i) {
            const int index = static_cast<int>(i);
            QAction* gone = remove->addAction(text(m_view.savedLoadings[i]));
            connect(gone, &QAction::triggered, this,
                    [this, index] { m_act([this, index] { m_menu.deleteLoading(index); }); });
        }
    }
    loadings->setMenu(kept);
    m_chain.push_back(loadings);
    layout->addLayout(top);
    auto* second = new QHBoxLayout;
    second->addWidget(loadings);
    second->addStretch(1);
    layout->addLayout(second);
    if (!m_view.missing.empty()) {
        layout->addWidget(label(m_view.missing, false, true));
    }

    // The verdict first, above the sheet it sums up.
    if (!m_view.verdict.empty()) {
        QLabel* verdict = label(m_view.verdict, true, true);
        verdict->setProperty(m_view.withinLimits ? "holds" : "flag", true);
        verdict->setAccessibleName(text(m_view.verdict));
        layout->addWidget(verdict);
    }

    // The sheet: station (with its fuel quantity), weight, arm (a
    // condition's CG), moment; the units under the headings.
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(qRound(2 * m_zoom));
    grid->setVerticalSpacing(qRound(1 * m_zoom));
    const std::vector<std::pair<std::string, std::string>> headings{{"Station", ""},
                                                                    {"Weight", m_view.weightUnit},
                                                                    {"Arm", m_view.armUnit},
                                                                    {"Moment", m_view.momentUnit}};
    for (std::size_t c = 0; c < headings.size(); ++c) {
        QLabel* heading = label(headings[c].first, true);
        QLabel* unit = label(headings[c].second);
        for (QLabel* l : {heading, unit}) {
            l->setAlignment(c == 0 ? Qt::AlignLeft : Qt::AlignRight);
        }
        grid->addWidget(heading, 0, static_cast<int>(c));
        grid->addWidget(unit, 1, static_cast<int>(c));
    }
    int row = 2;
    for (const balance::LoadingLine& line : m_view.lines) {
        // A long station name wraps, so that the figures keep their width.
        QLabel* name = label(line.name, line.total, true);
        name->setProperty("flag", line.flagged);
        if (line.volume.entry > 0) {
            // Fuel is given as a quantity under its name, or as a weight.
            auto* both = new QWidget;
            auto* stack = new QVBoxLayout(both);
            stack->setContentsMargins(0, 0, 0, 0);
            stack->setSpacing(0);
            stack->addWidget(name);
            auto* quantity = new QHBoxLayout;
            quantity->addWidget(cellButton(line.volume, Qt::AlignRight), 1);
            quantity->addWidget(label(m_view.fuelUnit));
            stack->addLayout(quantity);
            grid->addWidget(both, row, 0);
        } else {
            grid->addWidget(name, row, 0);
        }
        auto value = [&](const balance::LoadingCell& cell, int column) {
            if (cell.entry > 0) {
                grid->addWidget(cellButton(cell, Qt::AlignRight), row, column);
            } else {
                QLabel* shown = label(cell.text, line.total);
                shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
                shown->setProperty("flag", line.flagged);
                grid->addWidget(shown, row, column);
            }
        };
        value(line.weight, 1);
        value(line.arm, 2);
        QLabel* moment = label(line.moment, line.total);
        moment->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(moment, row, 3);
        ++row;
        if (!line.mac.empty() || !line.note.empty()) {
            QLabel* more = label(line.note.empty() ? line.mac : line.note, false, true);
            more->setAlignment(Qt::AlignRight);
            more->setProperty("flag", line.flagged);
            grid->addWidget(more, row++, 0, 1, 4);
        }
    }
    grid->setColumnStretch(0, 1);
    layout->addLayout(grid);

    for (const balance::LimitLine& limit : m_view.limits) {
        QLabel* line = label((limit.holds ? "\u2713 " : "\u2717 ") + limit.text, false, true);
        line->setProperty(limit.holds ? "holds" : "flag", true);
        layout->addWidget(line);
    }
    if (m_view.chart) {
        m_chart = new ChartWidget;
        m_chart->setObjectName(QStringLiteral("chart"));
        m_chart->setMinimumHeight(qRound(210 * m_zoom));
        m_chart->setChart(*m_view.chart, m_night, m_zoom);
        m_chain.push_back(m_chart);
        if (m_beside != nullptr) {
            m_chart->setMinimumHeight(qRound(360 * m_zoom));
            m_beside->addWidget(m_chart);
        } else {
            layout->addWidget(m_chart);
        }
    }
    buildHelpers(layout);
    if (!m_view.source.empty()) {
        QLabel* source = label(m_view.source, false, true);
        QFont small = source->font();
        small.setPointSizeF(7 * m_zoom);
        source->setFont(small);
        layout->addWidget(source);
    }
}

void LoadingPanel::buildHelpers(QVBoxLayout* layout) {
    if (m_view.stations.empty()) {
        return;
    }
    layout->addWidget(label("Helpers", true));
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(label("Target CG - " + m_view.armUnit), cellButton(m_view.target, Qt::AlignRight));
    auto stations = [this](const QString& name, const QString& accessible, int chosen,
                           const std::function<void(int)>& choose) {
        auto* box = new QComboBox;
        box->setObjectName(name);
        box->setAccessibleName(accessible);
        box->setFocusPolicy(Qt::TabFocus);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(5);
        box->addItem(QStringLiteral("-"));
        for (const std::string& station : m_view.stations) {
            box->addItem(text(station));
        }
        box->setCurrentIndex(chosen);
        connect(box, &QComboBox::activated, this, choose);
        m_chain.push_back(box);
        return box;
    };
    form->addRow(label("Move weight from"),
                 stations(QStringLiteral("shift-from"), QStringLiteral("Move weight from"),
                          m_view.shiftFrom, [this](int from) {
                              m_act([this, from] { m_menu.chooseShift(from, m_view.shiftTo); });
                          }));
    form->addRow(label("to"),
                 stations(QStringLiteral("shift-to"), QStringLiteral("Move weight to"),
                          m_view.shiftTo, [this](int to) {
                              m_act([this, to] { m_menu.chooseShift(m_view.shiftFrom, to); });
                          }));
    if (!m_view.shift.empty()) {
        form->addRow(label(m_view.shift, true, true));
    }
    form->addRow(label("Ballast at"),
                 stations(QStringLiteral("ballast"), QStringLiteral("Ballast at"), m_view.ballastAt,
                          [this](int at) { m_act([this, at] { m_menu.chooseBallast(at); }); }));
    if (!m_view.ballast.empty()) {
        form->addRow(label(m_view.ballast, true, true));
    }
    layout->addLayout(form);
}

void LoadingPanel::buildEditor(QVBoxLayout* layout) {
    const balance::ProfileForm& form = *m_view.editor;
    layout->addWidget(label(form.title, true));
    auto field = [this](const balance::FormField& f) -> QWidget* {
        const std::string id = f.id;
        if (!f.choices.empty()) {
            auto* box = new QComboBox;
            box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            box->setMinimumContentsLength(4);
            for (const std::string& choice : f.choices) {
                box->addItem(text(choice));
            }
            box->setCurrentText(text(f.text));
            box->setObjectName(text("field-" + id));
            box->setAccessibleName(text(f.label));
            connect(box, &QComboBox::textActivated, this, [this, id](const QString& chosen) {
                m_act([this, id, chosen] { m_menu.editField(id, chosen.toStdString()); });
            });
            m_chain.push_back(box);
            return box;
        }
        auto* edit = new QLineEdit(text(f.text));
        edit->setCursorPosition(0); // a long text shows its start
        edit->setMinimumWidth(qRound(70 * m_zoom));
        edit->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        edit->setObjectName(text("field-" + id));
        edit->setAccessibleName(text(f.label));
        edit->setPlaceholderText(text(f.label));
        // Each keystroke is kept, and nothing is drawn again meanwhile.
        connect(edit, &QLineEdit::textEdited, this,
                [this, id](const QString& typed) { m_menu.editField(id, typed.toStdString()); });
        m_chain.push_back(edit);
        return edit;
    };
    auto button = [this](const balance::FormButton& b, const QString& name) {
        auto* push = new QPushButton(text(b.caption));
        push->setObjectName(name);
        push->setFocusPolicy(Qt::TabFocus);
        const balance::FormAction action = b.action;
        connect(push, &QPushButton::clicked, this,
                [this, action] { m_act([this, action] { m_menu.pressFormButton(action); }); });
        m_chain.push_back(push);
        return push;
    };
    int number = 0;
    for (const balance::FormSection& section : form.sections) {
        ++number;
        if (!section.title.empty()) {
            layout->addWidget(label(section.title, true));
        }
        if (!section.fields.empty()) {
            auto* fields = new QFormLayout;
            fields->setRowWrapPolicy(QFormLayout::WrapLongRows);
            for (const balance::FormField& f : section.fields) {
                fields->addRow(label(f.label), field(f));
            }
            layout->addLayout(fields);
        }
        if (section.columns.size() > 2) {
            // A table too wide for the panel: each of its rows as a small
            // form of its own, its headings as the labels.
            for (const balance::FormRow& row : section.rows) {
                auto* card = new QFormLayout;
                card->setRowWrapPolicy(QFormLayout::WrapLongRows);
                for (const balance::FormField& f : row.fields) {
                    card->addRow(label(f.label), field(f));
                }
                if (row.remove) {
                    card->addRow(button(*row.remove, text(row.fields.front().id + "-remove")));
                }
                layout->addLayout(card);
            }
        } else if (!section.rows.empty()) {
            auto* table = new QGridLayout;
            table->setHorizontalSpacing(qRound(2 * m_zoom));
            for (std::size_t c = 0; c < section.columns.size(); ++c) {
                QLabel* heading = label(section.columns[c], false, true);
                table->addWidget(heading, 0, static_cast<int>(c));
            }
            int r = 1;
            for (const balance::FormRow& row : section.rows) {
                int c = 0;
                for (const balance::FormField& f : row.fields) {
                    table->addWidget(field(f), r, c++);
                }
                if (row.remove) {
                    table->addWidget(button(*row.remove, text(row.fields.front().id + "-remove")),
                                     r, c);
                }
                ++r;
            }
            layout->addLayout(table);
        }
        auto* buttons = new QHBoxLayout;
        for (const balance::FormButton& b : section.buttons) {
            buttons->addWidget(
                button(b, QStringLiteral("section-%1-%2").arg(number).arg(text(b.caption))));
        }
        buttons->addStretch(1);
        layout->addLayout(buttons);
    }
    auto* end = new QHBoxLayout;
    for (const balance::FormButton& b : form.buttons) {
        end->addWidget(button(b, QStringLiteral("form-") + text(b.caption)));
    }
    end->addStretch(1);
    layout->addLayout(end);
}

bool LoadingPanel::importFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    m_act([this, &bytes] {
        m_menu.importProfile(
            std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    });
    return true;
}

bool LoadingPanel::exportFile(const QString& path) {
    QSaveFile file(path);
    const std::string json = m_menu.exportProfile();
    if (json.empty() || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(json.data(), static_cast<qint64>(json.size()));
    return file.commit();
}

void LoadingPanel::chooseFile(bool import) {
    const QString filter = QStringLiteral("Aircraft profiles (*.json);;All files (*)");
    if (import) {
        const QString path = QFileDialog::getOpenFileName(
            this, QStringLiteral("Import an aircraft profile"), {}, filter);
        if (!path.isEmpty() && !importFile(path)) {
            QMessageBox::warning(this, QStringLiteral("Weight & Balance"),
                                 QStringLiteral("%1 cannot be read.").arg(path));
        }
        return;
    }
    const QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Export the aircraft profile"), text(m_view.exportName), filter);
    if (!path.isEmpty() && !exportFile(path)) {
        QMessageBox::warning(this, QStringLiteral("Weight & Balance"),
                             QStringLiteral("%1 cannot be written.").arg(path));
    }
}

void LoadingPanel::print(QPrinter& printer) {
    if (!m_view.printed) {
        return;
    }
    QPainter p(&printer);
    paintSheet(p, printer, *m_view.printed);
}

LoadingPanel::~LoadingPanel() = default;

bool LoadingPanel::wide() const {
    return viewport()->width() >= qRound(700 * m_zoom);
}

void LoadingPanel::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (m_content != nullptr && wide() != m_wide && !m_view.editor) {
        rebuild();
    }
}

void LoadingPanel::printSheet() {
    // The box answers later, through its signal: the printer outlives this call.
    m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setDocName(text(m_view.heading));
    auto* dialog = new QPrintDialog(m_printer.get(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Print the loading sheet"));
    connect(dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), this,
            [this](QPrinter* printer) { print(*printer); });
    dialog->open();
}

} // namespace zel
