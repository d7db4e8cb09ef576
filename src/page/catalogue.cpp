// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "page/catalogue.h"

#include "entry/text.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace zel {

std::string foldedName(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (text.substr(at, 2) == "°") {
            ++at;
            continue;
        }
        if (isLetter(c) || isDigit(c) || static_cast<unsigned char>(c) >= 0x80) {
            out += lowerCase(c);
        }
    }
    return out;
}

const PageTable* PageCatalogue::find(int number) const {
    return number >= 1 && number <= count() ? m_pages[static_cast<std::size_t>(number - 1)]
                                            : nullptr;
}

const PageTable* PageCatalogue::find(std::string_view text) const {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size()) {
        return find(number);
    }
    const std::string folded = foldedName(text);
    const auto named = std::find_if(m_pages.begin(), m_pages.end(), [&](const PageTable* page) {
        return !folded.empty() && foldedName(page->name) == folded;
    });
    return named == m_pages.end() ? nullptr : *named;
}

const PageTable& PageCatalogue::page(int number) const {
    if (const PageTable* table = find(number)) {
        return *table;
    }
    throw std::out_of_range("no page " + std::to_string(number));
}

int PageCatalogue::numberOf(const PageTable* page) const {
    const auto at = std::find(m_pages.begin(), m_pages.end(), page);
    return page == nullptr || at == m_pages.end() ? 0 : static_cast<int>(at - m_pages.begin()) + 1;
}

const PageTable* PageCatalogue::byFunctionKey(int key) const {
    const auto found = std::find_if(m_pages.begin(), m_pages.end(), [key](const PageTable* page) {
        return key != 0 && page->functionKey == key;
    });
    return found == m_pages.end() ? nullptr : *found;
}

} // namespace zel
