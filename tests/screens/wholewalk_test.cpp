// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>

#include <cstdlib>
#include <random>

// A user who does anything on any screen: what is open is clicked, chosen, typed into and closed at random, questions
// are answered and files picked at random. TONEFRET_WALK gives another number of steps.

namespace {

using tests::str;

constexpr int usualsteps = 2000;

class WholeWalk : public tests::ScreenTest {
protected:
    static int steps()
    {
        const char* wanted = std::getenv("TONEFRET_WALK");
        return wanted ? std::atoi(wanted) : usualsteps;
    }

    std::string step()
    {
        preparedialogs();
        QWidget* screen = anyscreen();
        if (screen != &program.mainscreen && below(40) == 0) {
            screen->close();
            return "close " + str(screen->objectName());
        }
        switch (below(10)) {
        case 0:
            return chooseon(*screen);
        case 1:
            return typeon(*screen);
        case 2:
        case 3:
            return pickon(*screen);
        default:
            return clickon(*screen);
        }
    }

    void expectsound()
    {
        for (std::size_t i = 0; i < session.note.size(); ++i)
            expectspelled(session.note[i], "note");
        for (const core::ScaleRow& row : session.trans1)
            for (const std::string& name : row)
                expectspelled(name, "transpose row");
        for (const instruments::Cell& cell : session.fretboard.cell)
            expectspelled(cell.text, "cell");
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(shown(tests::member("note", i)), session.note.at(static_cast<std::size_t>(i)));
        for (const custom::Entry& entry : session.customtable)
            EXPECT_EQ(entry.data.size(), entry.name.empty() ? entry.data.size() : custom::datalength);
        expectcompanions();
    }

private:
    int below(std::size_t count) { return count == 0 ? 0 : static_cast<int>(random() % count); }

    template <typename T>
    T* any(const QList<T*>& among)
    {
        return among.isEmpty() ? nullptr : among.at(below(static_cast<std::size_t>(among.size())));
    }

    void preparedialogs()
    {
        desktop.answers.clear();
        for (int i = 0; i < 8; ++i)
            desktop.answers.push_back(below(2) == 0 ? ui::Answer::yes : ui::Answer::no);
        desktop.files.clear();
        if (below(3) != 0)
            desktop.files.push_back(directory.path / (std::string("file") + std::to_string(below(4)) + ".txt"));
    }

    QWidget* anyscreen()
    {
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        QList<QWidget*> open;
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->isVisible() && !top->objectName().isEmpty() && top->windowType() != Qt::Popup)
                open.append(top);
        return any(open);
    }

    template <typename T>
    QList<T*> usable(const QWidget& screen) const
    {
        QList<T*> found;
        for (T* each : screen.findChildren<T*>())
            if (each->isVisible() && each->isEnabled() && each->window() == &screen)
                found.append(each);
        return found;
    }

    std::string clickon(const QWidget& screen)
    {
        auto* button = any(usable<QAbstractButton>(screen));
        if (!button)
            return "nothing";
        const std::string name = str(button->objectName());
        QTest::mouseClick(button, Qt::LeftButton);
        return name;
    }

    std::string chooseon(const QWidget& screen)
    {
        auto* list = any(usable<QComboBox>(screen));
        if (!list || list->count() == 0)
            return "nothing";
        const int item = below(static_cast<std::size_t>(list->count()));
        list->setCurrentIndex(item);
        Q_EMIT list->activated(item);
        return str(list->objectName()) + " " + std::to_string(item);
    }

    std::string typeon(const QWidget& screen)
    {
        static const std::array words{QStringLiteral("7"),
                                      QStringLiteral("-2"),
                                      QStringLiteral("145 x"),
                                      QStringLiteral("Öhr;"),
                                      QStringLiteral("a name of twenty-six signs"),
                                      QString()};
        const QString word = words.at(static_cast<std::size_t>(below(words.size())));
        if (auto* page = any(usable<QPlainTextEdit>(screen)); page && below(2) == 0) {
            QTest::keyClick(page, Qt::Key_End, Qt::ControlModifier);
            QTest::keyClicks(page, word);
            return "page << " + str(word);
        }
        auto* line = any(usable<QLineEdit>(screen));
        if (!line)
            return "nothing";
        if (!line->isReadOnly())
            line->selectAll();
        QTest::keyClicks(line, word);
        return str(line->objectName()) + " << " + str(word);
    }

    std::string pickon(QWidget& screen)
    {
        auto* window = qobject_cast<QMainWindow*>(&screen);
        if (!window)
            return clickon(screen);
        QList<QAction*> items;
        for (QAction* action : window->menuBar()->findChildren<QAction*>())
            if (action->isEnabled() && !action->menu() && !action->isSeparator() &&
                action->objectName() != QLatin1String("mnuexit"))
                items.append(action);
        QAction* item = any(items);
        if (!item)
            return "nothing";
        const std::string name = str(item->objectName());
        item->trigger();
        return name;
    }

    void expectspelled(const std::string& name, const char* where) const
    {
        const core::PitchClass pitch = core::notenumber(name);
        EXPECT_EQ(name, pitch == core::nonote ? name : session.spelling.nameof(pitch)) << where;
    }

    void expectcompanions()
    {
        for (const QWidget* top : QApplication::topLevelWidgets()) {
            if (!top->isVisible())
                continue;
            if (top->objectName() == QLatin1String("custom")) {
                EXPECT_EQ(textof("txtname", *top), session.editform.txtname);
                EXPECT_EQ(textof("txtnum", *top), session.editform.txtnum());
            } else if (top->objectName() == QLatin1String("mprint")) {
                EXPECT_EQ(str(top->findChild<QPlainTextEdit*>(QStringLiteral("rtbprint"))->toPlainText()),
                          session.page.text);
                EXPECT_EQ(textof("txtchar", *top), session.page.txtchar);
            }
        }
    }

    static std::string textof(const char* name, const QWidget& screen)
    {
        return str(screen.findChild<QWidget*>(QString::fromLatin1(name))->property("text").toString());
    }

    std::mt19937 random{20261121}; // one seed, so that a failure comes again
};

TEST_F(WholeWalk, everystep_leavesAllScreensSound)
{
    const int all = steps();
    std::vector<std::string> done;
    for (int i = 0; i < all && !HasFailure(); ++i) {
        done.push_back(step());
        QApplication::processEvents();
        expectsound();
    }
    if (HasFailure())
        for (std::size_t i = done.size() > 20 ? done.size() - 20 : 0; i < done.size(); ++i)
            ADD_FAILURE() << "step " << i << ": " << done.at(i);
    EXPECT_TRUE(
        std::ranges::none_of(desktop.told, [](const tests::Told& told) { return told.text.starts_with("no answer"); }));
}

} // namespace
