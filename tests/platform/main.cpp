// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv); // the event loop that HTTP runs in
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
