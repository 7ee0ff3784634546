// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

namespace {

using tests::member;
using tests::str;
using ui::Answer;

class CustomScreenTest : public tests::ScreenTest {
protected:
    CustomScreenTest()
    {
        session.customtable[0] = {"stored", "11024579"};
        pick(QStringLiteral("mnucustom"));
    }

    QWidget* screen() { return companion("custom"); }
    template <typename Control = QWidget>
    Control* on(const QString& name)
    {
        return control<Control>(name, screen());
    }
    void press(const QString& name) { QTest::mouseClick(on(name), Qt::LeftButton); }
    /// An option button and a check box react where their mark is, not in their middle.
    void mark(const QString& name)
    {
        QTest::mouseClick(on(name), Qt::LeftButton, {}, QPoint(5, on(name)->height() / 2));
    }
    std::string text(const QString& name) { return str(on(name)->property("text").toString()); }
    bool checked(const QString& name) { return on(name)->property("checked").toBool(); }
    void showstored() { press(QStringLiteral("cmddown")); }
    void answer(Answer given) { desktop.answers.push_back(given); }
};

TEST_F(CustomScreenTest, opened_showsTheFirstFreePlace)
{
    EXPECT_TRUE(screen()->isVisible());
    EXPECT_EQ(str(screen()->windowTitle()), "Custom Instrument and Tuning Settings");
    EXPECT_EQ(text(QStringLiteral("txtnum")), " 1");
    EXPECT_EQ(text(QStringLiteral("txtinfo")), "- blank -");
    EXPECT_TRUE(checked(QStringLiteral("Option2_3")));
}

TEST_F(CustomScreenTest, storedEntry_isShown)
{
    showstored();
    EXPECT_EQ(text(QStringLiteral("txtnum")), " 0");
    EXPECT_EQ(text(QStringLiteral("txtinfo")), "- DATA -");
    EXPECT_EQ(text(QStringLiteral("txtname")), "stored");
    EXPECT_TRUE(checked(QStringLiteral("chkleft")));
    EXPECT_TRUE(checked(QStringLiteral("Option2_1")));
    EXPECT_EQ(text(QStringLiteral("txtnote_0")), "C");
    EXPECT_EQ(text(QStringLiteral("txtnote_3")), "F");
    EXPECT_TRUE(on(QStringLiteral("txtnote_3"))->isVisible());
    EXPECT_FALSE(on(QStringLiteral("txtnote_4"))->isVisible());
    EXPECT_FALSE(on(QStringLiteral("txtnote_5"))->isVisible());
}

TEST_F(CustomScreenTest, noteButtonThenBox_writesTheNote)
{
    press(member("cmdret", 5));
    EXPECT_EQ(text(member("txtnote", 6)), "E");
    press(member("txtnote", 0));
    press(member("txtnote", 6));
    EXPECT_EQ(text(member("txtnote", 0)), "E");
    QTest::keyClick(on(member("txtnote", 1)), Qt::Key_Space);
    EXPECT_EQ(text(member("txtnote", 1)), "E");
    EXPECT_EQ(str(on(member("txtnote", 1))->accessibleName()), "note of string 2, E");
}

TEST_F(CustomScreenTest, typedName_endsAtTwentySixCharacters)
{
    QTest::keyClicks(on(QStringLiteral("txtname")), QStringLiteral("abcdefghijklmnopqrstuvwxyz0123"));
    EXPECT_EQ(text(QStringLiteral("txtname")), "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(session.editform.txtname, "abcdefghijklmnopqrstuvwxyz");
    press(QStringLiteral("cmdsettings"));
    press(QStringLiteral("cmdsave"));
    EXPECT_EQ(desktop.told, (std::vector<tests::Told>{{ui::Icon::critical, "Please reduce name size (item 2)\nTo less "
                                                                           "than 25 characters.  Thanks"}}));
    QTest::keyClick(on(QStringLiteral("txtname")), Qt::Key_Backspace);
    press(QStringLiteral("cmdsave"));
    EXPECT_EQ(session.customtable[1].name, "abcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(text(QStringLiteral("txtname")), "");
}

TEST_F(CustomScreenTest, pastedName_isCutByCharacters)
{
    auto* name = on<QLineEdit>(QStringLiteral("txtname"));
    const QString guitar = QStringLiteral("\U0001F3B8");
    name->insert(guitar.repeated(30));
    EXPECT_EQ(str(name->text()), str(guitar.repeated(26)));
}

TEST_F(CustomScreenTest, keyIntoTheMiddleOfAFullName_pushesNothingOut)
{
    auto* name = on<QLineEdit>(QStringLiteral("txtname"));
    QTest::keyClicks(name, QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
    name->setCursorPosition(3);
    QTest::keyClick(name, Qt::Key_X);
    EXPECT_EQ(str(name->text()), "abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(session.editform.txtname, "abcdefghijklmnopqrstuvwxyz");
}

TEST_F(CustomScreenTest, longerNameOfAFile_isShownWholeAndCanBeShortened)
{
    const std::string longname = "a name of thirty-three characters";
    session.customtable[0].name = longname;
    showstored();
    auto* name = on<QLineEdit>(QStringLiteral("txtname"));
    EXPECT_EQ(str(name->text()), longname);
    answer(Answer::yes);
    press(QStringLiteral("txtname"));
    name->setCursorPosition(6);
    QTest::keyClick(name, Qt::Key_Backspace);
    EXPECT_EQ(session.editform.txtname, "a nam of thirty-three characters");
    EXPECT_EQ(str(name->text()), session.editform.txtname);
    QTest::keyClick(name, Qt::Key_X);
    EXPECT_EQ(session.editform.txtname, "a nam of thirty-three characters");
}

TEST_F(CustomScreenTest, keyIntoAStoredName_asksAndActsOnYesOnly)
{
    showstored();
    auto* name = on<QLineEdit>(QStringLiteral("txtname"));
    name->setCursorPosition(6);
    answer(Answer::no);
    QTest::keyClick(name, Qt::Key_X);
    EXPECT_EQ(desktop.asked.size(), 1U);
    EXPECT_EQ(str(name->text()), "stored");
    QTest::keyClick(name, Qt::Key_Left); // changes nothing, so nothing is asked
    QTest::keyClick(name, Qt::Key_End);
    EXPECT_EQ(desktop.asked.size(), 1U);
    answer(Answer::yes);
    QTest::keyClick(name, Qt::Key_X);
    EXPECT_EQ(str(name->text()), "storedx");
    QTest::keyClick(name, Qt::Key_Y);
    EXPECT_EQ(session.editform.txtname, "storedxy");
    EXPECT_EQ(desktop.asked.size(), 2U);
}

TEST_F(CustomScreenTest, clickOnAStoredName_asksOnce)
{
    showstored();
    answer(Answer::yes);
    press(QStringLiteral("txtname"));
    press(QStringLiteral("txtname"));
    EXPECT_EQ(desktop.asked,
              (std::vector<tests::Asked>{{"Wish to Edit Existing Data here?\nThat will eliminate the old entry", ""}}));
    EXPECT_FALSE(on<QLineEdit>(QStringLiteral("txtname"))->isReadOnly());
}

TEST_F(CustomScreenTest, marksOfAStoredEntry_goBackOnNo)
{
    showstored();
    answer(Answer::no);
    mark(QStringLiteral("chkleft"));
    EXPECT_TRUE(checked(QStringLiteral("chkleft")));
    answer(Answer::no);
    mark(QStringLiteral("Option2_3"));
    EXPECT_TRUE(checked(QStringLiteral("Option2_1")));
    EXPECT_FALSE(checked(QStringLiteral("Option2_3")));
    EXPECT_EQ(desktop.asked.size(), 2U);
    answer(Answer::yes);
    mark(QStringLiteral("Option2_3"));
    mark(QStringLiteral("chkleft"));
    EXPECT_TRUE(checked(QStringLiteral("Option2_3")));
    EXPECT_FALSE(checked(QStringLiteral("chkleft")));
    EXPECT_TRUE(on(member("txtnote", 5))->isVisible());
}

TEST_F(CustomScreenTest, boxes_standWithTheHighestStringAtTheTop)
{
    const auto top = [this](const QString& name) { return on(name)->mapTo(screen(), QPoint()).y(); };
    EXPECT_LT(top(QStringLiteral("high")), top(member("txtnote", 5)));
    for (int box = 1; box < 6; ++box)
        EXPECT_LT(top(member("txtnote", box)), top(member("txtnote", box - 1))) << box;
}

TEST_F(CustomScreenTest, steps_readFromTopToBottom)
{
    int above = 0;
    for (int number = 1; number <= 6; ++number) {
        const int top = on(member("instruction", number))->mapTo(screen(), QPoint()).y();
        EXPECT_GT(top, above) << number;
        above = top;
    }
}

TEST_F(CustomScreenTest, everyWayOut_closesAndOpensAnew)
{
    const std::function<void()> ways[] = {
        [this] { press(QStringLiteral("cmdreturn")); },
        [this] { on<QAction>(QStringLiteral("mnuexit"))->trigger(); },
        [this] { screen()->close(); },
    };
    for (const auto& leave : ways) {
        QTest::keyClicks(on(QStringLiteral("txtname")), QStringLiteral("lost"));
        const QPointer<QWidget> left = screen();
        leave();
        EXPECT_TRUE(!left || !left->isVisible());
        EXPECT_FALSE(session.customshown);
        pick(QStringLiteral("mnucustom"));
        EXPECT_TRUE(session.customshown);
        EXPECT_TRUE(screen()->isVisible());
        EXPECT_EQ(text(QStringLiteral("txtname")), "");
    }
}

TEST_F(CustomScreenTest, openedTwice_isTheSameScreen)
{
    QTest::keyClicks(on(QStringLiteral("txtname")), QStringLiteral("kept"));
    const QWidget* first = screen();
    pick(QStringLiteral("mnucustom"));
    EXPECT_EQ(screen(), first);
    EXPECT_EQ(text(QStringLiteral("txtname")), "kept");
}

TEST_F(CustomScreenTest, arrangeButton_opensTheArrangeScreen)
{
    press(QStringLiteral("cmdarrange"));
    EXPECT_TRUE(companion("arrange")->isVisible());
    EXPECT_TRUE(screen()->isVisible());
}

TEST_F(CustomScreenTest, endOfTheProgram_closesItWithoutAWord)
{
    showstored();
    pick(QStringLiteral("mnuarrange"));
    program.mainscreen.close();
    EXPECT_FALSE(control(QStringLiteral("custom"))->isVisible());
    EXPECT_FALSE(control(QStringLiteral("arrange"))->isVisible());
    EXPECT_TRUE(desktop.told.empty());
    EXPECT_TRUE(desktop.asked.empty());
}

TEST_F(CustomScreenTest, everyControl_hasRoomAtEveryZoom)
{
    for (const double zoom : {0.75, 1.0, 1.37, 2.0, 4.0}) {
        program.look.setzoom(zoom);
        screen()->hide();
        screen()->show();
        QApplication::processEvents();
        for (QWidget* each : screen()->findChildren<QWidget*>()) {
            if (each->objectName().isEmpty() || !each->isVisible() || each->isWindow())
                continue;
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry())) << str(each->objectName()) << zoom;
            EXPECT_GE(each->width(), each->minimumSizeHint().width()) << str(each->objectName()) << zoom;
        }
    }
}

struct TextRow {
    const char* name;
    const char* text;
};

// clang-format off
constexpr TextRow texts[] = {
  { "txtname",       "" },
  { "chkleft",       "Left" },
  { "Option2_0",     "5 string banjo (only)" },
  { "Option2_1",     "4 strings" },
  { "Option2_2",     "5 strings" },
  { "Option2_3",     "6 strings" },
  { "cmdret_1",      "C" },
  { "cmdret_2",      "C# Db" },
  { "cmdret_3",      "D" },
  { "cmdret_4",      "D# Eb" },
  { "cmdret_5",      "E" },
  { "cmdret_6",      "F" },
  { "cmdret_7",      "F# Gb" },
  { "cmdret_8",      "G" },
  { "cmdret_9",      "G# Ab" },
  { "cmdret_10",     "A" },
  { "cmdret_11",     "A# Bb" },
  { "cmdret_12",     "B" },
  { "cmdup",         "next >" },
  { "cmddown",       "< back" },
  { "cmdsave",       "save this data" },
  { "cmdclear",      "clear data lines" },
  { "cmddelentry",   "delete this entry item" },
  { "cmdsettings",   "Yes - load those settings" },
  { "cmdarrange",    "arrange data" },
  { "cmdreturn",     "return to main program" },
  { "instruction_1", "Use \"Next\" or \"Back\" to get to data number to enter or edit. Use first open number." },
  { "instruction_2", "Set or Edit name of instrument or tuning variation, 25 characters maximum, do not use \";\" semicolons" },
  { "instruction_3", "Check \"Left\" only if left handed viewing is preferred to right hand :" },
  { "instruction_4", "Determine number of strings to use, and if banjo special 5 string case is needed:" },
  { "instruction_5", "Set or Edit notes by first selecting one of the 12 gray notes below, and then clicking your mouse in the note box on the left that you wish to change." },
  { "instruction_6", "Done? Wish to save it for usage?" },
  { "optional",      "OPTIONAL: Do you wish to load current settings from Tonefret string area?" },
  { "nomore",        "If no more entries or editing, then:" },
  { "savehint",      "If yes, click \"save this data\"" },
  { "otheroptions",  "Other Options" },
  { "high",          "High" },
  { "done",          "Done ?" },
};

constexpr TextRow menuitems[] = {
  { "mnufile",         "file" },
  { "mnuload",         "Load Custom File" },
  { "mnusave",         "Save Custom File" },
  { "mnuexit",         "Exit" },
  { "mnuHelptitle",    "Help" },
  { "mnuhelpcomplete", "Help (complete)" },
};
// clang-format on

TEST_F(CustomScreenTest, everycontrol_hasItsText)
{
    for (const TextRow& row : texts)
        EXPECT_EQ(text(QString::fromLatin1(row.name)), row.text) << row.name;
    for (const TextRow& row : menuitems)
        EXPECT_EQ(str(on<QAction>(QString::fromLatin1(row.name))->text()), row.text);
}

TEST_F(CustomScreenTest, everycontrol_isThereOnceAndHasAnAccessibleName)
{
    std::map<QString, int> counts;
    for (const QObject* each : screen()->findChildren<QObject*>())
        if (!each->inherits("QStyle") && !each->objectName().isEmpty() &&
            !each->objectName().startsWith(QLatin1String("qt_")))
            ++counts[each->objectName()];
    for (const auto& [name, count] : counts)
        EXPECT_EQ(count, 1) << str(name);
    for (const char* name : {"txtnum", "txtname", "txtinfo", "txtnote_0", "txtnote_6", "chkleft", "cmdret_1"})
        EXPECT_FALSE(on(QString::fromLatin1(name))->accessibleName().isEmpty()) << name;
}

} // namespace
