// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "page/pagesheet.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// What a converter has to tell the user once it has done what it could: nothing,
/// the bell (a refused entry), or a warning to read, and the fault that stopped
/// the calculation, if one did (after the warning, when both are there). The
/// window rings or shows it.
struct Report {
    enum class Kind { None, Beep, Warning };
    Kind kind = Kind::None;
    std::vector<std::string> paragraphs; ///< the warning
    Faulted fault;                       ///< a calculation that stopped

    static Report beep() { return {Kind::Beep, {}, {}}; }
    static Report warning(std::string_view text) {
        return {Kind::Warning, {std::string(text)}, {}};
    }
    static Report warning(std::vector<std::string> paragraphs) {
        return {Kind::Warning, std::move(paragraphs), {}};
    }
};

/// How the view draws a row's value.
enum class Form : std::uint8_t {
    Number,       ///< grouped, with the digits key's number of decimals
    HoursMinutes, ///< decimal hours as h:mm
    Direction,    ///< three digits: "090"
    Side,         ///< "R 11.31" for + (to the right), "L 11.31" for -
    HeadTail,     ///< "T 5.00" for + (tail), "H 5.00" for - (head)
    EastWest,     ///< "E 1.28" for +, "W 15.75" for -, always two decimals
    Latitude,     ///< signed decimal degrees, north positive
    Longitude,    ///< signed decimal degrees, east positive
    Date,         ///< yyyymmdd as "2026-11-22"
    Text,         ///< words the converter writes (a decoded report, a time of day)
};

/// What else a row says about itself; flags combine with |.
enum RowFlag : unsigned {
    OutputOnly = 1, ///< a typed value cannot be put into it: the click beeps
};

/// Which typed values a row of a page of formulas takes; any other beeps.
enum class Sign : std::uint8_t { Positive, NotNegative, Any };

/// The values a row takes (on a page of formulas, or any row that names its
/// message): a typed value outside
/// [low, high] (high itself excluded when `openHigh`, low when `openLow`)
/// gets `message`, which states that range, and changes nothing.
struct Range {
    double low = -1e300;
    double high = 1e300;
    bool openHigh = false;
    std::string_view message{};
    bool openLow = false;

    bool refuses(double x) const {
        return x < low || x > high || (openHigh && x == high) || (openLow && x == low);
    }
};

/// The unit's name of a unit caption: "pound" of "pound - lbs"; the whole
/// caption where it names no symbol ("barrel oil").
constexpr std::string_view unitName(std::string_view caption) {
    return caption.substr(0, caption.rfind(" - "));
}
/// Its symbol: "lbs" of "pound - lbs"; empty where it names none.
constexpr std::string_view unitSymbol(std::string_view caption) {
    const auto dash = caption.rfind(" - ");
    return dash == std::string_view::npos ? std::string_view{} : caption.substr(dash + 3);
}

/// One row of a page table: the unit caption, the factor and how it is drawn.
/// A factor f > 0 is how many row units make one base unit of the page; f < 0
/// says one row unit is |f| base units (so a published unit size is written
/// exactly); 0 means the row is not converted by factor.
///
/// On a page whose rows are tied by formulas, a row shows one of the page's
/// quantities, through `toRow` and `fromRow` where its unit is not the
/// quantity's own (a gradient shown as an angle).
struct RowSpec {
    std::string_view unit{}; ///< empty: the row does not exist on the page
    double factor = 0;
    Form form = Form::Number;
    unsigned flags = 0;
    int quantity = -1; ///< -1: the row shows none
    Sign sign = Sign::Positive;
    double (*toRow)(double) = nullptr; ///< quantity to row; nothing: the same
    double (*fromRow)(double) = nullptr;
    /// Rows of one group give at most one value: the newest typed (for pages
    /// that take one given per group instead of counting degrees of freedom).
    int group = 0;
    Range range{};

    bool has(RowFlag flag) const { return (flags & flag) != 0; }
};

/// Up to three quantities of a page tied by one formula.
struct Relation {
    std::array<int, 3> quantities{-1, -1, -1}; ///< -1 where the relation has fewer
    /// The value of quantities[target] from the other values; NaN when the
    /// formula gives none (a division by zero, a root of a negative number).
    double (*solve)(int target, const std::array<double, 3>& values) = nullptr;
    /// -1: the formula gives any one of its quantities from the others.
    /// Otherwise the index of the one quantity it gives, which is then only
    /// ever a result: a row that shows it takes no typed value.
    int only = -1;
};

/// A value a quantity takes while nothing gives it, unless `unlessKnown` is:
/// `value`, or the value of the quantity `sameAs` when that one is known.
struct Default {
    int quantity = -1;
    double value = 0;
    int unlessKnown = -1;
    int sameAs = -1;
};

/// A page's quantities (at most 12); empty while not known.
using Quantities = std::array<std::optional<double>, 12>;

/// A page whose rows are tied by formulas: its relations, and how many of the
/// newest typed rows count (the degrees of freedom), when its rows are not grouped.
struct Formulas {
    std::span<const Relation> relations{};
    int freedom = 0;
    std::span<const Default> defaults{};
    /// A warning when the solved quantities cannot be: nothing is changed.
    std::optional<std::string_view> (*check)(const Quantities& q) = nullptr;
    /// Quantities tied by more than one formula of three (a triangle of
    /// vectors): fills in every unknown one that the known ones give; false
    /// when it filled in none.
    bool (*derive)(Quantities& q) = nullptr;
    /// What the user must be told of the quantities solved, whose rows are
    /// written all the same: the typed value stays, what cannot be is empty.
    std::optional<std::string_view> (*advise)(const Quantities& q) = nullptr;
};

/// A row that is not converted by factor, drawn in `form`.
constexpr RowSpec row(std::string_view unit, Form form, unsigned flags = 0) {
    return {unit, 0, form, flags};
}

/// How many row units make one base unit: f for f > 0, 1/|f| for f < 0, 1 for 0.
double multiplier(double factor);

/// A number page's converter: takes the typed value into the input row (which
/// it may move) and writes the tags of the rows it computes. An arithmetic
/// fault fails the page (`PageSheet::fail`); the rows written before it stay.
/// A converter that reads a fault and still has a warning to give returns both.
using NumberConverter = Report (*)(PageSheet& page, double inputValue, int& inputRow);
/// A text page's decoder: the typed text into the rows' captions. Of a text
/// that holds several reports it shows the one numbered `which`, counting round.
using TextDecoder = Report (*)(PageSheet& page, std::string_view text, int which);

/// What a text page takes from the keyboard: at most `limit` characters, each
/// as `accept` turns it (upper case, say), or refused when it gives 0.
struct TextEntry {
    std::size_t limit = 0;
    char32_t (*accept)(char32_t typed) = nullptr;
    /// What a paste takes from the clipboard's text: the entry, or nothing
    /// with the refusal in `refused`. Nothing here: the text as it would be typed.
    std::optional<std::string> (*paste)(std::string_view text, Report& refused) = nullptr;
};

/// One page: its name, its rows and the procedure a row click runs. Its
/// number is its place in the catalogue.
struct PageTable {
    std::string_view name{};
    /// The page's icon: ui/icons/<icon>.svg, drawn on its menu button and title.
    std::string_view icon{};
    std::array<RowSpec, PageSheet::Rows> rows{};
    /// A number page: a row click puts the typed value into the row and runs this.
    NumberConverter convert = nullptr;
    /// A page of formulas: a row click solves them with the typed value as the
    /// newest given (and `convert` is not used).
    Formulas formulas{};
    /// A text page: the entry is a report of letters and digits, decoded by a
    /// row click or Enter; the calculator's keys are hidden.
    TextDecoder decode = nullptr;
    TextEntry text{};
    /// The factors and row 8 come from the currency rates, and the memory keys
    /// are "Rates", "Set" and "i".
    bool rateStore = false;
    /// A loading sheet of an aircraft's stations, drawn from the view's
    /// loading part instead of eight rows; its cells take the typed number.
    bool loading = false;
    /// The F-key that opens it from either face, drawn on its menu button; 0 for none.
    int functionKey = 0;

    const RowSpec& row(int row) const { return rows.at(static_cast<std::size_t>(row - 1)); }
    bool isText() const { return decode != nullptr; }
    bool hasFormulas() const { return !formulas.relations.empty() || formulas.derive != nullptr; }
    /// Whether the page takes places: it has a latitude row.
    bool takesPlaces() const {
        return std::any_of(rows.begin(), rows.end(),
                           [](const RowSpec& r) { return r.form == Form::Latitude; });
    }
    /// A row that only shows results: a typed value put into it beeps.
    bool outputOnly(int index) const;
};

} // namespace zel
