// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace ui {

enum class Icon : std::uint8_t { plain, information, critical };

/// The screens that stand over the main screen.
enum class Screen : std::uint8_t { frmretune, helpinfo, mhelp, frmAbout };

/// What the program asks of a person and a desktop. The screens give a real one, tests one that records and answers.
/// Nothing else shows a message box or opens and closes a screen.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Shows a message with an OK button under the program's title and waits for it.
    virtual void tell(Icon icon, const std::string& text) = 0;

    /// Shows a screen; one that is open comes to the front. Returns at once.
    virtual void open(Screen screen) = 0;
    virtual void close(Screen screen) = 0;

    /// Hides and closes every screen, the main screen last, and ends the program.
    virtual void leave() = 0;
};

} // namespace ui
