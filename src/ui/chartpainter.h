// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "balance/chart.h"

#include <QColor>
#include <QRectF>
#include <QWidget>

class QPainter;

namespace zel {

/// The colours a chart is drawn in: its text and lines, the envelopes, and
/// what tells a loading inside (green) from one outside (red).
struct ChartColours {
    QColor text;
    QColor grid;
    QColor envelope;
    QColor inside;
    QColor outside;
};
const ChartColours& chartColours(bool night);

/// Draws the chart into `area`: its data units mapped to the pixels, nothing
/// else decided here. Its text is `textScale` times its size on a window at
/// 100 % (the zoom; 1 on paper, where points are points), its lines
/// `lineScale` pixels to a pixel of such a window.
void drawChart(QPainter& painter, const QRectF& area, const balance::Chart& chart,
               const ChartColours& colours, qreal textScale, qreal lineScale);

/// The envelope chart on the window: one stop for the keyboard, its text
/// for a screen reader.
class ChartWidget : public QWidget {
    Q_OBJECT
  public:
    explicit ChartWidget(QWidget* parent = nullptr);
    void setChart(const balance::Chart& chart, bool night, qreal scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    balance::Chart m_chart;
    bool m_night = false;
    qreal m_scale = 1;
};

} // namespace zel
