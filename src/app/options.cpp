// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "app/options.h"

#include "app/catalogue.h"

#include <algorithm>

namespace zel {

Options parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        auto value = [&](std::optional<std::string>& target) {
            if (i + 1 >= arguments.size()) {
                options.error = argument + " needs a value";
                return;
            }
            target = arguments[++i];
        };
        if (argument == "--console") {
            options.console = true;
        } else if (argument == "--locale") {
            value(options.locale);
        } else if (argument == "--symbols") {
            value(options.symbols);
        } else if (argument == "--folder") {
            value(options.folder);
        } else if (argument == "--script") {
            value(options.script);
        } else if (argument == "--screenshot") {
            value(options.screenshot);
        } else if (argument == "--zoom") {
            value(options.zoom);
        } else if (argument == "--palette") {
            value(options.palette);
        } else if (argument == "--convert") {
            if (i + 3 >= arguments.size()) {
                options.error = "--convert needs a page, a row and a value";
            } else {
                options.convert.assign(arguments.begin() + static_cast<long>(i) + 1,
                                       arguments.begin() + static_cast<long>(i) + 4);
                i += 3;
            }
        } else if (argument == "--aircraft") {
            value(options.aircraft);
        } else if (argument == "--loadsheet") {
            value(options.loadsheet);
        } else if (argument == "--load" || argument == "--burn") {
            std::optional<std::string> pair;
            value(pair);
            if (pair) {
                (argument == "--load" ? options.loads : options.burns).push_back(*pair);
            }
        } else if (argument == "--pdf") {
            value(options.pdf);
        } else if (argument == "--paper") {
            value(options.paper);
        } else if (argument == "--empty-weight") {
            value(options.emptyWeight);
        } else if (argument == "--empty-arm") {
            value(options.emptyArm);
        } else if (argument == "--target-cg") {
            value(options.targetCg);
        } else if (argument == "--shift") {
            value(options.shift);
        } else if (argument == "--ballast") {
            value(options.ballast);
        } else if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else if (argument == "--pages") {
            options.pages = true;
        } else if (argument == "--version") {
            options.version = true;
        } else if (options.console && !options.file && !argument.starts_with("--")) {
            options.file = argument;
        } else {
            options.error = "unknown argument: " + argument;
        }
        if (!options.error.empty()) {
            break;
        }
    }
    static const std::vector<std::string> Zooms{"100", "125", "150", "175", "200", "250"};
    if (options.zoom && std::find(Zooms.begin(), Zooms.end(), *options.zoom) == Zooms.end()) {
        options.error = "--zoom takes 100, 125, 150, 175, 200 or 250";
    }
    if (options.palette && *options.palette != "day" && *options.palette != "night") {
        options.error = "--palette takes day or night";
    }
    const bool helper = options.shift || options.ballast;
    const bool empty = options.emptyWeight || options.emptyArm;
    if (!options.loadsheet && (!options.loads.empty() || !options.burns.empty() ||
                               options.targetCg || helper || empty || options.pdf)) {
        options.error = "--empty-weight, --empty-arm, --load, --burn, --target-cg, --shift, "
                        "--ballast and --pdf go with --loadsheet";
    } else if (options.paper &&
               (!options.pdf || (*options.paper != "a4" && *options.paper != "letter"))) {
        options.error = "--paper takes a4 or letter, with --pdf";
    } else if (options.emptyWeight.has_value() != options.emptyArm.has_value()) {
        options.error = "--empty-weight and --empty-arm go together";
    } else if (options.targetCg && (options.shift.has_value() == options.ballast.has_value())) {
        options.error = "--target-cg goes with one of --shift FROM=TO and --ballast NAME";
    } else if (helper && !options.targetCg) {
        options.error = "--shift and --ballast need --target-cg";
    } else if (options.aircraft && !options.console) {
        options.error = "--aircraft goes with --console";
    }
    return options;
}

std::string versionText() {
    return std::string("zelFLIGHTAB ") + ZEL_VERSION;
}

std::vector<std::string> licenceNotes() {
    return {
        "This program is free software under the GNU General Public License, version 3 or any "
        "later version. It comes with absolutely no warranty; it is no substitute for the "
        "aircraft's documents.",
        "Magnetic variation: the World Magnetic Model 2025 (WMM2025) of NOAA's National Centers "
        "for Environmental Information and the British Geological Survey, a work of the U.S. "
        "Government in the public domain.",
        "Great circles: GeographicLib by Charles Karney, under the MIT licence. Aircraft "
        "profiles: JSON for Modern C++ by Niels Lohmann, under the MIT licence. Currency rates: "
        "Expat, under the MIT licence.",
    };
}

std::string pageList() {
    const PageCatalogue& pages = pageCatalogue();
    std::string out;
    for (int number = 1; number <= pages.count(); ++number) {
        if (const PageTable* page = pages.find(number)) {
            out += std::to_string(number) + '\t' + std::string(page->name) + '\n';
        }
    }
    return out;
}

std::string usage() {
    const PageCatalogue& pages = pageCatalogue();
    // The pages, wrapped under the option they belong to.
    std::string list = "                            Pages:";
    std::size_t line = list.size();
    for (int number = 1; number <= pages.count(); ++number) {
        const PageTable* page = pages.find(number);
        if (page == nullptr) {
            continue;
        }
        const std::string item = " " + std::to_string(number) + " " + std::string(page->name) +
                                 (number < pages.count() ? "," : "");
        if (line + item.size() > 79) {
            list += "\n                           ";
            line = 27;
        }
        list += item;
        line += item.size();
    }
    return R"(Usage: zelflightab [OPTION]...
A calculator for aircraft pilots: unit converters, fuel, wind and airspeed
calculators, planning pages, runway report decoders and currency rates.

  --convert PAGE ROW VALUE  convert VALUE given for ROW of PAGE, print the
                            page's eight rows and exit. PAGE is a number 1-)" +
           std::to_string(pages.count()) + R"(
                            or a name (weight, "fuel uplift", "Mach - AS");
                            ROW is a number 1-8 or a unit (lbs, kt, °C);
                            VALUE is written the regional way (1,5 in Germany)
)" + list + R"(
  --console [FILE]          run console commands from FILE (or standard input)
                            and print what the window shows
  --aircraft FILE           with --console: import the aircraft profile FILE
  --loadsheet PROFILE.json  print the loading sheet of the profile and exit:
                            0 within limits, 1 out of them, 2 for bad input;
                            PROFILE may name a profile that ships ("Cessna 172S")
    --empty-weight W        the aircraft's own empty weight and arm, from its
    --empty-arm A           weighing record, in the profile's units
    --pdf FILE              the sheet to sign, on one page of a PDF too
    --paper a4|letter       its paper (A4 unless letter)
    --load NAME=VALUE       what station NAME holds: a weight, or for fuel a
                            quantity; a unit word after it converts (230 lb,
                            40 L, 104 kg)
    --burn NAME=VALUE       the fuel burnt from station NAME
    --target-cg X           the CG to bring the loading to, with one of
    --shift FROM=TO         the stations to move weight between, or
    --ballast NAME          the station to add ballast at
  --script FILE             run console commands against the window, then
  --screenshot OUT.png      save a picture of it and exit
  --zoom PERCENT            the window at 100, 125, 150, 175, 200 or 250 %
  --palette day|night       the window's day or night palette
  --locale NAME             regional number symbols of NAME (en_US, de_DE)
  --symbols DG              decimal symbol D and grouping symbol G, as ",."
  --folder DIR              keep the settings in DIR/Tech/zelFLIGHTAB.ini
  --pages                   list the pages, a line each: number, tab, name
  --help                    print this help and exit
  --version                 print the version and exit

Without an option the window opens. Settings and currency rates live in
Tech/zelFLIGHTAB.ini below the program folder: --folder, else beside the
executable when that holds one, else ~/.local/share/zelFLIGHTAB.
)";
}

} // namespace zel
