// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "console/console.h"

#include "app/options.h"

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
constexpr std::array<std::string_view, ScratchPad::Operators + 1> OperatorSymbols{
    "", "+", "-", "x", " . ", " . "};

/// A whole number in [low, high], or nothing.
std::optional<int> number(std::string_view text, int low, int high) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < low || value > high) {
        return std::nullopt;
    }
    return value;
}

std::optional<int> keyCode(std::string_view name) {
    if (name == "enter") {
        return key::Enter;
    }
    if (name == "escape") {
        return key::Escape;
    }
    if (name.size() >= 2 && name[0] == 'f') {
        if (const auto n = number(name.substr(1), 1, 12)) {
            return key::F1 + *n - 1;
        }
    }
    return std::nullopt;
}

/// A name as it is compared: ASCII letters in lower case, digits, and any
/// non-ASCII character but the degree sign; blanks and punctuation dropped
/// ("Mach - AS" -> "machas", "°C" -> "c").
std::string folded(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (text.substr(at, 2) == "°") {
            ++at;
            continue;
        }
        if (isLetter(c) || isDigit(c) || static_cast<unsigned char>(c) >= 0x80) {
            out += lowerCase(c);
        }
    }
    return out;
}

std::optional<int> findPage(const PageCatalogue& pages, std::string_view text) {
    if (const auto n = number(text, 1, pages.count()); n && pages.find(*n)) {
        return n;
    }
    for (int page = 1; page <= pages.count(); ++page) {
        const PageTable* table = pages.find(page);
        if (table && !folded(text).empty() && folded(text) == folded(table->name)) {
            return page;
        }
    }
    return std::nullopt;
}

/// The row a unit names: its short form after " - " ("lbs" of "pound - lbs"),
/// or the whole caption where it has none; exact first, then in any case.
std::variant<int, std::string> findRow(const Menu& menu, std::string_view text) {
    if (const auto n = number(text, 1, PageSheet::Rows)) {
        if (menu.row(*n).unit.empty() && !menu.page()->isText()) {
            return "row " + std::to_string(*n) + " is not used on " + menu.title();
        }
        return *n;
    }
    for (const bool exact : {true, false}) {
        std::vector<int> rows;
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            const std::string& unit = menu.row(row).unit;
            const auto dash = unit.rfind(" - ");
            const std::string_view shortForm = dash == std::string::npos
                                                   ? std::string_view(unit)
                                                   : std::string_view(unit).substr(dash + 3);
            if (!unit.empty() && (exact ? shortForm == text : folded(shortForm) == folded(text))) {
                rows.push_back(row);
            }
        }
        if (rows.size() == 1) {
            return rows.front();
        }
        if (rows.size() > 1) {
            return "row " + std::string(text) + " is ambiguous on " + menu.title() +
                   ": give its number";
        }
    }
    return "no row " + std::string(text) + " on " + menu.title();
}

} // namespace

std::optional<std::string> convertOnce(Menu& menu, std::string_view page, std::string_view row,
                                       std::string_view value) {
    const auto pageNumber = findPage(menu.pages(), page);
    if (!pageNumber) {
        return "unknown page: " + std::string(page) + " (a number from 1 to " +
               std::to_string(menu.pages().count()) + ", or a page name)";
    }
    menu.LabMenu_Click(*pageNumber);
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
            menu.Form_KeyPress(c);
        }
    }
    if (!text && menu.scratchPad().inputValue() != *number) {
        return "cannot type " + std::string(value) + ": write it with digits and " +
               symbols.decimal + " only";
    }
    menu.LabValue_Click(std::get<int>(rowNumber));
    return std::nullopt;
}

std::string quoted(std::string_view text) {
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

void ConsoleInteraction::message(MessageIcon icon, std::string_view title, std::string_view text) {
    m_out << "message " << messageIconName(icon) << ' ' << quoted(title) << ' ' << quoted(text)
          << '\n';
}

std::optional<ConsoleInteraction::Scripted> ConsoleInteraction::nextAnswer() {
    if (m_answers.empty()) {
        return std::nullopt;
    }
    Scripted answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

void ConsoleInteraction::ask(const Request& request, Then<const Answer&> then) {
    // The script's answers were queued before the command that asks, so the
    // answer is at hand: it is given at once, in the order the boxes open.
    const auto queued = nextAnswer();
    Answer answer;
    if (request.kind == Request::Kind::Question) {
        answer.yes = queued && queued->kind == Scripted::Kind::Yes;
        m_out << "question " << quoted(request.title) << ' ' << quoted(request.text) << " -> "
              << (answer.yes ? "yes" : "no") << '\n';
    } else {
        m_out << "input " << quoted(request.title) << ' ' << quoted(request.text) << " -> ";
        if (queued && queued->kind == Scripted::Kind::Text) {
            m_out << quoted(queued->text) << '\n';
            answer.text = queued->text;
        } else {
            m_out << "cancel\n";
        }
    }
    then(answer);
}

void ConsoleInteraction::setBusy(bool busy) {
    m_out << (busy ? "busy on\n" : "busy off\n");
}

void ConsoleInteraction::quit() {
    m_out << "quit\n";
    m_quit = true;
}

void ConsoleSession::start() {
    m_menu.Form_Load();
    m_menu.Form_Activate();
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
        return needs(1, m_menu.pages().count(), [&](int n) { m_menu.LabMenu_Click(n); });
    }
    if (command == "row") {
        return needs(1, 8, [&](int n) { m_menu.LabValue_Click(n); });
    }
    if (command == "op") {
        return needs(0, 5, [&](int n) { m_menu.LabOP_Click(n); });
    }
    if (command == "mem") {
        return needs(0, 2, [&](int n) { m_menu.LabMEM_Click(n); });
    }
    if (command == "type") {
        if (space == std::string_view::npos) {
            return std::string("type needs the text to type");
        }
        for (std::size_t at = 0; at < argument.size() && !finished();) {
            m_menu.Form_KeyPress(nextCharacter(argument, at));
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
        m_menu.Form_Paste(text);
        return std::nullopt;
    }
    if (command == "key") {
        if (argument != "backspace") {
            return std::string("key takes backspace");
        }
        m_menu.Form_KeyPress(key::Backspace);
        return std::nullopt;
    }
    if (command == "keyup") {
        const auto code = keyCode(argument);
        if (!code) {
            return std::string("keyup takes enter, escape or f1 to f12");
        }
        m_menu.Form_KeyUp(*code);
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
        return bare([&] { m_menu.LabelMenu_Click(); });
    }
    if (command == "digits") {
        return bare([&] { m_menu.LabDEC_Click(); });
    }
    if (command == "clear") {
        return bare([&] { m_menu.LabC_Click(); });
    }
    if (command == "activate") {
        return bare([&] { m_menu.Form_Activate(); });
    }
    if (command == "show") {
        // The whole window, or one part of it: the display, the rows, one row.
        if (argument.empty() && space == std::string_view::npos) {
            show(m_menu, m_out);
        } else if (argument == "display") {
            showDisplay(m_menu, m_out);
        } else if (argument == "rows") {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                showRow(m_menu, row, m_out);
            }
        } else if (const auto row = argument.starts_with("row ")
                                        ? number(argument.substr(4), 1, PageSheet::Rows)
                                        : std::nullopt) {
            showRow(m_menu, *row, m_out);
        } else {
            return std::string("show takes nothing, display, rows or row N");
        }
        return std::nullopt;
    }
    if (command == "tags") {
        return bare([&] {
            for (int row = 1; row <= PageSheet::Rows; ++row) {
                m_out << "tag " << row << ' ' << quoted(m_menu.row(row).tag) << '\n';
            }
        });
    }
    return "unknown command: " + std::string(command);
}

void ConsoleSession::show(const Menu& menu, std::ostream& out) {
    out << "face " << (menu.face() == Face::Page ? "page" : "menu") << '\n';
    out << "title " << quoted(menu.title()) << '\n';
    showDisplay(menu, out);
    out << "digits " << quoted(menu.digitsCaption()) << '\n';
    out << "panels" << (menu.panelsVisible() ? " memory digits operators" : "") << '\n';
    out << "mem";
    for (int key = 0; key < 3; ++key) {
        out << ' ' << quoted(menu.memoryCaption(key)) << (menu.memoryLit(key) ? "*" : "");
    }
    out << "\nops";
    for (int key = 1; key <= ScratchPad::Operators; ++key) {
        out << ' ' << quoted(OperatorSymbols[static_cast<std::size_t>(key)])
            << (menu.operatorLit(key) ? "*" : "");
    }
    out << '\n';
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        showRow(menu, row, out);
    }
}

void ConsoleSession::showRow(const Menu& menu, int row, std::ostream& out) {
    const RowCell& cell = menu.row(row);
    out << "row " << row << ' ' << quoted(cell.unit) << ' ' << quoted(cell.caption) << ' '
        << (cell.compact ? 9 : 12) << ' '
        << (cell.input       ? "input"
            : cell.isGiven() ? "given"
                             : "normal")
        << '\n';
}

void ConsoleSession::showDisplay(const Menu& menu, std::ostream& out) {
    // Point sizes as the window draws them: small text for a long number.
    out << "display " << quoted(menu.display()) << ' ' << (menu.displayCompact() ? 10 : 18) << '\n';
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
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        ConsoleSession::showRow(menu, row, std::cout);
    }
    return 0;
}

} // namespace zel
