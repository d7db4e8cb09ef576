// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Build tool: draws each page icon (SVG) at the sizes the window uses at 100 %
// and on a screen of twice the pixel density, as raw masks (one byte of
// coverage per pixel) for the window's resources, so that opening the window
// copies bytes instead of drawing SVG. Other sizes are drawn from the SVG when
// they are needed.
//
// Usage: zel_bake_icons OUTPUT_DIR QRC_FILE SIZE,... ICON.svg...
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc < 5) {
        std::fprintf(stderr, "usage: zel_bake_icons OUTPUT_DIR QRC_FILE SIZE,... ICON.svg...\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QStringList sizes = QString::fromLocal8Bit(argv[3]).split(',');
    QString qrc = QStringLiteral("<RCC>\n  <qresource prefix=\"/baked\">\n");
    for (int i = 4; i < argc; ++i) {
        const QString svg = QString::fromLocal8Bit(argv[i]);
        QSvgRenderer renderer(svg);
        if (!renderer.isValid()) {
            std::fprintf(stderr, "not an SVG: %s\n", argv[i]);
            return 1;
        }
        for (const QString& size : sizes) {
            const int side = size.toInt();
            QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            renderer.render(&painter);
            painter.end();
            const QImage mask = image.convertToFormat(QImage::Format_Alpha8);
            const QString name = QFileInfo(svg).baseName() + "_" + size + ".mask";
            QFile out(folder + "/" + name);
            if (!out.open(QIODevice::WriteOnly)) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(name));
                return 1;
            }
            for (int y = 0; y < side; ++y) {
                out.write(reinterpret_cast<const char*>(mask.constScanLine(y)), side);
            }
            qrc += QStringLiteral("    <file>%1</file>\n").arg(name);
        }
    }
    qrc += QStringLiteral("  </qresource>\n</RCC>\n");
    QFile file(QString::fromLocal8Bit(argv[2]));
    if (!file.open(QIODevice::WriteOnly) || file.write(qrc.toUtf8()) < 0) {
        return 1;
    }
    return 0;
}
