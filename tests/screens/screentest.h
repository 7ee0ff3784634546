// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/program.h"
#include "tests/support/directory.h"
#include "tests/support/recordingdesktop.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace tests {

/// The real screens over a desktop whose messages are kept instead of shown.
class QuietDesktop : public ui::QtDesktop {
public:
    std::vector<Told> told;
    std::deque<std::filesystem::path> files; ///< to be picked; none left: cancelled
    std::vector<ui::PrintJob> printed;
    int beeps = 0;

    std::vector<Asked> asked;
    std::deque<ui::Answer> answers; ///< to the next questions

    void tell(ui::Icon icon, const std::string& text) override { told.push_back({icon, text}); }
    ui::Answer ask(const std::string& text, const std::string& title) override
    {
        asked.push_back({text, title});
        if (answers.empty())
            throw std::logic_error("no answer to: " + text);
        const ui::Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::filesystem::path> pickfile(ui::Direction /*direction*/,
                                                  std::span<const ui::FileFilter> /*filters*/) override
    {
        if (files.empty())
            return std::nullopt;
        auto picked = files.front();
        files.pop_front();
        return picked;
    }
    bool hasprinter() override { return true; }
    std::string print(const ui::PrintJob& job) override
    {
        printed.push_back(job);
        return {};
    }
    void beep() override { ++beeps; }
};

inline std::string str(const QString& text)
{
    return text.toStdString();
}

/// One program of its own for each test, opened on its main screen.
class ScreenTest : public testing::Test {
protected:
    ScreenTest()
    {
        program.open();
        program.start();
    }

    /// The control of a name on a screen, or a failure that lists what there is.
    template <typename Control = QWidget>
    Control* control(const QString& name, QObject* screen) const
    {
        if (auto* found = screen->findChild<Control*>(name))
            return found;
        std::string message = "no control " + str(name) + "; there are:";
        for (const QObject* each : screen->findChildren<QObject*>())
            if (!each->objectName().isEmpty())
                message += " " + str(each->objectName());
        throw std::runtime_error(message);
    }
    template <typename Control = QWidget>
    Control* control(const QString& name)
    {
        return control<Control>(name, &program.mainscreen);
    }

    /// The screen of a name that was opened last.
    QWidget* companion(const char* name) const
    {
        const auto found = program.mainscreen.findChildren<QWidget*>(QString::fromLatin1(name));
        if (found.isEmpty())
            throw std::runtime_error(std::string("no screen ") + name);
        return found.back();
    }

    /// What happens by itself after an event.
    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void click(const QString& name) { QTest::mouseClick(control(name), Qt::LeftButton); }
    void pick(const QString& action) { control<QAction>(action)->trigger(); }

    /// Picks an item from a list as a person does, the shown one too.
    void choose(const QString& name, int item)
    {
        auto* list = control<QComboBox>(name);
        list->setCurrentIndex(item);
        Q_EMIT list->activated(item);
    }

    std::string shown(const QString& name, const char* property = "text")
    {
        return str(control<QObject>(name)->property(property).toString());
    }
    std::string backcolour(const QString& name)
    {
        return str(control(name)->property("backColor").value<QColor>().name());
    }

    Directory directory; ///< what is saved, is saved here
    QuietDesktop desktop;
    app::Program program{desktop};
    mainscreen::Session& session = program.session;
};

/// "key_7": a member of an array of controls.
inline QString member(const char* array, int index)
{
    return QString::fromLatin1("%1_%2").arg(QLatin1String(array)).arg(index);
}

} // namespace tests
