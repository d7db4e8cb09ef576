// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/catalogue.h"

#include <stdexcept>

namespace zel {

PageCatalogue::PageCatalogue(std::initializer_list<std::span<const PageTable>> groups,
                             std::span<const PageTable* const> singles) {
    auto add = [this](const PageTable& table) {
        const auto at = static_cast<std::size_t>(table.number);
        if (m_pages.size() <= at) {
            m_pages.resize(at + 1, nullptr);
        }
        if (table.number < 1 || m_pages[at] != nullptr) {
            throw std::logic_error("page number taken twice: " + std::string(table.name));
        }
        m_pages[at] = &table;
    };
    for (const auto& group : groups) {
        for (const PageTable& table : group) {
            add(table);
        }
    }
    for (const PageTable* table : singles) {
        add(*table);
    }
    if (m_pages.empty()) {
        m_pages.push_back(nullptr);
    }
}

const PageTable* PageCatalogue::find(int number) const {
    return number >= 1 && number <= count() ? m_pages[static_cast<std::size_t>(number)] : nullptr;
}

const PageTable& PageCatalogue::page(int number) const {
    if (const PageTable* table = find(number)) {
        return *table;
    }
    throw std::out_of_range("no page " + std::to_string(number));
}

const PageTable* PageCatalogue::byFunctionKey(int key) const {
    for (const PageTable* table : m_pages) {
        if (table != nullptr && table->functionKey == key && key != 0) {
            return table;
        }
    }
    return nullptr;
}

} // namespace zel
