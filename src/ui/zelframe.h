// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <QAccessible>
#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <functional>
#include <vector>

namespace zel {

/// A rounded, gradient-filled panel or key face with an optional caption,
/// icon and corner caption: every panel, key and cell of the window is one.
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

    void setStyle(const Style& style);
    void setCaption(const QString& caption);
    QString caption() const { return m_caption; }
    void setTextColor(const QColor& color);
    QColor textColor() const { return m_style.text; }
    /// The caption's size at 100 % zoom.
    void setPointSize(qreal points);
    /// The zoom: sizes, corners and captions are drawn this many times larger.
    void setScale(qreal scale);
    void setAlignment(Qt::Alignment alignment);
    void setBold(bool bold);
    void setIcon(const QPixmap& icon);
    /// The icon drawn left of the caption instead of above it.
    void setIconBeside(bool beside);
    /// A small caption drawn in the top right corner (the F-key of a page button).
    void setCornerCaption(const QString& caption);
    QString cornerCaption() const { return m_corner; }
    /// Draws the face lit for a moment, as a flash for the bell.
    void setHighlighted(bool on);
    bool highlighted() const { return m_highlighted; }

    /// What a caption too long for the face is drawn as, given how many
    /// significant digits fit: an exponent form such as "2.205E+17".
    using ShortForm = std::function<QString(int digits)>;
    void setShortForm(ShortForm shortForm);
    /// A text too long for the face shows its end (a report being typed).
    void setShowEnd(bool showEnd);
    /// The caption as it is drawn: smaller, down to the smallest size that is
    /// still read at a glance, then in its short form, so that no digit is
    /// cut off. A text caption that still does not fit wraps onto two lines.
    struct Fit {
        QString text;
        qreal points = 0;       ///< at 100 % zoom
        bool shortened = false; ///< not the caption as it stands
        bool wrapped = false;
    };
    Fit fit() const;
    /// The smallest size a caption is drawn at before it is shortened.
    static constexpr qreal SmallestPoints = 7;

    /// Thin lines drawn on the face (the separators of the rows), at 100 %.
    void setLines(std::vector<QRectF> lines);
    void setLineColor(const QColor& color);

    /// Presses the face as a click on its upper half would.
    void press();

    /// What a screen reader says of the face: its role, and its value (the
    /// number a value cell or the display shows). The name is the
    /// accessible name, or else the caption.
    void setAccessibleRole(QAccessible::Role role) { m_role = role; }
    QAccessible::Role accessibleRole() const { return m_role; }
    void setAccessibleValue(const QString& value);
    QString accessibleValue() const { return m_value; }

  signals:
    /// A click, with where it landed (the divide key has two faces).
    void clicked(QPoint position);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QRectF textArea() const;
    /// The rounded, gradient-filled face, without caption.
    QPixmap face() const;

    Style m_style;
    QString m_caption;
    QString m_corner;
    QPixmap m_icon;
    ShortForm m_shortForm;
    bool m_showEnd = false;
    bool m_iconBeside = false;
    qreal m_pointSize = 9;
    qreal m_scale = 1;
    bool m_bold = false;
    bool m_pressed = false;
    bool m_highlighted = false;
    Qt::Alignment m_alignment = Qt::AlignCenter;
    QAccessible::Role m_role = QAccessible::Pane;
    QString m_value;
    std::vector<QRectF> m_lines;
    QColor m_lineColor;
};

/// Lets screen readers see every ZelFrame with its own role, name and value,
/// and the main window as a window.
void installFrameAccessibility();

} // namespace zel
