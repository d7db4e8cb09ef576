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
/// queued beforehand ("answer yes", "answer text MXN"), and every box is
/// answered as it opens.
class ConsoleInteraction : public Interaction {
  public:
    explicit ConsoleInteraction(std::ostream& out) : m_out(out) {}

    /// Where the answers go: the calculator's answer.
    void answerWith(std::function<void(int request, const Answer& answer)> answer) {
        m_answer = std::move(answer);
    }

    void beep() override;
    void open(const Request& request) override;
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
    std::function<void(int, const Answer&)> m_answer;
    std::deque<Scripted> m_answers;
    bool m_quit = false;
};

/// Runs console commands against a Menu, one line at a time.
class ConsoleSession {
  public:
    ConsoleSession(Menu& menu, ConsoleInteraction& interaction, std::ostream& out);

    /// Start-up, as the window does it: shown, then activated.
    void start();
    /// Runs one line; the reason when the line cannot be read.
    std::optional<std::string> run(const std::string& line);
    bool finished() const { return m_interaction.quitting(); }
    const Menu& menu() const { return m_menu; }

    /// Prints the window's state, as the "show" command does.
    static void show(const View& view, std::ostream& out);
    /// Prints the display and its emphasis, as "show display" does.
    static void showDisplay(const View& view, std::ostream& out);
    /// Prints one row as "show" does: row N "unit" "value" emphasis
    /// input|given|normal.
    static void showRow(const View& view, int row, std::ostream& out);

  private:
    Menu& m_menu;
    ConsoleInteraction& m_interaction;
    std::ostream& m_out;
};

/// A text in double quotes, with \" \\ \r \n escaped.
std::string quotedText(std::string_view text);
/// A box's paragraphs as one text, set apart by an empty line ("\r\r").
std::string joined(const std::vector<std::string>& paragraphs);

/// One conversion as a user makes it: opens PAGE (a number or a name, any
/// case), types VALUE (regional form) and clicks ROW (a number, or the unit's
/// symbol: "lbs", "kt", "°C"). The reason when it cannot.
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
/// Writes the printed sheet where --pdf asks; why it could not, or nothing.
using SheetPdf = std::function<std::optional<std::string>(const balance::PrintedSheet& sheet)>;
/// `zelflightab --loadsheet PROFILE.json [--load NAME=VALUE]...`: prints the
/// loading sheet, and with `pdf` writes it; 0 within limits, 1 out of
/// them, 2 for bad input.
int runLoadsheet(const Options& options, const ConsoleMachine& machine, const SheetPdf& pdf = {});

/// Imports the profile file at `path` as the user's own; the reason when it
/// cannot be read or is no profile.
std::optional<std::string> importAircraft(Menu& menu, const std::string& path);
/// Runs a command of the Weight & Balance page (aircraft, shift, ballast,
/// profile, field, form): nothing when `command` is none of them, else its
/// outcome (nothing, or the reason the line cannot be run).
std::optional<std::optional<std::string>> runLoadingCommand(Menu& menu, std::string_view command,
                                                            std::string_view argument);
/// Prints the Weight & Balance page as "show" does.
void showLoading(const balance::LoadingView& loading, std::ostream& out);

} // namespace zel
