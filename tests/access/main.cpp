// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/access/accessbus.h"
#include "tests/pointer/xserver.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    std::optional<tests::XServer> server;
    if (!testing::GTEST_FLAG(list_tests) && tests::AccessBus::missing().isEmpty())
        server.emplace();
    return RUN_ALL_TESTS();
}
