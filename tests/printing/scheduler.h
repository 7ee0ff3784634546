// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/directory.h"

#include <QProcess>

#include <cstdint>
#include <string>

namespace tests {

/// How a print queue stands when its scheduler starts.
enum class Queue : std::uint8_t {
    ready,
    rejecting, ///< takes no jobs
    none,      ///< there is no queue at all
};

/// A print scheduler of this process's own, in a folder of its own, with at most one queue, the default one. It keeps
/// what a printer would print. No other scheduler of the machine is seen meanwhile.
class Scheduler {
public:
    static constexpr const char* queuename = "chords";

    /// What this machine lacks for it; empty: nothing.
    static QString missing();

    Scheduler();
    Scheduler(const Scheduler&) = delete;
    Scheduler& operator=(const Scheduler&) = delete;
    ~Scheduler() { stop(); }

    /// Starts anew, without jobs; returns when it answers.
    void start(Queue queue);
    void stop();

    /// Waits for a job; they are counted from 1. Its text, as a reader of its pages sees it: a form feed behind each.
    /// `pitch` is the width of a character, points.
    std::string receivedtext(int job, double pitch);

private:
    std::string log() const;

    Directory folder;
    QProcess server;
};

} // namespace tests
