// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include <QCoreApplication>

#include <gtest/gtest.h>

namespace zel::test {
int writeKeys(const std::string& file, const std::string& name);
}

int main(int argc, char** argv) {
    // Started by a lock test as one of two programs writing the settings at once.
    if (const QByteArray job = qgetenv("ZEL_WRITE_KEYS"); !job.isEmpty()) {
        const std::string text = job.toStdString();
        const auto comma = text.find(',');
        return zel::test::writeKeys(text.substr(comma + 1), text.substr(0, comma));
    }
    QCoreApplication application(argc, argv); // the event loop that HTTP runs in
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
