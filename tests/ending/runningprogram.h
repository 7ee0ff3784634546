// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <sys/types.h>

namespace tests {

/// The program in a process of its own, with its main window on the display that DISPLAY names.
class RunningProgram {
public:
    /// Starts the program in the current folder and waits for its window.
    RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram();

    /// Asks the window to close, as a desktop does when its close box is clicked. Returns at once.
    void closewindow();
    void kill();
    /// Waits for the end; false: it was killed, or failed.
    bool endswell();

private:
    struct Window;

    pid_t process;
    std::unique_ptr<Window> window;
};

} // namespace tests
