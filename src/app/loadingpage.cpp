// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The Weight & Balance page's events: each is taken only while the page is
// shown and no box is open, as every event of the window.
#include "app/menu.h"

namespace zel {

void Menu::clickEntry(int entry) {
    if (m_pad.pending()) {
        // A click ends an unfinished calculation with the visible number.
        m_pad.dropPending();
        operate(Operator::Equals);
    }
    if (!m_pad.typed()) {
        // Nothing typed: the cell is selected, and its value shown.
        m_balance.select(entry);
        if (const auto held = m_balance.value(entry)) {
            m_pad.select(*held);
        }
        return;
    }
    const Report report = m_balance.enter(entry, m_pad.inputValue(), m_symbols);
    show(report);
    if (report.kind == Report::Kind::None) {
        clearEntry();
    }
}

void Menu::chooseAircraft(int index) {
    onLoadingSheet([&] { m_balance.chooseAircraft(index); });
}

void Menu::saveLoading() {
    onLoadingSheet([&] { m_balance.saveLoading(); });
}

void Menu::recallLoading(int index) {
    onLoadingSheet([&] { m_balance.recallLoading(index); });
}

void Menu::deleteLoading(int index) {
    onLoadingSheet([&] { m_balance.deleteLoading(index); });
}

void Menu::chooseShift(int from, int to) {
    onLoadingSheet([&] { m_balance.chooseShift(from, to); });
}

void Menu::chooseBallast(int station) {
    onLoadingSheet([&] { m_balance.chooseBallast(station); });
}

void Menu::newProfile() {
    onLoadingSheet([&] { m_balance.newProfile(m_symbols); });
}

void Menu::duplicateProfile() {
    onLoadingSheet([&] { m_balance.duplicateProfile(); });
}

void Menu::editProfile() {
    onLoadingSheet([&] { m_balance.editProfile(m_symbols); });
}

void Menu::renameProfile() {
    onLoadingSheet([&] { m_balance.renameProfile(); });
}

void Menu::deleteProfile() {
    onLoadingSheet([&] { m_balance.deleteProfile(); });
}

void Menu::importProfile(std::string_view bytes) {
    // An import may come before the page is shown (a file opened with the program).
    if (!blocked()) {
        m_balance.importProfile(bytes);
    }
}

std::string Menu::exportProfile() const {
    return loadingPage() ? m_balance.exportProfile() : std::string();
}

void Menu::editField(std::string_view field, std::string_view text) {
    onLoadingSheet([&] { m_balance.editField(field, text); });
}

void Menu::pressFormButton(const balance::FormAction& action) {
    onLoadingSheet([&] { m_balance.pressFormButton(action, m_symbols); });
}

} // namespace zel
