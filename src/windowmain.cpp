// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The window module: Qt Widgets and Svg, loaded by zelflightab only to open
// the window or to draw a picture of it.
#include "app/options.h"
#include "console/qtmachine.h"
#include "platform/sharedplatform.h"
#include "ui/menuwindow.h"
#include "ui/qtinteraction.h"
#include "ui/sheetprinter.h"

#include <QApplication>

#include <fstream>
#include <iostream>

namespace {

/// --zoom and --palette, when given.
void applyLook(zel::MenuWindow& window, const zel::Options& options) {
    if (options.zoom) {
        window.setZoom(std::stod(*options.zoom) / 100);
    }
    if (options.palette) {
        window.setNight(*options.palette == "night");
    }
}

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
    // A picture shows the window as it starts, whatever the user's window did.
    zel::MenuWindow window(menu, nullptr, {}, false);
    applyLook(window, options);
    zel::ConsoleSession session(menu, interaction, std::cout);
    session.start();
    std::string line;
    for (int number = 1; !session.finished() && std::getline(file, line); ++number) {
        const auto error = session.run(line);
        zel::waitForTransfers(menu);
        if (error) {
            std::cerr << "error: line " << number << ": " << *error << '\n';
            return 2;
        }
    }
    window.render();
    // Quality 80 is zlib's fastest level: a third of the time of the default,
    // for a file a little larger.
    if (options.screenshot &&
        !window.grab().save(QString::fromStdString(*options.screenshot), "PNG", 80)) {
        std::cerr << "error: cannot write " << *options.screenshot << '\n';
        return 2;
    }
    return 0;
}

int runWindow(zel::SharedPlatform& shared, const zel::Options& options) {
    // Answers and transfers end later, as events of the window.
    zel::MenuWindow* target = nullptr;
    const zel::Dispatch dispatch = [&target](const std::function<void()>& handler) {
        if (target != nullptr) {
            target->dispatch(handler);
        }
    };
    zel::QtInteraction interaction;
    zel::DispatchedNetwork network(shared.network, dispatch);
    zel::Platform platform{interaction, shared.regional, shared.storage, network, shared.clock};
    zel::Menu menu(platform);
    zel::MenuWindow window(menu, &interaction);
    target = &window;
    applyLook(window, options);
    interaction.setParent(&window);
    interaction.setDispatch(dispatch);
    interaction.setAnswer(
        [&menu](int request, const zel::Answer& answer) { menu.answer(request, answer); });
    interaction.setFlash([&window] { window.flash(); });
    window.show();
    return QApplication::exec();
}

} // namespace

extern "C" Q_DECL_EXPORT int zelflightab_window_main(int argc, char** argv) {
    const zel::Options options = zel::parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    QApplication application(argc, argv);
    const auto shared = zel::startPlatform(options);
    if (!shared) {
        return 2;
    }
    return options.script ? runScript(*shared, options) : runWindow(*shared, options);
}

extern "C" Q_DECL_EXPORT int zelflightab_loadsheet_pdf(int argc, char** argv) {
    const zel::Options options = zel::parseOptions(std::vector<std::string>(argv + 1, argv + argc));
    // A PDF needs no screen: without one, Qt draws offscreen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const auto shared = zel::startPlatform(options);
    if (!shared) {
        return 2;
    }
    const zel::ConsoleMachine machine = zel::consoleMachine(*shared);
    const QString path = QString::fromStdString(*options.pdf);
    const bool letter = options.paper == "letter";
    return zel::runLoadsheet(options, machine, [&](const zel::balance::PrintedSheet& sheet) {
        return zel::writeSheetPdf(sheet, path, letter);
    });
}
