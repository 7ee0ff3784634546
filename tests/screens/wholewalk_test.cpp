// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/companionrows.h"
#include "tests/screens/soundness.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPixmapCache>
#include <QPlainTextEdit>

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <random>
#include <set>

// A user who does anything on any screen: what is open is clicked, chosen, typed into and closed at random, questions
// are answered and files picked at random. TONEFRET_WALK gives another number of steps.

namespace {

using tests::str;
using tests::Told;

constexpr int usualsteps = 2000;

std::string joined(const std::deque<std::string>& lines)
{
    std::string all;
    for (const std::string& line : lines)
        all += "\n" + line;
    return all;
}

std::string courseof(const std::vector<std::size_t>& bytes)
{
    std::string line;
    for (const std::size_t each : bytes)
        line += " " + std::to_string(each / 1024);
    return line;
}

class WholeWalk : public tests::CompanionOpener {
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
        switch (below(20)) {
        case 0:
            return sound.clickhidden(*screen, static_cast<unsigned>(random()));
        case 1:
            if (screen->objectName() == QLatin1String("arrange"))
                return sound.exchange(*screen, static_cast<unsigned>(random()));
            [[fallthrough]];
        case 2:
            return chooseon(*screen);
        case 3:
        case 4:
            return typeon(*screen);
        case 5:
        case 6:
        case 7:
        case 8:
            return pickon(*screen);
        default:
            return clickon(*screen);
        }
    }

    /// Opens each screen once, so that what a screen needs for good is there before memory is compared.
    void openall()
    {
        for (const tests::CompanionRow& row : tests::companionrows) {
            preparedialogs();
            open(row);
            settle();
            gohome();
        }
        session.camera = {};      // the walk is to be asked what it photographs,
        session.customtable = {}; // and to begin without tunings
        EXPECT_EQ(unanswered(), "");
    }

    /// Leaves all screens but the main one, and nothing of them behind.
    void gohome()
    {
        preparedialogs();
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top != &program.mainscreen && top->isVisible())
                top->close();
        session.mnuphotoclear_Click();
        settle();
        QPixmapCache::clear();
    }

    /// The screens over the main one that are there, open or closed; one that was closed goes when it is opened anew.
    QList<QWidget*> companions() const
    {
        QList<QWidget*> all;
        for (QWidget* each : program.mainscreen.findChildren<QWidget*>())
            if (each->isWindow() && !each->objectName().isEmpty())
                all.append(each);
        return all;
    }

    /// Objects that make up the main screen.
    std::ptrdiff_t parts() const
    {
        const QList<QWidget*> above = companions();
        const auto apart = [&](const QObject* each) {
            while (each && !above.contains(each))
                each = each->parent();
            return !each;
        };
        const auto all = program.mainscreen.findChildren<QObject*>();
        return std::ranges::count_if(all, apart);
    }

    void expectnothingleft(std::ptrdiff_t partsatfirst) const
    {
        EXPECT_EQ(parts(), partsatfirst);
        std::set<QString> names;
        for (const QWidget* each : companions())
            EXPECT_TRUE(names.insert(each->objectName()).second) << str(each->objectName()) << " is there twice";
    }

    /// The first question that nobody answered; empty: none. Forgets what was told.
    std::string unanswered()
    {
        const auto found =
            std::ranges::find_if(desktop.told, [](const Told& told) { return told.text.starts_with("no answer"); });
        std::string question = found == desktop.told.end() ? std::string() : found->text;
        desktop.told.clear();
        desktop.asked.clear();
        desktop.printed.clear();
        return question;
    }

    tests::Soundness sound{program};

private:
    int below(std::size_t count) { return count == 0 ? 0 : static_cast<int>(random() % count); }

    template <typename T>
    T* any(const QList<T*>& among)
    {
        return among.isEmpty() ? nullptr : among.at(below(static_cast<std::size_t>(among.size())));
    }

    void preparedialogs()
    {
        constexpr int enough = 32; // each key that is typed into a stored entry's name may be asked about
        desktop.answers.clear();
        for (int i = 0; i < enough; ++i)
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
        std::ranges::sort(open, {}, &QObject::objectName); // or each run would have another order
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

    std::mt19937 random{20261121}; // one seed, so that a failure comes again
};

TEST_F(WholeWalk, everystep_leavesAllScreensSoundAndNothingBehind)
{
    openall();
    const int all = steps();
    const int stretch = std::max(all / 10, 1);
    std::deque<std::string> lately;
    std::vector<std::size_t> memory;
    std::optional<std::ptrdiff_t> partsatfirst;
    for (int i = 0; i < all && !HasFailure(); ++i) {
        lately.push_back("step " + std::to_string(i) + ": " + step());
        if (lately.size() > 20)
            lately.pop_front();
        settle();
        sound.expectsound();
        EXPECT_EQ(unanswered(), "");
        if (i % stretch == stretch - 1) {
            gohome();
            partsatfirst = partsatfirst.value_or(parts());
            expectnothingleft(*partsatfirst);
            memory.push_back(tests::allocated());
        }
    }
    if (HasFailure())
        ADD_FAILURE() << "the last steps:" << joined(lately);
    constexpr std::size_t caches = std::size_t{4} << 20U; // what the toolkit keeps of glyphs and the like, at most
    EXPECT_LT(memory.empty() ? 0 : memory.back(), memory.empty() ? 1 : memory.front() + caches);
    const std::string course = courseof(memory);
    RecordProperty("memory", course);
    std::printf("memory in KiB: %s\n", course.c_str());
}

} // namespace
