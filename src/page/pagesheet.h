// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "entry/fault.h"
#include "entry/numbertext.h"

#include <array>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace zel {

/// One row of a page: the unit cell beside the value cell. The tag is the row's
/// value as full-precision number text ("0" for none); the caption is what the
/// value cell shows, rendered from the tag.
struct RowCell {
    std::string unit;
    std::string caption;
    std::string tag = "0";
    /// Drawn smaller so that a long caption fits its cell.
    bool compact = false;
    /// "R ", "L ", "T " or "H ": the side or head/tail letter before the
    /// number of such a row; empty elsewhere.
    std::string prefix;
    bool input = false;    ///< the input row: drawn in the input colour
    bool computed = false; ///< the value was derived, not typed (Mach - AS temperatures)
    bool held = false;     ///< a value was written, 0 included; "0" alone may mean none
    int given = 0;         ///< when the user typed into it (higher is newer); 0 never
    /// One of the values the page is worked out from, on a page of formulas:
    /// the user typed it and it still counts.
    bool isGiven() const { return given != 0; }
};

/// Whether a caption is drawn small: a number longer than 14 characters; a
/// decoded report's text from 14 characters on, as its words run longer.
bool compactCaption(std::string_view caption, bool decoded);

/// The rows of the page shown, with everything a page converter may touch:
/// tags, directly written captions, the factors, which rows the user typed.
class PageSheet {
  public:
    static constexpr int Rows = 8;

    explicit PageSheet(const Symbols& symbols) : m_symbols(symbols) {}

    RowCell& operator[](int row) { return m_rows.at(static_cast<std::size_t>(row)); }
    const RowCell& operator[](int row) const { return m_rows.at(static_cast<std::size_t>(row)); }

    /// A row exists on a page when its unit caption is not empty.
    bool exists(int row) const { return !(*this)[row].unit.empty(); }
    /// The row's value read back from its tag (0 when the tag is not a number).
    double value(int row) const { return textValue((*this)[row].tag, m_symbols); }
    /// Whether a value was written into the row since it was last cleared; on
    /// pages where a typed zero is a value this tells 0 from no value.
    bool holds(int row) const { return (*this)[row].held; }
    /// Writes a value in the general conversion; a non-finite value is an
    /// overflow, and is not written.
    void setValue(int row, double value);
    /// Writes a single-precision value (7 significant digits).
    void setSingle(int row, float value);
    /// No value: tag "0".
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
    /// `ResetPage`: every value cell empty, tag "0", row colour, full-size type, nothing typed.
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
    int m_lastGiven = 0;
    Faulted m_fault;
    std::chrono::year_month_day m_today{std::chrono::year{2000} / 1 / 1};
};

} // namespace zel
