// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"
#include "instruments/layouts.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace custom {

inline constexpr std::size_t placecount = 51;
inline constexpr std::size_t datalength = 8;

/// One place of the user's own tunings.
struct Entry {
    std::string name; ///< empty: a free place
    /// Eight characters: hand ("0" right, anything else left), string layout, and the open notes of rows 5 upward to 0.
    std::string data;

    bool operator==(const Entry&) const = default;
};

/// The user's tunings in the order in which they are offered; free places stand at the end.
using CustomTable = std::array<Entry, placecount>;

/// The first place whose name is `name`; nothing where no place has it.
std::optional<std::size_t> findentry(const CustomTable& table, std::string_view name);

/// Closes the gaps: entries move to the front in their order, free places to the end.
void datablankelim(CustomTable& table);

/// Name of the note that a character of entry data stands for ("0" is C, "B" is B), in the current spelling;
/// "?" for any other character.
std::string getnotename(char digit, const core::NoteSpelling& spelling);

/// The character of entry data that stands for a note, spelled in either way ("0" is C, "B" is B); "?" for any other
/// text, the empty one of an unused string too.
char getnotedata(std::string_view name);

/// Character `position` (0..7) of entry data; "?" where the data ends before it or the character is beyond ASCII.
char dataat(const Entry& entry, std::size_t position);

/// The first free place; `placecount` when all are used.
std::size_t indexnew(const CustomTable& table);

/// The layout that the second character of entry data stands for; six strings for any but "0", "1" and "2".
instruments::StringLayout layoutof(char digit);

} // namespace custom
