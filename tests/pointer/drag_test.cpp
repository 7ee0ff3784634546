// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/pointer/xserver.h"
#include "tests/screens/screentest.h"

namespace {

using tests::member;
using tests::str;

constexpr int patience = 20000; // milliseconds until a hand that does not come to rest is a failure

class Drag : public tests::ScreenTest {
protected:
    void SetUp() override
    {
        if (const QString missing = tests::XServer::missing(); !missing.isEmpty())
            GTEST_SKIP() << "a real pointer needs " << str(missing);
        for (std::size_t place = 0; place < 20; ++place)
            session.customtable.at(place) = {"entry " + std::to_string(place), "03444444"};
        pick(QStringLiteral("mnuarrange"));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(companion("arrange")));
    }

    QWidget* box(int place) { return control(member("txtx", place), companion("arrange")); }
    static QPoint middle(const QWidget* shown) { return shown->mapToGlobal(shown->rect().center()); }

    void drag(QPoint from, QPoint to)
    {
        hand.drag(from, to);
        ASSERT_TRUE(QTest::qWaitFor([this] { return hand.rests(); }, patience));
    }
    bool comes(const std::function<bool()>& wanted) { return QTest::qWaitFor(wanted, patience); }
    const std::string& name(std::size_t place) { return session.customtable.at(place).name; }

    tests::Hand hand;
};

TEST_F(Drag, entryOntoAnother_exchangesThem)
{
    drag(middle(box(1)), middle(box(18)));
    ASSERT_TRUE(comes([this] { return session.customchanged; }));
    EXPECT_EQ(name(1), "entry 18");
    EXPECT_EQ(name(18), "entry 1");
    EXPECT_EQ(str(box(1)->property("text").toString()), "entry 18");
    drag(middle(box(18)), middle(box(0)));
    ASSERT_TRUE(comes([this] { return name(0) == "entry 1"; }));
    EXPECT_EQ(name(18), "entry 0");
}

TEST_F(Drag, entryOntoFreeSpace_changesNothing)
{
    drag(middle(box(1)), middle(control(QStringLiteral("lblx_40"), companion("arrange"))));
    EXPECT_FALSE(session.customchanged);
    drag(middle(box(2)), middle(box(3))); // and the next one works
    ASSERT_TRUE(comes([this] { return session.customchanged; }));
    EXPECT_EQ(name(1) + name(2) + name(3), "entry 1entry 3entry 2");
}

} // namespace
