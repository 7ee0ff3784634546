// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/arguments.h"
#include "app/portrait.h"
#include "app/program.h"
#include "app/warmup.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>

#include <cstdio>

namespace {

int answer(const app::Arguments& arguments)
{
    std::fputs(arguments.answer.c_str(), arguments.refused ? stderr : stdout);
    return arguments.refused ? 1 : 0;
}

QStringList wordsof(int argc, char** argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]); // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
    return words;
}

void nameapplication()
{
    QApplication::setApplicationName(QStringLiteral("tonefret"));
    QApplication::setApplicationVersion(QStringLiteral(TONEFRET_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tonefret"));
    constexpr int iconsize = 64;
    QApplication::setWindowIcon(app::programicon(iconsize, 1));
}

/// The folder that the program works in is not where people keep their pages, so they pick files elsewhere.
void useuserdata(ui::QtDesktop& desktop)
{
    const std::string failure = app::enteruserdata();
    if (failure.empty())
        desktop.pickfrom(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    else
        desktop.tell(ui::Icon::critical, "The user's data folder cannot be used:\n" + failure);
}

} // namespace

int main(int argc, char** argv)
{
    // Help and version are told without a display; what Qt alone understands is known only once it has read it.
    const app::Arguments early = app::readarguments(wordsof(argc, argv));
    if (!early.answer.empty() && !early.refused)
        return answer(early);

    std::jthread fonts = app::warmfonts();
    const QApplication application(argc, argv);
    nameapplication();
    const app::Arguments arguments = app::readarguments(QApplication::arguments());
    if (!arguments.answer.empty())
        return answer(arguments);

    ui::QtDesktop desktop;
    if (arguments.userdata)
        useuserdata(desktop);
    app::Program program(desktop);
    program.open();
    if (fonts.joinable())
        fonts.join();
    program.start();
    return QApplication::exec();
}
