// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/zelframe.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace zel {

ZelFrame::ZelFrame(const Style& style, QWidget* parent) : QWidget(parent), m_style(style) {
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::NoFocus);
}

void ZelFrame::setStyle(const Style& style) {
    m_style = style;
    update();
}

void ZelFrame::setCaption(const QString& caption) {
    if (caption != m_caption) {
        m_caption = caption;
        update();
        if (QAccessible::isActive()) {
            QAccessibleEvent changed(this, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&changed);
        }
    }
}

void ZelFrame::setAccessibleValue(const QString& value) {
    if (value != m_value) {
        m_value = value;
        if (QAccessible::isActive()) {
            QAccessibleValueChangeEvent changed(this, value);
            QAccessible::updateAccessibility(&changed);
        }
    }
}

void ZelFrame::setTextColor(const QColor& color) {
    if (color != m_style.text) {
        m_style.text = color;
        update();
    }
}

void ZelFrame::setPointSize(qreal points) {
    if (points != m_pointSize) {
        m_pointSize = points;
        update();
    }
}

void ZelFrame::setScale(qreal scale) {
    m_scale = scale;
    update();
}

void ZelFrame::setAlignment(Qt::Alignment alignment) {
    m_alignment = alignment;
    update();
}

void ZelFrame::setBold(bool bold) {
    m_bold = bold;
    update();
}

void ZelFrame::setIcon(const QPixmap& icon) {
    m_icon = icon;
    update();
}

void ZelFrame::setIconBeside(bool beside) {
    m_iconBeside = beside;
    update();
}

void ZelFrame::setCornerCaption(const QString& caption) {
    m_corner = caption;
    update();
}

void ZelFrame::setHighlighted(bool on) {
    m_highlighted = on;
    update();
}

void ZelFrame::setShortForm(ShortForm shortForm) {
    m_shortForm = std::move(shortForm);
    update();
}

void ZelFrame::setShowEnd(bool showEnd) {
    m_showEnd = showEnd;
    update();
}

void ZelFrame::setLines(std::vector<QRectF> lines) {
    m_lines = std::move(lines);
    update();
}

void ZelFrame::setLineColor(const QColor& color) {
    m_lineColor = color;
    update();
}

void ZelFrame::press() {
    emit clicked(QPoint(width() / 2, height() / 4));
}

void ZelFrame::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ZelFrame::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

QRectF ZelFrame::textArea() const {
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -1.5, -1.5);
    QRectF text = area.adjusted(6 * m_scale, 2 * m_scale, -6 * m_scale, -2 * m_scale);
    if (!m_icon.isNull()) {
        const qreal side = m_icon.width() / m_icon.devicePixelRatio();
        if (m_iconBeside) {
            text.setLeft(area.left() + 4 * m_scale + side + 3 * m_scale);
            text.setRight(area.right() - 2 * m_scale);
        } else {
            text.setTop(area.top() + area.height() * 0.16 + side + m_scale);
        }
    }
    return text;
}

ZelFrame::Fit ZelFrame::fit() const {
    const qreal width = textArea().width();
    QFont font = this->font();
    font.setBold(m_bold);
    auto fits = [&](const QString& text, qreal points) {
        font.setPointSizeF(points * m_scale);
        return QFontMetricsF(font).horizontalAdvance(text) <= width;
    };
    // Smaller first, half a point at a time; a text shown by its end (a typed
    // report) keeps its size, so that it stays readable, and shows its end.
    const qreal smallest = m_showEnd ? m_pointSize : std::min(m_pointSize, SmallestPoints);
    for (qreal points = m_pointSize; points >= smallest; points -= 0.5) {
        if (fits(m_caption, points)) {
            return {m_caption, points};
        }
    }
    if (m_shortForm) {
        // As many digits as fit at the smallest size, then as large as they fit.
        for (int digits = 15; digits >= 1; --digits) {
            if (const QString text = m_shortForm(digits); fits(text, smallest)) {
                qreal points = m_pointSize;
                while (points > smallest && !fits(text, points)) {
                    points -= 0.5;
                }
                return {text, points, true};
            }
        }
    }
    if (m_showEnd) {
        font.setPointSizeF(smallest * m_scale);
        return {QFontMetricsF(font).elidedText(m_caption, Qt::ElideLeft, width), smallest, true};
    }
    return {m_caption, smallest, false, true};
}

QPixmap ZelFrame::face() const {
    QColor top = m_style.top;
    QColor bottom = m_style.bottom;
    if (m_pressed || m_highlighted) {
        std::swap(top, bottom);
        top = top.lighter(m_highlighted ? 160 : 110);
    }
    // Faces of one look and size are drawn once: the page buttons share theirs.
    const qreal ratio = devicePixelRatioF();
    const QString key = QStringLiteral("zelframe %1x%2 %3 %4 %5 %6 %7 %8 %9")
                            .arg(width())
                            .arg(height())
                            .arg(ratio)
                            .arg(m_scale)
                            .arg(top.rgba())
                            .arg(bottom.rgba())
                            .arg(m_style.border.isValid() ? m_style.border.rgba() : 0)
                            .arg(m_style.radius)
                            .arg(m_style.shadow);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) {
        return pixmap;
    }
    pixmap = QPixmap(size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -1.5, -1.5);
    const qreal r = m_style.radius * m_scale;
    if (m_style.shadow) {
        QPainterPath shadow;
        shadow.addRoundedRect(area.translated(m_scale, 1.2 * m_scale), r, r);
        p.fillPath(shadow, QColor(0, 0, 0, 55));
    }
    QPainterPath outline;
    outline.addRoundedRect(area, r, r);
    QLinearGradient fill(area.topLeft(), area.bottomLeft());
    fill.setColorAt(0, top);
    fill.setColorAt(1, bottom);
    p.fillPath(outline, fill);
    if (m_style.border.isValid()) {
        p.setPen(QPen(m_style.border, m_scale));
        p.drawPath(outline);
    }
    p.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

void ZelFrame::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -1.5, -1.5);
    const qreal r = m_style.radius * m_scale;
    const bool bare = m_style.top.alpha() == 0 && m_style.bottom.alpha() == 0 &&
                      !m_style.border.isValid() && !m_style.shadow && !m_highlighted;
    if (!bare) {
        p.drawPixmap(0, 0, face());
    }
    p.setRenderHint(QPainter::Antialiasing);
    for (const QRectF& line : m_lines) {
        p.fillRect(QRectF(line.topLeft() * m_scale, line.size() * m_scale), m_lineColor);
    }
    if (hasFocus()) {
        // The keyboard's place: amber inside a dark line, so that it shows on
        // the light sheet, the dark keys and the amber band of the input row.
        QPainterPath ring;
        const qreal inner = std::max<qreal>(r - m_scale, 2);
        ring.addRoundedRect(area.adjusted(m_scale, m_scale, -m_scale, -m_scale), inner, inner);
        p.setPen(QPen(QColor(0x20, 0x28, 0x30), 4 * m_scale));
        p.drawPath(ring);
        p.setPen(QPen(QColor(255, 190, 0), 2 * m_scale));
        p.drawPath(ring);
    }

    const QRectF text = textArea();
    if (!m_icon.isNull()) {
        const qreal side = m_icon.width() / m_icon.devicePixelRatio();
        // Beside the caption the icon stands in the top left corner, with
        // the corner caption (the F-key) under it.
        p.drawPixmap(m_iconBeside
                         ? QPointF(area.left() + 4 * m_scale, m_corner.isEmpty()
                                                                  ? area.center().y() - side / 2
                                                                  : area.top() + 3 * m_scale)
                         : QPointF(area.center().x() - side / 2, area.top() + area.height() * 0.16),
                     m_icon);
    }
    const Fit shown = fit();
    QFont font = this->font();
    font.setPointSizeF(shown.points * m_scale);
    font.setBold(m_bold);
    p.setFont(font);
    p.setPen(m_style.text);
    const Qt::Alignment vertical =
        m_icon.isNull() || m_iconBeside ? Qt::AlignVCenter : Qt::AlignTop;
    p.drawText(text,
               static_cast<int>(m_alignment | vertical) | (shown.wrapped ? Qt::TextWordWrap : 0),
               shown.text);
    if (!m_corner.isEmpty()) {
        QFont small = this->font();
        small.setPointSizeF(6.5 * m_scale);
        p.setFont(small);
        p.setPen(QColor(255, 190, 0, 200));
        if (m_iconBeside) {
            p.drawText(area.adjusted(4 * m_scale, 0, 0, -1 * m_scale),
                       Qt::AlignBottom | Qt::AlignLeft, m_corner);
        } else {
            p.drawText(area.adjusted(3 * m_scale, 2 * m_scale, -5 * m_scale, 0),
                       Qt::AlignTop | Qt::AlignRight, m_corner);
        }
    }
}

void ZelFrame::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_pressed = true;
        update();
    } else {
        event->ignore();
    }
}

void ZelFrame::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) {
        event->ignore();
        return;
    }
    m_pressed = false;
    update();
    if (rect().contains(event->position().toPoint())) {
        emit clicked(event->position().toPoint());
    }
}

namespace {

/// A frame as a screen reader sees it.
class FrameAccessible : public QAccessibleWidget {
  public:
    explicit FrameAccessible(ZelFrame* frame) : QAccessibleWidget(frame, frame->accessibleRole()) {}

    QString text(QAccessible::Text t) const override {
        const auto* frame = static_cast<const ZelFrame*>(widget());
        if (t == QAccessible::Name) {
            return frame->accessibleName().isEmpty() ? frame->caption() : frame->accessibleName();
        }
        if (t == QAccessible::Value) {
            return frame->accessibleValue();
        }
        return QAccessibleWidget::text(t);
    }
    QAccessible::Role role() const override {
        return static_cast<const ZelFrame*>(widget())->accessibleRole();
    }
};

QAccessibleInterface* frameFactory(const QString& className, QObject* object) {
    if (object == nullptr || !object->isWidgetType()) {
        return nullptr;
    }
    if (className == QLatin1String("zel::ZelFrame")) {
        return new FrameAccessible(static_cast<ZelFrame*>(object));
    }
    if (className == QLatin1String("zel::MenuWindow")) {
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
    }
    return nullptr;
}

} // namespace

void installFrameAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(frameFactory);
        return true;
    }();
    (void)installed;
}

} // namespace zel
