// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/menu.h"

#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

namespace zel {

/// The text front end's dialogs: every message, question, input box, beep and
/// busy pointer is printed as a line; questions and input boxes take answers
/// queued beforehand ("answer yes", "answer text MXN").
class ConsoleInteraction : public Interaction {
  public:
    explicit ConsoleInteraction(std::ostream& out) : m_out(out) {}

    void beep() override;
    void message(MessageIcon icon, std::string_view title, std::string_view text) override;
    void ask(const Request& request, Then<const Answer&> then) override;
    void setBusy(bool busy) override;
    void quit() override;

    /// An answer written in the script ("answer yes", "answer text MXN").
    struct Scripted {
        enum class Kind { Yes, No, Cancel, Text } kind;
        std::string text;
    };
    void queue(Scripted answer) { m_answers.push_back(std::move(answer)); }
    bool quitting() const { return m_quit; }

  private:
    std::optional<Scripted> nextAnswer();

    std::ostream& m_out;
    std::deque<Scripted> m_answers;
    bool m_quit = false;
};

/// Runs console commands against a Menu, one line at a time.
class ConsoleSession {
  public:
    ConsoleSession(Menu& menu, ConsoleInteraction& interaction, std::ostream& out)
        : m_menu(menu), m_interaction(interaction), m_out(out) {}

    /// Start-up, as the window does it: Form_Load, then Form_Activate.
    void start();
    /// Runs one line; the reason when the line cannot be read.
    std::optional<std::string> run(const std::string& line);
    bool finished() const { return m_interaction.quitting(); }
    const Menu& menu() const { return m_menu; }

    /// Prints the window's state, as the "show" command does.
    static void show(const Menu& menu, std::ostream& out);
    /// Prints the display and its size in points, as "show display" does.
    static void showDisplay(const Menu& menu, std::ostream& out);
    /// Prints one row as "show" does: row N "unit" "caption" size input|normal.
    static void showRow(const Menu& menu, int row, std::ostream& out);

  private:
    Menu& m_menu;
    ConsoleInteraction& m_interaction;
    std::ostream& m_out;
};

/// A text in double quotes, with \" \\ \r \n escaped.
std::string quoted(std::string_view text);

/// One conversion as a user makes it: opens PAGE (a number or a name, any
/// case), types VALUE (regional form) and clicks ROW (a number, or the unit's
/// short form after " - ": "lbs", "kt", "°C"). The reason when it cannot.
std::optional<std::string> convertOnce(Menu& menu, std::string_view page, std::string_view row,
                                       std::string_view value);

struct Options;

/// What the terminal's ways need of the machine they run on: the platform
/// pieces around the console's own dialogs, and a wait that lets the transfers
/// Menu started end, so that a script goes on when their replies are in.
struct ConsoleMachine {
    std::function<Platform(Interaction&)> platform;
    std::function<void(const Menu&)> waitForTransfers;
};

/// What the command line answers without a calculator (an error, --help,
/// --pages, --version): its exit status, having printed it; nothing otherwise.
std::optional<int> answerAtOnce(const Options& options);

/// `zelflightab --console [FILE]`: runs the commands of FILE (or standard
/// input); the process exit status.
int runConsole(const Options& options, const ConsoleMachine& machine);
/// `zelflightab --convert PAGE ROW VALUE`: prints the page's eight rows.
int runConvert(const Options& options, const ConsoleMachine& machine);

} // namespace zel
