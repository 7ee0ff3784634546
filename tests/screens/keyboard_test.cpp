// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"
#include "ui/canvas.h"

// Everything that a mouse can do on the main screen, by keys.

namespace {

using tests::member;
using tests::str;

class KeysTest : public tests::ScreenTest {
protected:
    KeysTest() { QApplication::setActiveWindow(&program.mainscreen); }

    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QWidget* at = program.mainscreen.focusWidget();
        QTest::keyClick(at ? at : &program.mainscreen, key, held);
    }

    void stand(const QString& name) { control(name)->setFocus(Qt::TabFocusReason); }

    std::string focus() { return str(program.mainscreen.focusWidget()->objectName()); }

    std::string notes()
    {
        std::string all;
        for (int i = 0; i < 6; ++i)
            if (const std::string note = shown(member("note", i)); note != " " && !note.empty())
                all += (all.empty() ? "" : " ") + note;
        return all;
    }
};

TEST_F(KeysTest, letters_enterTheirNotesFromAnywhere)
{
    for (const char* where : {"cbotype", "Crd_5", "topr", "Text1_0"}) {
        stand(QString::fromLatin1(where));
        press(Qt::Key_Escape);
        EXPECT_EQ(notes(), "") << where;
        press(Qt::Key_C);
        press(Qt::Key_E);
        press(Qt::Key_G);
        EXPECT_EQ(notes(), "C E G") << where;
        EXPECT_EQ(shown(QStringLiteral("cordtyp1")), "major") << where;
        EXPECT_EQ(backcolour(QStringLiteral("key_25")), "#808080") << where;
    }
}

TEST_F(KeysTest, lettersWithShift_enterTheBlackKeyAbove)
{
    click(QStringLiteral("cmdsharp"));
    stand(QStringLiteral("cmdsharp"));
    struct {
        Qt::Key letter;
        const char* note;
    } const rows[] = {{Qt::Key_C, "C#"}, {Qt::Key_D, "D#"}, {Qt::Key_F, "F#"}, {Qt::Key_G, "G#"},
                      {Qt::Key_A, "A#"}, {Qt::Key_E, ""},   {Qt::Key_B, ""}};
    for (const auto& row : rows) {
        press(Qt::Key_Escape);
        press(row.letter, Qt::ShiftModifier);
        EXPECT_EQ(notes(), row.note);
    }
}

TEST_F(KeysTest, arrowsOnThePiano_moveBySemitonesAndOctaves)
{
    stand(QStringLiteral("key_0"));
    struct {
        Qt::Key key;
        const char* reached;
    } const steps[] = {{Qt::Key_Left, "key_0"}, {Qt::Key_Right, "key_1"}, {Qt::Key_Up, "key_13"},
                       {Qt::Key_Up, "key_13"},  {Qt::Key_Left, "key_12"}, {Qt::Key_Down, "key_0"},
                       {Qt::Key_Down, "key_0"}, {Qt::Key_End, "key_24"},  {Qt::Key_Right, "key_24"},
                       {Qt::Key_Home, "key_0"}};
    for (const auto& step : steps) {
        press(step.key);
        EXPECT_EQ(focus(), step.reached);
    }
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    EXPECT_EQ(notes(), "D");
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(notes(), "D Eb");
}

TEST_F(KeysTest, arrowsOnTheNeck_followItAsItIsSeen)
{
    stand(QStringLiteral("Text1_0"));
    struct {
        Qt::Key key;
        const char* reached;
    } const steps[] = {{Qt::Key_Up, "Text1_0"},   {Qt::Key_Left, "Text1_0"},  {Qt::Key_Right, "Text1_6"},
                       {Qt::Key_Down, "Text1_7"}, {Qt::Key_End, "Text1_115"}, {Qt::Key_Right, "Text1_115"},
                       {Qt::Key_Home, "Text1_1"}, {Qt::Key_Right, "Text1_7"}};
    for (const auto& step : steps) {
        press(step.key);
        EXPECT_EQ(focus(), step.reached);
    }
    press(Qt::Key_Enter);
    EXPECT_EQ(notes(), "C");
    choose(QStringLiteral("cboleft"), 1);
    press(Qt::Key_Left);
    EXPECT_EQ(focus(), "Text1_13");
    press(Qt::Key_Right);
    EXPECT_EQ(focus(), "Text1_7");
}

TEST_F(KeysTest, arrowsOnABanjo_passByWhatItLacks)
{
    choose(QStringLiteral("cbotype"), 3);
    stand(QStringLiteral("Text1_5"));
    press(Qt::Key_Right);
    EXPECT_EQ(focus(), "Text1_41"); // the short string goes on at the sixth fret
    press(Qt::Key_Left);
    EXPECT_EQ(focus(), "Text1_5");
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    EXPECT_EQ(focus(), "Text1_10");
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "Text1_10"); // nothing below it
}

TEST_F(KeysTest, pianoAndNeck_areOneStopOfTheTabKeyEach)
{
    stand(QStringLiteral("key_0"));
    std::vector<std::string> stops;
    do {
        stops.push_back(focus());
        press(Qt::Key_Tab);
    } while (focus() != "key_0" && stops.size() < 200);
    const auto count = [&](const char* array) {
        return std::ranges::count_if(stops, [&](const std::string& stop) { return stop.starts_with(array); });
    };
    EXPECT_EQ(count("key_"), 2); // the piano and Reset
    EXPECT_EQ(count("Text1_"), 1);
    EXPECT_EQ(count("Crd_"), 28);
    EXPECT_EQ(count("cbo"), 4);
    EXPECT_EQ(stops.front(), "key_0");
    EXPECT_EQ(stops.back(), "Text1_0");
}

TEST_F(KeysTest, hiddenString_givesTheTabStopToAVisibleOne)
{
    choose(QStringLiteral("cbotype"), 3); // a banjo has no row 0
    EXPECT_EQ(control(QStringLiteral("Text1_0"))->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(control(QStringLiteral("Text1_1"))->focusPolicy(), Qt::TabFocus);
}

TEST_F(KeysTest, zoomKeys_stepThroughTheZooms)
{
    stand(QStringLiteral("key_0"));
    const auto zoom = [this] { return program.look.zoom(); };
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(zoom(), 1, 0.01);
    struct {
        Qt::Key key;
        double reached;
    } const steps[] = {{Qt::Key_Plus, 1.25},  {Qt::Key_Equal, 1.5}, {Qt::Key_Plus, 2},     {Qt::Key_Minus, 1.5},
                       {Qt::Key_Minus, 1.25}, {Qt::Key_Minus, 1},   {Qt::Key_Minus, 0.75}, {Qt::Key_Minus, 0.75}};
    for (const auto& step : steps) {
        press(step.key, Qt::ControlModifier);
        EXPECT_NEAR(zoom(), step.reached, 0.01);
    }
    for (int i = 0; i < 9; ++i)
        press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(zoom(), 4, 0.01);
}

} // namespace
