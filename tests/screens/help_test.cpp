// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/basichelpscreen.h"
#include "help/helpscreen.h"
#include "help/topics.h"
#include "tests/screens/screentest.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextEdit>

namespace {

using tests::str;

class HelpScreens : public tests::ScreenTest {
protected:
    QWidget* open(const char* item, const char* name)
    {
        pick(QLatin1String(item));
        return control(QLatin1String(name));
    }
    QWidget* openhelp() { return open("mnuchelp", "helpinfo"); }

    std::string textof(QWidget* screen, const char* name)
    {
        return str(control(QLatin1String(name), screen)->property("text").toString());
    }
    void press(QWidget* screen, const char* name)
    {
        QTest::mouseClick(control(QLatin1String(name), screen), Qt::LeftButton);
    }
    /// What every widget of the main screen gives, behind its name.
    QStringList everywidgets(QString (QWidget::*property)() const) const
    {
        QStringList all;
        for (const auto* each : program.mainscreen.findChildren<QWidget*>())
            all.append(each->objectName() + QLatin1Char(':') + (each->*property)());
        return all;
    }
    static std::string tipof(const QWidget* control) { return str(control->toolTip()); }
};

class HelpViewer : public HelpScreens {
protected:
    void choosetopic(int item)
    {
        auto* list = control<QComboBox>(QStringLiteral("cbo1"), screen);
        list->setCurrentIndex(item);
        Q_EMIT list->activated(item);
    }
    void find(const char* text)
    {
        box->setText(QString::fromUtf8(text));
        QTest::keyClick(box, Qt::Key_Return);
    }
    /// Where the word stands, found by the button until it finds nothing more.
    std::vector<int> everyplaceof(const char* word)
    {
        std::vector<int> places;
        box->setText(QString::fromUtf8(word));
        for (press(screen, "findbut"); places.empty() || begin() > places.back(); press(screen, "findbut"))
            places.push_back(begin());
        return places;
    }
    int begin() const { return area->textCursor().selectionStart(); }
    std::string selected() const { return str(area->textCursor().selectedText()); }

    /// Where the handle is seen on the scroll bar, pixels from its upper end; -1: nowhere.
    int handle() const
    {
        const QImage bar = area->verticalScrollBar()->grab().toImage();
        const QColor colour = program.look.theme().outline;
        for (int y = 0; y < bar.height(); ++y)
            if (bar.pixelColor(bar.width() / 2, y) == colour)
                return y;
        return -1;
    }

    QWidget* screen = openhelp();
    QTextEdit* area = control<QTextEdit>(QStringLiteral("helptext"), screen);
    QLineEdit* box = control<QLineEdit>(QStringLiteral("findtext"), screen);
};

struct ControlRow {
    const char* name;
    const char* text;
    const char* tip;
};

TEST_F(HelpViewer, controls_haveTheirTextsAndTips)
{
    EXPECT_EQ(str(screen->windowTitle()), "Help, membank, vexlor_2000");
    constexpr ControlRow rows[] = {
        {"index", "Index", ""},
        {"entrybelow", "entry below", ""},
        {"findtext", "", "enter text to find"},
        {"findbut", "Find", "press to search for text below"},
        {"returnbut", "RETURN", "return to main program"},
        {"cmdpic", "view picture", ""},
    };
    for (const ControlRow& row : rows) {
        EXPECT_EQ(textof(screen, row.name), row.text) << row.name;
        EXPECT_EQ(tipof(control(QLatin1String(row.name), screen)), row.tip) << row.name;
    }
    EXPECT_TRUE(area->isReadOnly());
}

TEST_F(HelpViewer, topiclist_holdsEveryTitleInOrder)
{
    const auto* list = control<QComboBox>(QStringLiteral("cbo1"), screen);
    EXPECT_EQ(str(list->property("currentText").toString()), "Use Down Arrow at Right - > ");
    EXPECT_EQ(tipof(list), "index of major categories");
    ASSERT_EQ(list->count(), 82);
    for (int i = 0; i < list->count(); ++i)
        EXPECT_EQ(str(list->itemText(i)), help::topics.at(static_cast<std::size_t>(i)).title);
}

TEST_F(HelpViewer, everytopic_selectsItsHeadingAndScrollsThere)
{
    for (int i = 0; i < 82; ++i) {
        choosetopic(i);
        EXPECT_EQ(selected(), help::topics.at(static_cast<std::size_t>(i)).heading);
        EXPECT_TRUE(QRect(QPoint(), area->viewport()->size()).contains(area->cursorRect().center())) << i;
    }
    choosetopic(0);
    const int first = begin();
    choosetopic(0);
    EXPECT_EQ(begin(), first);
}

TEST_F(HelpViewer, scrollhandle_isSeenWhereTheReaderIs)
{
    QScrollBar* bar = area->verticalScrollBar();
    const int above = handle();
    EXPECT_GE(above, 0);
    bar->setValue(bar->maximum() / 2);
    const int halfway = handle();
    EXPECT_GT(halfway, above);
    bar->setValue(bar->maximum());
    EXPECT_GT(handle(), halfway);
}

TEST_F(HelpViewer, enter_findsOnAndBeginsAgainAfterAMiss)
{
    find("octave"); // "OCTAVE" or "octave"
    const int first = begin();
    EXPECT_EQ(QString::fromStdString(selected()).toLower(), QStringLiteral("octave"));
    QTest::keyClick(box, Qt::Key_Enter);
    const int second = begin();
    EXPECT_GT(second, first);
    press(screen, "findbut");
    EXPECT_GT(begin(), second);
    const int third = begin();
    find("no such text");
    EXPECT_EQ(begin(), third); // the view stays
    find("octave");
    EXPECT_EQ(begin(), first);
}

struct EnterRow {
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool finds;
};

TEST_F(HelpViewer, keyOfALineEnd_findsOnce)
{
    const EnterRow rows[] = {
        {"Return", Qt::Key_Return, Qt::NoModifier, "\r", true},
        {"Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier, "\r", true},
        {"Return that brings no character", Qt::Key_Return, Qt::NoModifier, "", true},
        {"Ctrl+Return", Qt::Key_Return, Qt::ControlModifier, "\n", true},
        {"Ctrl+M", Qt::Key_M, Qt::ControlModifier, "\r", true},
        {"Ctrl+J", Qt::Key_J, Qt::ControlModifier, "\n", true},
        {"Ctrl+M as Ctrl and a letter", Qt::Key_M, Qt::ControlModifier, "m", true},
        {"Ctrl+J without a character", Qt::Key_J, Qt::ControlModifier, "", true},
        {"character 10 of another key", Qt::Key_unknown, Qt::NoModifier, "\n", true},
        {"Tab's neighbour Ctrl+K", Qt::Key_K, Qt::ControlModifier, "\v", false},
        {"Alt+M", Qt::Key_M, Qt::AltModifier, "", false},
    };
    const std::vector<int> places = everyplaceof("octave");
    ASSERT_GT(places.size(), std::size(rows));
    press(screen, "findbut"); // at the first place again
    std::size_t place = 0;
    for (const EnterRow& row : rows) {
        QKeyEvent typed(QEvent::KeyPress, row.key, row.modifiers, QLatin1String(row.text));
        QApplication::sendEvent(box, &typed);
        place += row.finds ? 1 : 0;
        EXPECT_EQ(begin(), places.at(place)) << row.name;
        EXPECT_EQ(str(box->text()), "octave") << row.name;
    }
}

TEST_F(HelpViewer, letterMAndJ_areTyped)
{
    QTest::keyClicks(box, QStringLiteral("mjMJ"));
    EXPECT_EQ(str(box->text()), "mjMJ");
    EXPECT_FALSE(area->textCursor().hasSelection());
}

TEST_F(HelpViewer, enterInAnEmptyBox_leavesTheViewAndTheScreen)
{
    choosetopic(40);
    const int there = begin();
    find("");
    EXPECT_EQ(begin(), there);
    EXPECT_TRUE(screen->isVisible());
}

TEST_F(HelpViewer, returnbut_closes)
{
    press(screen, "returnbut");
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(HelpViewer, openedAgain_comesToTheFrontAndKeepsItsPlace)
{
    choosetopic(40);
    const int there = begin();
    EXPECT_EQ(openhelp(), screen);
    EXPECT_EQ(begin(), there);
}

TEST_F(HelpViewer, closedAndOpenedAgain_beginsAtItsTop)
{
    choosetopic(40);
    find("octave");
    press(screen, "returnbut");
    QWidget* again = openhelp();
    const auto* text = control<QTextEdit>(QStringLiteral("helptext"), again);
    EXPECT_EQ(text->textCursor().position(), 0);
    EXPECT_EQ(text->verticalScrollBar()->value(), 0);
    EXPECT_EQ(str(control(QStringLiteral("cbo1"), again)->property("currentText").toString()),
              "Use Down Arrow at Right - > ");
    EXPECT_EQ(str(control(QStringLiteral("findtext"), again)->property("text").toString()), "");
}

TEST_F(HelpViewer, picturebutton_showsTheNumberedMainScreen)
{
    press(screen, "cmdpic");
    auto* picture = control(QStringLiteral("helppicture"), screen);
    EXPECT_TRUE(picture->isVisible());
    EXPECT_FALSE(control<QLabel>(QStringLiteral("mainpicture"), picture)->pixmap().isNull());
    EXPECT_EQ(textof(picture, "pictureLabel12"), "Guitar Fingering or Entry");
    press(screen, "cmdpic");
    EXPECT_EQ(screen->findChildren<QWidget*>(QStringLiteral("helppicture")).size(), 1);
}

TEST_F(HelpScreens, missingdocument_leavesTheAreaEmpty)
{
    help::HelpScreen screen(program.look, {}, nullptr);
    screen.show();
    EXPECT_EQ(str(control<QTextEdit>(QStringLiteral("helptext"), &screen)->toPlainText()), "");
    control<QLineEdit>(QStringLiteral("findtext"), &screen)->setText(QStringLiteral("a"));
    press(&screen, "findbut");
    EXPECT_FALSE(control<QTextEdit>(QStringLiteral("helptext"), &screen)->textCursor().hasSelection());
}

TEST_F(HelpScreens, characterOutsideAscii_isFoundWhereItStands)
{
    const auto paragraphs = help::readrtf(R"({\rtf1\ansi \u-10188?\u-8930? clef\par na\'efve \'c9tude\par})");
    help::HelpScreen screen(program.look, paragraphs, nullptr);
    screen.show();
    control<QLineEdit>(QStringLiteral("findtext"), &screen)->setText(QString::fromUtf8("étude"));
    press(&screen, "findbut");
    EXPECT_EQ(str(control<QTextEdit>(QStringLiteral("helptext"), &screen)->textCursor().selectedText()), "Étude");
}

TEST_F(HelpScreens, tableAndRuns_areShownInOrder)
{
    const auto paragraphs = help::readrtf(
        R"({\rtf1 one\par\trowd\pard\intbl a\cell b\cell\row\trowd\intbl c\cell d\cell\row\pard{\b two}\par})");
    help::HelpScreen screen(program.look, paragraphs, nullptr);
    screen.show();
    const auto* area = control<QTextEdit>(QStringLiteral("helptext"), &screen);
    EXPECT_EQ(str(area->toPlainText()), "one\n\na\nb\nc\nd\ntwo");
}

TEST_F(HelpScreens, enormoustable_isShownAsParagraphs)
{
    std::string document = "{\\rtf1\\pard\\intbl a";
    for (int column = 0; column < 32; ++column)
        document += "\\cell";
    for (int row = 0; row < 5000; ++row)
        document += "\\row b\\cell";
    help::HelpScreen screen(program.look, help::readrtf(document + "}"), nullptr);
    screen.show();
    const auto* area = control<QTextEdit>(QStringLiteral("helptext"), &screen);
    EXPECT_EQ(area->document()->blockCount(), 5032);
}

TEST_F(HelpScreens, basichelp_hasEveryTextWordForWord)
{
    QWidget* screen = open("mnubhelp", "mhelp");
    EXPECT_EQ(str(screen->windowTitle()), "vexlor 2000 tonefret basic help - note that more help is available by "
                                          "pressing the 'more help' button");
    // clang-format off
    constexpr std::pair<const char*, const char*> rows[] = {
        {"Label32",  "Pull Down Menus (more options)"},
        {"Label31",  "If in doubt, select the \"Auto\" button and it will pick a likely selection of sharps, flats or a mix of them depending on the chord. The pull-down menu also has options for showing both the sharp name and the flat name for the keyboard output, or just one at a time."},
        {"Label30",  "(note: more options under the pull down menu above)"},
        {"Label29",  "Sharps and Flats Operation"},
        {"Label28",  "Sharps and Flats Operation"},
        {"Label27",  "After all options are set up on your guitar or other stringed instrument, you can adjust any string to any starting point. Use your mouse to click the note at the end closest to the neck. These would be notes: E,A,D,G,B or E for example for a standard guitar. A dialog will open asking what new tuning you would like for that string. Do this after options are set, since options may undo this setting."},
        {"Label26",  "Custom Tuning of Strings"},
        {"Label25",  "Custom String Tune"},
        {"Label24",  "There are four pull-down options for strings that are right above the fretboard. Use them by mouse clicking on the right arrow to see selections, and use the scroll bar if there are many. Select the one you wish. The leftmost option selects instrument family, the next selects right hand or left hand instrument views. The third option adds more instruments and adds preset tunings. The rightmost option (arrows or pull down options) allows a capo to show alternate fingerings down the stringed instrument."},
        {"Label23",  "Guitar and Stringed Instrument Options"},
        {"Label22",  "Chord Camera"},
        {"Label21",  "Snaps a picture of chord fingering and sends it to preliminary print area. When done, click the \"done\" camera button to go to the print area."},
        {"Label20",  "Guitar and Stringed Instruments Chord-Camera"},
        {"Label19",  "Notes can also be entered via the guitar keyboard with your mouse. Press reset first, and then click the desired guitar notes on the fretboard. Do not click the notes closest to the neck since those are used for custom retuning."},
        {"Label18",  "Guitar and Stringed Instrument Note Entry"},
        {"Label16",  "Chord Entry"},
        {"Label15",  "Guitar Data options"},
        {"Label14",  "Transpose Outputs"},
        {"Label13",  "Transpose Adjust"},
        {"Label12", "Guitar Fingering or Entry"},
        {"Label11",  "Data Out"},
        {"Label10",  "Piano Key Entry"},
        {"Label9",   "reset key"},
        {"Label8",   "Chord fingering will readout based on keys / notes / chords selected. When two possible fingerings are allowed for a given string or piano key, the higher one(s) will be shown in a lighter gray. You can select either the lighter gray or the darker gray fingering for that note, although of course it is best to ensure at least one fingering for each distinct note (C, G# etc.). During print, \"*\" shows primary (lower) fingering and \"+\" (higher) alternate."},
        {"Label7",   "Use the arrow keys to adjust the upper notes to the desired starting point, and the lower one to the right key to transcribe to. Then read the note on the top and use the adjacent note below for the transcription. Example: to change music in the key of C to key of G, ensure that the C (upper level) is over the G (lower level). Then, a D becomes an A for example. Note that if you have a chord entered, that indexing the lower transpose data will transpose the chord."},
        {"Label6",   "Piano Keyboard, Guitar and Stringed Instrument Readouts"},
        {"Label5",   "Transpose Assistance"},
        {"Label4",   "Use your mouse to press \"reset\", and then enter the base note of your chord by pressing the correct piano key. Then select the chord type from the right upper portion. Once the base note has been entered and if it is still desired, you can simply change the chord type if you wish without pressing reset."},
        {"Label3",   "Finding Notes from Chords"},
        {"Label2",   "Use your mouse to press \"reset\", and then enter the notes by pressing the correct piano keys. You will need to enter several notes depending on the chord. When done, if the program recognizes the chord (or an alternative) it will list its name below. Note also that guitar fingering for the chord appears below."},
        {"Label1",   "Finding Chords from Notes"},
    };
    // clang-format on
    for (const auto& [name, text] : rows)
        EXPECT_EQ(textof(screen, name), text) << name;
    EXPECT_EQ(textof(screen, "cmdhelp2"), "More Help");
    EXPECT_EQ(textof(screen, "cmdreturn"), "Return");
    for (const char* image : {"Image1", "Image2"})
        EXPECT_FALSE(control<QLabel>(QLatin1String(image), screen)->pixmap().isNull());
}

TEST_F(HelpScreens, basichelp_showsEveryTextWhole)
{
    QWidget* screen = open("mnubhelp", "mhelp");
    for (const auto* label : screen->findChildren<QLabel*>()) {
        const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_GE(label->height(), needed) << str(label->objectName());
        EXPECT_TRUE(screen->rect().contains(label->geometry())) << str(label->objectName());
    }
}

TEST_F(HelpScreens, morehelp_takesThePlaceOfTheBasicHelp)
{
    QWidget* screen = open("mnubhelp", "mhelp");
    press(screen, "cmdhelp2");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(control(QStringLiteral("helpinfo"))->isVisible());
}

TEST_F(HelpScreens, cmdreturn_closesTheBasicHelp)
{
    QWidget* screen = open("mnubhelp", "mhelp");
    press(screen, "cmdreturn");
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(HelpScreens, about_hasItsTexts)
{
    QWidget* screen = open("mnuabout", "frmAbout");
    EXPECT_EQ(textof(screen, "lblTitle"), "tonefret");
    EXPECT_EQ(textof(screen, "lblVersion"), "Version 3.0.0");
    EXPECT_EQ(textof(screen, "lblDescription"),
              "App Description: A chord calculator that will show notes on keyboard or stringed instruments based on a "
              "chord input, or will show possible chords output based on notes input. Contains many options including "
              "multiple stored stringed instruments and tuning, custom options for stringed instruments, chord print "
              "and more.");
    for (const char* year : {"1994", "2000", "2003", "2004"})
        EXPECT_NE(textof(screen, "lblDisclaimer").find(year), std::string::npos) << year;
    EXPECT_EQ(textof(screen, "cmdSysInfo"), "&System Info...");
    EXPECT_FALSE(control<QLabel>(QStringLiteral("picIcon"), screen)->pixmap().isNull());
}

TEST_F(HelpScreens, systeminformation_isToldToBeUnavailable)
{
    QWidget* screen = open("mnuabout", "frmAbout");
    press(screen, "cmdSysInfo");
    const std::vector<tests::Told> expected{{ui::Icon::plain, "System Information Is Unavailable At This Time"}};
    EXPECT_EQ(desktop.told, expected);
    EXPECT_TRUE(screen->isVisible());
    press(screen, "cmdOK");
    EXPECT_FALSE(screen->isVisible());
}

TEST_F(HelpScreens, tipsToggledTwice_areBackOnEveryControl)
{
    const QStringList before = everywidgets(&QWidget::toolTip);
    pick(QStringLiteral("mnutips"));
    EXPECT_FALSE(control<QAction>(QStringLiteral("mnutips"))->isChecked());
    pick(QStringLiteral("mnutips"));
    EXPECT_EQ(everywidgets(&QWidget::toolTip), before);
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnutips"))->isChecked());
}

TEST_F(HelpScreens, tipsSwitchedOff_leaveNoTipAndEveryName)
{
    const QStringList names = everywidgets(&QWidget::accessibleName);
    const QStringList descriptions = everywidgets(&QWidget::accessibleDescription);
    EXPECT_EQ(str(control(QStringLiteral("key_0"))->accessibleDescription()), "piano note entry / readout");
    pick(QStringLiteral("mnutips"));
    for (const auto* each : program.mainscreen.findChildren<QWidget*>())
        EXPECT_EQ(tipof(each), "") << str(each->objectName());
    EXPECT_EQ(everywidgets(&QWidget::accessibleName), names);
    EXPECT_EQ(everywidgets(&QWidget::accessibleDescription), descriptions);
}

} // namespace
