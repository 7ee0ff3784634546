// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/autospelling.h"
#include "core/chordmatch.h"
#include "help/documents.h"
#include "help/rtf.h"
#include "instruments/tunings.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <set>

// Whatever the help says of chords, scales and tunings is checked against the program's own theory. It writes them in
// three ways: "C minor: C Eb G", "C E G reads as C major, also ...", "Open G tuning: D G D G B D".

namespace {

const std::string notes = "[A-G][#b]?(?: [A-G][#b]?)+";

std::vector<std::string> paragraphs()
{
    std::vector<std::string> texts;
    for (const help::Paragraph& paragraph : help::readrtf(help::loaddata(help::completehelp, {TONEFRET_HELP}).value()))
        texts.push_back(paragraph.text());
    return texts;
}

/// The chord type whose button's caption is the text; none: nullptr.
const core::ChordType* typeof(std::string_view caption)
{
    const auto* found = std::ranges::find(core::chordtypes, caption, &core::ChordType::caption);
    return found == core::chordtypes.end() ? nullptr : found;
}

bool istuning(std::string_view name, std::string_view line)
{
    const auto withnotes = [&](const instruments::Tuning& t) {
        // The catalogue also has notes of hidden strings.
        return t.name == name && t.notes.starts_with(line) &&
               tests::words(line).size() ==
                   static_cast<std::size_t>(instruments::rowcount - instruments::layoutrow(t.layout).firstrow);
    };
    return std::ranges::any_of(instruments::tunings, withnotes);
}

bool ischord(const std::string& root, const std::string& caption, const std::string& line)
{
    const core::ChordType* type = typeof(caption);
    if (!type)
        return false;
    std::vector<int> built;
    for (const int semitones : type->intervals)
        built.push_back((tests::pitchof(root) + semitones) % core::octave);
    return built == tests::pitches(line);
}

bool ismajorscale(const std::string& root, const std::string& name, const std::string& line)
{
    std::vector<int> scale;
    for (const int semitones : {0, 2, 4, 5, 7, 9, 11})
        scale.push_back((tests::pitchof(root) + semitones) % core::octave);
    return name == "major scale" && scale == tests::pitches(line);
}

/// A name and what it stands for: "C minor", "C Eb G".
bool holds(const std::string& name, const std::string& line)
{
    std::smatch part;
    if (!std::regex_match(name, part, std::regex("([A-G][#b]?) (.*)")))
        return istuning(name, line);
    return ischord(part[1], part[2], line) || ismajorscale(part[1], part[2], line) || istuning(name, line);
}

/// "C major 6th" as the program would show it.
std::string shown(const std::string& root, const std::string& type)
{
    return std::to_string(tests::pitchof(root)) + " " + type;
}

struct Reading {
    std::string chord;
    std::string alternate;
};

Reading reading(const std::string& line)
{
    core::ChordSlots slots;
    int chordindex = 0;
    for (int note : tests::pitches(line))
        core::chordmatch(note, slots, chordindex, {});
    const bool two = slots.alternateroot != core::nonote;
    return {std::to_string(slots.root % core::octave) + " " + slots.name,
            two ? std::to_string(slots.alternateroot % core::octave) + " " + slots.alternate : ""};
}

TEST(HelpExamples, everynameWithNotes_holds)
{
    int found = 0;
    for (const std::string& text : paragraphs()) {
        std::smatch example;
        if (!std::regex_match(text, example, std::regex("(.*): (" + notes + ")")))
            continue;
        ++found;
        EXPECT_TRUE(holds(example[1], example[2])) << text;
    }
    EXPECT_GT(found, 80);
}

TEST(HelpExamples, everyreading_isTheProgramsOwn)
{
    const std::regex form("(" + notes + ") reads as ([A-G][#b]?) ([^,]*(?:\\([^)]*\\))?)(?:, also ([A-G][#b]?) (.*))?");
    int found = 0;
    for (const std::string& text : paragraphs()) {
        std::smatch example;
        if (!std::regex_match(text, example, form))
            continue;
        ++found;
        const Reading read = reading(example[1]);
        EXPECT_EQ(read.chord, shown(example[2], example[3])) << text;
        EXPECT_EQ(read.alternate, example[4].matched ? shown(example[4], example[5]) : "") << text;
    }
    EXPECT_GT(found, 10);
}

TEST(HelpExamples, everytypeIsBuiltOnC)
{
    std::set<std::string> built;
    for (const std::string& text : paragraphs())
        if (text.starts_with("C ") && text.find(": ") != std::string::npos)
            built.insert(text.substr(2, text.find(": ") - 2));
    for (const core::ChordType& type : core::chordtypes)
        EXPECT_TRUE(built.contains(std::string(type.caption))) << type.caption;
}

struct SpelledSection {
    const char* heading;
    std::optional<core::SpellingMode> mode; ///< none: the one that suits each chord
};

// clang-format off
const SpelledSection spelledsections[] = {
    { "Flats, or Mostly Flats (option)",                    core::SpellingMode::mostlyflats },
    { "Mix1 (C#,Eb,F#,Ab,Bb) (option)",                     core::SpellingMode::mix1 },
    { "Mix2 (C#,Eb,F#,G#,Bb) (option)",                     core::SpellingMode::mix2 },
    { "Sharps, or Mostly Sharps (option)",                  core::SpellingMode::mostlysharps },
    { "Auto, or Automatic Chord Sharps and Flats (option)", std::nullopt },
};
// clang-format on

TEST(HelpExamples, chordsUnderASpelling_areSpelledByIt)
{
    const std::regex form("(([A-G][#b]?) (.*)): (" + notes + ")");
    const auto texts = paragraphs();
    for (const SpelledSection& section : spelledsections) {
        auto at = std::ranges::find(texts, section.heading);
        int found = 0;
        while (at != texts.end() && ++at != texts.end() && !at->ends_with("(option)")) {
            std::smatch example;
            if (!std::regex_match(*at, example, form))
                continue;
            ++found;
            const auto mode = section.mode ? section.mode : core::suitingmode(example[3].str(), example[2].str());
            for (const std::string& note : tests::words(example[4].str()))
                EXPECT_EQ(note, core::NoteSpelling{.mode = mode.value()}.nameof(tests::pitchof(note))) << *at;
        }
        EXPECT_GT(found, 1) << section.heading;
    }
}

TEST(HelpExamples, notesInARow_standOnlyInCheckedExamples)
{
    const std::regex row("(?:^|[^A-Za-z#])[A-G][#b]? [A-G][#b]? [A-G][#b]?(?![A-Za-z#])");
    const std::regex checked("(.*: " + notes + ")|(" + notes +
                             " reads as .*)| C D E F G A B\\|C D E F G A B C| *C E G");
    for (const std::string& text : paragraphs()) {
        if (std::regex_search(text, row)) {
            EXPECT_TRUE(std::regex_match(text, checked)) << text;
        }
    }
}

} // namespace
