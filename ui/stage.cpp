// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/stage.h"

#include <exception>

namespace ui {

void Stage::act(const std::function<void()>& procedure)
{
    try {
        procedure();
    } catch (const std::exception& failure) {
        desktop.tell(Icon::critical, failure.what());
    }
    showall();
}

void Stage::showall() const
{
    for (const auto& show : shows)
        show();
}

} // namespace ui
