// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTemporaryFile>

#include <gtest/gtest.h>

// The platform's display is 800 pixels square; with TONEFRET_LARGE_DISPLAY it has room for every screen.
int main(int argc, char** argv)
{
    QTemporaryFile display;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsSet("TONEFRET_LARGE_DISPLAY") && display.open()) {
        display.write(R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 2000, "height": 1500, "logicalDpi": 96,
                         "logicalBaseDpi": 96, "dpr": 1}]})");
        display.close();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + display.fileName().toLocal8Bit());
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
