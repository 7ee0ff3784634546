// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/desktop.h"

#include <string>
#include <string_view>
#include <vector>

namespace print {

using PrintedPage = std::vector<std::string>; ///< lines from the top

/// A text laid out on paper.
struct Printout {
    std::vector<PrintedPage> pages;
    int toolong = 0; ///< lines that the paper is too narrow for; they go on in the next line
};

/// The page's text with its margins: `left` blanks before each line, blanks at the very end removed, `top` line feeds
/// before it all. Without a left margin the blanks at the end stay.
std::string withmargins(std::string_view text, int top, int left);

/// Breaks a text into pages between its lines. A line that fits is never broken; blanks that do not fit at its end are
/// left out. Tabs go to every eighth character. The line feed at the very end begins no line.
Printout layoutpages(std::string_view text, ui::PaperRoom room);

} // namespace print
