// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/chordmatch.h"
#include "core/notes.h"
#include "core/transposition.h"
#include "custom/customtable.h"
#include "instruments/capo.h"
#include "instruments/fretboard.h"
#include "mainscreen/keyboard.h"
#include "mainscreen/selector.h"
#include "mainscreen/tips.h"
#include "print/pagesettings.h"
#include "ui/desktop.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace mainscreen {

enum class BoldButton : std::uint8_t { none, cmdsharp, cmdflat, cmdauto };

/// Check marks of the menu "Sharps and Flats", by item, and the one of the three buttons that is bold.
struct SpellingMarks {
    bool mnusharp = false;
    bool mnuflat = false;
    bool mnumix1 = false;
    bool mnumix2 = false;
    bool mnuauto = false;
    bool mnuboth = false;
    BoldButton bold = BoldButton::none;
};

struct SpellingChoice;

/// A string that the user wants to tune by hand.
struct RetuneRequest {
    int row = 0;  ///< grid row, 0..5
    int note = 0; ///< 1 to 12 for C to B; 0: none chosen
};

inline constexpr std::size_t upperrow = 0;
inline constexpr std::size_t lowerrow = 1;

/// How the chord's name follows its moved notes.
enum class Reread : std::uint8_t {
    fromnotes, ///< the moved notes are read as a chord again
    fromtype,  ///< the chord type last used is built on the moved root
};

/// The program's one state and the procedures that change it, each named after the event or the act that it is.
/// Screens show what stands here and keep nothing of their own. A procedure runs to its end before the next event.
class Session {
public:
    explicit Session(ui::Desktop& opened) : desktop(opened) {}

    core::NoteSpelling spelling;
    SpellingMarks marks;

    std::array<std::string, 8> note;      ///< readouts: 0..5 the chord's notes, 6 its root, 7 the alternate's root
    std::string cordtyp1;                 ///< name of the chord
    std::string cordtyp2;                 ///< name of the alternate
    std::array<core::ScaleRow, 2> trans1; ///< transpose rows: `upperrow`, `lowerrow`
    core::ChordSlots chordslots;
    int chordindex = 0; ///< chord type last used, 0..27
    Keyboard keyboard;

    Selector cbotype{{}, std::string(instruments::familylist.front())};
    Selector cbotuning{{}, "Standard Tuning"};
    Selector cbopreset{{}, "scroll to select ------>"};
    Selector cboleft{{"Right Hand", "Left Hand"}, "Right Hand", 0};

    instruments::Fretboard fretboard;
    instruments::CapoMarker capomarker;
    int PositionFret = 0; ///< fret of the capo, 0..15; "show all notes" leaves it as it was
    RetuneRequest retune;

    custom::CustomTable customtable;
    bool customchanged = false; ///< something is to be saved at the end; never cleared during a run
    print::PageSettings pagesettings;
    Tips tips;
    TipStore tipstore{}; ///< the tips that come back when they are switched on again
    bool mnutips = true; ///< check mark of "Toggle main tips": the tips are on

    std::filesystem::path workdir;  ///< where the data file is read; empty when it cannot be told
    std::filesystem::path startdir; ///< where the help documents are looked for
    std::string datafilename;
    std::filesystem::path datapath; ///< file last opened

    // Start and end
    void Form_Load();
    void initmain();
    void initvariables();
    void dataload();
    void gureset();
    void tonefretexit();

    // Tips and help
    void toolstore();
    void toolon();
    void tooloff();
    void tipson(); ///< switches the tips off or on again
    void mnutips_Click();
    void mnubhelp_Click();
    void mnuchelp_Click();
    void mnuabout_Click();
    void cmdhelp2_Click(); ///< of the basic help: the complete help takes its place

    // Notes in, chord out
    void key_Click(int index);   ///< piano key 0..24, or `resetkey`
    void Text1_Click(int index); ///< cell 0..119; an open string asks for a retune instead
    /// Enters note `ent` (0..24) and shows the chord; `resetkey`, or a note above 24, clears the notes.
    /// Rewrites `ent`: a note of the upper octave becomes the same of the lower, `resetkey` becomes 13.
    void noteentry(int& ent);
    void keyupdate();

    // Chord in, notes out
    void Crd_Click(int index);
    /// Builds chord type `index` on the root in readout 0; without a root it says so and changes only `chordindex`.
    /// An index that is no type's shows the slots as they are, without an alternate.
    void findchord(int index);
    /// The chord type that the readouts show, by its number; -1 while they show none.
    int shownchord() const;

    // Spelling
    void dosharps();
    void doflats();
    void domix1();
    void domix2(); ///< leaves the check mark of Auto as it was, though Auto is off
    void doauto(); ///< starts from the first mix until a chord decides otherwise
    void mnuboth_Click();
    void doflatsetup();
    void autobrain();
    void fixflat();

    // Transposition
    void topl_Click();
    void topr_Click();
    void botl_Click();
    void botr_Click();
    void transpose(int semitones, Reread reread);

    // Stringed instruments
    void cbotype_Click(int item);
    void cbotuning_Click(int item);
    void cboleft_Click(int item);
    void cbopreset_Click(int item);
    void presets();
    void gettuning();
    void dorightlefthand();
    void guitarcolor();
    void optu_Click();
    void optd_Click();
    void presetstepup();
    void presetstepdown();
    void cmdret_Click(int index); ///< a button of the retune screen: 0 no retune, 1 to 12 for C to B
    void frmretune_Unload();
    void stringretune();

private:
    void setnote(std::size_t i, const std::string& text);
    void setcordtyp1(const std::string& text);
    void setcordtyp2(std::string text);
    void note_Change(std::size_t i);
    void cordtyp1_Change();
    void clearnotes();
    void buildslots(int index, core::PitchClass root);
    void fixnotes();
    void fixtranspose();
    void flatkey();
    void dospelling(const SpellingChoice& choice);
    void shiftrow(std::size_t row, core::Shift direction);
    instruments::Hand hand() const;
    std::span<const std::string> firstnotes(std::size_t count) const;
    bool applycustom();

    ui::Desktop& desktop;
    bool ended = false;
};

} // namespace mainscreen
