// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The settings folder in bad shape, with real files: the calculator starts,
// converts, says what it could not save, and never destroys a readable file.
#include "fakeplatform.h"
#include "platform/qtstorage.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace zel::test {
namespace {

std::string readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string("<none>");
}

void writeAll(const QString& path, const std::string& bytes) {
    QDir().mkpath(path.section('/', 0, -2));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

/// The calculator on a settings folder prepared by `prepare`, the way the
/// program starts: the folder located (and seeded), then the Currency page
/// opened, 100 euro converted, and an own currency set.
struct Start {
    QTemporaryDir dir;
    QString folder = dir.path() + "/zel";
    QString settings = folder + "/Tech/zelFLIGHTAB.ini";
    FakeInteraction ui;
    FakeRegional regional;
    std::unique_ptr<QtStorage> storage;
    FakeNetwork network;
    FakeClock clock;

    std::string run() {
        storage = std::make_unique<QtStorage>(QtStorage::locateProgramFolder(folder.toStdString()));
        Platform platform{ui, regional, *storage, network, clock};
        Menu menu(platform);
        ui.answer = [&menu](int request, const Answer& given) { menu.answer(request, given); };
        menu.start();
        menu.activate();
        menu.openPage(page::Currency);
        for (char c : std::string("100")) {
            menu.type(static_cast<unsigned char>(c));
        }
        menu.clickRow(3);
        const std::string usd = menu.view().rows[7 - 1].value;
        ui.inputs = {"Mexican Peso", "MXN"};
        menu.pressMemory(MemoryKey::Add);
        return usd;
    }
    bool toldUnsaved() const {
        return std::any_of(ui.events.begin(), ui.events.end(), [](const std::string& e) {
            return e.starts_with("critical zelFLIGHTAB: Cannot save the settings file");
        });
    }
};

TEST(SettingsFolder, AMissingFolderStartsFromTheShippedFile) {
    Start s;
    EXPECT_EQ(s.run(), "107.05");
    EXPECT_FALSE(s.toldUnsaved());
    EXPECT_NE(readAll(s.settings).find("myCurrCode=MXN"), std::string::npos);
    EXPECT_NE(readAll(s.settings).find("; zelFLIGHTAB settings."), std::string::npos);
}

TEST(SettingsFolder, AFolderThatCannotBeWrittenIsReported) {
    Start s;
    writeAll(s.folder + "/Tech", "a file where the folder should be");
    // Without rates no currency is known: nothing is converted one to one.
    EXPECT_EQ(s.run(), "") << "no rates, but the page works";
    EXPECT_TRUE(s.toldUnsaved());
    EXPECT_EQ(readAll(s.folder + "/Tech"), "a file where the folder should be");
}

TEST(SettingsFolder, AFileThatIsNoIniOrIsCutShortKeepsWhatItHolds) {
    const std::pair<const char*, std::string> cases[] = {
        {"not INI at all", std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16)},
        {"cut short", "[Rates]\r\nEUR=1\r\nUSD=1.0705\r\nmyCurrName=Mex"},
    };
    for (const auto& [name, bytes] : cases) {
        Start s;
        writeAll(s.settings, bytes);
        const std::string usd = s.run();
        const std::string after = readAll(s.settings);
        EXPECT_EQ(after.substr(0, bytes.size()), bytes) << name;
        EXPECT_NE(after.find("myCurrCode=MXN"), std::string::npos) << name;
        EXPECT_EQ(usd, bytes.starts_with("[Rates]") ? "107.05" : "") << name;
        EXPECT_FALSE(s.toldUnsaved()) << name;
    }
}

TEST(SettingsFolder, AReadOnlyFileIsReportedAndLeftAsItWas) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser may write any file";
    }
    Start s;
    writeAll(s.settings, "[Rates]\r\nEUR=1\r\nUSD=1.0705\r\n");
    QFile::setPermissions(s.settings, QFile::ReadOwner);
    EXPECT_EQ(s.run(), "107.05");
    EXPECT_TRUE(s.toldUnsaved());
    EXPECT_EQ(readAll(s.settings), "[Rates]\r\nEUR=1\r\nUSD=1.0705\r\n");
}

} // namespace
} // namespace zel::test
