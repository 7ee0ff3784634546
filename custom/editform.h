// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"
#include "custom/customtable.h"
#include "instruments/fretboard.h"
#include "ui/desktop.h"

#include <array>
#include <string>
#include <string_view>

namespace custom {

inline constexpr std::size_t stringcount = 6;
inline constexpr std::size_t selectionbox = 6;              ///< the note box that shows the selected note
inline constexpr std::size_t longestname = 25;              ///< characters of an entry's name, at most
inline constexpr std::size_t typedlength = longestname + 1; ///< that can be typed, so that one too many is told of
static_assert(typedlength == 26);

/// The edit screen as it stands: one place of the user's own tunings, written and rewritten before it is stored.
/// Its procedures bear the names of the controls; a screen shows the fields and keeps nothing of its own.
class EditForm {
public:
    /// Edits `edited`, which outlives the form. `changed` becomes true when something is to be saved at the end.
    EditForm(CustomTable& edited, const core::NoteSpelling& spelled, bool& changed, ui::Desktop& asked)
        : table(edited), spelling(spelled), customchanged(changed), desktop(asked)
    {
    }

    std::string txtname;
    /// 0..5: open notes, box k that of row 5 - k of the grid; `selectionbox`: the selected note, empty while none is.
    std::array<std::string, stringcount + 1> txtnote;
    bool chkleft = false;
    instruments::StringLayout Option2 = instruments::StringLayout::sixstrings; ///< the chosen option button
    std::string txtinfo{"- blank -"};

    /// The number of the place, 0..50, with a blank in front.
    std::string txtnum() const { return " " + std::to_string(place); }
    /// Whether the string choice has a string for note box `box`; the box of the selected note always shows.
    bool boxvisible(std::size_t box) const;
    /// What is stored at the place.
    const Entry& stored() const { return table.at(place); }
    /// Whether a stored entry is shown that may not be changed before the user was asked.
    bool guarded() const { return protectedplace; }

    /// Begins with a cleared form at the first free place; at the last place when all are used.
    void formstart();
    /// Shows the first free place, or the last one, as it is stored.
    void showfree();
    /// Clears the form: no name, no notes, right hand, six strings, no selected note.
    void init();
    /// Shows the place anew and forgets what was not stored. A free place keeps the hand and the string choice.
    void textread();

    void txtname_Click();
    void txtname_Change(const std::string& typed); ///< takes a name that was typed; none while the place is guarded
    void txtnote_Click(std::size_t box);           ///< writes the selected note into box 0..5; no other does anything
    void chkleft_Click();
    void Option2_Click(instruments::StringLayout choice);
    void cmdret_Click(int button); ///< selects a note, 1 to 12 for C to B

    void cmdup_Click() { moveup(); }
    void cmddown_Click();
    void cmdsave_Click();
    void cmdclear_Click() { init(); }
    void cmddelentry_Click();
    /// Takes the hand (as `cboleft` shows it) and the strings of the main screen.
    void cmdsettings_Click(std::string_view cboleft, const instruments::Fretboard& fretboard);

private:
    Entry& entry() { return table.at(place); }
    bool mayedit();
    std::string storednote(std::size_t box);
    bool storedleft() { return dataat(entry(), 0) != '0'; }
    void optionset() { Option2 = layoutof(dataat(entry(), 1)); }
    void textclear();
    void forgetselection();
    std::string_view objection() const;
    void datasave();
    void moveup();

    CustomTable& table;
    const core::NoteSpelling& spelling;
    bool& customchanged;
    ui::Desktop& desktop;
    std::size_t place = 0;
    core::PitchClass selected = core::nonote;
    bool protectedplace = false;
};

} // namespace custom
