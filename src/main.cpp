// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/options.h"
#include "console/console.h"
#include "platform/sharedplatform.h"
#include "ui/menuwindow.h"
#include "ui/qtinteraction.h"

#include <QApplication>

#include <cstring>
#include <fstream>
#include <iostream>

namespace {

/// `--script FILE --screenshot OUT.png`: console commands against the real
/// window, then a picture of it. Dialogs are printed as the console prints them.
int runScript(zel::SharedPlatform& shared, const zel::Options& options) {
    std::ifstream file(*options.script);
    if (!file) {
        std::cerr << "error: cannot read " << *options.script << '\n';
        return 2;
    }
    zel::ConsoleInteraction interaction(std::cout);
    zel::Platform platform = shared.with(interaction);
    zel::Menu menu(platform);
    zel::MenuWindow window(menu);
    zel::ConsoleSession session(menu, interaction, std::cout);
    session.start();
    std::string line;
    for (int number = 1; !session.finished() && std::getline(file, line); ++number) {
        if (const auto error = session.run(line)) {
            std::cerr << "error: line " << number << ": " << *error << '\n';
            return 2;
        }
    }
    window.render();
    if (options.screenshot && !window.grab().save(QString::fromStdString(*options.screenshot))) {
        std::cerr << "error: cannot write " << *options.screenshot << '\n';
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--console") == 0) {
            return zel::runConsole(argc, argv);
        }
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zelFLIGHTAB"));
    const zel::Options options = zel::parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (!options.error.empty()) {
        std::cerr << "error: " << options.error << '\n';
        return 2;
    }
    std::optional<zel::Symbols> replacement;
    if (options.symbols && !(replacement = zel::symbolsFromPair(*options.symbols))) {
        std::cerr
            << "error: --symbols takes two characters, the decimal then the grouping symbol\n";
        return 2;
    }
    zel::SharedPlatform shared{zel::QtRegional(options.locale, replacement),
                               zel::QtStorage(zel::QtStorage::locateProgramFolder(options.folder)),
                               {},
                               {}};
    if (options.script) {
        return runScript(shared, options);
    }
    zel::QtInteraction interaction;
    zel::Platform platform = shared.with(interaction);
    zel::Menu menu(platform);
    zel::MenuWindow window(menu, &interaction);
    interaction.setParent(&window);
    interaction.setFlash([&window] { window.flash(); });
    window.show();
    return QApplication::exec();
}
