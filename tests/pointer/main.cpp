// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/pointer/xserver.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

bool listsonly(int argc, char** argv)
{
    return std::any_of(argv, argv + argc,
                       [](const char* word) { return std::strcmp(word, "--gtest_list_tests") == 0; });
}

} // namespace

int main(int argc, char** argv)
{
    const bool idle = listsonly(argc, argv) || !tests::XServer::missing().isEmpty();
    testing::InitGoogleTest(&argc, argv);
    std::optional<tests::XServer> server;
    if (!idle)
        server.emplace();
    qputenv("QT_QPA_PLATFORM", idle ? "offscreen" : "xcb");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
