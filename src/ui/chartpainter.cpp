// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/chartpainter.h"

#include <QPainter>
#include <QPainterPath>

namespace zel {
namespace {

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

const ChartColours Day{QColor(0, 69, 125), QColor(0xc8, 0xd3, 0xdd), QColor(0x3b, 0x6e, 0xa5),
                       QColor(0x1b, 0x7f, 0x3b), QColor(0xc6, 0x28, 0x28)};
const ChartColours Night{QColor(0xa9, 0xbc, 0xcc), QColor(0x33, 0x41, 0x4d),
                         QColor(0x7f, 0xa6, 0xcc), QColor(0x5f, 0xbf, 0x7f),
                         QColor(0xff, 0x6b, 0x6b)};

} // namespace

const ChartColours& chartColours(bool night) {
    return night ? Night : Day;
}

void drawChart(QPainter& p, const QRectF& area, const balance::Chart& chart,
               const ChartColours& colours, qreal textScale, qreal scale) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QFont font = p.font();
    font.setPointSizeF(7 * textScale);
    p.setFont(font);
    const QFontMetricsF metrics(font, p.device());
    // Room for the weight labels on the left and the CG labels below.
    qreal labelWidth = 0;
    for (const auto& tick : chart.weight.ticks) {
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(text(tick.label)));
    }
    const QRectF plot = area.adjusted(labelWidth + 6 * scale, metrics.height() + 4 * scale,
                                      -6 * scale, -2 * metrics.height() - 6 * scale);
    auto x = [&](double arm) {
        return plot.left() + (arm - chart.cg.low) / (chart.cg.high - chart.cg.low) * plot.width();
    };
    auto y = [&](double weight) {
        return plot.bottom() -
               (weight - chart.weight.low) / (chart.weight.high - chart.weight.low) * plot.height();
    };
    auto point = [&](const balance::Mass& m) { return QPointF(x(m.arm), y(m.weight)); };

    // The grid at the round ticks, with their labels.
    p.setPen(QPen(colours.grid, scale));
    for (const auto& tick : chart.cg.ticks) {
        p.drawLine(QPointF(x(tick.value), plot.top()), QPointF(x(tick.value), plot.bottom()));
    }
    for (const auto& tick : chart.weight.ticks) {
        p.drawLine(QPointF(plot.left(), y(tick.value)), QPointF(plot.right(), y(tick.value)));
    }
    p.setPen(colours.text);
    for (const auto& tick : chart.cg.ticks) {
        const QString label = text(tick.label);
        const qreal w = metrics.horizontalAdvance(label);
        p.drawText(QPointF(x(tick.value) - w / 2, plot.bottom() + metrics.ascent() + 2 * scale),
                   label);
    }
    for (const auto& tick : chart.weight.ticks) {
        const QString label = text(tick.label);
        p.drawText(QPointF(plot.left() - metrics.horizontalAdvance(label) - 4 * scale,
                           y(tick.value) + metrics.ascent() / 2 - scale),
                   label);
    }
    p.drawText(QRectF(plot.left(), plot.bottom() + metrics.height() + 3 * scale, plot.width(),
                      metrics.height()),
               Qt::AlignHCenter, text(chart.cg.title));
    p.drawText(QRectF(area.left(), area.top(), area.width(), metrics.height()), Qt::AlignLeft,
               text(chart.weight.title));

    // The envelopes: the first filled lightly, each outlined and named.
    for (std::size_t i = 0; i < chart.envelopes.size(); ++i) {
        const auto& envelope = chart.envelopes[i];
        QPainterPath path;
        for (std::size_t k = 0; k < envelope.points.size(); ++k) {
            k == 0 ? path.moveTo(point(envelope.points[k]))
                   : path.lineTo(point(envelope.points[k]));
        }
        path.closeSubpath();
        QColor fill = colours.envelope;
        fill.setAlpha(i == 0 ? 40 : 0);
        p.fillPath(path, fill);
        p.setPen(QPen(colours.envelope, (i == 0 ? 1.6 : 1.0) * scale,
                      i == 0 ? Qt::SolidLine : Qt::DashLine));
        p.drawPath(path);
        const QRectF box = path.boundingRect();
        p.setPen(colours.envelope);
        p.drawText(QRectF(box.left() + 3 * scale, box.top() + 2 * scale + i * metrics.height(),
                          box.width(), metrics.height()),
                   Qt::AlignRight, text(envelope.name));
    }
    // The burn line, then the three points on it.
    for (const auto& line : chart.lines) {
        QPainterPath path;
        for (std::size_t k = 0; k < line.points.size(); ++k) {
            k == 0 ? path.moveTo(point(line.points[k])) : path.lineTo(point(line.points[k]));
        }
        p.setPen(QPen(line.inside ? colours.inside : colours.outside, 2 * scale));
        p.drawPath(path);
    }
    for (const auto& mark : chart.marks) {
        const QColor colour = mark.inside ? colours.inside : colours.outside;
        p.setPen(QPen(colour, 1.5 * scale));
        p.setBrush(mark.inside ? colour : Qt::white);
        const QPointF at = point(mark.at);
        p.drawEllipse(at, 3.5 * scale, 3.5 * scale);
        p.setBrush(Qt::NoBrush);
        p.drawText(at + QPointF(6 * scale, metrics.ascent() / 2 - scale),
                   text(mark.name.substr(0, 1))); // T, L, Z
    }
    p.restore();
}

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Envelope chart"));
}

void ChartWidget::setChart(const balance::Chart& chart, bool night, qreal scale) {
    m_chart = chart;
    m_night = night;
    m_scale = scale;
    setAccessibleDescription(text(chart.description));
    setToolTip(text(chart.description));
    update();
}

void ChartWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    drawChart(p, QRectF(rect()).adjusted(2, 2, -2, -2), m_chart, chartColours(m_night), m_scale,
              m_scale);
    if (hasFocus()) {
        p.setPen(QPen(QColor(255, 190, 0), 2 * m_scale));
        p.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

} // namespace zel
