// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "page/pagetable.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// The pages of the menu in their order: a page's number is its place in the
/// list (from 1), so that no two pages can claim one number and a new page
/// takes the next. The menu shows them in groups, under headings, in the
/// order a pilot works; the groups order the buttons, not the numbers.
class PageCatalogue {
  public:
    struct Group {
        std::string_view heading;
        std::vector<const PageTable*> pages;
    };

    /// `groups` holds every page once; none: one group of all, in order.
    explicit PageCatalogue(std::span<const PageTable* const> pages, std::vector<Group> groups = {})
        : m_pages(pages.begin(), pages.end()), m_groups(std::move(groups)) {
        if (m_groups.empty()) {
            m_groups.push_back({{}, m_pages});
        }
    }

    int count() const { return static_cast<int>(m_pages.size()); }
    /// The page with this number; nothing for a number no page has.
    const PageTable* find(int number) const;
    /// The page a text names: its number, or its name in any case with blanks
    /// and punctuation left out ("fuel uplift", "mach-as"); nothing for none.
    const PageTable* find(std::string_view numberOrName) const;
    /// The page with this number; throws std::out_of_range for one no page has.
    const PageTable& page(int number) const;
    /// The number of a page of this catalogue; 0 for another.
    int numberOf(const PageTable* page) const;
    /// The page a function key F1..F12 opens; nothing for none.
    const PageTable* byFunctionKey(int key) const;
    const std::vector<Group>& groups() const { return m_groups; }

  private:
    std::vector<const PageTable*> m_pages;
    std::vector<Group> m_groups;
};

/// A name as it is compared: ASCII letters in lower case, digits, and any
/// non-ASCII character but the degree sign; blanks and punctuation left out
/// ("Mach - AS" is "machas", "°C" is "c").
std::string foldedName(std::string_view name);

} // namespace zel
