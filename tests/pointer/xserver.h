// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>

namespace tests {

/// An X server without a screen to look at, for one run of the tests.
class XServer {
public:
    /// What this machine lacks for it; empty: nothing.
    static QString missing();

    /// Starts the server and makes it the display of this process, which must not have opened one yet.
    XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    ~XServer();

private:
    QProcess server;
};

/// A hand on the mouse of that server. Begins its acts and returns at once, for the program has to answer meanwhile.
class Hand {
public:
    /// Presses the left button at one place, goes to another and releases it there.
    void drag(QPoint from, QPoint to);
    /// Whether it has done what it began.
    bool rests() const { return tool.state() == QProcess::NotRunning; }

private:
    QProcess tool;
};

} // namespace tests
