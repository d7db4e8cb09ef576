// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "platform/qtstorage.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace zel {
namespace {

QString qt(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

FileRead QtStorage::read(const std::string& path) {
    QFile file(qt(path));
    if (!file.exists()) {
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return {FileRead::Status::Unreadable, {}};
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return {FileRead::Status::Unreadable, {}};
    }
    return {FileRead::Status::Ok, bytes.toStdString()};
}

void QtStorage::write(const std::string& path, std::string_view bytes, Then<bool> done) {
    done(writeFile(path, bytes));
}

void QtStorage::update(const std::string& path, const Change& change, Then<bool> done) {
    done(updateFile(path, change));
}

bool QtStorage::writeFile(const std::string& path, std::string_view bytes) {
    QDir().mkpath(QFileInfo(qt(path)).absolutePath());
    // QSaveFile writes a temporary file beside the target and renames it over
    // the target only when everything was written; it also refuses to replace
    // a file that is not writable.
    QSaveFile file(qt(path));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (file.write(bytes.data(), static_cast<qint64>(bytes.size())) !=
        static_cast<qint64>(bytes.size())) {
        file.cancelWriting();
        file.commit();
        return false;
    }
    return file.commit();
}

std::vector<std::string> QtStorage::list(const std::string& folder) {
    std::vector<std::string> names;
    for (const QString& name : QDir(qt(folder)).entryList(QDir::Files, QDir::Name)) {
        names.push_back(name.toStdString());
    }
    return names;
}

void QtStorage::remove(const std::string& path) {
    QFile::remove(qt(path));
}

bool QtStorage::updateFile(const std::string& path, const Change& change) {
    QDir().mkpath(QFileInfo(qt(path)).absolutePath());
    QLockFile lock(qt(path) + QStringLiteral(".lock"));
    // A write takes milliseconds: a lock older than 10 seconds, or one whose
    // process is gone, was left by a program that crashed.
    lock.setStaleLockTime(std::chrono::seconds(10));
    if (!lock.tryLock(std::chrono::seconds(5))) {
        return false;
    }
    const FileRead file = read(path);
    const std::optional<std::string> changed = change(file);
    if (!changed) {
        return false;
    }
    return (file.status == FileRead::Status::Ok && *changed == file.bytes) ||
           writeFile(path, *changed);
}

std::string QtStorage::locateProgramFolder(const std::optional<std::string>& folder) {
    QString chosen;
    if (folder) {
        chosen = QDir(qt(*folder)).absolutePath();
    } else if (const QString beside = QCoreApplication::applicationDirPath();
               QFileInfo::exists(qt(settingsPath(beside.toStdString())))) {
        chosen = beside;
    } else {
        chosen = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    }
    const QString settings = qt(settingsPath(chosen.toStdString()));
    if (!QFileInfo::exists(settings)) {
        // An installed program starts from its shipped file (which a packager
        // may have changed); a program run where it was built, from its own copy.
        const QString installed = QCoreApplication::applicationDirPath() +
                                  QStringLiteral("/../share/zelflightab/zelFLIGHTAB.ini");
        QFile shipped(QFileInfo::exists(installed)
                          ? installed
                          : QStringLiteral(":/zelflightab/zelFLIGHTAB.ini"));
        if (shipped.open(QIODevice::ReadOnly)) {
            writeFile(settings.toStdString(), shipped.readAll().toStdString());
        }
    }
    return chosen.toStdString();
}

std::chrono::year_month_day QtClock::today() {
    const QDate date = QDate::currentDate();
    return std::chrono::year{date.year()} / date.month() / date.day();
}

} // namespace zel
