// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mainscreen {

/// A drop-down list: its items and the text that it shows, which need not be one of them.
struct Selector {
    std::vector<std::string> items;
    std::string text;
    int index = -1; ///< of the shown item; -1 while the text is no item

    /// Shows item `i`. Precondition: 0 <= i < number of items.
    void choose(int i);

    /// Shows a text, as the first item of that text if there is one.
    void settext(std::string_view shown);
};

} // namespace mainscreen
