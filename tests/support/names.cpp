// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"

#include <array>
#include <cctype>
#include <map>
#include <stdexcept>

namespace tests {
namespace {

using Octave = std::array<const char*, 12>;

// clang-format off
constexpr std::array<Octave, modecount> octaves{{
    {"C", "Db", "D", "Eb", "E", "F", "Gb", "G", "Ab", "A", "Bb", "B"},
    {"C", "C#", "D", "Eb", "E", "F", "F#", "G", "Ab", "A", "Bb", "B"},
    {"C", "C#", "D", "Eb", "E", "F", "F#", "G", "G#", "A", "Bb", "B"},
    {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"},
}};
// clang-format on

std::string inletters(char c)
{
    static const std::map<char, std::string> letters{{'#', "sharp"}, {'+', "plus"}, {'-', "minus"}, {'?', "question"}};
    if (std::isalnum(static_cast<unsigned char>(c)) != 0)
        return {c};
    const auto found = letters.find(c);
    return found == letters.end() ? "_" : found->second;
}

bool wordcharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '#';
}

} // namespace

std::string written(int pitch, int mode)
{
    if (pitch == core::nonote)
        return " ";
    return octaves.at(static_cast<std::size_t>(mode)).at(static_cast<std::size_t>(pitch));
}

std::string rewritten(std::string_view text, int mode)
{
    std::string result;
    std::string word;
    const auto endword = [&] {
        const bool blackkey = word.size() == 2 && (word[1] == '#' || word[1] == 'b');
        result += blackkey ? written(pitchof(word), mode) : word;
        word.clear();
    };
    for (const char c : text) {
        if (wordcharacter(c)) {
            word += c;
            continue;
        }
        endword();
        result += c;
    }
    endword();
    return result;
}

int pitchof(std::string_view name)
{
    for (const Octave& octave : octaves)
        for (std::size_t pitch = 0; pitch < octave.size(); ++pitch)
            if (octave[pitch] == name)
                return static_cast<int>(pitch);
    throw std::invalid_argument("no note: " + std::string(name));
}

std::vector<std::string> words(std::string_view line)
{
    std::vector<std::string> found;
    bool inside = false;
    for (const char c : line) {
        if (c != ' ' && !inside)
            found.emplace_back();
        inside = c != ' ';
        if (inside)
            found.back() += c;
    }
    return found;
}

std::vector<int> pitches(std::string_view line)
{
    std::vector<int> found;
    for (const std::string& name : words(line))
        found.push_back(pitchof(name));
    return found;
}

core::NoteSpelling spelling(int mode)
{
    return {.mode = static_cast<core::SpellingMode>(mode)};
}

std::string rowname(std::string_view text)
{
    std::string name;
    for (const char c : text)
        name += inletters(c);
    return name.empty() ? "empty" : name;
}

} // namespace tests
