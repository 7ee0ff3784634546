// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/chordmatch.h"
#include "core/notes.h"
#include "core/transposition.h"
#include "custom/datafile.h"
#include "custom/editform.h"
#include "custom/settings.h"
#include "instruments/capo.h"
#include "instruments/fretboard.h"
#include "mainscreen/keyboard.h"
#include "mainscreen/selector.h"
#include "mainscreen/tips.h"
#include "print/camera.h"
#include "print/page.h"
#include "ui/desktop.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace mainscreen {

// Places in `Session::note`.
inline constexpr std::size_t rootreadout = 6;
inline constexpr std::size_t alternatereadout = 7;

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

/// What is saved to a file that the user picks.
enum class SaveKind : std::uint8_t {
    custom, ///< the page, if there is any text on it, and the packed data
    page,   ///< the page alone
};

/// The program's one state and the procedures that change it, each named after the event or the act that it is.
/// Screens show what stands here and keep nothing of their own. A procedure runs to its end before the next event.
class Session {
public:
    explicit Session(ui::Desktop& opened) : editform(customtable, spelling, customchanged, opened), desktop(opened) {}

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
    std::string customtext;     ///< the data text that was read last
    std::string customout;      ///< the one that was built last
    std::string optionsname;    ///< what `checksave` compares: the family of the data text that was read,
    std::string optionsdata;    ///< and its packed settings; both empty while none was
    bool customchanged = false; ///< something is to be saved at the end; never cleared during a run
    custom::EditForm editform;  ///< of the screen `custom`
    bool customshown = false;   ///< the screen `custom` is open
    bool arrangeshown = false;  ///< the screen `arrange` is open
    print::PageSettings pagesettings;
    print::Camera camera;
    print::Page page;
    print::MarginBoxes printdialog;
    Tips tips;
    TipStore tipstore{}; ///< the tips that come back when they are switched on again
    bool mnutips = true; ///< check mark of "Toggle main tips": the tips are on

    std::filesystem::path workdir;  ///< where the data file is read and written; empty when it cannot be told
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

    // Data file
    void loadcustom();
    void savecustom();
    void getinstring();
    void getoutstring();
    void checksave();
    void mnuload_Click();
    void mnusave_Click();
    void userload();
    void Saveas(SaveKind kind);

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

    // The user's own tunings
    void mnucustom_Click();   ///< opens the edit screen; one that is open keeps what it shows
    void cmdsettings_Click(); ///< the edit screen's
    void customexit();        ///< closes the edit screen
    void mnuarrange_Click();
    void txtx_DragDrop(int target, int source); ///< exchanges two places, 0..50
    void endform();                             ///< closes the arrange screen

    // Chord camera
    void photochord();      ///< takes a snapshot; the first one asks for the mode instead
    void cmdguitar_Click(); ///< the question's buttons: choose the mode and take the snapshot
    void cmdpiano_Click();
    void mnuguitar_Click(); ///< menu items of two screens: choose the mode for the snapshots to come
    void mnupiano_Click();
    void menuchordtype();
    void chordsnap();
    void printfill(); ///< writes the pending block to the page, or only a heading if nothing is pending
    void allclear();
    void mnuphotoclear_Click();
    void ccamera_cmdret_Click();
    void ccamera_cmdview_Click();
    void ccamera_cmdclear_Click();

    // Print page
    void mnuviewprint_Click(); ///< opens the page; one that is open keeps what it shows
    void rtbprint_Change(const std::string& text);
    void rtbprint_Edit(const print::Edit& edit); ///< the same for a part of the text
    void txtchar_Change(const std::string& text);
    void txtspace_Change(const std::string& text);
    void txtfont_Change(const std::string& text);
    void chkmult_Click(bool checked);
    void chkalt_Click(bool checked);
    void cmdchardown_Click();
    void cmdcharup_Click();
    void cmdspacedown_Click();
    void cmdspaceup_Click();
    void cmddownfont_Click();
    void cmdupfont_Click();
    void cmdfonthelp_Click();
    void cmdshow_Click();
    void mprint_cmdclear_Click();
    void charsize();   ///< the size that suits the characters per line
    void changefont(); ///< shows the page in the stored size
    void mexit();      ///< leaves the page: stores its boxes and closes it; nothing if it is not open
    /// Shows a text that was read from a file as the page, after a clear. Its line ends become line feeds.
    void loadpage(const std::string& text);
    void mprint_mnusave_Click();

    // What is copied and what is said
    std::string chordtext() const; ///< "C major: C E G", the notes alone where they have no name; empty without notes
    std::string announcement() const; ///< the same with the alternate: "C minor 7th: C Eb G Bb; also Eb major 6th"
    bool cancopychord() const { return !chordtext().empty(); }
    bool cancopychart() const { return print::haschart(camera); }
    void mnucopychord_Click(); ///< puts `chordtext` on the clipboard
    void mnucopychart_Click(); ///< puts the last snapshot there, as the page would get it

    // Printing
    void chordprint(); ///< opens the print dialog
    void txttop_Change(const std::string& text);
    void txtleft_Change(const std::string& text);
    void cmdtopdown_Click();
    void cmdtopup_Click();
    void cmdleftdown_Click();
    void cmdleftup_Click();
    void cmdprint_Click();
    void cmdcancel_Click();

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
    custom::Header header() const;
    custom::Settings settings() const;
    void applysettings(const custom::Header& read);
    void loadtext(const std::string& text);
    bool photograph();
    void placesnapshot();
    void showcamera();
    void setcameramode(print::CameraMode mode);
    void openpage();
    bool movenumber(const print::Step& button, std::string& box, std::int16_t& setting);
    void printpages(const std::string& text);
    std::optional<std::filesystem::path> pickpdf();
    /// Lets the user pick a file to save to, and asks before one is overwritten. A name without an ending gets
    /// `ending`.
    void guarded(void (Session::*step)());
    void saveatend();
    void closegaps();
    bool keepdamaged(const std::filesystem::path& file);
    bool isdatafile(const std::filesystem::path& file) const;
    std::optional<std::filesystem::path> picksave(std::span<const ui::FileFilter> filters, const char* ending);

    ui::Desktop& desktop;
    bool keepfirst = false; ///< the data file holds what was not read; it is kept beside before it is overwritten
    bool ended = false;
};

} // namespace mainscreen
