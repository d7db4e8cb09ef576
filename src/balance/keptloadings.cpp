// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The loadings the page keeps between runs and by name: written whole to the
// loading book after each change, saved, recalled and deleted.
#include "balance/weightbalance.h"

#include "entry/text.h"

namespace zel::balance {

void WeightBalance::keepLoadings() {
    LoadingBook book;
    book.chosen = m_chosen;
    for (const auto& profile : m_shelf.profiles()) {
        if (const Loading* l = loadingOf(profile.aircraft)) {
            KeptLoading kept = keptLoading(profile.aircraft, *l);
            if (!kept.weights.empty() || !kept.burns.empty()) {
                book.current.push_back(std::move(kept));
            }
        }
    }
    for (const auto& [name, kept] : m_unplaced) {
        if (!m_shelf.find(kept.aircraft)) {
            book.current.push_back(kept);
        }
    }
    book.named = m_named;
    m_storage.update(
        techPath(m_storage.programFolder(), LoadingBookName),
        [bytes = writeBook(book)](const FileRead&) -> std::optional<std::string> { return bytes; },
        [this](bool saved) {
            if (!saved && !m_bookFailed) {
                message("The loadings could not be kept in the storage: they stay as they are "
                        "while the program runs.");
            }
            m_bookFailed = !saved;
        });
}

std::vector<std::size_t> WeightBalance::namedOfShown() const {
    std::vector<std::size_t> list;
    for (std::size_t i = 0; i < m_named.size(); ++i) {
        if (lowerCase(m_named[i].aircraft) == lowerCase(m_chosen)) {
            list.push_back(i);
        }
    }
    return list;
}

void WeightBalance::saveLoading() {
    const auto* profile = shown();
    if (profile == nullptr || m_editor) {
        return;
    }
    Request box;
    box.kind = Request::Kind::Input;
    box.icon = MessageIcon::Question;
    box.title = std::string(WeightBalanceTitle);
    box.paragraphs = {"A name for this loading of " + profile->aircraft.name +
                      " (\"Solo, full fuel\"):"};
    m_dialogs.ask(std::move(box), [this, aircraft = profile->aircraft.name](const Answer& answer) {
        if (!answer.text) {
            return;
        }
        std::string name = *answer.text;
        name.erase(0, name.find_first_not_of(" \t"));
        name.erase(name.find_last_not_of(" \t") + 1);
        const auto at = m_shelf.find(aircraft);
        if (name.empty() || !at) {
            return;
        }
        const Aircraft& a = m_shelf.profiles()[*at].aircraft;
        const Loading* held = loadingOf(a);
        KeptLoading kept = keptLoading(a, held ? *held : Loading::emptyFor(a), name);
        // A name saved again for the aircraft replaces what it held.
        std::erase_if(m_named, [&](const KeptLoading& k) {
            return lowerCase(k.aircraft) == lowerCase(aircraft) &&
                   lowerCase(k.name) == lowerCase(name);
        });
        m_named.push_back(std::move(kept));
        keepLoadings();
    });
}

void WeightBalance::recallLoading(int index) {
    const std::vector<std::size_t> list = namedOfShown();
    if (index < 0 || index >= static_cast<int>(list.size()) || m_editor) {
        return;
    }
    loading() = loadingFrom(shown()->aircraft, m_named[list[static_cast<std::size_t>(index)]]);
    m_input = 0;
    keepLoadings();
}

void WeightBalance::deleteLoading(int index) {
    const std::vector<std::size_t> list = namedOfShown();
    if (index < 0 || index >= static_cast<int>(list.size()) || m_editor) {
        return;
    }
    m_named.erase(m_named.begin() + static_cast<long>(list[static_cast<std::size_t>(index)]));
    keepLoadings();
}

} // namespace zel::balance
