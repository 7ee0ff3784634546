// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/recordingdesktop.h"

namespace tests {
namespace {

template <typename T>
std::optional<T> taken(std::deque<T>& queue)
{
    if (queue.empty())
        return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

} // namespace

void RecordingDesktop::tell(ui::Icon icon, const std::string& text)
{
    told.push_back({icon, text});
}

ui::Answer RecordingDesktop::ask(const std::string& text, const std::string& title)
{
    asked.push_back({text, title});
    return taken(answers).value_or(ui::Answer::no);
}

std::optional<std::filesystem::path> RecordingDesktop::pickfile(ui::Direction direction,
                                                                std::span<const ui::FileFilter> filters)
{
    PickAsked& asking = pickasked.emplace_back(PickAsked{direction, {}});
    for (const ui::FileFilter& filter : filters)
        asking.filters.push_back(std::string(filter.name) + "|" + filter.pattern);
    return taken(files);
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

ui::PaperRoom RecordingDesktop::paperroom(int points)
{
    paperasked.push_back(points);
    return room;
}

std::string RecordingDesktop::print(const ui::PrintJob& job)
{
    printed.push_back(job);
    return printfailure;
}

} // namespace tests
