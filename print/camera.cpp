// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/camera.h"

#include "core/textcode.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace print {
namespace {

constexpr int keyboardroll = 10; ///< snapshots that a roll of the keyboard has

constexpr std::array<std::string_view, 4> stringsroll{
    "Snapshots Left:  3 or more",
    "Snapshots Left:  2 or more",
    "Snapshots Left:  1 or more",
    "Snapshots Left:  maybe more",
};

// The two rolls count different things, blocks and snapshots, and their texts differ in blanks and capitals on purpose.
std::string stringsleft(int blocks)
{
    if (blocks < 0 || blocks >= static_cast<int>(stringsroll.size()))
        return "Snapshots Left:  roll finished";
    return std::string(stringsroll.at(static_cast<std::size_t>(blocks)));
}

std::string keyboardleft(int snapshots)
{
    const int left = std::max(keyboardroll - snapshots, 0);
    return left > 0 ? "Snapshots Left: " + std::to_string(left) : "Snapshots Left: Roll finished";
}

int blanksbetween(JoinRoom room)
{
    return static_cast<int>(std::clamp(std::nearbyint(room.spacing), 0.0, double{widest}));
}

int widthof(const std::string& line)
{
    return static_cast<int>(core::charactercount(line));
}

/// Takes the lines `first` to `last` that are not empty, a line feed behind each.
std::string takelines(ChordSnapshot& block, std::size_t first, std::size_t last)
{
    std::string text;
    for (std::size_t i = first; i <= last; ++i) {
        if (!block.line.at(i).empty())
            text += block.line.at(i) + '\n';
        block.line.at(i).clear();
    }
    return text;
}

} // namespace

void Camera::clear()
{
    snapshot = {};
    PendingBlock = {};
    BlockWidth = 0;
    RowWidth = 0;
    SnapshotCount = 0;
    PageBlockCount = 0;
}

void Camera::initdata()
{
    const bool strings = mode == CameraMode::strings;
    labels.lbltaken = "Chord Snapshots taken so far = " + std::to_string(SnapshotCount);
    labels.lbllast = "Last snapshot:  " + snapshot.line[chordnameline] + ",  " + snapshot.line[alternateline];
    if (modechosen)
        labels.lbltype = strings ? "STRINGED INSTRUMENTS" : "KEYBOARD / PIANO";
    labels.lblleft = strings ? stringsleft(PageBlockCount) : keyboardleft(SnapshotCount);
}

void count(std::int16_t& counter)
{
    if (counter < countlimit)
        ++counter;
}

bool joins(const Camera& camera, JoinRoom room)
{
    const auto& pending = camera.PendingBlock.line;
    const auto& shot = camera.snapshot.line;
    const bool fits = room.characters >= camera.RowWidth + camera.BlockWidth + room.spacing;
    const bool holds = widthof(pending[chordnameline]) + blanksbetween(room) + camera.BlockWidth <= widest;
    const bool samestrings = (!pending[0].empty() || shot[0].empty()) && (shot[1].empty() || !pending[1].empty());
    return fits && holds && samestrings;
}

void join(Camera& camera, JoinRoom room)
{
    const std::string blanks(static_cast<std::size_t>(blanksbetween(room)), ' ');
    for (std::size_t i = 0; i < printedlines; ++i)
        if (!camera.snapshot.line.at(i).empty())
            camera.PendingBlock.line.at(i) += blanks + camera.snapshot.line.at(i);
    camera.RowWidth = widthof(camera.PendingBlock.line[chordnameline]);
}

void place(Camera& camera)
{
    std::copy_n(camera.snapshot.line.begin(), printedlines, camera.PendingBlock.line.begin());
}

std::string takeblock(Camera& camera)
{
    std::string text = "\n\n" + takelines(camera.PendingBlock, chordnameline, notesline);
    if (camera.mode == CameraMode::strings)
        text += '\n';
    text += takelines(camera.PendingBlock, 0, rulerline);
    count(camera.PageBlockCount);
    camera.RowWidth = 0;
    return text;
}

bool haschart(const Camera& camera)
{
    return !camera.snapshot.line[chordnameline].empty();
}

std::string lastchart(Camera camera)
{
    if (!haschart(camera))
        return {};
    place(camera);
    constexpr std::size_t emptylines = 2; // before a block
    return takeblock(camera).substr(emptylines);
}

std::string keyboardheading()
{
    return "Chords:  KEYBOARD     (* = keys to press, + = alternate choices)";
}

std::string stringsheading(std::string_view family, std::string_view tuning, std::string_view hand)
{
    constexpr std::size_t shortest = 3;
    while (family.size() >= shortest && family.starts_with(' '))
        family.remove_prefix(1);
    return "Chords:  " + std::string(family) + ",  " + std::string(tuning) + ",  " + std::string(hand) + " view\n";
}

} // namespace print
