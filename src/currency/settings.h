// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <string>
#include <string_view>

namespace zel {

/// The settings file <program folder>/Tech/zelFLIGHTAB.ini, read and written
/// one key at a time: everything else it holds stays as it is.
class Settings {
  public:
    Settings(Storage& storage, Dialogs& dialogs) : m_storage(storage), m_dialogs(dialogs) {}

    std::string path();
    /// One key; "" when the file or the key is missing.
    std::string read(std::string_view section, std::string_view key);
    /// Writes one key under the storage's lock, keeping the rest of the file;
    /// a file that exists but cannot be read is left alone. The outcome comes
    /// later: a write that fails is told once, by `reportFailures`.
    void write(std::string_view section, std::string_view key, std::string_view value);
    /// At the end of an action that wrote: once every write so far has
    /// ended, says that the settings could not be saved if one failed.
    void reportFailures();

  private:
    void reportWhenDone();

    Storage& m_storage;
    Dialogs& m_dialogs;
    int m_writing = 0;        ///< writes whose outcome has not come yet
    bool m_failed = false;    ///< a write failed since the user was last told
    bool m_reportDue = false; ///< an action ended: tell the user once the writes have
};

} // namespace zel
