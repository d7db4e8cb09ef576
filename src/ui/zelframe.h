// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <functional>

namespace zel {

/// A rounded, gradient-filled panel or key face with an optional caption,
/// icon and corner caption: every panel and key of the window is one.
class ZelFrame : public QWidget {
    Q_OBJECT
  public:
    struct Style {
        QColor top;
        QColor bottom;
        QColor border;
        QColor text;
        qreal radius = 6;
        bool shadow = true;
    };

    ZelFrame(const Style& style, QWidget* parent = nullptr);

    void setCaption(const QString& caption);
    QString caption() const { return m_caption; }
    void setTextColor(const QColor& color);
    QColor textColor() const { return m_style.text; }
    void setPointSize(qreal points);
    qreal pointSize() const { return m_pointSize; }
    void setAlignment(Qt::Alignment alignment);
    void setBold(bool bold);
    void setIcon(const QPixmap& icon);
    /// A small caption drawn in the top right corner (the F-key of a page button).
    void setCornerCaption(const QString& caption);
    QString cornerCaption() const { return m_corner; }
    /// Draws the face lit for a moment, as a flash for the bell.
    void setHighlighted(bool on);

    /// What a caption too long for the face is drawn as, given how many
    /// significant digits fit: an exponent form such as "2.204999999E+17".
    using ShortForm = std::function<QString(int digits)>;
    void setShortForm(ShortForm shortForm);
    /// A text too long for the face shows its end (a report being typed).
    void setShowEnd(bool showEnd);
    /// The caption as it is drawn: smaller, down to the smallest size that is
    /// still read at a glance, then in its short form, so that no digit is
    /// cut off. A text caption that still does not fit wraps onto two lines.
    struct Fit {
        QString text;
        qreal points = 0;
        bool shortened = false; ///< not the caption as it stands
        bool wrapped = false;
    };
    Fit fit() const;
    /// The smallest size a caption is drawn at before it is shortened.
    static constexpr qreal SmallestPoints = 7;

    /// Presses the face as a click on its upper half would.
    void press();

  signals:
    /// A click, with where it landed (the divide key has two faces).
    void clicked(QPoint position);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QRectF textArea() const;

    Style m_style;
    QString m_caption;
    QString m_corner;
    QPixmap m_icon;
    ShortForm m_shortForm;
    bool m_showEnd = false;
    qreal m_pointSize = 9;
    bool m_bold = false;
    bool m_pressed = false;
    bool m_highlighted = false;
    Qt::Alignment m_alignment = Qt::AlignCenter;
};

} // namespace zel
