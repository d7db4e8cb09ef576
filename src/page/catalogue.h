// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <initializer_list>
#include <span>
#include <vector>

namespace zel {

/// The pages of the menu by number, gathered from the tables each calculator
/// keeps beside its converters.
class PageCatalogue {
  public:
    /// The tables of `groups`, and the pages of `singles` (each declared on its
    /// own). Throws std::logic_error when two tables claim one number.
    PageCatalogue(std::initializer_list<std::span<const PageTable>> groups,
                  std::span<const PageTable* const> singles = {});

    /// The highest page number; the menu has room for this many buttons.
    int count() const { return static_cast<int>(m_pages.size()) - 1; }
    /// The page with this number; nothing for a number no page has.
    const PageTable* find(int number) const;
    /// The page with this number; throws std::out_of_range for one no page has.
    const PageTable& page(int number) const;
    /// The page a function key F1..F12 opens from the menu face; nothing for none.
    const PageTable* byFunctionKey(int key) const;

  private:
    std::vector<const PageTable*> m_pages; // by number; 0 unused
};

} // namespace zel
