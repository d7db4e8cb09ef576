// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "ui/sheetprinter.h"

#include "ui/chartpainter.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace zel {
namespace {

QString text(const std::string& s) {
    return QString::fromStdString(s);
}

/// A font of `points` points as the device measures them.
QFont font(qreal points, bool bold = false) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setStyleHint(QFont::SansSerif);
    f.setPointSizeF(points);
    f.setBold(bold);
    return f;
}

} // namespace

void paintSheet(QPainter& p, QPagedPaintDevice& device, const balance::PrintedSheet& sheet) {
    const QRectF page(QPointF(0, 0), QSizeF(device.width(), device.height()));
    const qreal mm = device.logicalDpiY() / 25.4; // device pixels to a millimetre
    const QColor ink(Qt::black);
    const QColor holds(0x1b, 0x6e, 0x2e);
    const QColor fails(0xb0, 0x1c, 0x1c);
    qreal y = 0;
    auto write = [&](const QString& line, const QFont& f, const QRectF& box, int flags,
                     const QColor& colour = Qt::black) {
        p.setFont(f);
        p.setPen(colour);
        p.drawText(box, flags, line);
    };
    auto heightOf = [&](const QString& line, const QFont& f, qreal width) {
        return QFontMetricsF(f, &device)
            .boundingRect(QRectF(0, 0, width, page.height()), Qt::TextWordWrap, line)
            .height();
    };

    // The title, and the facts: filled in, or a line to write on.
    const QFont title = font(16, true);
    write(text(sheet.title), title, QRectF(0, y, page.width(), 9 * mm), Qt::AlignLeft);
    y += 10 * mm;
    const QFont fact = font(10);
    const qreal half = page.width() / 2;
    for (std::size_t i = 0; i < sheet.facts.size(); ++i) {
        const auto& [label, value] = sheet.facts[i];
        const qreal x = (i % 2) * half;
        const QString caption = text(label) + QStringLiteral(": ");
        const qreal captionWidth = QFontMetricsF(fact, &device).horizontalAdvance(caption);
        write(caption, fact, QRectF(x, y, half, 7 * mm), Qt::AlignLeft | Qt::AlignBottom);
        if (value.empty()) {
            p.setPen(QPen(ink, 0.2 * mm));
            p.drawLine(QPointF(x + captionWidth, y + 6.5 * mm),
                       QPointF(x + half - 6 * mm, y + 6.5 * mm));
        } else {
            write(text(value), font(10, true),
                  QRectF(x + captionWidth, y, half - captionWidth, 7 * mm),
                  Qt::AlignLeft | Qt::AlignBottom);
        }
        if (i % 2 == 1 || i + 1 == sheet.facts.size()) {
            y += 8 * mm;
        }
    }
    y += 3 * mm;

    // The table: names on the left, figures on the right of their columns.
    const QFont cell = font(9);
    const QFont bold = font(9, true);
    const qreal rowHeight = QFontMetricsF(cell, &device).height() * 1.25;
    const qreal columns[] = {0, 0.30, 0.43, 0.56, 0.70};
    for (std::size_t r = 0; r < sheet.rows.size(); ++r) {
        const balance::SheetRow& row = sheet.rows[r];
        const bool heading = r == 0;
        const QFont& f = heading || row.total ? bold : cell;
        const QColor colour = row.flagged ? fails : ink;
        // A heading stands on two lines: "Moment" over its unit; a long note
        // (the fuel, its burn) wraps in its column, every digit of it shown.
        const qreal restWidth = page.width() * (1 - columns[4]) - 3 * mm;
        const qreal h = std::max(heading ? 2 * rowHeight : rowHeight,
                                 heightOf(text(row.rest), f, restWidth) + rowHeight * 0.25);
        auto shown = [heading](const std::string& s) {
            QString t = text(s);
            if (heading) {
                const auto blank = t.indexOf(QLatin1Char(' '));
                if (blank > 0) {
                    t[blank] = QLatin1Char('\n');
                }
            }
            return t;
        };
        write(shown(row.cells[0]), f, QRectF(0, y, page.width() * columns[1], h),
              Qt::AlignLeft | Qt::AlignBottom, colour);
        for (int k = 1; k < 4; ++k) {
            write(shown(row.cells[static_cast<std::size_t>(k)]), f,
                  QRectF(page.width() * columns[k - 1] + 2 * mm, y,
                         page.width() * (columns[k] - columns[k - 1]) - 2 * mm, h),
                  Qt::AlignRight | Qt::AlignBottom, colour);
        }
        write(text(row.rest), f, QRectF(page.width() * columns[4] + 3 * mm, y, restWidth, h),
              Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, colour);
        y += h;
        if (heading) {
            p.setPen(QPen(ink, 0.2 * mm));
            p.drawLine(QPointF(0, y), QPointF(page.width(), y));
        }
    }
    y += 3 * mm;

    // The verdict: a word in large type and its colour, then the sentence.
    const QColor colour = sheet.verdict.holds ? holds : fails;
    const QFont word = font(20, true);
    const QFont sentence = font(11);
    const qreal wordHeight = QFontMetricsF(word, &device).height();
    const qreal sentenceHeight =
        heightOf(text(sheet.verdict.text), sentence, page.width() - 6 * mm);
    const QRectF box(0, y, page.width(), wordHeight + sentenceHeight + 5 * mm);
    p.setPen(QPen(colour, 0.6 * mm));
    p.setBrush(Qt::NoBrush);
    p.drawRect(box);
    write(text(sheet.verdictWord), word,
          QRectF(3 * mm, y + 2 * mm, page.width() - 6 * mm, wordHeight),
          Qt::AlignLeft | Qt::AlignVCenter, colour);
    write(text(sheet.verdict.text), sentence,
          QRectF(3 * mm, y + 2 * mm + wordHeight, page.width() - 6 * mm, sentenceHeight),
          Qt::TextWordWrap, ink);
    y += box.height() + 3 * mm;

    // The limits, each with its mark.
    const QFont small = font(8);
    for (const balance::LimitLine& limit : sheet.limits) {
        const QString line = (limit.holds ? QStringLiteral("\u2713 ") : QStringLiteral("\u2717 ")) +
                             text(limit.text);
        const qreal h = heightOf(line, small, page.width());
        write(line, small, QRectF(0, y, page.width(), h), Qt::TextWordWrap,
              limit.holds ? ink : fails);
        y += h;
    }
    if (!sheet.helper.empty()) {
        const qreal h = heightOf(text(sheet.helper), small, page.width());
        write(text(sheet.helper), small, QRectF(0, y + 1 * mm, page.width(), h), Qt::TextWordWrap);
        y += h + 1 * mm;
    }

    // The signature lines and the source at the foot; the chart in between.
    const QFont foot = font(6.5);
    const qreal sourceHeight =
        sheet.source.empty() ? 0 : heightOf(text(sheet.source), foot, page.width());
    const qreal signatures = 16 * mm;
    const qreal footTop = page.height() - sourceHeight - signatures;
    if (sheet.chart) {
        const qreal room = footTop - y - 4 * mm;
        const qreal height = std::min(room, page.width() * 0.55);
        if (height > 30 * mm) {
            drawChart(p, QRectF(0, y + 2 * mm, page.width(), height), *sheet.chart,
                      chartColours(false), 1.0, device.logicalDpiY() / 96.0);
        }
    }
    const qreal width =
        page.width() / static_cast<qreal>(std::max<std::size_t>(sheet.signatures.size(), 1));
    for (std::size_t i = 0; i < sheet.signatures.size(); ++i) {
        const qreal x = static_cast<qreal>(i) * width;
        p.setPen(QPen(ink, 0.2 * mm));
        p.drawLine(QPointF(x, footTop + 9 * mm), QPointF(x + width - 8 * mm, footTop + 9 * mm));
        write(text(sheet.signatures[i]) + QStringLiteral(", signature"), font(8),
              QRectF(x, footTop + 10 * mm, width - 8 * mm, 5 * mm), Qt::AlignLeft);
    }
    if (!sheet.source.empty()) {
        write(text(sheet.source), foot,
              QRectF(0, page.height() - sourceHeight, page.width(), sourceHeight), Qt::TextWordWrap,
              QColor(0x55, 0x55, 0x55));
    }
}

std::optional<std::string> writeSheetPdf(const balance::PrintedSheet& sheet, const QString& path,
                                         bool letter) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return "cannot write " + path.toStdString() + ": " + file.errorString().toStdString();
    }
    QPdfWriter pdf(&file);
    pdf.setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::A4));
    pdf.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    pdf.setResolution(300);
    pdf.setTitle(text(sheet.title));
    pdf.setCreator(QStringLiteral("zelFLIGHTAB"));
    QPainter painter(&pdf);
    paintSheet(painter, pdf, sheet);
    painter.end();
    file.close();
    if (file.error() != QFileDevice::NoError) {
        return "cannot write " + path.toStdString() + ": " + file.errorString().toStdString();
    }
    return std::nullopt;
}

} // namespace zel
