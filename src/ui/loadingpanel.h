// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"

#include <QScrollArea>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QLabel;
class QPrinter;
class QPushButton;
class QVBoxLayout;

namespace zel {

class ChartWidget;

/// The Weight & Balance page below the calculator: the aircraft and its
/// profiles, the loading sheet (each cell the user gives is a button that
/// takes the typed number), the limits, the chart and the helpers, or the
/// profile editor while it is open. It is built from the view and decides
/// nothing; files and the printer are the face's own.
class LoadingPanel : public QScrollArea {
    Q_OBJECT
  public:
    using Act = std::function<void(const std::function<void()>&)>;
    LoadingPanel(Menu& menu, Act act, QWidget* parent = nullptr);
    ~LoadingPanel() override;

    /// Draws the page as the view has it; what has not changed is left as it is.
    void render(const balance::LoadingView& view, bool night, qreal zoom);
    /// The controls Tab moves over, in order.
    std::vector<QWidget*> focusChain() const;

    /// Imports the profile file at `path`; false when it cannot be read.
    bool importFile(const QString& path);
    /// Writes the aircraft shown as a profile file, whole or not at all.
    bool exportFile(const QString& path);
    /// The loading sheet and its chart, dated, on one page.
    void print(QPrinter& printer);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// Wide enough for the table and the chart side by side.
    bool wide() const;
    void rebuild();
    void buildSheet(QVBoxLayout* layout);
    void buildHelpers(QVBoxLayout* layout);
    void buildEditor(QVBoxLayout* layout);
    QPushButton* cellButton(const balance::LoadingCell& cell, Qt::Alignment alignment);
    QLabel* label(const std::string& text, bool bold = false, bool wrap = false);
    void chooseFile(bool import);
    void printSheet();

    Menu& m_menu;
    Act m_act;
    balance::LoadingView m_view;
    std::unique_ptr<QPrinter> m_printer; ///< the printer the open print box sets up
    bool m_built = false;                ///< the widgets show m_view
    bool m_night = false;
    qreal m_zoom = 1;
    QWidget* m_content = nullptr;
    ChartWidget* m_chart = nullptr;
    /// Where the chart goes when the panel is wide: beside the table.
    QVBoxLayout* m_beside = nullptr;
    bool m_wide = false; ///< the layout the widgets were built for
    std::vector<QWidget*> m_chain;
};

} // namespace zel
