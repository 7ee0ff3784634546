// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tests {

/// A drop-down list of the model.
struct Box {
    std::vector<std::string> items;
    std::string text;
    int listindex = -1;

    void pick(int i);
    void settext(std::string_view shown);
};

/// The main screen a second time, written apart from the program: every procedure a plain list of steps over one flat
/// array for each control, with its own tables. The two are compared after the same clicks.
class Model {
public:
    int mode = 0;
    int automatic = 0;
    int both = 0;
    std::vector<std::string> checked; ///< menu items that bear a mark, sorted
    std::string bold;                 ///< the button in bold; empty: none

    std::array<std::string, 8> note;
    std::string cordtyp1;
    std::string cordtyp2;
    std::array<std::string, 30> trans1;
    std::array<int, 8> slot{99, 99, 99, 99, 99, 99, 99, 99};
    std::string slot8{" "};
    std::string slot9{" "};
    int chordindex = 0;

    std::array<std::string, 26> caption;
    std::array<unsigned, 26> keyback{};

    std::array<std::string, 120> text;
    std::array<unsigned, 120> back{};
    std::array<bool, 120> visible{};
    std::array<int, 6> rowtop{};
    int layout = 3;
    int PositionFret = 0;
    bool barvisible = false;
    int barleft = 0;
    bool followervisible = false;
    int followerleft = 0;
    int retunerow = 0;
    int retunenote = 0;

    Box cbotype;
    Box cbotuning;
    Box cbopreset;
    Box cboleft;
    std::array<std::string, 51> customnames;
    std::array<std::string, 51> customdata;

    std::vector<std::string> messages; ///< "critical: " or "information: " and the text
    int retunescreens = 0;             ///< how often the retune screen was opened

    void Form_Load();
    void key_Click(int index);
    void Text1_Click(int index);
    void Crd_Click(int index) { findchord(index); }
    void findchord(int index);
    void transpose(int ent, int m);
    void topl_Click() { shiftrow(0, -1); }
    void topr_Click() { shiftrow(0, +1); }
    void botl_Click();
    void botr_Click();
    void choosespelling(const std::string& procedure);
    void mnuboth_Click();

    void cbotype_Click(int item);
    void cbotuning_Click(int item);
    void cboleft_Click(int item);
    void cbopreset_Click(int item);
    void optu_Click();
    void optd_Click();
    void cmdret_Click(int index);

private:
    static bool nothing(const std::string& s);
    static int notenumber(const std::string& s);

    // chords and spelling
    std::string notename(int& n) const;
    void noteflat(std::string& s) const;
    void noteup(std::string& s) const;
    void noteentry(int ent);
    void chordmatch(int n);
    void fillslots(int index, int root);
    void keyreset();
    void keyupdate();
    void shiftrow(std::size_t first, int direction);
    void setnote(std::size_t i, const std::string& s);
    void setcordtyp1(const std::string& s);
    void setcordtyp2(const std::string& s);
    void autobrain();
    void fixflat();
    void flatkey();

    // strings
    void presets();
    void gettuning();
    void applycustom();
    void setlayout(int code);
    void doline(int row, std::string s);
    void doalldoline();
    void gureset();
    void guitarcolor();
    void getcapo(int capo);
    void presetstep(int direction);
};

} // namespace tests
