// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "console/qtmachine.h"

#include "app/options.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <iostream>

namespace zel {

std::unique_ptr<SharedPlatform> startPlatform(const Options& options) {
    QCoreApplication::setApplicationName(QStringLiteral("zelFLIGHTAB"));
    QCoreApplication::setApplicationVersion(QString::fromStdString(versionText()));
    std::string error;
    auto shared = makeSharedPlatform({options.locale, options.symbols, options.folder}, error);
    if (!shared) {
        std::cerr << "error: " << error << '\n';
    }
    return shared;
}

void waitForTransfers(const Menu& menu) {
    while (menu.busy()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

ConsoleMachine consoleMachine(SharedPlatform& shared) {
    return {[&shared](Interaction& ui) { return shared.with(ui); }, waitForTransfers};
}

} // namespace zel
