// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"
#include "ui/spoken.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <QWheelEvent>

namespace {

using tests::member;
using tests::str;

class ShortcutsTest : public tests::ScreenTest {
protected:
    void press(QWidget* screen, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        screen->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([screen] { return screen->isActiveWindow(); }));
        QTest::keyClick(screen, key, held);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) { press(&program.mainscreen, key, held); }

    bool stands(const char* name) const
    {
        const auto found = program.mainscreen.findChildren<QWidget*>(QString::fromLatin1(name));
        return !found.isEmpty() && found.back()->isVisible();
    }
    void enter(const std::vector<int>& keys)
    {
        for (const int k : keys)
            click(member("key", k));
    }
};

struct MenuKey {
    Qt::Key letter;
    const char* menu;
    const char* chosen;
};

TEST_F(ShortcutsTest, altWithALetter_opensTheMenu)
{
    for (const MenuKey& row : {MenuKey{Qt::Key_F, "mnufile", "mnuload"}, MenuKey{Qt::Key_E, "mnuedit", "mnucustom"},
                               MenuKey{Qt::Key_S, "mnuflattype", "mnusharp"}, MenuKey{Qt::Key_P, "mnuprint", "mnusnap"},
                               MenuKey{Qt::Key_H, "mnuhelp", "mnubhelp"}}) {
        press(row.letter, Qt::AltModifier);
        QMenu* menu = control<QAction>(QString::fromLatin1(row.menu))->menu();
        EXPECT_TRUE(menu->isVisible()) << row.menu;
        ASSERT_TRUE(menu->activeAction()) << row.menu;
        EXPECT_EQ(str(menu->activeAction()->objectName()), row.chosen);
        menu->close();
    }
    EXPECT_EQ(shown(member("note", 0)), ""); // no letter became a note
}

TEST_F(ShortcutsTest, everyMenuOfACompanion_opensByItsLetter)
{
    pick(QStringLiteral("mnucustom"));
    pick(QStringLiteral("mnuviewprint"));
    struct {
        const char* screen;
        Qt::Key letter;
        const char* menu;
    } const rows[] = {{"custom", Qt::Key_F, "mnufile"},
                      {"custom", Qt::Key_H, "mnuHelptitle"},
                      {"mprint", Qt::Key_F, "mnufile"},
                      {"mprint", Qt::Key_P, "mnuprintmain"},
                      {"mprint", Qt::Key_H, "mnuhelp"}};
    for (const auto& row : rows) {
        press(companion(row.screen), row.letter, Qt::AltModifier);
        QMenu* menu = control<QAction>(QString::fromLatin1(row.menu), companion(row.screen))->menu();
        EXPECT_TRUE(menu->isVisible()) << row.screen << " " << row.menu;
        menu->close();
    }
}

TEST_F(ShortcutsTest, helpKey_worksOnEveryScreenThatIsNotModal)
{
    press(Qt::Key_F1);
    ASSERT_TRUE(stands("helpinfo"));
    companion("helpinfo")->close();
    for (const char* opener : {"mnucustom", "mnuarrange", "mnuviewprint", "mnubhelp", "mnuabout"}) {
        pick(QString::fromLatin1(opener));
        press(QApplication::activeWindow(), Qt::Key_F1);
        EXPECT_TRUE(stands("helpinfo")) << opener;
        companion("helpinfo")->close();
    }
}

TEST_F(ShortcutsTest, printKey_opensThePageAndPrintsThere)
{
    press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(stands("mprint"));
    EXPECT_FALSE(stands("printdialog"));
    press(companion("mprint"), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(stands("printdialog"));
}

TEST_F(ShortcutsTest, saveAndLoadKeys_doSoOnTheirScreens)
{
    pick(QStringLiteral("mnucustom"));
    pick(QStringLiteral("mnuviewprint"));
    session.customtable[0] = {"A", "0349279B"};
    session.rtbprint_Change("a page");
    struct {
        QWidget* screen;
        const char* file;
    } const rows[] = {
        {&program.mainscreen, "main.txt"}, {companion("custom"), "custom.txt"}, {companion("mprint"), "page.txt"}};
    for (const auto& row : rows) {
        desktop.files.emplace_back(directory.path / row.file);
        press(row.screen, Qt::Key_S, Qt::ControlModifier);
        EXPECT_TRUE(desktop.files.empty()) << row.file;
    }
    EXPECT_EQ(directory.names(), "custom.txt main.txt page.txt");
    for (const auto& row : rows) {
        desktop.files.emplace_back(directory.path / row.file);
        press(row.screen, Qt::Key_O, Qt::ControlModifier);
        EXPECT_TRUE(desktop.files.empty()) << row.file;
    }
}

TEST_F(ShortcutsTest, escape_closesEveryCompanion)
{
    struct {
        const char* opener;
        const char* screen;
    } const rows[] = {{"mnucustom", "custom"},    {"mnuarrange", "arrange"},       {"mnuviewprint", "mprint"},
                      {"mnubhelp", "mhelp"},      {"mnuchelp", "helpinfo"},        {"mnuabout", "frmAbout"},
                      {"mnusnap", "camquestion"}, {"mnuprintchord", "printdialog"}};
    for (const auto& row : rows) {
        pick(QString::fromLatin1(row.opener));
        ASSERT_TRUE(stands(row.screen)) << row.screen;
        QWidget* screen = companion(row.screen);
        QWidget* at = screen->focusWidget();
        QTest::keyClick(at ? at : screen, Qt::Key_Escape);
        EXPECT_FALSE(stands(row.screen)) << row.screen;
    }
    EXPECT_FALSE(session.customshown);
    EXPECT_FALSE(session.arrangeshown);
    EXPECT_FALSE(session.page.open);
    EXPECT_NE(backcolour(QStringLiteral("key_25")), "#808080") << "an Escape came through to the main screen";
}

TEST_F(ShortcutsTest, copyChord_putsItOnTheClipboard)
{
    QApplication::clipboard()->setText(QStringLiteral("before"));
    pick(QStringLiteral("mnucopychord"));
    EXPECT_EQ(str(QApplication::clipboard()->text()), "before");
    enter({0, 4, 7});
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnucopychord"))->isEnabled());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(str(QApplication::clipboard()->text()), "C major: C E G");
}

TEST_F(ShortcutsTest, copyLastChart_waitsForASnapshot)
{
    enter({0, 4, 7});
    EXPECT_FALSE(control<QAction>(QStringLiteral("mnucopychart"))->isEnabled());
    pick(QStringLiteral("mnupiano"));
    pick(QStringLiteral("mnusnap"));
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnucopychart"))->isEnabled());
    pick(QStringLiteral("mnucopychart"));
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    ASSERT_GT(lines.size(), 4);
    EXPECT_EQ(str(lines.at(0).trimmed()), "C major");
    EXPECT_EQ(str(lines.at(2).trimmed()), "C E G");
    EXPECT_EQ(str(lines.back()), "");
    const std::string copied = str(QApplication::clipboard()->text());
    session.printfill();
    EXPECT_TRUE(session.page.text.ends_with(copied)) << session.page.text << "\nbut copied\n" << copied;
}

TEST_F(ShortcutsTest, wheelOverASelector_stepsIt)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotuning"));
    ASSERT_FALSE(list->hasFocus());
    const QPointF middle = QRectF(list->rect()).center();
    QWheelEvent turned(middle, list->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &turned);
    EXPECT_EQ(session.cbotuning.text, "Drop D tuning");
    EXPECT_EQ(session.fretboard.cell[5].text, "D");
}

TEST_F(ShortcutsTest, openedList_isSearchedWithoutBlanks)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotype"));
    list->showPopup();
    const auto at = [&] { return str(list->view()->currentIndex().data().toString().trimmed()); };
    QTest::keyClick(list->view(), Qt::Key_B);
    EXPECT_EQ(at(), "BASS");
    list->hidePopup();
    list->showPopup(); // a new search
    QTest::keyClicks(list->view(), QStringLiteral("ba"));
    EXPECT_EQ(at(), "BASS");
    list->hidePopup();
    list->showPopup();
    QTest::keyClicks(list->view(), QStringLiteral("ban"));
    EXPECT_EQ(at(), "BANJO");
    EXPECT_EQ(session.cbotype.text, "       GUITAR") << "looking is not picking";
    EXPECT_EQ(shown(member("note", 0)), "") << "a letter became a note";
    QTest::keyClick(list->view(), Qt::Key_Return);
    EXPECT_EQ(session.cbotype.text, "        BANJO");
}

TEST_F(ShortcutsTest, chordOfTheMoment_isSaid)
{
    const auto* spoken = control<ui::Spoken>(QStringLiteral("spokenchord"));
    EXPECT_EQ(str(spoken->words()), "");
    enter({0});
    EXPECT_EQ(str(spoken->words()), "C");
    enter({4, 7});
    EXPECT_EQ(str(spoken->words()), "C major: C E G");
    EXPECT_EQ(str(control(member("key", 4))->accessibleName()), "E key, lower octave, in the chord");
    EXPECT_EQ(str(control(member("key", 5))->accessibleName()), "F key, lower octave");
    EXPECT_EQ(str(control(member("Text1", 18))->accessibleName()), "E string, fret 3, G, in the chord");
    click(member("key", 25));
    EXPECT_EQ(str(spoken->words()), "");
    EXPECT_EQ(str(control(member("key", 4))->accessibleName()), "E key, lower octave");
}

/// The real message boxes, looked at while they stand.
TEST_F(ShortcutsTest, messageBox_belongsToTheScreenThatOpenedIt)
{
    ui::QtDesktop people;
    app::Program real{people};
    real.start();
    control<QAction>(QStringLiteral("mnucustom"), &real.mainscreen)->trigger();
    auto* screen = real.mainscreen.findChild<QWidget*>(QStringLiteral("custom"));
    ASSERT_TRUE(screen);
    screen->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([screen] { return screen->isActiveWindow(); }));
    QWidget* owner = nullptr;
    QTimer::singleShot(0, &real.mainscreen, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        owner = box->parentWidget();
        box->reject();
    });
    real.stage.act([&] { people.tell(ui::Icon::information, "a word"); });
    EXPECT_EQ(owner, screen);
}

} // namespace
