// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/notes.h"

#include <algorithm>
#include <iterator>

namespace core {
namespace {

/// The first mode, counting up, that gives each black key its sharp name.
struct SharpFrom {
    PitchClass pitch;
    SpellingMode mode;
};
constexpr std::array<SharpFrom, 5> sharpfrom{{{1, SpellingMode::mix1},
                                              {3, SpellingMode::mostlysharps},
                                              {6, SpellingMode::mix1},
                                              {8, SpellingMode::mix2},
                                              {10, SpellingMode::mostlysharps}}};

constexpr bool sharpin(SpellingMode mode, PitchClass pitch)
{
    return std::ranges::any_of(sharpfrom, [&](SharpFrom s) { return s.pitch == pitch && mode >= s.mode; });
}

using Names = std::array<std::string_view, 12>;

constexpr std::array<Names, 4> spellings = [] {
    std::array<Names, 4> table{};
    for (std::size_t mode = 0; mode < table.size(); ++mode)
        for (PitchClass pitch = 0; pitch < 12; ++pitch) {
            const auto p = static_cast<std::size_t>(pitch);
            table[mode][p] = sharpin(static_cast<SpellingMode>(mode), pitch) ? sharpnames[p] : flatnames[p];
        }
    return table;
}();

std::string_view spelled(SpellingMode mode, PitchClass pitch)
{
    const SpellingMode known = mode > SpellingMode::mostlysharps ? SpellingMode::mix2 : mode;
    return spellings.at(static_cast<std::size_t>(known))[static_cast<std::size_t>(pitch % octave)];
}

/// Pitch of a name as it is written on the screen, capital first.
PitchClass writtenpitch(std::string_view name)
{
    for (const Names* names : {&sharpnames, &flatnames})
        if (const auto* found = std::ranges::find(*names, name); found != names->end())
            return static_cast<PitchClass>(std::distance(names->begin(), found));
    return nonote;
}

constexpr char capital(char c)
{
    return c >= 'a' && c <= 'g' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

std::string NoteSpelling::notename(PitchClass& n) const
{
    if (n == nonote)
        return std::string(blank);
    if (n > 24)
        n = 13 + (n - 13) % octave;
    else if (n < 0)
        n = (n % octave + octave) % octave;
    return std::string(spelled(mode, n));
}

void NoteSpelling::noteflat(std::string& name) const
{
    if (const PitchClass pitch = writtenpitch(name); pitch != nonote)
        name = spelled(mode, pitch);
}

void NoteSpelling::noteup(std::string& name) const
{
    if (const PitchClass pitch = writtenpitch(name); pitch != nonote)
        name = spelled(mode, pitch + 1);
}

void NoteSpelling::respell(std::string& text) const
{
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        const PitchClass pitch = writtenpitch(std::string_view(text).substr(at, 2));
        if (pitch != nonote)
            text.replace(at, 2, spelled(mode, pitch));
    }
}

PitchClass notenumber(std::string_view name)
{
    if (const PitchClass pitch = writtenpitch(name); pitch != nonote)
        return pitch;
    if (name.empty() || capital(name.front()) == name.front())
        return nonote;
    std::string written(name);
    written.front() = capital(written.front());
    return writtenpitch(written);
}

std::string bothnames(PitchClass pitch)
{
    const auto p = static_cast<std::size_t>(pitch);
    return std::string(sharpnames.at(p)) + " " + std::string(flatnames.at(p));
}

} // namespace core
