// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"

#include <string>
#include <string_view>
#include <vector>

namespace tests {

inline constexpr int modecount = 4;

/// Name of note 0..11 in spelling mode 0..3, from a table of the tests' own; " " for 99.
std::string written(int pitch, int mode);

/// The text with every black key's name in it, standing alone as a word, written as mode 0..3 has it.
std::string rewritten(std::string_view text, int mode);

/// Note 0..11 of a name in any spelling. A text that is no name is a mistake in the test, and throws.
int pitchof(std::string_view name);

/// "C E G" as three names; any number of blanks between.
std::vector<std::string> words(std::string_view line);

/// The notes of "C E G".
std::vector<int> pitches(std::string_view line);

/// A spelling of mode 0..3, not automatic, one name to a key.
core::NoteSpelling spelling(int mode);

/// The name of a test row whose input is `text`: what a test's name may not hold is written in letters.
std::string rowname(std::string_view text);

} // namespace tests
