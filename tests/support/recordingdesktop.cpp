// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/recordingdesktop.h"

namespace tests {

void RecordingDesktop::tell(ui::Icon icon, const std::string& text)
{
    told.push_back({icon, text});
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
