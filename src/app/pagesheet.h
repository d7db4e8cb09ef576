// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "app/platform.h"
#include "entry/numbertext.h"

#include <array>
#include <string>
#include <string_view>

namespace zel {

/// One row of a page: the unit cell beside the value cell. The tag is the row's
/// value as full-precision number text ("0" for none); the caption is what the
/// value cell shows, rendered from the tag.
struct RowCell {
    std::string unit;
    std::string caption;
    std::string tag = "0";
    int fontSize = 12;
    bool input = false;    ///< drawn in the input colour
    bool computed = false; ///< the value was derived, not typed (Mach - AS temperatures)
};

/// The rows of the page shown, with everything a page converter may touch:
/// tags, directly written captions, the bell and the page's own warnings.
class PageSheet {
  public:
    static constexpr int Rows = 8;

    PageSheet(Interaction& ui, const Symbols& symbols) : m_ui(ui), m_symbols(symbols) {}

    RowCell& operator[](int row) { return m_rows.at(static_cast<std::size_t>(row)); }
    const RowCell& operator[](int row) const { return m_rows.at(static_cast<std::size_t>(row)); }

    /// A row exists on a page when its unit caption is not empty.
    bool exists(int row) const { return !(*this)[row].unit.empty(); }
    /// The row's value read back from its tag (0 when the tag is not a number).
    double value(int row) const { return textValue((*this)[row].tag, m_symbols); }
    /// Writes a value in the general conversion; a non-finite value is an overflow.
    void setValue(int row, double value);
    /// Writes a single-precision value (7 significant digits).
    void setSingle(int row, float value);
    void clear(int row) { (*this)[row].tag = "0"; }
    /// `ResetPage`: every value cell empty, tag "0", row colour, 12 points.
    void reset();

    /// The eight rows as they stand, to put back when a calculation has no answer.
    using Snapshot = std::array<RowCell, Rows + 1>;
    Snapshot snapshot() const { return m_rows; }
    void restore(const Snapshot& rows) { m_rows = rows; }

    double factor(int row) const { return m_factors.at(static_cast<std::size_t>(row)); }
    void setFactor(int row, double f) { m_factors.at(static_cast<std::size_t>(row)) = f; }

    const std::string& title() const { return m_title; }
    void setTitle(std::string title) { m_title = std::move(title); }
    const Symbols& symbols() const { return m_symbols; }

    void beep() { m_ui.beep(); }
    /// An input error the user must read: exclamation icon, titled with the page title.
    void warn(std::string_view text) { m_ui.message(MessageIcon::Exclamation, m_title, text); }

  private:
    Interaction& m_ui;
    const Symbols& m_symbols;
    std::array<RowCell, Rows + 1> m_rows{}; // rows 1..8; 0 unused
    std::array<double, Rows + 1> m_factors{};
    std::string m_title;
};

} // namespace zel
