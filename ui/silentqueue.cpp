// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/printqueue.h"

namespace ui {

std::string queuerefusal()
{
    return {};
}

} // namespace ui
