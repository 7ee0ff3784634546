// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/pointer/xserver.h"

#include <QStandardPaths>

#include <stdexcept>

namespace tests {
namespace {

QStringList moved(QPoint place)
{
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

} // namespace

QString XServer::missing()
{
    QStringList programs;
    for (const QString& program : {QStringLiteral("Xvfb"), QStringLiteral("xdotool")})
        if (QStandardPaths::findExecutable(program).isEmpty())
            programs += program;
    return programs.join(QStringLiteral(" and "));
}

XServer::XServer()
{
    // Without -noreset the server begins anew when its first client leaves, and what then connects finds it gone.
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset"),
                                          QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-screen"),
                                          QStringLiteral("0"), QStringLiteral("1600x1200x24")});
    QByteArray display;
    while (!display.endsWith('\n') && server.waitForReadyRead(30000))
        display += server.readAllStandardOutput();
    if (!display.endsWith('\n'))
        throw std::runtime_error("the X server does not start");
    qputenv("DISPLAY", ":" + display.trimmed());
}

XServer::~XServer()
{
    server.terminate();
    server.waitForFinished();
}

void Hand::drag(QPoint from, QPoint to)
{
    QStringList acts = moved(from) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")};
    constexpr int stretches = 4;
    for (int i = 1; i <= stretches; ++i)
        acts += moved(from + (to - from) * i / stretches);
    acts += {QStringLiteral("mouseup"), QStringLiteral("1")};
    tool.start(QStringLiteral("xdotool"), acts);
}

} // namespace tests
