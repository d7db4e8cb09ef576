// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#pragma once

#include "host/platform.h"

#include <optional>
#include <string>

namespace zel {

/// Files with Qt: whole-file reads, atomic writes with QSaveFile.
class QtStorage : public Storage {
  public:
    explicit QtStorage(std::string programFolder) : m_folder(std::move(programFolder)) {}

    std::string programFolder() override { return m_folder; }
    FileRead read(const std::string& path) override;
    /// Done before it returns: the outcome comes at once.
    void write(const std::string& path, std::string_view bytes, Then<bool> done) override;
    void remove(const std::string& path) override;
    std::vector<std::string> list(const std::string& folder) override;
    /// The lock is a QLockFile beside the file ("zelFLIGHTAB.ini.lock").
    void update(const std::string& path, const Change& change, Then<bool> done) override;

    /// Where the settings live: `folder` when given; else the executable's
    /// folder when it holds Tech/zelFLIGHTAB.ini (a portable install); else the
    /// user's application data folder. The settings file that ships with the
    /// program is put there when none is. Needs a Qt application object.
    static std::string locateProgramFolder(const std::optional<std::string>& folder);

  private:
    static bool writeFile(const std::string& path, std::string_view bytes);
    bool updateFile(const std::string& path, const Change& change);

    std::string m_folder;
};

/// Today's date from the system clock, in local time.
class QtClock : public Clock {
  public:
    std::chrono::year_month_day today() override;
};

} // namespace zel
