// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"

#include <optional>
#include <string_view>

namespace core {

/// The spelling that suits a chord, by its root and by whether its name contains "minor" (in capitals or small
/// letters). Along the circle of fifths the white-key roots go from flats through both mixes to sharps; a black-key
/// root takes sharps for a minor chord (but flats for Bb and Eb) and flats for any other. A root that is no note's name
/// gives mostly flats for a minor chord and the first mix for any other. Nothing when either text is blank: there is no
/// chord to go by.
std::optional<SpellingMode> suitingmode(std::string_view chordname, std::string_view root);

} // namespace core
