// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "currency/settings.h"

#include "currency/profile.h"

namespace zel {

std::string Settings::path() {
    return settingsPath(m_storage.programFolder());
}

std::string Settings::read(std::string_view section, std::string_view key) {
    const FileRead file = m_storage.read(path());
    return file.status == FileRead::Status::Ok ? profile::read(file.bytes, section, key)
                                               : std::string();
}

void Settings::write(std::string_view section, std::string_view key, std::string_view value) {
    // The file is read again under the lock, so that a key another window
    // wrote meanwhile is kept. The change owns its words: a browser applies
    // it again later, under a lock that it can only wait for asynchronously.
    ++m_writing;
    m_storage.update(
        path(),
        [section = std::string(section), key = std::string(key),
         value = std::string(value)](const FileRead& file) -> std::optional<std::string> {
            if (file.status == FileRead::Status::Unreadable) {
                return std::nullopt; // writing over it would lose what it holds
            }
            return profile::write(file.bytes, section, key, value);
        },
        [this](bool saved) {
            --m_writing;
            m_failed = m_failed || !saved;
            reportWhenDone();
        });
}

void Settings::reportFailures() {
    m_reportDue = true;
    reportWhenDone();
}

void Settings::reportWhenDone() {
    if (!m_reportDue || m_writing > 0) {
        return;
    }
    m_reportDue = false;
    if (m_failed) {
        m_failed = false;
        m_dialogs.message(MessageIcon::Critical, "zelFLIGHTAB",
                          {"Cannot save the settings file:", path(),
                           "The file is left as it was, so what was to be saved is lost. Check "
                           "that its folder exists and can be written to."});
    }
}

} // namespace zel
