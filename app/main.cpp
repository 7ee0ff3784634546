// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tonefret"));
    QApplication::setApplicationVersion(QStringLiteral(TONEFRET_VERSION));
    ui::QtDesktop desktop;
    app::Program program(desktop);
    program.start();
    return QApplication::exec();
}
