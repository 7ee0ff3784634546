// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/selector.h"

#include <algorithm>

namespace mainscreen {

void Selector::choose(int i)
{
    text = items.at(static_cast<std::size_t>(i));
    index = i;
}

void Selector::settext(std::string_view shown)
{
    const auto found = std::ranges::find(items, shown);
    index = found == items.end() ? -1 : static_cast<int>(found - items.begin());
    text = shown;
}

} // namespace mainscreen
