// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/keys.h"
#include "balance/loadingview.h"
#include "entry/scratchpad.h"
#include "host/platform.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace zel {

enum class Face { Menu, Page };

/// How strongly a text is set: the sizes in points the window draws it at.
/// A value too long for its cell is set smaller.
namespace emphasis {
inline constexpr int Row = 12, SmallRow = 9, Display = 18, SmallDisplay = 10;
}

/// One row as every face draws it.
struct RowView {
    std::string unit;   ///< the unit as the page names it: "pound - lbs"
    std::string name;   ///< "pound"
    std::string symbol; ///< "lbs"; empty where the unit names none
    /// The value as drawn with the regional symbols and the digits chosen:
    /// "2,205.00", "090", "R 11.31", "2:30", "Dry Snow"; empty for none.
    std::string value;
    /// Shorter forms of a number too long for its cell, longest first
    /// ("2.205E+17", "2.21E+17", ...); empty for words.
    std::vector<std::string> shortForms;
    /// The value in full precision, regional decimal symbol, no grouping
    /// ("2205", "1.5E-07"); "0" for none.
    std::string full;
    int emphasis = emphasis::Row;
    bool exists = false;     ///< the page has this row
    bool input = false;      ///< the input row
    bool given = false;      ///< typed by the user and still counts (not the input row)
    bool computed = false;   ///< holds what the page worked out
    bool outputOnly = false; ///< takes no typed value
    /// The key that clicks it: "Ctrl+3".
    std::string key;
    /// How a value is typed into it, where that is not plain: "1.30 = 1:30".
    std::string hint;
    /// The value as a pilot also writes it, for its tooltip and as its
    /// accessible value: a coordinate in degrees and minutes, "N 51°28.65′".
    std::string detail;
};

/// A calculator key: its caption, and whether it is lit (an operator
/// pending, a memory that holds a value).
struct KeyView {
    std::string caption;
    bool lit = false;
};

/// A page's button on the menu.
struct PageButton {
    int number = 0;
    std::string name;
    std::string icon;
    std::string key; ///< the key that opens it, drawn on it: "F1"; empty for none
};

/// A heading of the menu and the pages under it, by number, in the order shown.
struct PageGroup {
    std::string heading;
    std::vector<int> pages;
};

/// Everything a face draws: the window's face, the calculator, the rows, the
/// menu, the keys' help and the boxes open over the window. A face maps it to
/// widgets, elements or text and decides nothing itself.
struct View {
    Face face = Face::Menu;
    std::string title;
    std::string icon; ///< the page's icon, or the program's on the menu
    /// A page whose entry is a report of words and figures, not a number.
    bool report = false;

    std::string display;
    /// Shorter forms of the display's number, longest first.
    std::vector<std::string> displayShortForms;
    int displayEmphasis = emphasis::Display;

    /// What to know about typing into the input row, or why a value typed
    /// was refused: "1.30 = 1:30", "1.60 refused: minutes under 60".
    std::string hint;
    /// What the page says of its results as a whole: a caution, a course
    /// that is not unique. Empty for nothing.
    std::string note;
    /// The page takes places: a field for a coordinate written as pilots
    /// write it, typed or pasted, with the screen's own keyboard on a phone.
    bool places = false;

    std::string digits; ///< the digits key: "0.00", "0....", "0"
    /// The memory, digits and operator keys are shown (not on a report page).
    bool panels = true;
    std::array<KeyView, 3> memory;
    std::array<KeyView, OperatorCount> operators;
    std::array<RowView, 8> rows;
    /// On the Weight & Balance page, its loading sheet, picture and profiles
    /// (the rows are then empty).
    std::optional<balance::LoadingView> loading;

    std::vector<PageButton> pages; ///< by number: pages[n - 1] is page n
    std::vector<PageGroup> groups;
    std::vector<HelpLine> help;
    /// The boxes open over the window, the first shown.
    std::vector<Request> requests;
    /// Rates are being downloaded: the window takes no action meanwhile.
    bool busy = false;
};

} // namespace zel
