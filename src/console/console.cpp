// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "console/console.h"

#include "app/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <variant>
#include <vector>

namespace zel {
namespace {

/// The operator keys as the console writes them: the divide key's two faces
/// are a dot between blanks, as in a plain-text listing.
constexpr std::array<std::string_view, OperatorCount> OperatorSymbols{"",  "+",   "-",
                                                                      "x", " . ", " . "};

/// A whole number in [low, high], or nothing.
std::optional<int> number(std::string_view text, int low, int high) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < low || value > high) {
        return std::nullopt;
    }
    return value;
}

std::optional<Key> keyNamed(std::string_view name) {
    if (name == "enter") {
        return Key::Enter;
    }
    if (name == "escape") {
        return Key::Escape;
    }
    if (name.size() >= 2 && name[0] == 'f') {
        if (const auto n = number(name.substr(1), 1, 12)) {
            return functionKey(*n);
        }
    }
    return std::nullopt;
}

/// The row a unit names: its symbol ("lbs" of "pound - lbs"), or its name
/// where it has none; exact first, then in any case.
std::variant<int, std::string> findRow(const Menu& menu, std::string_view text) {
    const View view = menu.view();
    if (const auto n = number(text, 1, PageSheet::Rows)) {
        if (!view.rows[static_cast<std::size_t>(*n - 1)].exists && !view.report) {
            return "row " + std::to_string(*n) + " is not used on " + view.title;
        }
        return *n;
    }
    for (const bool exact : {true, false}) {
        std::vector<int> rows;
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            const RowView& shown = view.rows[static_cast<std::size_t>(row - 1)];
            const std::string& symbol = shown.symbol.empty() ? shown.name : shown.symbol;
            if (shown.exists && (exact ? symbol == text : foldedName(symbol) == foldedName(text))) {
                rows.push_back(row);
            }
        }
        if (rows.size() == 1) {
            return rows.front();
        }
        if (rows.size() > 1) {
            return "row " + std::string(text) + " is ambiguous on " + view.title +
                   ": give its number";
        }
    }
    return "no row " + std::string(text) + " on " + view.title;
}

} // namespace

std::optional<std::string> convertOnce(Menu& menu, std::string_view page, std::string_view row,
                                       std::string_view value) {
    if (!menu.openPage(page)) {
        return "unknown page: " + std::string(page) + " (a number from 1 to " +
               std::to_string(menu.pages().count()) + ", or a page name)";
    }
    const auto rowNumber = findRow(menu, row);
    if (const auto* error = std::get_if<std::string>(&rowNumber)) {
        return *error;
    }
    const bool text = menu.page()->isText();
    const Symbols& symbols = menu.symbols();
    const auto number = readRegional(value, symbols);
    if (!text && !number) {
        return "not a number: " + std::string(value);
    }
    for (std::size_t at = 0; at < value.size();) {
        const std::size_t start = at;
        const char32_t c = nextCharacter(value, at);
        if (value.substr(start, at - start) != symbols.grouping) {
            menu.type(c);
        }
    }
    if (!text && menu.scratchPad().inputValue() != *number) {
        return "cannot type " + std::string(value) + ": write it with digits and " +
               symbols.decimal + " only";
    }
    menu.clickRow(std::get<int>(rowNumber));
    return std::nullopt;
}

std::string quotedText(std::string_view text) {
    std::string out = "\"";
    for (char c : text) {
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\n':
            out += "\\n";
            break;
        default:
            out += c;
        }
    }
    return out + "\"";
}

void ConsoleInteraction::beep() {
    m_out << "beep\n";
}

std::string joined(const std::vector<std::string>& paragraphs) {
    std::string text;
    for (const std::string& paragraph : paragraphs) {
        text += (text.empty() ? "" : "\r\r") + paragraph;
    }
    return text;
}

std::optional<ConsoleInteraction::Scripted> ConsoleInteraction::nextAnswer() {
    if (m_answers.empty()) {
        return std::nullopt;
    }
    Scripted answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

void ConsoleInteraction::open(const Request& request) {
    // The script's answers were queued before the command that asks, so the
    // answer is at hand: it is given at once, in the order the boxes open.
    const std::string text = joined(request.paragraphs);
    Answer answer;
    switch (request.kind) {
    case Request::Kind::Message:
        m_out << "message " << messageIconName(request.icon) << ' ' << quotedText(request.title)
              << ' ' << quotedText(text) << '\n';
        break;
    case Request::Kind::Question: {
        const auto queued = nextAnswer();
        answer.yes = queued && queued->kind == Scripted::Kind::Yes;
        m_out << "question " << quotedText(request.title) << ' ' << quotedText(text) << " -> "
              << (answer.yes ? "yes" : "no") << '\n';
        break;
    }
    case Request::Kind::Input: {
        const auto queued = nextAnswer();
        m_out << "input " << quotedText(request.title) << ' ' << quotedText(text) << " -> ";
        if (queued && queued->kind == Scripted::Kind::Text) {
            m_out << quotedText(queued->text) << '\n';
            answer.text = queued->text;
        } else {
            m_out << "cancel\n";
        }
        break;
    }
    }
    if (m_answer) {
        m_answer(request.id, answer);
    }
}

void ConsoleInteraction::setBusy(bool busy) {
    m_out << (busy ? "busy on\n" : "busy off\n");
}

void ConsoleInteraction::quit() {
    m_out << "quit\n";
    m_quit = true;
}

ConsoleSession::ConsoleSession(Menu& menu, ConsoleInteraction& interaction, std::ostream& out)
    : m_menu(menu), m_interaction(interaction), m_out(out) {
    m_interaction.answerWith(
        [&menu](int request, const Answer& answer) { menu.answer(request, answer); });
}

void ConsoleSession::start() {
    m_menu.start();
    m_menu.activate();
}

std::optional<std::string> ConsoleSession::run(const std::string& rawLine) {
    std::string_view line = rawLine;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    if (line.empty() || line.front() == '#') {
        return std::nullopt;
    }
    const auto space = line.find(' ');
    const std::string_view command = line.substr(0, space);
    const std::string_view argument =
        space == std::string_view::npos ? std::string_view{} : line.substr(space + 1);
    auto needs = [&](int low, int high, auto&& handler) -> std::optional<std::string> {
        const auto n = number(argument, low, high);
        if (!n) {
            return std::string(command) + " takes a number from " + std::to_string(low) + " to " +
                   std::to_string(high);
        }
        handler(*n);
        return std::nullopt;
    };
    auto bare = [&](auto&& handler) -> std::optional<std::string> {
        if (!argument.empty() || space != std::string_view::npos) {
            return std::string(command) + " takes no argument";
        }
        handler();
        return std::nullopt;
    };

    if (command == "page") {
        // A number, or a page's name.
        if (m_menu.pages().find(argument) == nullptr) {
            return "page takes a number from 1 to " + std::to_string(m_menu.pages().count()) +
                   " or a page's name";
        }
        m_menu.openPage(argument);
        return std::nullopt;
    }
    if (command == "row") {
        // On the Weight & Balance page the rows are the sheet's cells.
        int rows = PageSheet::Rows;
        if (const View view = m_menu.view(); view.loading) {
            rows = std::max(1, view.loading->target.entry);
        }
        return needs(1, rows, [&](int n) { m_menu.clickRow(n); });
    }
    if (command == "op") {
        return needs(0, OperatorCount - 1,
                     [&](int n) { m_menu.pressOperator(static_cast<Operator>(n)); });
    }
    if (command == "mem") {
        return needs(0, 2, [&](int n) { m_menu.pressMemory(static_cast<MemoryKey>(n)); });
    }
    if (command == "type") {
        if (space == std::string_view::npos) {
            return std::string("type needs the text to type");
        }
        for (std::size_t at = 0; at < argument.size() && !finished();) {
            m_menu.type(nextCharacter(argument, at));
        }
        return std::nullopt;
    }
    if (command == "paste") {
        // The clipboard's text, with \n and \r for its line breaks.
        std::string text;
        for (std::size_t at = 0; at < argument.size(); ++at) {
            const std::string_view escape = argument.substr(at, 2);
            if (escape == "\\n" || escape == "\\r") {
                text += escape == "\\n" ? '\n' : '\r';
                ++at;
            } else {
                text += argument[at];
            }
        }
        m_menu.paste(text);
        return std::nullopt;
    }
    if (command == "key") {
        if (argument != "backspace") {
            return std::string("key takes backspace");
        }
        m_menu.keyDown({.key = Key::Backspace});
        return std::nullopt;
    }
    if (command == "keyup") {
        const auto key = keyNamed(argument);
        if (!key) {
            return std::string("keyup takes enter, escape or f1 to f12");
        }
        m_menu.keyUp({.key = *key});
        return std::nullopt;
    }
    if (command == "answer") {
        using Kind = ConsoleInteraction::Scripted::Kind;
        if (argument == "yes" || argument == "no" || argument == "cancel") {
            const Kind kind = argument == "yes"  ? Kind::Yes
                              : argument == "no" ? Kind::No
                                                 : Kind::Cancel;
            m_interaction.queue({kind, {}});
            return std::nullopt;
        }
        if (argument.starts_with("text ")) {
            m_interaction.queue({Kind::Text, std::string(argument.substr(5))});
            return std::nullopt;
        }
        return std::string("answer takes yes, no, cancel or text TEXT");
    }
    if (command == "menu") {
        return bare([&] { m_menu.goBack(); });
    }
    if (command == "digits") {
        return bare([&] { m_menu.pressDigits(); });
    }
    if (command == "clear") {
        return bare([&] { m_menu.clear(); });
    }
    if (command == "activate") {
        return bare([&] { m_menu.activate(); });
    }
    if (command == "show") {
        // The whole window, or one part of it: the display, the rows, one row.
        const View view = m_menu.view();
        if (argument.empty() && space == std::string_view::npos) {
            show(view, m_out);
        } else if (argument == "display") {
            showDisplay(view, m_out);
        } else if (argument == "hint") {
            // What to know about typing into the input row, or why a value was refused.
            m_out << "hint " << quotedText(view.hint) << '\n';
        } else if (argument == "note") {
            // What the page says of its results.
            m_out << "note " << quotedText(view.note) << '\n';
        } else if (argument == "sheet" && view.loading) {
            m_out << view.loading->sheet;
        } else if (argument == "rows") {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                showRow(view, row, m_out);
            }
        } else if (const auto row = argument.starts_with("row ")
                                        ? number(argument.substr(4), 1, PageSheet::Rows)
                                        : std::nullopt) {
            showRow(view, *row, m_out);
        } else {
            return std::string("show takes nothing, display, hint, note, sheet, rows or row N");
        }
        return std::nullopt;
    }
    if (command == "tags") {
        return bare([&] {
            const View view = m_menu.view();
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                m_out << "tag " << row << ' '
                      << quotedText(view.rows[static_cast<std::size_t>(row - 1)].full) << '\n';
            }
        });
    }
    if (auto outcome = runLoadingCommand(m_menu, command, argument)) {
        return *outcome;
    }
    return "unknown command: " + std::string(command);
}

void ConsoleSession::show(const View& view, std::ostream& out) {
    out << "face " << (view.face == Face::Page ? "page" : "menu") << '\n';
    out << "title " << quotedText(view.title) << '\n';
    showDisplay(view, out);
    out << "digits " << quotedText(view.digits) << '\n';
    out << "panels" << (view.panels ? " memory digits operators" : "") << '\n';
    out << "mem";
    for (const KeyView& key : view.memory) {
        out << ' ' << quotedText(key.caption) << (key.lit ? "*" : "");
    }
    out << "\nops";
    for (std::size_t key = 1; key < OperatorSymbols.size(); ++key) {
        out << ' ' << quotedText(OperatorSymbols[key]) << (view.operators[key].lit ? "*" : "");
    }
    out << '\n';
    if (view.loading) {
        showLoading(*view.loading, out);
        return;
    }
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        showRow(view, row, out);
    }
    if (!view.note.empty()) {
        out << "note " << quotedText(view.note) << '\n';
    }
}

void ConsoleSession::showRow(const View& view, int row, std::ostream& out) {
    const RowView& shown = view.rows.at(static_cast<std::size_t>(row - 1));
    out << "row " << row << ' ' << quotedText(shown.unit) << ' ' << quotedText(shown.value) << ' '
        << shown.emphasis << ' '
        << (shown.input   ? "input"
            : shown.given ? "given"
                          : "normal")
        << '\n';
}

void ConsoleSession::showDisplay(const View& view, std::ostream& out) {
    out << "display " << quotedText(view.display) << ' ' << view.displayEmphasis << '\n';
}

std::optional<int> answerAtOnce(const Options& options) {
    if (!options.error.empty()) {
        std::cerr << "error: " << options.error << "\nTry 'zelflightab --help'.\n";
        return 2;
    }
    if (options.help) {
        std::cout << usage();
    } else if (options.pages) {
        std::cout << pageList();
    } else if (options.version) {
        std::cout << versionText() << '\n';
    } else {
        return std::nullopt;
    }
    return 0;
}

int runConsole(const Options& options, const ConsoleMachine& machine) {
    std::ifstream file;
    if (options.file) {
        file.open(*options.file);
        if (!file) {
            std::cerr << "error: cannot read " << *options.file << '\n';
            return 2;
        }
    }
    std::istream& in = options.file ? static_cast<std::istream&>(file) : std::cin;
    ConsoleInteraction interaction(std::cout);
    Platform platform = machine.platform(interaction);
    Menu menu(platform);
    ConsoleSession session(menu, interaction, std::cout);
    session.start();
    if (options.aircraft) {
        if (const auto error = importAircraft(menu, *options.aircraft)) {
            std::cout.flush();
            std::cerr << "error: " << *error << '\n';
            return 2;
        }
    }
    std::string line;
    for (int number = 1; !session.finished() && std::getline(in, line); ++number) {
        const auto error = session.run(line);
        machine.waitForTransfers(menu);
        if (error) {
            std::cout.flush();
            std::cerr << "error: line " << number << ": " << *error << '\n';
            return 2;
        }
    }
    return 0;
}

int runConvert(const Options& options, const ConsoleMachine& machine) {
    ConsoleInteraction interaction(std::cout);
    Platform platform = machine.platform(interaction);
    Menu menu(platform);
    ConsoleSession(menu, interaction, std::cout).start();
    const auto error =
        convertOnce(menu, options.convert.at(0), options.convert.at(1), options.convert.at(2));
    machine.waitForTransfers(menu);
    if (error) {
        std::cout.flush();
        std::cerr << "error: " << *error << '\n';
        return 2;
    }
    const View view = menu.view();
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        ConsoleSession::showRow(view, row, std::cout);
    }
    return 0;
}

} // namespace zel
