// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"
#include "ui/button.h"
#include "ui/selectorbox.h"

#include <QAbstractItemView>
#include <QMessageBox>
#include <QScrollBar>
#include <QTimer>

namespace {

using MainScreenTest = tests::ScreenTest;
using tests::member;
using tests::str;

constexpr const char* dark = "#808080";
constexpr const char* mid = "#c0c0c0";

TEST_F(MainScreenTest, clicksOnCEG_readMajorOnC)
{
    for (const int k : {0, 4, 7})
        click(member("key", k));
    EXPECT_EQ(shown(QStringLiteral("cordtyp1")), "major");
    EXPECT_EQ(shown(QStringLiteral("note_6")), "C");
    EXPECT_EQ(shown(QStringLiteral("note_0")) + shown(QStringLiteral("note_1")) + shown(QStringLiteral("note_2")),
              "CEG");
    EXPECT_EQ(backcolour(QStringLiteral("key_4")), dark);
    EXPECT_EQ(backcolour(QStringLiteral("key_12")), "#ffffff"); // a click on a key darkens that key only
    EXPECT_EQ(backcolour(QStringLiteral("Text1_0")), dark);     // E, the open first string
    EXPECT_EQ(backcolour(QStringLiteral("Text1_18")), mid);     // G on the same string
}

TEST_F(MainScreenTest, clickOnCell_entersItsNoteAndColoursThePiano)
{
    click(QStringLiteral("Text1_7")); // C, second string at the first fret
    EXPECT_EQ(shown(QStringLiteral("note_0")), "C");
    EXPECT_EQ(backcolour(QStringLiteral("key_0")), dark);
    EXPECT_EQ(backcolour(QStringLiteral("key_12")), mid);
    EXPECT_EQ(backcolour(QStringLiteral("key_24")), mid);
}

TEST_F(MainScreenTest, rightClickOnCell_entersNothing)
{
    QTest::mouseClick(control(QStringLiteral("Text1_7")), Qt::RightButton);
    EXPECT_EQ(shown(QStringLiteral("note_0")), "");
}

TEST_F(MainScreenTest, start_showsGuitarInItsFirstTuning)
{
    EXPECT_EQ(shown(QStringLiteral("cbotype"), "currentText"), "       GUITAR");
    EXPECT_EQ(shown(QStringLiteral("cbotuning"), "currentText"), "Standard 6 or 12 string");
    EXPECT_EQ(shown(QStringLiteral("cboleft"), "currentText"), "Right Hand");
    EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), "pull down menu --- >");
    EXPECT_EQ(control<QComboBox>(QStringLiteral("cbopreset"))->count(), 17);
    EXPECT_EQ(control<QComboBox>(QStringLiteral("cbotype"))->count(), 9);
    EXPECT_FALSE(control<QComboBox>(QStringLiteral("cbotype"))->isEditable());
}

TEST_F(MainScreenTest, pickOfTheShownTuning_restoresItsNotes)
{
    session.retune.row = 5;
    program.stage.act([&] { session.cmdret_Click(3); });
    EXPECT_EQ(shown(QStringLiteral("Text1_5")), "D");
    choose(QStringLiteral("cbotuning"), 0);
    EXPECT_EQ(shown(QStringLiteral("Text1_5")), "E");
}

TEST_F(MainScreenTest, pickInTheOpenedList_changesTheFamily)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotype"));
    list->showPopup();
    QWidget* items = list->view();
    QTest::keyClick(items, Qt::Key_Down);
    QTest::keyClick(items, Qt::Key_Return);
    EXPECT_EQ(shown(QStringLiteral("cbotype"), "currentText"), "         BASS");
    EXPECT_EQ(shown(QStringLiteral("cbotuning"), "currentText"), "4 string normal EADG");
}

TEST_F(MainScreenTest, openedLists_showTheirItemsWhole)
{
    constexpr auto longname = "WWWWWWWWWWWWWWWWWWWWWWWWW";
    session.customtable[0] = {longname, "03070740"};
    auto* families = control<QComboBox>(QStringLiteral("cbotype"));
    for (int family = 0; family < families->count(); ++family) {
        choose(QStringLiteral("cbotype"), family);
        for (const char* name : {"cbotype", "cboleft", "cbotuning", "cbopreset"}) {
            auto* list = control<QComboBox>(QLatin1String(name));
            list->showPopup();
            QApplication::processEvents();
            EXPECT_GE(list->view()->viewport()->width(), list->view()->sizeHintForColumn(0)) << name << " " << family;
            list->hidePopup();
        }
    }
    EXPECT_EQ(shown(QStringLiteral("cbotuning"), "currentText"), longname); // the last family is the user's own
}

TEST_F(MainScreenTest, openedList_hasTheThemesColoursEachTime)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotuning"));
    for (int opening = 0; opening < 2; ++opening) {
        list->showPopup();
        EXPECT_EQ(list->view()->palette().color(QPalette::Base), program.look.theme().card) << opening;
        EXPECT_EQ(list->view()->palette().color(QPalette::Highlight), program.look.theme().accent) << opening;
        list->hidePopup();
    }
}

TEST_F(MainScreenTest, longList_opensTwentyItemsHigh)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotuning"));
    ASSERT_GT(list->count(), 20);
    list->showPopup();
    QApplication::processEvents();
    const int item = list->view()->sizeHintForRow(0);
    EXPECT_EQ(list->view()->viewport()->height() / item, 20);
    EXPECT_TRUE(list->view()->verticalScrollBar()->isVisible());
    list->hidePopup();
}

TEST_F(MainScreenTest, everyWayOfPicking_actsOnce)
{
    auto* list = control<QComboBox>(QStringLiteral("cbopreset"));
    int picks = 0;
    QObject::connect(static_cast<ui::SelectorBox*>(list), &ui::SelectorBox::picked, list, [&picks] { ++picks; });
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"0 normal - open", [&] { QTest::keyClick(list, Qt::Key_Down); }},
        {"show all notes", [&] { QTest::keyClick(list, Qt::Key_S); }}, // typing tells of no activation
        {"2nd fret  capo / bar", [&] { list->setCurrentIndex(2); }},   // nor does assistive technology
        {"2nd fret  capo / bar", [&] { Q_EMIT list->activated(2); }},  // the shown item again
    };
    for (int expected = 1; const auto& [text, pick] : ways) {
        pick();
        QApplication::processEvents();
        EXPECT_EQ(shown(QStringLiteral("cbopreset"), "currentText"), text);
        EXPECT_EQ(picks, expected++) << text;
    }
}

TEST_F(MainScreenTest, typingInTheFamilyList_overlooksBlanksAroundTheNames)
{
    auto* list = control<QComboBox>(QStringLiteral("cbotype"));
    QTest::keyClick(list, Qt::Key_B);
    EXPECT_EQ(str(list->currentText().trimmed()), "BASS");
    QTest::keyClick(list, Qt::Key_A);
    QTest::keyClick(list, Qt::Key_N);
    EXPECT_EQ(str(list->currentText().trimmed()), "BANJO");
    EXPECT_EQ(session.cbotuning.items.at(static_cast<std::size_t>(session.cbotuning.index)),
              shown(QStringLiteral("cbotuning"), "currentText"));
    EXPECT_FALSE(control(QStringLiteral("Text1_12"))->isVisible());
}

TEST_F(MainScreenTest, pickThatOpensAMessageBox_actsOnce)
{
    auto* list = control<ui::SelectorBox>(QStringLiteral("cbopreset"));
    int picks = 0;
    QObject::connect(list, &ui::SelectorBox::picked, list, [&picks] {
        ++picks;
        QApplication::processEvents(); // what a message box does while it waits
    });
    list->setCurrentIndex(4);
    Q_EMIT list->activated(4);
    EXPECT_EQ(picks, 1);
}

TEST_F(MainScreenTest, choiceOfFamily_movesTheFocusToReset)
{
    QApplication::setActiveWindow(&program.mainscreen);
    control(QStringLiteral("cbotype"))->setFocus();
    choose(QStringLiteral("cbotype"), 3);
    EXPECT_EQ(str(program.mainscreen.focusWidget()->objectName()), "key_25");
}

TEST_F(MainScreenTest, chordButtonWithoutRoot_showsTheMessageBox)
{
    ui::QtDesktop people;
    app::Program real(people);
    real.start();
    QString text;
    QMessageBox::Icon icon{};
    QMessageBox::StandardButtons buttons;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        text = box->text();
        icon = box->icon();
        buttons = box->standardButtons();
        box->button(QMessageBox::Ok)->click();
    });
    QTest::mouseClick(control(QStringLiteral("Crd_3"), &real.mainscreen), Qt::LeftButton);
    EXPECT_EQ(str(text), "Please enter a note using your mouse\nleft clicking on a piano or guitar note\n"
                         "first, before using this function");
    EXPECT_EQ(icon, QMessageBox::Information);
    EXPECT_EQ(buttons, QMessageBox::Ok);
}

TEST_F(MainScreenTest, chordButton_staysPressedWhileItsChordIsShown)
{
    const auto chosen = [this](int i) { return control<ui::Button>(member("Crd", i))->ischosen(); };
    click(QStringLiteral("key_0"));
    click(QStringLiteral("Crd_3"));
    EXPECT_TRUE(chosen(3));
    click(QStringLiteral("Crd_1"));
    EXPECT_FALSE(chosen(3));
    EXPECT_TRUE(chosen(1));
    click(QStringLiteral("key_25"));
    EXPECT_FALSE(chosen(1));
}

TEST_F(MainScreenTest, spellingButton_isBoldWhileItsSpellingIsChosen)
{
    const auto bold = [this](const char* name) { return control(QString::fromLatin1(name))->font().bold(); };
    EXPECT_TRUE(bold("cmdflat"));
    click(QStringLiteral("cmdsharp"));
    EXPECT_TRUE(bold("cmdsharp"));
    EXPECT_FALSE(bold("cmdflat"));
    pick(QStringLiteral("mnumix1"));
    EXPECT_FALSE(bold("cmdsharp") || bold("cmdflat") || bold("cmdauto"));
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnumix1"))->isChecked());
}

TEST_F(MainScreenTest, secondPickOfACheckedSpelling_keepsItsCheckMark)
{
    pick(QStringLiteral("mnusharp"));
    pick(QStringLiteral("mnusharp"));
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnusharp"))->isChecked());
}

TEST_F(MainScreenTest, closeBox_leavesTheProgram)
{
    program.mainscreen.close();
    EXPECT_FALSE(program.mainscreen.isVisible());
}

TEST_F(MainScreenTest, mnuexit_hidesEveryScreen)
{
    click(QStringLiteral("Text1_2"));
    pick(QStringLiteral("mnuexit"));
    for (const QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->isVisible()) << str(top->objectName());
}

TEST_F(MainScreenTest, exceptionInAProcedure_isToldAndTheProgramGoesOn)
{
    program.stage.act([] { throw std::runtime_error("no such thing"); });
    EXPECT_EQ(desktop.told, (std::vector<tests::Told>{{ui::Icon::critical, "no such thing"}}));
    click(QStringLiteral("key_0"));
    EXPECT_EQ(shown(QStringLiteral("note_0")), "C");
}

} // namespace
