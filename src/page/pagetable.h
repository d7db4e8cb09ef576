// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "page/pagesheet.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zel {

/// What a converter has to tell the user once it has done what it could: nothing,
/// the bell (a refused entry), or a warning to read, and the fault that stopped
/// the calculation, if one did (after the warning, when both are there). The
/// window rings or shows it.
struct Report {
    enum class Kind { None, Beep, Warning };
    Kind kind = Kind::None;
    std::string text; ///< the warning
    Faulted fault;    ///< a calculation that stopped

    static Report beep() { return {Kind::Beep, {}, {}}; }
    static Report warning(std::string_view text) { return {Kind::Warning, std::string(text), {}}; }
};

/// How `DisplayTags` draws a row's value.
enum class Form : std::uint8_t {
    Number,       ///< grouped, with the digits key's number of decimals
    HoursMinutes, ///< decimal hours as h:mm
    Direction,    ///< three digits: "090"
    Side,         ///< "R 11.31" for + (to the right), "L 11.31" for -
    HeadTail,     ///< "T 5.00" for + (tail), "H 5.00" for - (head)
    Date,         ///< yyyymmdd as "2026-11-22"
    Text,         ///< the converter writes the caption; `DisplayTags` leaves it alone
};

/// What else a row says about itself; flags combine with |.
enum RowFlag : unsigned {
    UnknownEmpty = 1, ///< -999 stands for a value nobody knows, shown empty
    OutputOnly = 2,   ///< a typed value cannot be put into it: the click beeps
};

/// Which typed values a row of a page of formulas takes; any other beeps.
enum class Sign : std::uint8_t { Positive, NotNegative, Any };

/// The values a row of a page of formulas takes: a typed value outside
/// [low, high] (high itself excluded when `openHigh`) gets `message` and
/// changes nothing.
struct Range {
    double low = -1e300;
    double high = 1e300;
    bool openHigh = false;
    std::string_view message{};
};

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
};

/// A row that is not converted by factor, drawn in `form`.
constexpr RowSpec row(std::string_view unit, Form form, unsigned flags = 0) {
    return {unit, 0, form, flags};
}

/// How many row units make one base unit: f for f > 0, 1/|f| for f < 0, 1 for 0.
double multiplier(double factor);

/// The program's own π: the single-precision value 3.1415927 (as a double
/// exactly 3.1415927410125732). Angles and the wind triangle use it as it is, so
/// 180° shows 3.14159274101257 radians, the figure pilots' tables were made with.
inline constexpr float Pi = 3.14159274101257324f;

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

/// One page: its place in the menu, its rows and the procedure a row click runs.
struct PageTable {
    int number = 0; ///< 1.. : its place in the menu, three to a line
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
    /// A typed 0 is a value and a row without one is empty; otherwise a 0 entry
    /// only selects a row and a value of 0 shows as an empty cell.
    bool zeroIsValue = false;
    /// The factors and row 8 come from the currency rates, and the memory keys
    /// are "Rates", "Set" and "i".
    bool rateStore = false;
    int functionKey = 0;           ///< the F-key that opens it from the menu face, 0 for none
    std::string_view keyCaption{}; ///< the F-key drawn on its button

    const RowSpec& row(int row) const { return rows.at(static_cast<std::size_t>(row - 1)); }
    bool isText() const { return decode != nullptr; }
    bool hasFormulas() const { return !formulas.relations.empty(); }
    /// A row that only shows results: a typed value put into it beeps.
    bool outputOnly(int index) const;
};

} // namespace zel
