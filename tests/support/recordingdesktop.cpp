// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/recordingdesktop.h"

#include <stdexcept>

namespace tests {

void RecordingDesktop::tell(ui::Icon icon, const std::string& text)
{
    told.push_back({icon, text});
}

ui::Answer RecordingDesktop::ask(const std::string& text, const std::string& title)
{
    asked.push_back({text, title});
    if (answers.empty())
        throw std::logic_error("no answer to: " + text);
    const ui::Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

void RecordingDesktop::open(ui::Screen screen)
{
    opened.push_back(screen);
}

void RecordingDesktop::close(ui::Screen screen)
{
    closed.push_back(screen);
}

void RecordingDesktop::leave()
{
    ++left;
}

} // namespace tests
