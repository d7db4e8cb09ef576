// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Runway condition reports as pilots get them today. Since November 2021 a
// SNOWTAM reports each runway in the ICAO Global Reporting Format: for each
// third of the runway a runway condition code (RWYCC 0..6), the part covered,
// the depth and the contaminant. Some states still send the old eight-figure
// runway-state group, inside their METARs as R24L/290140.
#include "snowtam/snowtam.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

namespace zel {
namespace {

constexpr std::string_view NotAReport = "Not a runway condition report";

/// The runway condition code of a third, with its braking action.
constexpr std::array<std::string_view, 7> ConditionCodes{
    "0 Less than Poor", "1 Poor", "2 Medium-Poor", "3 Medium", "4 Good-Medium", "5 Good", "6 Dry"};

struct Contaminant {
    std::string_view name;   ///< as the report writes it
    std::string_view short_; ///< as the page shows it
};

/// Longest names first, so that "DRY SNOW ON TOP OF ICE" is not read as "DRY".
constexpr std::array<Contaminant, 17> Contaminants{{
    {"SPECIALLY PREPARED WINTER RUNWAY", "Prepared Winter"},
    {"DRY SNOW ON TOP OF COMPACTED SNOW", "Dry Snow/Compacted"},
    {"WET SNOW ON TOP OF COMPACTED SNOW", "Wet Snow/Compacted"},
    {"WATER ON TOP OF COMPACTED SNOW", "Water/Compacted"},
    {"DRY SNOW ON TOP OF ICE", "Dry Snow/Ice"},
    {"WET SNOW ON TOP OF ICE", "Wet Snow/Ice"},
    {"COMPACTED SNOW", "Compacted"},
    {"STANDING WATER", "Water"},
    {"SLIPPERY WET", "Slippery Wet"},
    {"DRY SNOW", "Dry Snow"},
    {"WET SNOW", "Wet Snow"},
    {"WET ICE", "Wet Ice"},
    {"SLUSH", "Slush"},
    {"FROST", "Frost"},
    {"DRY", "Dry"},
    {"WET", "Wet"},
    {"ICE", "Ice"},
}};

/// A row's caption on the Snowtam page (an eight-figure group) or on this
/// page (a GRF report), as their tables give them.
std::string_view unitOf(bool group, int row) {
    return (group ? SnowtamPage : RwyConditionPage).row(row).unit;
}

bool allDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

/// The text split at blanks and line breaks; several count as one.
std::vector<std::string_view> groupsOf(std::string_view text) {
    std::vector<std::string_view> groups;
    std::size_t at = 0;
    while (at < text.size()) {
        const auto start = text.find_first_not_of(" \t\r\n", at);
        if (start == std::string_view::npos) {
            break;
        }
        const auto end = std::min(text.find_first_of(" \t\r\n", start), text.size());
        groups.push_back(text.substr(start, end - start));
        at = end;
    }
    return groups;
}

/// The three parts of "a/b/c", or nothing.
std::optional<std::array<std::string_view, 3>> thirds(std::string_view group) {
    const auto first = group.find('/');
    const auto second = first == std::string_view::npos ? first : group.find('/', first + 1);
    if (second == std::string_view::npos || group.find('/', second + 1) != std::string_view::npos) {
        return std::nullopt;
    }
    return std::array{group.substr(0, first), group.substr(first + 1, second - first - 1),
                      group.substr(second + 1)};
}

/// A runway designator: 01 to 36, then L, C or R if the runway has a twin.
bool isRunway(std::string_view group) {
    const std::string_view number = group.substr(0, 2);
    if (group.size() < 2 || group.size() > 3 || !allDigits(number) || number < "01" ||
        number > "36") {
        return false;
    }
    return group.size() == 2 || std::string_view("LCR").find(group[2]) != std::string_view::npos;
}

bool isConditionCodes(std::string_view group) {
    const auto parts = thirds(group);
    return parts && std::all_of(parts->begin(), parts->end(), [](std::string_view p) {
               return p.size() == 1 && p[0] >= '0' && p[0] <= '6';
           });
}

/// The date and time of an assessment, MMDDhhmm in UTC, as "02-17 00:55";
/// nothing for a day no month has (30 February; 29 February is taken, the
/// report names no year) or a time no clock shows (24:00, minute 60).
std::optional<std::string> assessed(std::string_view group) {
    if (group.size() != 8 || !allDigits(group)) {
        return std::nullopt;
    }
    const auto two = [&](std::size_t at) {
        return static_cast<unsigned>((group[at] - '0') * 10 + (group[at + 1] - '0'));
    };
    const std::chrono::year_month_day day{std::chrono::year{2024}, std::chrono::month{two(0)},
                                          std::chrono::day{two(2)}};
    if (!day.ok() || two(4) > 23 || two(6) > 59) {
        return std::nullopt;
    }
    return std::string(group.substr(0, 2)) + "-" + std::string(group.substr(2, 2)) + " " +
           std::string(group.substr(4, 2)) + ":" + std::string(group.substr(6, 2));
}

/// "a / b / c" when each part is allowed, else nothing.
template <typename Allowed>
std::optional<std::string> listed(std::string_view group, Allowed allowed) {
    const auto parts = thirds(group);
    if (!parts || !std::all_of(parts->begin(), parts->end(), allowed)) {
        return std::nullopt;
    }
    return std::string((*parts)[0]) + " / " + std::string((*parts)[1]) + " / " +
           std::string((*parts)[2]);
}

/// The three contaminants at the start of `text` ("WET/DRY SNOW ON TOP OF
/// ICE/SLUSH ..."), shown short, and what follows them.
std::optional<std::pair<std::string, std::string_view>> contaminants(std::string_view text) {
    std::string shown;
    for (int third = 0; third < 3; ++third) {
        const auto match =
            std::find_if(Contaminants.begin(), Contaminants.end(), [&](const Contaminant& c) {
                const std::string_view after = text.substr(std::min(c.name.size(), text.size()));
                return text.starts_with(c.name) &&
                       (after.empty() || after[0] == ' ' || (third < 2 && after[0] == '/'));
            });
        if (match == Contaminants.end()) {
            return std::nullopt;
        }
        shown += (third > 0 ? " / " : "") + std::string(match->short_);
        text.remove_prefix(match->name.size());
        if (third < 2) {
            if (!text.starts_with('/')) {
                return std::nullopt;
            }
            text.remove_prefix(1);
        }
    }
    return std::pair{shown, text};
}

using Rows = std::array<std::pair<std::string, std::string>, PageSheet::Rows + 1>;

/// A GRF report read whole: its rows and the group after it; or why it cannot be.
struct GrfRead {
    Rows rows{};
    std::size_t next = 0;
    std::string fault; ///< empty when the report was read whole
};

/// Two figures and maybe L, C or R: what a runway designator looks like, be
/// the runway real or not.
bool looksLikeRunway(std::string_view group) {
    return group.size() >= 2 && group.size() <= 3 && allDigits(group.substr(0, 2)) &&
           (group.size() == 2 || std::string_view("LCR").find(group[2]) != std::string_view::npos);
}

/// Figures and slashes, at least one of each: what condition codes look like.
bool looksLikeCodes(std::string_view group) {
    return group.find('/') != std::string_view::npos &&
           std::any_of(group.begin(), group.end(), isDigit) && isStateCharacters(group);
}

/// The name of the contaminant that starts `text`: up to a slash or a blank.
std::string_view firstWord(std::string_view text) {
    return text.substr(0, std::min(text.find_first_of("/ "), text.size()));
}

/// The GRF report whose runway designator is group `at`, read strictly.
GrfRead readGrf(const std::vector<std::string_view>& groups, std::size_t at,
                const std::string& time) {
    GrfRead read;
    auto missing = [&](std::size_t group, std::string_view what) {
        read.fault = "Report ends after " + std::string(groups[group - 1]) + ": " +
                     std::string(what) + " missing";
        return read;
    };
    if (!isRunway(groups[at])) {
        read.fault = "No runway " + std::string(groups[at]);
        return read;
    }
    if (at + 1 >= groups.size()) {
        return missing(at + 1, "runway condition codes");
    }
    if (!isConditionCodes(groups[at + 1])) {
        read.fault = "Runway condition codes must be three figures 0-6 (" +
                     std::string(groups[at + 1]) + ")";
        return read;
    }
    if (at + 2 >= groups.size()) {
        return missing(at + 2, "coverage");
    }
    const auto coverage = listed(groups[at + 2], [](std::string_view p) {
        return p == "NR" || p == "25" || p == "50" || p == "75" || p == "100";
    });
    if (!coverage) {
        read.fault = "Coverage must be NR, 25, 50, 75 or 100 for each third (" +
                     std::string(groups[at + 2]) + ")";
        return read;
    }
    if (at + 3 >= groups.size()) {
        return missing(at + 3, "depth");
    }
    const auto depth = listed(groups[at + 3], [](std::string_view p) {
        return p == "NR" || (p.size() >= 2 && p.size() <= 3 && allDigits(p));
    });
    if (!depth) {
        read.fault = "Depth must be NR or 2 to 3 figures for each third (" +
                     std::string(groups[at + 3]) + ")";
        return read;
    }
    if (at + 4 >= groups.size()) {
        return missing(at + 4, "contaminants");
    }
    // The contaminants may hold blanks: they are read from the text that follows.
    std::string rest;
    for (std::size_t g = at + 4; g < groups.size(); ++g) {
        rest += (rest.empty() ? "" : " ") + std::string(groups[g]);
    }
    const auto contaminant = contaminants(rest);
    if (!contaminant) {
        // Name the first of the three that is not known.
        std::string_view text = rest;
        for (int third = 0; third < 3; ++third) {
            const auto known =
                std::find_if(Contaminants.begin(), Contaminants.end(), [&](const Contaminant& c) {
                    return text.starts_with(c.name) &&
                           (text.size() == c.name.size() || text[c.name.size()] == '/' ||
                            text[c.name.size()] == ' ');
                });
            if (known == Contaminants.end() || (third < 2 && text.size() <= known->name.size())) {
                const std::string_view word = known == Contaminants.end() ? firstWord(text) : "";
                read.fault = word.empty() ? "Three contaminants, split by /, expected"
                                          : "Unknown contaminant " + std::string(word);
                return read;
            }
            text.remove_prefix(std::min(known->name.size() + 1, text.size()));
        }
        read.fault = "Three contaminants, split by /, expected";
        return read;
    }
    std::string runway(groups[at]);
    std::vector<std::string_view> after = groupsOf(contaminant->second);
    // A width in metres after the contaminants: the codes apply to it only.
    std::size_t widthGroups = 0;
    if (!after.empty() && after[0].size() >= 2 && after[0].size() <= 3 && allDigits(after[0])) {
        runway += " width " + std::string(after[0]) + " m";
        widthGroups = 1;
    }
    read.next = groups.size() - after.size() + widthGroups;
    const auto codes = thirds(groups[at + 1]);
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        read.rows[static_cast<std::size_t>(row)].first = std::string(unitOf(false, row));
    }
    read.rows[1].second = runway;
    read.rows[2].second = time;
    for (std::size_t third = 0; third < 3; ++third) {
        const auto code = static_cast<std::size_t>((*codes)[third][0] - '0');
        read.rows[third + 3].second = std::string(ConditionCodes[code]);
    }
    read.rows[6].second = *coverage;
    read.rows[7].second = *depth;
    read.rows[8].second = contaminant->first;
    return read;
}

/// The captions of the eight-figure group's page.
Rows stateRows() {
    Rows rows;
    for (int row = 1; row <= PageSheet::Rows; ++row) {
        rows[static_cast<std::size_t>(row)].first = std::string(unitOf(true, row));
    }
    return rows;
}

/// A METAR runway-state group at `group` on the page: R, the runway, "/",
/// then six figures, CLRD and the braking once contamination has ceased, or
/// SNOCLO; also SNOCLO alone. False when the group is none of these.
bool stateGroup(PageSheet& page, std::string_view group,
                const std::function<void(const Rows&)>& show) {
    const auto slash = group.find('/');
    const std::string_view runway = group.starts_with('R') && slash != std::string_view::npos
                                        ? group.substr(1, slash - 1)
                                        : std::string_view("-");
    const bool runwayShape = runway.empty() || isRunway(runway) || runway == "88" || runway == "99";
    const std::string_view state =
        runwayShape ? group.substr(slash + 1) : std::string_view(group == "SNOCLO" ? group : "");
    Rows rows = stateRows();
    rows[1].second = runway.empty() || runway == "88" || (!runwayShape && state == "SNOCLO")
                         ? "All RWY"
                     : runway == "99" ? "Previous Report"
                                      : std::string(runway);
    if (state == "SNOCLO") {
        rows[2].second = "Closed by snow";
        show(rows);
        return true;
    }
    if (!runwayShape || runway.empty() || state.size() != 6) {
        return false;
    }
    if (state.starts_with("CLRD") && isStateCharacters(state.substr(4))) {
        show(rows);
        page.setText(2, "Contamination cleared");
        writeBraking(page, state.substr(4));
    } else if (isStateCharacters(state)) {
        show(rows);
        writeStateGroup(page, state);
    } else {
        return false;
    }
    return true;
}

} // namespace

std::optional<std::string> pasteStateGroup(std::string_view text, Report& refused) {
    const std::vector<std::string_view> words = groupsOf(text);
    const bool metar = std::any_of(words.begin(), words.end(), [](std::string_view w) {
        const auto slash = w.find('/');
        return w.size() > 2 && w[0] == 'R' && slash != std::string_view::npos &&
               (slash == 1 || looksLikeRunway(w.substr(1, slash - 1)));
    });
    if (metar) {
        refused = Report::warning("This is a METAR runway group: decode it on RWY Condition");
        return std::nullopt;
    }
    for (std::size_t at = 0; at + 1 < words.size(); ++at) {
        if (looksLikeRunway(words[at]) && looksLikeCodes(words[at + 1])) {
            refused = Report::warning(
                "This is a GRF runway condition report: decode it on RWY Condition");
            return std::nullopt;
        }
    }
    // Exactly one group of eight figures and slashes, as a whole word.
    std::vector<std::string_view> eights;
    std::copy_if(words.begin(), words.end(), std::back_inserter(eights),
                 [](std::string_view w) { return w.size() == 8 && isStateCharacters(w); });
    if (eights.size() != 1) {
        refused = Report::beep();
        return std::nullopt;
    }
    return std::string(eights.front());
}

Report decodeRunwayCondition(PageSheet& page, std::string_view text, int which) {
    page.reset();
    const std::vector<std::string_view> groups = groupsOf(text);
    auto show = [&page](const Rows& rows) {
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            page[row].unit = rows[static_cast<std::size_t>(row)].first;
            page.setText(row, rows[static_cast<std::size_t>(row)].second);
        }
    };
    auto refuse = [&page](const std::string& why) {
        for (int row = 1; row <= PageSheet::Rows; ++row) {
            page[row].unit = std::string(unitOf(false, row));
            page.clear(row);
        }
        std::vector<std::string> paragraphs{std::string(NotAReport)};
        if (!why.empty()) {
            paragraphs.push_back(why);
        }
        return Report::warning(std::move(paragraphs));
    };
    // Which of several runways to show: the one asked for, counting round.
    auto numbered = [&page, which](std::size_t count) {
        const std::size_t shown = static_cast<std::size_t>(which) % count;
        if (count > 1) {
            page.setText(1, page[1].text + " (" + std::to_string(shown + 1) + " of " +
                                std::to_string(count) + ")");
        }
        return shown;
    };

    // GRF reports: a runway designator followed by condition codes, or by
    // anything after a date-time of eight figures. Each must be read whole; a
    // SNOWTAM's heading holds date groups of eight figures too, which are
    // followed by no runway.
    std::vector<Rows> reports;
    for (std::size_t at = 0; at < groups.size();) {
        const bool dated = groups[at].size() == 8 && allDigits(groups[at]) &&
                           at + 1 < groups.size() && looksLikeRunway(groups[at + 1]);
        const bool coded =
            looksLikeRunway(groups[at]) && at + 1 < groups.size() && looksLikeCodes(groups[at + 1]);
        if (!dated && !coded) {
            ++at;
            continue;
        }
        std::string time;
        if (dated) {
            const auto when = assessed(groups[at]);
            if (!when) {
                return refuse("No such date and time " + std::string(groups[at]));
            }
            time = *when;
            ++at;
        }
        const GrfRead read = readGrf(groups, at, time);
        if (!read.fault.empty()) {
            return refuse(read.fault);
        }
        reports.push_back(read.rows);
        at = read.next;
    }
    if (!reports.empty()) {
        const Rows& chosen = reports[static_cast<std::size_t>(which) % reports.size()];
        show(chosen);
        numbered(reports.size());
        return {};
    }

    // METAR runway-state groups, each of them.
    std::vector<std::string_view> states;
    for (const std::string_view group : groups) {
        PageSheet scratch(page.symbols());
        if (stateGroup(scratch, group, [](const Rows&) {})) {
            states.push_back(group);
        }
    }
    if (!states.empty()) {
        const std::size_t shown = static_cast<std::size_t>(which) % states.size();
        stateGroup(page, states[shown], show);
        numbered(states.size());
        return {};
    }

    // The plain eight-figure group, read as the Snowtam page reads it, when
    // it stands alone.
    if (groups.size() == 1 && groups[0].size() == 8 && isStateCharacters(groups[0])) {
        show(stateRows());
        return decodeStateGroup(page, groups[0]);
    }
    return refuse("");
}

} // namespace zel
