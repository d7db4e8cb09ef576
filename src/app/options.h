// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zel {

/// The command line of zelflightab.
struct Options {
    bool console = false;
    std::optional<std::string> file;       ///< console commands, else standard input
    std::optional<std::string> locale;     ///< QLocale name: en_US, de_DE, fr_CH
    std::optional<std::string> symbols;    ///< decimal then grouping symbol
    std::optional<std::string> folder;     ///< the program folder (settings, kept pages)
    std::optional<std::string> script;     ///< console commands run against the window
    std::optional<std::string> screenshot; ///< picture of the window, then exit
    std::optional<std::string> zoom;       ///< the window's zoom in percent
    std::optional<std::string> palette;    ///< "day" or "night"
    std::vector<std::string> convert;      ///< PAGE ROW VALUE: one conversion, printed
    std::optional<std::string> aircraft;   ///< a profile file imported at the start
    std::optional<std::string>
        loadsheet; ///< a profile file (or shipped name) whose sheet is printed
    std::optional<std::string> emptyWeight; ///< the aircraft's own empty weight, for --loadsheet
    std::optional<std::string> emptyArm;    ///< and its arm
    std::optional<std::string> pdf;         ///< --loadsheet: the sheet printed to this PDF too
    std::optional<std::string> paper;       ///< "a4" or "letter"
    std::vector<std::string> loads;         ///< NAME=VALUE: what a station holds
    std::vector<std::string> burns;         ///< NAME=VALUE: fuel burnt from a station
    std::optional<std::string> targetCg;    ///< the CG a helper brings the loading to
    std::optional<std::string> shift;       ///< FROM=TO: the stations weight moves between
    std::optional<std::string> ballast;     ///< the station ballast goes to
    bool help = false;
    bool version = false;
    bool pages = false; ///< list the pages, a line each: number, tab, name
    std::string error;  ///< why the command line cannot be used
};

Options parseOptions(const std::vector<std::string>& arguments);

/// What --help prints.
std::string usage();
/// The pages of the menu, a line each: its number, a tab, its name.
std::string pageList();
/// What --version prints: "zelFLIGHTAB 0.1.0".
std::string versionText();
/// The program's licence and those of the models and libraries it carries,
/// a paragraph each, as the About box gives them.
std::vector<std::string> licenceNotes();

} // namespace zel
