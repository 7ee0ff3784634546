// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/access/accessbus.h"
#include "tests/support/directory.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>

// The program as assistive technology has it: another process, of which nothing is known but what it tells on the bus.

namespace {

constexpr int patience = 30000; // milliseconds until what does not come is a failure

class Access : public testing::Test {
protected:
    void SetUp() override
    {
        if (const QString missing = tests::AccessBus::missing(); !missing.isEmpty())
            GTEST_SKIP() << "a tree for assistive technology needs " << missing.toStdString();
        bus.emplace();
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        program.setStandardErrorFile(QProcess::nullDevice());
        program.start(QStringLiteral(TONEFRET_PROGRAM), QStringList());
        ASSERT_TRUE(comes([this] { return bus->application(QStringLiteral("tonefret")).has_value(); }));
        root = *bus->application(QStringLiteral("tonefret"));
        ASSERT_TRUE(comes([this] { return find("push button", "Reset").has_value(); }));
    }

    void TearDown() override
    {
        program.kill();
        program.waitForFinished();
    }

    /// Asks again and again until the answer is yes.
    static bool comes(const std::function<bool()>& wanted)
    {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < patience) {
            if (wanted())
                return true;
            QThread::msleep(20);
        }
        return false;
    }

    std::vector<tests::Heard> tree() const { return bus->tree(root); }

    std::optional<tests::Heard> find(const char* role, const char* name) const
    {
        const auto all = tree();
        const auto found = std::ranges::find_if(all, [&](const tests::Heard& each) {
            return each.role == QLatin1String(role) && each.name == QLatin1String(name);
        });
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    std::optional<tests::AccessBus> bus;
    QProcess program;
    tests::Node root;
    tests::Directory directory; ///< what the program saves, it saves here
};

TEST_F(Access, dump)
{
    for (const auto& each : tree())
        std::cout << each.role.toStdString() << " | " << each.name.toStdString() << " | "
                  << each.description.toStdString() << (each.showing ? " | showing" : "") << "\n";
}

} // namespace
