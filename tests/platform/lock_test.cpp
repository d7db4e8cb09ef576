// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// Two programs writing one settings file at the same moment lose nothing.
#include "currency/profile.h"
#include "fakeplatform.h"
#include "platform/qtstorage.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel::test {

constexpr int Writes = 200;
constexpr int Keys = 10;

/// One writer: `Writes` settings writes of its own keys ("A0".."A9"), each as
/// the program makes it, one key per write.
int writeKeys(const std::string& file, const std::string& name) {
    QtStorage storage(file.substr(0, file.rfind('/')));
    for (int i = 0; i < Writes; ++i) {
        const std::string key = name + std::to_string(i % Keys);
        const bool saved = updateNow(storage, file, [&](const FileRead& read) {
            return profile::write(read.bytes, "Rates", key, std::to_string(i));
        });
        if (!saved) {
            return 1;
        }
    }
    return 0;
}

namespace {

TEST(SettingsLock, TwoWritersAtOnceLoseNoKey) {
    QTemporaryDir dir;
    const QString file = dir.path() + "/Tech/zelFLIGHTAB.ini";
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const char* name : {"A", "B"}) {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ZEL_WRITE_KEYS", QString::fromLatin1(name) + "," + file);
        process->setProcessEnvironment(environment);
        process->start(QCoreApplication::applicationFilePath(), {});
        writers.push_back(std::move(process));
    }
    for (auto& writer : writers) {
        ASSERT_TRUE(writer->waitForFinished(60'000));
        EXPECT_EQ(writer->exitCode(), 0);
    }
    QtStorage storage(dir.path().toStdString());
    const std::string settings = storage.read(file.toStdString()).bytes;
    int lost = 0;
    for (const std::string name : {"A", "B"}) {
        for (int k = 0; k < Keys; ++k) {
            const std::string last = std::to_string(Writes - Keys + k);
            lost += profile::read(settings, "Rates", name + std::to_string(k)) != last;
        }
    }
    std::cout << "writes: " << 2 * Writes << ", keys lost: " << lost << '\n';
    EXPECT_EQ(lost, 0);
}

TEST(SettingsLock, AStaleLockIsTakenOverAndABusyOneRefusedAfterFiveSeconds) {
    QTemporaryDir dir;
    const std::string file = (dir.path() + "/zelFLIGHTAB.ini").toStdString();
    QtStorage storage(dir.path().toStdString());
    auto write = [&] {
        return updateNow(storage, file, [](const FileRead&) { return std::string("[Rates]\n"); });
    };
    {
        // A lock left by a program that is gone.
        QFile stale(QString::fromStdString(file) + ".lock");
        ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
        stale.write("2147483000\nzelflightab\n\n");
    }
    EXPECT_TRUE(write());
    QLockFile busy(QString::fromStdString(file) + ".lock");
    ASSERT_TRUE(busy.tryLock());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(write());
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

} // namespace
} // namespace zel::test
