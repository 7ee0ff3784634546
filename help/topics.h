// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace help {

/// A title of the topic list and the heading in the help document that it leads to.
struct Topic {
    std::string_view title;
    std::string_view heading; ///< searched for exactly as written; a final blank counts
};

// Several titles may lead to one heading.
// clang-format off
inline constexpr auto topics = std::to_array<Topic>({
//  title as listed                       heading in the document
  { "Options - General Usage",       "GENERAL USAGE OPTIONS" },
  { "Options - Keyboard Specific",   "KEYBOARD USAGE OPTIONS" },
  { "Options - Guitar",              "GUITAR AND STRINGED INSTRUMENT" },
  { "Options - String Instruments",  "GUITAR AND STRINGED INSTRUMENT" },
  { "Troubleshooting",               "TROUBLESHOOTING" },
  { "Chords from Notes",             "CHORDS FROM NOTES" },
  { "Notes from Chords",             "NOTES FROM CHORDS" },
  { "Transpose Keys",                "TRANSPOSE ASSISTANCE" },
  { "Sharps, Flats operation",       "SHARPS AND FLATS OPERATION" },
  { "Sharps, Flats theory",          "Theory of Sharps and Flats" },
  { "Sharps, Flats tonefret",        "Tonefret Approach to Sharps and Flats" },
  { "Sharps, Flats mix1 option",     "Mix1 (C#,Eb,F#,Ab,Bb) (option)" },
  { "Sharps, Flats keyboard option", "Keyboard Itself - show both (option)" },
  { "Sharps, Flats auto option",     "Auto, or Automatic Chord Sharps and Flats (option)" },
  { "Sharps option",                 "Sharps, or Mostly Sharps (option)" },
  { "Flats option",                  "Flats, or Mostly Flats (option)" },
  { "Sharps, Flats mix2 option",     "Mix2 (C#,Eb,F#,G#,Bb) (option)" },
  { "Fingering readouts",            "PIANO KEYBOARD, and STRINGED INSTRUMENT FINGERING READOUTS" },
  { "Chord cam, CHORD-CAMERA",       "chord cam  -  CHORD-CAMERA" },
  { "Chord Printing",                "CHORD PRINTING INFORMATION" },
  { "Chord Printing Steps",          "Chord printing is done using the following steps" },
  { "Save Chord Print",              "Print Save Option" },
  { "Done.  Show all Print",         "Done.  Show all Print Lines (button option)" },
  { "Edit Printing - Minor",         "Minor Editing Before Print" },
  { "Print Edit - Minor",            "Minor Editing Before Print" },
  { "Edit Printing - Major",         "Major Editing Before Print - Word Processors" },
  { "Print Edit - Major",            "Major Editing Before Print - Word Processors" },
  { "Print the Page",                "Print The Chord Page" },
  { "Printer Overlap",               "Printer Overlap" },
  { "Saving Options",                "OPTIONS AND SAVING OPTIONS" },
  { "Options - Save",                "OPTIONS AND SAVING OPTIONS" },
  { "Keyboard Sharps, Flats",        "Keyboard Sharps and Flats" },
  { "Keyboard Alternate Fingering",  "Alternate Fingering and Chord Inversions" },
  { "Inversions, Chord, Keyboard",   "Alternate Fingering and Chord Inversions" },
  { "Chord Inversions, Using",       "Using Chord Inversions For Keyboards" },
  { "Alternate Fingering, Keyboard", "Tonefret Approach to Alternate Fingering and Chord Inversions" },
  { "Stringed Instr. Types",         "STRINGED INSTRUMENT TYPES THAT TONEFRET TRIES TO ADDRESS" },
  { "Instruments, Stringed",         "STRINGED INSTRUMENT TYPES THAT TONEFRET TRIES TO ADDRESS" },
  { "String Positions",              "STRING POSITIONS (courses)" },
  { "Courses - String Pairs",        "STRING POSITIONS (courses)" },
  { "12 string guitars",             "12 string guitars and 8 string mandolins, 12 string Tiples" },
  { "8 string mandolins",            "12 string guitars and 8 string mandolins, 12 string Tiples" },
  { "12 string Tiples",              "12 string guitars and 8 string mandolins, 12 string Tiples" },
  { "Options - Stringed Instr.",     "GUITAR AND STRINGED INSTRUMENT OPTIONS" },
  { "Family (option)",               "Family (option)" },
  { "View (option)",                 "View (option)  - Right Hand or Left Hand Viewing" },
  { "Instruments / Tuning (option)", "Instruments / Tuning (option)" },
  { "Capo / Bar Adjust (option)",    "Capo / Bar Adjust (option)" },
  { "Bass",                          "Bass - accommodates 4 string" },
  { "Ukulele",                       "Ukulele - multiple tunings - key of C" },
  { "Banjo",                         "Banjo - 5 string banjo with " },
  { "Other Stringed Instruments",    "Other - Multiple tunings are " },
  { "Strings Display",               "Strings Display - 4 string, 5 string, 6 string, 5 string banjo" },
  { "Display, Stringed Instr.",      "Strings Display - 4 string, 5 string, 6 string, 5 string banjo" },
  { "Note Entry, Strings",           "GUITAR AND STRINGED INSTRUMENT NOTE ENTRY" },
  { "Custom String Tuning",          "CUSTOM TUNING OF STRINGS" },
  { "Tuning, Custom Strings",        "CUSTOM TUNING OF STRINGS" },
  { "Tuning, Custom File",           "MAKING CUSTOM STRINGED INSTRUMENTS AND TUNING" },
  { "Instrument, Custom",            "MAKING CUSTOM STRINGED INSTRUMENTS AND TUNING" },
  { "Custom Tuning, Instr.",         "MAKING CUSTOM STRINGED INSTRUMENTS AND TUNING" },
  { "Custom Screen",                 "Description of Screen: Custom Instrument and Tuning Settings" },
  { "Custom Options, Main",          "Custom Options on the Main Screen" },
  { "Custom Edit, more options",     "Other options on this Custom Edit screen" },
  { "Arrange Custom Data",           "Custom Data Arrange Screen" },
  { "Custom Data Arrange",           "Custom Data Arrange Screen" },
  { "Arrange Screen Usage",          "Custom Data Arrange Screen Usage" },
  { "Troubleshooting - chord type",  "Chord (desired) is not in the list" },
  { "Troubleshooting - defaults",    "Default Options" },
  { "Troubleshooting - options",     "Options do not load at startup" },
  { "Troubleshooting - print",       "Print - some chords missing on screen" },
  { "Troubleshooting - overlap",     "Printer Paper Overlap " },
  { "Troubleshooting - Instrument",  "Stringed Instrument not Listed" },
  { "Troubleshooting - tuning",      "Tuning Not Listed" },
  { "Detuned Guitars",               "DETUNED GUITARS AND STRING INSTRUMENTS" },
  { "Detuned Stringed Instruments",  "DETUNED GUITARS AND STRING INSTRUMENTS" },
  { "Printing a Second Page",        "Printing a Second Page / Clearing the Print Data" },
  { "Clearing the Print Data",       "Printing a Second Page / Clearing the Print Data" },
  { "Camera Reset",                  "Printing a Second Page / Clearing the Print Data" },
  { "* (symbol)",                    "Fingering Signs and Alternate Fingering for Print" },
  { "+ (symbol)",                    "Fingering Signs and Alternate Fingering for Print" },
  { "Fingering Signs",               "Fingering Signs and Alternate Fingering for Print" },
  { "Alternate Fingering, Print",    "Fingering Signs and Alternate Fingering for Print" },
});
// clang-format on

namespace detail {
constexpr bool titlesdiffer()
{
    for (std::size_t i = 0; i < topics.size(); ++i)
        for (std::size_t k = i + 1; k < topics.size(); ++k)
            if (topics[i].title == topics[k].title)
                return false;
    return true;
}
} // namespace detail

static_assert(topics.size() == 82);
static_assert(std::ranges::none_of(topics, [](const Topic& t) { return t.title.empty() || t.heading.empty(); }));
static_assert(detail::titlesdiffer());

/// The heading of a title exactly as listed; empty for any other text.
constexpr std::string_view itemsearch(std::string_view title)
{
    const auto* found = std::ranges::find(topics, title, &Topic::title);
    return found == topics.end() ? std::string_view{} : found->heading;
}

} // namespace help
