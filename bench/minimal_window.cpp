// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The smallest Qt Widgets window, the yardstick for start-up: it ends at its
// first painted frame when ZEL_EXIT_AFTER_FIRST_FRAME is set.
#include <QApplication>
#include <QPaintEvent>
#include <QTimer>
#include <QWidget>

class Minimal : public QWidget {
  protected:
    void paintEvent(QPaintEvent*) override {
        if (qEnvironmentVariableIsSet("ZEL_EXIT_AFTER_FIRST_FRAME")) {
            QTimer::singleShot(0, qApp, &QApplication::quit);
        }
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    Minimal window;
    window.resize(295, 413);
    window.show();
    return QApplication::exec();
}
