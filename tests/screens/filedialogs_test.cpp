// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

using tests::str;

/// The real file dialogs, answered while they are open.
class FileDialogTest : public tests::ScreenTest {
protected:
    /// Does `act` to the dialog that the menu item opens.
    void pickin(const char* item, const std::function<void(QFileDialog&)>& act)
    {
        QTimer::singleShot(0, &real.mainscreen, [this, act] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            ++answered;
            act(*dialog);
        });
        const int before = answered;
        control<QAction>(QString::fromLatin1(item), &real.mainscreen)->trigger();
        EXPECT_EQ(answered, before + 1) << item;
    }

    /// Types a name and accepts it; a dialog that does not take it is a failure, not a wait.
    static void enter(QFileDialog& dialog, const QString& name)
    {
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_TRUE(edit);
        edit->setText(name);
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_FALSE(dialog.isVisible()) << str(name);
        if (dialog.isVisible())
            dialog.reject();
    }

    int answered = 0;
    ui::QtDesktop people;
    app::Program real{people};

    FileDialogTest() { real.start(); }
};

TEST_F(FileDialogTest, open_listsEveryFileFirst)
{
    pickin("mnuload", [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(str(dialog.nameFilters().join(QLatin1Char('|'))), "All Files (*.*) (*)|Text Files(*.txt) (*.txt)");
        const auto* shown = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        ASSERT_TRUE(shown);
        EXPECT_EQ(str(shown->itemText(0)) + "|" + str(shown->itemText(1)), "All Files (*.*)|Text Files(*.txt)");
        dialog.reject();
    });
}

TEST_F(FileDialogTest, save_listsTexts)
{
    pickin("mnusave", [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(str(dialog.nameFilters().join(QLatin1Char('|'))), "Text Files (*.txt) (*.txt)");
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite)); // the program asks itself
        dialog.reject();
    });
    EXPECT_EQ(directory.names(), "");
}

TEST_F(FileDialogTest, typedName_isSavedAndLoaded)
{
    real.session.customtable[0] = {"A", "0349279B"};
    pickin("mnusave", [](QFileDialog& dialog) { enter(dialog, QStringLiteral("mine")); });
    EXPECT_EQ(directory.read("mine.txt"), "Tonefret:       GUITAR;00 72 4 801 3 6000 0;A;0349279B;\r\n");
    real.session.customtable = {};
    pickin("mnuload", [](QFileDialog& dialog) { enter(dialog, QStringLiteral("mine.txt")); });
    EXPECT_EQ(real.session.customtable[0].name, "A");
}

TEST_F(FileDialogTest, fileWithoutADot_canBePicked)
{
    directory.write("plain", "Tonefret:         BASS;00 72 4 801 3 6000 0;");
    pickin("mnuload", [](QFileDialog& dialog) { enter(dialog, QStringLiteral("plain")); });
    EXPECT_EQ(real.session.cbotype.text, "         BASS");
}

TEST_F(FileDialogTest, overwriteQuestion_isYesOrNoAndEscapeIsNo)
{
    directory.write("mine.txt", "old");
    const std::function<void(QMessageBox&)> answers[] = {
        [](QMessageBox& box) { box.button(QMessageBox::No)->click(); },
        [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); },
        [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }};
    for (const auto& answer : answers) {
        EXPECT_EQ(directory.read("mine.txt"), "old");
        pickin("mnusave", [&](QFileDialog& dialog) {
            QTimer::singleShot(0, &real.mainscreen, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_TRUE(box);
                EXPECT_EQ(str(box->text()), "Overwrite existing file?");
                EXPECT_EQ(str(box->windowTitle()), "Overwrite File Message");
                EXPECT_EQ(box->icon(), QMessageBox::Question);
                EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                answer(*box);
            });
            enter(dialog, QStringLiteral("mine.txt"));
        });
    }
    EXPECT_EQ(directory.read("mine.txt"), "Tonefret:       GUITAR;00 72 4 801 3 6000 0;\r\n");
}

TEST_F(FileDialogTest, exit_writesTheDataFile)
{
    real.mainscreen.close();
    EXPECT_EQ(directory.read("tonefret.txt"), "Tonefret:       GUITAR;00 72 4 801 3 6000 0;\r\n");
}

} // namespace
