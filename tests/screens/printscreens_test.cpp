// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <array>

namespace {

using tests::str;
using tests::Told;

/// The screens of camera, page and printing.
class PrintScreens : public tests::ScreenTest {
protected:
    /// An open screen, or a failure.
    QWidget* screen(const char* name)
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->isVisible() && each->objectName() == QLatin1String(name))
                return each;
        throw std::runtime_error(std::string("not open: ") + name);
    }
    bool isopen(const char* name)
    {
        try {
            return screen(name) != nullptr;
        } catch (const std::runtime_error&) {
            return false;
        }
    }
    void press(const char* on, const char* name)
    {
        QTest::mouseClick(control(QString::fromLatin1(name), screen(on)), Qt::LeftButton);
    }
    std::string text(const char* on, const char* name, const char* property = "text")
    {
        return str(control<QObject>(QString::fromLatin1(name), screen(on))->property(property).toString());
    }
    void type(const char* on, const char* name, const char* typed)
    {
        auto* box = control<QLineEdit>(QString::fromLatin1(name), screen(on));
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(typed));
    }
    QPlainTextEdit* page() { return control<QPlainTextEdit>(QStringLiteral("rtbprint"), screen("mprint")); }
};

struct ControlRow {
    const char* screen;
    const char* name;
    const char* text; ///< nullptr: not looked at
    const char* tip;
};

constexpr const char* boxtip = "use arrows to increase or decrease";

// clang-format off
constexpr auto controls = std::to_array<ControlRow>({
    {"mprint",      "txtchar",      "72", boxtip},
    {"mprint",      "cmdchardown",  "",   "less characters per line"},
    {"mprint",      "cmdcharup",    "",   "more characters per line"},
    {"mprint",      "txtspace",     "4",  boxtip},
    {"mprint",      "cmdspacedown", "",   "less spacing between chords"},
    {"mprint",      "cmdspaceup",   "",   "more spacing between chords"},
    {"mprint",      "txtfont",      "11", boxtip},
    {"mprint",      "cmddownfont",  "",   "lower the font size"},
    {"mprint",      "cmdupfont",    "",   "raise the font size"},
    {"mprint",      "cmdfonthelp",  "?",  "font size help"},
    {"mprint",      "chkmult",      "",   "if checked: allows only 1 chord printed per line"},
    {"mprint",      "chkalt",       "",   "if checked: will show alternate fingerings as well as primary"},
    {"mprint",      "txtlines",     "1",  "Output: shows how many lines are written"},
    {"mprint",      "rtbprint",     nullptr, "print output screen - you can add titles or edit here also"},
    {"mprint",      "cmdshow",      "Done. Show all Print Lines", "press when done to send all stored print to this screen"},
    {"mprint",      "cmdclear",     "Clear Print Data",           "clears the print screen and all print data"},
    {"mprint",      "cmdprint",     "Print Data",                 "clears the print screen and all print data"},
    {"mprint",      "cmdret",       "Return to Main Program",     "return to main program"},
    {"printdialog", "txttop",       "3",  boxtip},
    {"printdialog", "txtleft",      "6",  boxtip},
    {"printdialog", "cmdtopup",     "",   "more characters per line"},
    {"printdialog", "cmdtopdown",   "",   "less characters per line"},
    {"printdialog", "cmdleftup",    "",   "more spacing between chords"},
    {"printdialog", "cmdleftdown",  "",   "less sp[acing between chords"},
    {"printdialog", "cmdprint",     "PRINT",  ""},
    {"printdialog", "cmdcancel",    "CANCEL", ""},
    {"ccamera",     "cmdret",       "Okay! More to do", ""},
    {"ccamera",     "cmdview",      "Done! Lets View",  ""},
    {"ccamera",     "cmdclear",     "Clear / Reset",    ""},
    {"ccamera",     "lensinner",    nullptr, ""},
    {"ccamera",     "lensouter",    nullptr, ""},
    {"ccamera",     "cambase",      nullptr, ""},
    {"ccamera",     "Shape1",       nullptr, ""},
    {"ccamera",     "Shape2",       nullptr, ""},
    {"camquestion", "cmdguitar",    "Guitar or Stringed Instrument", ""},
    {"camquestion", "cmdpiano",     "Keyboard or Piano",             ""},
});
// clang-format on

TEST_F(PrintScreens, controls_bearTheirNamesTextsAndTips)
{
    session.photochord();
    session.mnuguitar_Click();
    session.photochord();
    pick(QStringLiteral("mnuviewprint"));
    session.camera.clear();
    pick(QStringLiteral("mnuprintchord")); // writes a heading of one line
    for (const ControlRow& row : controls) {
        const auto* found = control(QString::fromLatin1(row.name), screen(row.screen));
        EXPECT_EQ(str(found->toolTip()), row.tip) << row.name;
        const std::string shown = str(found->property("text").toString());
        EXPECT_EQ(shown, row.text ? row.text : shown) << row.name;
    }
    EXPECT_EQ(str(screen("mprint")->windowTitle()),
              "Tonefret Chord Printing Composer - Uses simple Text (.txt) format");
    EXPECT_EQ(str(screen("ccamera")->windowTitle()), "Chord Camera - vexlor 2000");
    EXPECT_EQ(str(screen("camquestion")->windowTitle()), "Keyboard or Stringed Instrument?");
    EXPECT_EQ(str(screen("printdialog")->windowTitle()), "tonefret print dialog box");
    EXPECT_TRUE(screen("printdialog")->isModal());
    EXPECT_TRUE(screen("camquestion")->isModal());
    EXPECT_FALSE(screen("ccamera")->isModal());
}

TEST_F(PrintScreens, firstSnapshot_asksAndThenShowsTheCamera)
{
    session.Crd_Click(0);
    click(QStringLiteral("cordcam"));
    press("camquestion", "cmdpiano");
    EXPECT_FALSE(isopen("camquestion"));
    EXPECT_EQ(text("ccamera", "lbltaken"), "Chord Snapshots taken so far = 1");
    EXPECT_EQ(text("ccamera", "lbltype"), "KEYBOARD / PIANO");
    EXPECT_EQ(text("ccamera", "lblleft"), "Snapshots Left: 9");
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnupiano"))->isChecked());
    EXPECT_FALSE(control<QAction>(QStringLiteral("mnuguitar"))->isChecked());
}

TEST_F(PrintScreens, questionClosed_choosesNothing)
{
    click(QStringLiteral("cordcam"));
    screen("camquestion")->close();
    EXPECT_FALSE(session.camera.modechosen);
    EXPECT_EQ(session.camera.SnapshotCount, 0);
}

TEST_F(PrintScreens, viewButton_showsThePageWithTheBlock)
{
    pick(QStringLiteral("mnuguitar"));
    pick(QStringLiteral("mnusnap"));
    press("ccamera", "cmdview");
    EXPECT_FALSE(isopen("ccamera"));
    EXPECT_EQ(str(page()->toPlainText()), session.page.text);
    EXPECT_FALSE(session.page.text.empty());
    EXPECT_EQ(text("mprint", "txtlines"), session.page.txtlines);
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnuguitar"), screen("mprint"))->isChecked());
}

TEST_F(PrintScreens, typedText_isThePagesAndComesBack)
{
    pick(QStringLiteral("mnuviewprint"));
    page()->setPlainText(QStringLiteral("no\u00A0break"));
    QTest::keyClicks(page(), QStringLiteral("My "));
    EXPECT_EQ(session.page.text, "My no\xC2\xA0"
                                 "break");
    press("mprint", "cmdret");
    EXPECT_FALSE(isopen("mprint"));
    pick(QStringLiteral("mnuviewprint"));
    EXPECT_EQ(session.page.text, "My no\xC2\xA0"
                                 "break");
}

TEST_F(PrintScreens, pageThatGrows_keepsWhatIsTyped)
{
    pick(QStringLiteral("mnuguitar"));
    pick(QStringLiteral("mnuviewprint"));
    QTest::keyClicks(page(), QStringLiteral("title"));
    pick(QStringLiteral("mnusnap"));
    press("mprint", "cmdshow");
    EXPECT_TRUE(session.page.text.starts_with("title\n\n"));
    EXPECT_EQ(str(page()->toPlainText()), session.page.text);
    press("mprint", "cmdclear");
    EXPECT_EQ(str(page()->toPlainText()), "");
}

TEST_F(PrintScreens, fontButtons_sizeTheWholePage)
{
    pick(QStringLiteral("mnuviewprint"));
    EXPECT_EQ(page()->font().pointSize(), 11);
    EXPECT_EQ(str(page()->font().family()), "Courier New");
    press("mprint", "cmdupfont");
    EXPECT_EQ(page()->font().pointSize(), 12);
    EXPECT_EQ(text("mprint", "txtfont"), "12");
    EXPECT_EQ(page()->lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST_F(PrintScreens, boxesAndChecks_reachTheSettings)
{
    pick(QStringLiteral("mnuviewprint"));
    type("mprint", "txtchar", "100");
    press("mprint", "cmdcharup");
    EXPECT_EQ(text("mprint", "txtchar"), "101");
    EXPECT_EQ(text("mprint", "txtfont"), "7");
    press("mprint", "cmdspaceup");
    QTest::mouseClick(control<QCheckBox>(QStringLiteral("chkalt"), screen("mprint")), Qt::LeftButton, {},
                      QPoint(8, control(QStringLiteral("chkalt"), screen("mprint"))->height() / 2));
    screen("mprint")->close(); // its close box
    EXPECT_FALSE(session.page.open);
    EXPECT_EQ(session.pagesettings.charactersperline, 101);
    EXPECT_EQ(session.pagesettings.spacing, 5);
    EXPECT_FALSE(session.pagesettings.alternate);
    EXPECT_TRUE(desktop.told.empty());
}

TEST_F(PrintScreens, wrongNumber_isToldAndThePageIsLeft)
{
    pick(QStringLiteral("mnuviewprint"));
    type("mprint", "txtfont", "999");
    press("mprint", "cmdret");
    EXPECT_FALSE(isopen("mprint"));
    EXPECT_EQ(desktop.told.size(), 1U);
}

TEST_F(PrintScreens, printButton_printsThePage)
{
    pick(QStringLiteral("mnuviewprint"));
    QTest::keyClicks(page(), QStringLiteral("title"));
    press("mprint", "cmdprint");
    press("printdialog", "cmdtopdown");
    type("printdialog", "txtleft", "2");
    press("printdialog", "cmdprint");
    EXPECT_FALSE(isopen("printdialog"));
    ASSERT_EQ(desktop.printed.size(), 1U);
    EXPECT_EQ(desktop.printed.front().pages, (std::vector<std::vector<std::string>>{{"", "", "  title"}}));
    EXPECT_EQ(str(page()->toPlainText()), "title");
}

TEST_F(PrintScreens, cancelButton_printsNothing)
{
    pick(QStringLiteral("mnuprintchord"));
    press("printdialog", "cmdcancel");
    EXPECT_FALSE(isopen("printdialog"));
    EXPECT_TRUE(desktop.printed.empty());
}

TEST_F(PrintScreens, pageMenus_saveAndLoad)
{
    pick(QStringLiteral("mnuviewprint"));
    QTest::keyClicks(page(), QStringLiteral("title"));
    desktop.files = {directory.path / "mine.txt", directory.path / "mine.txt"};
    control<QAction>(QStringLiteral("mnusave"), screen("mprint"))->trigger();
    EXPECT_EQ(directory.read("mine.txt"), "title\r\n");
    QTest::keyClicks(page(), QStringLiteral("another"));
    control<QAction>(QStringLiteral("mnuload"), screen("mprint"))->trigger();
    EXPECT_EQ(str(page()->toPlainText()), "title\n");
    EXPECT_EQ(text("mprint", "txtlines"), "1");
}

TEST_F(PrintScreens, programsEnd_storesTheOpenPage)
{
    pick(QStringLiteral("mnuviewprint"));
    type("mprint", "txtspace", "9");
    session.tonefretexit();
    EXPECT_EQ(session.pagesettings.spacing, 9);
    EXPECT_NE(directory.names().find("tonefret.txt"), std::string::npos);
}

} // namespace
