// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/snapshot.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace print {

/// What the camera's window shows, as of its last refreshing.
struct CameraLabels {
    std::string lbltaken; ///< how many snapshots were taken
    std::string lbllast;  ///< the last one's chord
    std::string lbltype;  ///< what they are read from
    std::string lblleft;  ///< how many are left on the roll, which is advice only
};

/// What the snapshots are read from, as a check mark on the menus of two screens.
struct ModeMarks {
    bool mnuguitar = false;
    bool mnupiano = false;
};

/// The chord camera. Lives for the whole run; counters, widths and lines begin anew with a clear.
struct Camera {
    CameraMode mode = CameraMode::strings;
    bool modechosen = false; ///< once chosen, no snapshot asks for the mode
    ModeMarks marks;
    std::int16_t SnapshotCount = 0;  ///< taken since the last clear
    std::int16_t PageBlockCount = 0; ///< blocks written to the page since the last clear
    ChordSnapshot snapshot;          ///< the current one
    ChordSnapshot PendingBlock;      ///< snapshots side by side that are not on the page yet
    Fingering fingering;
    int BlockWidth = 0; ///< to which the current snapshot's lines are padded, 0..255
    int RowWidth = 0;   ///< of the pending block after a join, 0..255; 0 while it holds one snapshot
    CameraLabels labels;

    bool pending() const { return !PendingBlock.line[2].empty(); }

    /// Forgets all snapshots; mode and labels stay.
    void clear();

    /// Brings the labels up to date.
    void initdata();
};

/// The most that a counter holds; it stays there.
inline constexpr std::int16_t countlimit = 32767;

/// One more, up to the limit.
void count(std::int16_t& counter);

/// What the page lets stand side by side, as its boxes say: numbers as typed, not rounded.
struct JoinRoom {
    double spacing;    ///< characters between two snapshots
    double characters; ///< in a line of the page
};

/// Whether the current snapshot fits beside the pending block and has the same strings.
/// The first snapshot's own width is left out of the sum on purpose; see docs/behaviour.md.
bool joins(const Camera& camera, JoinRoom room);

/// Puts the current snapshot beside the pending block.
void join(Camera& camera, JoinRoom room);

/// Makes the current snapshot the pending block.
void place(Camera& camera);

/// Takes the pending block as text, a line feed behind each line, and leaves it empty. Precondition: `pending`.
std::string takeblock(Camera& camera);

/// Whether a snapshot was taken since the last clear.
bool haschart(const Camera& camera);

/// The last snapshot by itself as the page would get it, a line feed behind each line; empty: there is none.
std::string lastchart(Camera camera);

/// The page's first line for keyboard snapshots, without a line feed.
std::string keyboardheading();

/// The page's first line for a stringed instrument, with its line feed. `family` as its selector shows it.
std::string stringsheading(std::string_view family, std::string_view tuning, std::string_view hand);

} // namespace print
