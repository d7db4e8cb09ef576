// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/modules.h"

#include <QLibrary>

#include <filesystem>

namespace zel::modules {

std::string find(const std::string& name) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) {
        return {};
    }
    const std::string file = "zelflightab-" + name + ".so";
    for (const fs::path& folder :
         {program.parent_path(), program.parent_path() / ".." / "lib" / "zelflightab"}) {
        if (fs::exists(folder / file, error)) {
            return (folder / file).lexically_normal().string();
        }
    }
    return {};
}

void* load(const std::string& name, const char* function, std::string& error) {
    const std::string file = find(name);
    if (file.empty()) {
        error = "the module zelflightab-" + name + ".so is not installed beside the program";
        return nullptr;
    }
    // Kept loaded for the life of the program.
    auto* library = new QLibrary(QString::fromStdString(file));
    if (QFunctionPointer entry = library->resolve(function)) {
        return reinterpret_cast<void*>(entry);
    }
    error = library->errorString().toStdString();
    delete library;
    return nullptr;
}

} // namespace zel::modules
