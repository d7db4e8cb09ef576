// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The smallest Qt Widgets program, the yardstick for the window's start-up: it
// shows one label and saves its first frame, as zelflightab --screenshot does.
// The label is as large as zelFLIGHTAB's window at 100 % (its width and height
// follow the picture's name), so that both save pictures of the same size.
#include <QApplication>
#include <QLabel>

#include <cstdlib>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QLabel label(QStringLiteral("zelFLIGHTAB"));
    label.resize(argc > 3 ? std::atoi(argv[2]) : 295, argc > 3 ? std::atoi(argv[3]) : 535);
    label.show();
    return argc > 1 && label.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
