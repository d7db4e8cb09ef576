// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
#include "flight/airspeed.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(CompressibleFlow, IsContinuousAtMachOneAndInvertsOnBothBranches) {
    EXPECT_NEAR(impactPressureRatio(1 - 1e-12), impactPressureRatio(1 + 1e-12), 1e-8);
    for (double mach : {0.1, 0.5, 0.99, 1.0, 1.01, 1.5, 3.0, 8.0}) {
        EXPECT_NEAR(machFromImpactPressure(impactPressureRatio(mach)), mach, 1e-9) << mach;
    }
    EXPECT_NEAR(pressureRatio(36089 - 1e-6), pressureRatio(36089), 1e-4);
    EXPECT_DOUBLE_EQ(pressureRatio(0), 1);
}

} // namespace
} // namespace zel::test
