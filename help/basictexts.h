// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace help {

/// A text of the basic help, by its label's name.
struct BasicText {
    enum class Kind : std::uint8_t { heading, paragraph };

    const char* label;
    Kind kind;
    int column; ///< of the three in which the texts stand, each paragraph below its heading
    const char* text;
};

// clang-format off
inline constexpr auto basictexts = std::to_array<BasicText>({
  { "Label1", BasicText::Kind::heading, 0,
    "Finding Chords from Notes" },
  { "Label2", BasicText::Kind::paragraph, 0,
    "Use your mouse to press \"reset\", and then enter the notes by pressing the correct piano keys. You "
    "will need to enter several notes depending on the chord. When done, if the program recognizes the "
    "chord (or an alternative) it will list its name below. Note also that guitar fingering for the chord"
    " appears below." },
  { "Label3", BasicText::Kind::heading, 0,
    "Finding Notes from Chords" },
  { "Label4", BasicText::Kind::paragraph, 0,
    "Use your mouse to press \"reset\", and then enter the base note of your chord by pressing the correct "
    "piano key. Then select the chord type from the right upper portion. Once the base note has been "
    "entered and if it is still desired, you can simply change the chord type if you wish without "
    "pressing reset." },
  { "Label5", BasicText::Kind::heading, 0,
    "Transpose Assistance" },
  { "Label7", BasicText::Kind::paragraph, 0,
    "Use the arrow keys to adjust the upper notes to the desired starting point, and the lower one to the"
    " right key to transcribe to. Then read the note on the top and use the adjacent note below for the "
    "transcription. Example: to change music in the key of C to key of G, ensure that the C (upper level)"
    " is over the G (lower level). Then, a D becomes an A for example. Note that if you have a chord "
    "entered, that indexing the lower transpose data will transpose the chord." },
  { "Label6", BasicText::Kind::heading, 1,
    "Piano Keyboard, Guitar and Stringed Instrument Readouts" },
  { "Label8", BasicText::Kind::paragraph, 1,
    "Chord fingering will readout based on keys / notes / chords selected. When two possible fingerings "
    "are allowed for a given string or piano key, the higher one(s) will be shown in a lighter gray. You "
    "can select either the lighter gray or the darker gray fingering for that note, although of course it"
    " is best to ensure at least one fingering for each distinct note (C, G# etc.). During print, \"*\" "
    "shows primary (lower) fingering and \"+\" (higher) alternate." },
  { "Label28", BasicText::Kind::heading, 1,
    "Sharps and Flats Operation" },
  { "Label31", BasicText::Kind::paragraph, 1,
    "If in doubt, select the \"Auto\" button and it will pick a likely selection of sharps, flats or a mix "
    "of them depending on the chord. The pull-down menu also has options for showing both the sharp name "
    "and the flat name for the keyboard output, or just one at a time." },
  { "Label30", BasicText::Kind::paragraph, 1,
    "(note: more options under the pull down menu above)" },
  { "Label18", BasicText::Kind::heading, 1,
    "Guitar and Stringed Instrument Note Entry" },
  { "Label19", BasicText::Kind::paragraph, 1,
    "Notes can also be entered via the guitar keyboard with your mouse. Press reset first, and then click"
    " the desired guitar notes on the fretboard. Do not click the notes closest to the neck since those "
    "are used for custom retuning." },
  { "Label20", BasicText::Kind::heading, 2,
    "Guitar and Stringed Instruments Chord-Camera" },
  { "Label21", BasicText::Kind::paragraph, 2,
    "Snaps a picture of chord fingering and sends it to preliminary print area. When done, click the "
    "\"done\" camera button to go to the print area." },
  { "Label23", BasicText::Kind::heading, 2,
    "Guitar and Stringed Instrument Options" },
  { "Label24", BasicText::Kind::paragraph, 2,
    "There are four pull-down options for strings that are right above the fretboard. Use them by mouse "
    "clicking on the right arrow to see selections, and use the scroll bar if there are many. Select the "
    "one you wish. The leftmost option selects instrument family, the next selects right hand or left "
    "hand instrument views. The third option adds more instruments and adds preset tunings. The rightmost"
    " option (arrows or pull down options) allows a capo to show alternate fingerings down the stringed "
    "instrument." },
  { "Label26", BasicText::Kind::heading, 2,
    "Custom Tuning of Strings" },
  { "Label27", BasicText::Kind::paragraph, 2,
    "After all options are set up on your guitar or other stringed instrument, you can adjust any string "
    "to any starting point. Use your mouse to click the note at the end closest to the neck. These would "
    "be notes: E,A,D,G,B or E for example for a standard guitar. A dialog will open asking what new "
    "tuning you would like for that string. Do this after options are set, since options may undo this "
    "setting." },
});
// clang-format on

/// A part of the main screen that the pictures point at by a number, and what stands beside it.
struct BasicCaption {
    const char* label;
    const char* text;
};

/// In the order of their numbers, which begin with 1.
// clang-format off
inline constexpr auto basiccaptions = std::to_array<BasicCaption>({
  { "Label32",  "Pull Down Menus (more options)" },
  { "Label10",  "Piano Key Entry" },
  { "Label16",  "Chord Entry" },
  { "Label11",  "Data Out" },
  { "Label9",   "reset key" },
  { "Label22",  "Chord Camera" },
  { "Label13",  "Transpose Adjust" },
  { "Label14",  "Transpose Outputs" },
  { "Label29",  "Sharps and Flats Operation" },
  { "Label15",  "Guitar Data options" },
  { "Label25",  "Custom String Tune" },
  { "Label12",  "Guitar Fingering or Entry" },
});
// clang-format on
static_assert(basictexts.size() + basiccaptions.size() == 31);

} // namespace help
