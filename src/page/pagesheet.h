// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "entry/numbertext.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zel {

/// One row of a page: its unit beside its value. A row holds a number (or
/// none); a row that shows words (a decoded report, a time of day) holds them
/// as its text. Nothing here is formatted: the view draws the number with the
/// regional symbols and the digits of the moment.
struct RowCell {
    /// The unit as the page names it, "pound - lbs"; empty: the row does not
    /// exist on the page.
    std::string unit;
    std::optional<double> value;
    std::string text;
    bool input = false;   ///< the input row
    bool derived = false; ///< worked out by the page, not typed (Mach - AS temperatures)
    int given = 0;        ///< when the user typed into it (higher is newer); 0 never
    /// One of the values the page is worked out from, on a page of formulas:
    /// the user typed it and it still counts.
    bool isGiven() const { return given != 0; }
};

/// The rows of the page shown, with everything a page converter may touch:
/// values, texts, the factors, which rows the user typed.
class PageSheet {
  public:
    static constexpr int Rows = 8;
    /// Significant digits a row keeps: those a double's value shows in full,
    /// so that what a row holds is what it prints and what a later
    /// calculation reads, whatever the regional symbols.
    static constexpr int Digits = 15;
    /// Those of a value worked out in single precision (the wind triangle).
    static constexpr int SingleDigits = 7;

    /// The regional symbols of the moment, for a decoder that writes numbers
    /// into words.
    explicit PageSheet(const Symbols& symbols) : m_symbols(symbols) {}

    RowCell& operator[](int row) { return m_rows.at(static_cast<std::size_t>(row)); }
    const RowCell& operator[](int row) const { return m_rows.at(static_cast<std::size_t>(row)); }

    /// A row exists on a page when the page gives it a unit.
    bool exists(int row) const { return !(*this)[row].unit.empty(); }
    /// The row's number, 0 when it holds none.
    double value(int row) const { return (*this)[row].value.value_or(0); }
    /// Whether the row holds a number, 0 included.
    bool holds(int row) const { return (*this)[row].value.has_value(); }
    /// Writes a number, kept to 15 significant digits; a non-finite value is
    /// an overflow, and is not written.
    void setValue(int row, double value);
    /// Writes a single-precision result, kept to 7 significant digits.
    void setSingle(int row, float value);
    /// The words a text row shows.
    void setText(int row, std::string text);
    /// What the page says of its results as a whole, beside the rows: "Caution:
    /// weak horizontal field (3,300 nT), compass less reliable". Each
    /// calculation says it afresh; empty for nothing.
    const std::string& note() const { return m_note; }
    void setNote(std::string note) { m_note = std::move(note); }
    /// No number and no text.
    void clear(int row);

    /// A calculation stops at its first fault: from then on nothing more is
    /// written into a row, and the rows written before it stay.
    void fail(Fault fault);
    bool failed() const { return m_fault.has_value(); }
    /// The fault that stopped the calculation, which is forgotten.
    Faulted takeFault() { return std::exchange(m_fault, std::nullopt); }
    /// a / b; a zero divisor or a result outside the double range fails the
    /// calculation (the result is then NaN, which no row takes).
    double divide(double a, double b);
    /// Every row empty, none the input row, nothing typed.
    void reset();

    /// Marks the row as typed by the user, newer than every other.
    void markGiven(int row) { (*this)[row].given = ++m_lastGiven; }
    void forgetGiven(int row) { (*this)[row].given = 0; }
    /// The rows the user typed into, newest first.
    std::vector<int> givens() const;

    /// The eight rows as they stand, to put back when a calculation has no answer.
    using Snapshot = std::array<RowCell, Rows + 1>;
    Snapshot snapshot() const { return m_rows; }
    void restore(const Snapshot& rows) { m_rows = rows; }

    double factor(int row) const { return m_factors.at(static_cast<std::size_t>(row)); }
    void setFactor(int row, double f) { m_factors.at(static_cast<std::size_t>(row)) = f; }

    const Symbols& symbols() const { return m_symbols; }
    /// Today's date, for a page that needs one when none is typed.
    std::chrono::year_month_day today() const { return m_today; }
    void setToday(std::chrono::year_month_day day) { m_today = day; }

  private:
    const Symbols& m_symbols;
    std::array<RowCell, Rows + 1> m_rows{}; // rows 1..8; 0 unused
    std::array<double, Rows + 1> m_factors{};
    std::string m_note;
    int m_lastGiven = 0;
    Faulted m_fault;
    std::chrono::year_month_day m_today{std::chrono::year{2000} / 1 / 1};
};

} // namespace zel
