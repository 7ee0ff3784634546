// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/desktop.h"

#include <functional>
#include <vector>

namespace ui {

/// Where events enter: a screen's handler names a procedure, the stage runs it and then every screen shows the state.
class Stage {
public:
    explicit Stage(Desktop& opened) : desktop(opened) {}

    /// Runs a procedure to its end. What it throws becomes a critical message, and the program goes on.
    void act(const std::function<void()>& procedure);

    /// Shows the state as it is now.
    void showall() const;

    /// What is to be shown after each procedure.
    void onchange(std::function<void()> show) { shows.push_back(std::move(show)); }

private:
    Desktop& desktop;
    std::vector<std::function<void()>> shows;
};

} // namespace ui
