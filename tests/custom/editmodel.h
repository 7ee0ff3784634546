// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <deque>
#include <string>
#include <vector>

namespace tests {

/// The edit and arrange screens a second time, written apart from the program: controls and tables as flat arrays of
/// texts, every procedure a plain list of steps. The two are compared after the same acts.
class EditModel {
public:
    std::array<std::string, 51> customnames;
    std::array<std::string, 51> customdata;
    int customchanged = 0;
    int mode = 0;

    int txtnum = 0;
    std::string txtname;
    std::string txtinfo{"- blank -"};
    std::array<std::string, 7> txtnote;
    std::array<bool, 7> visible{true, true, true, true, true, true, true};
    int chkleft = 0;
    int option = 3;
    bool open = false;
    bool arranging = false;

    /// The main screen as far as it is read: hand, layout and the open notes of rows 0..5.
    std::string cboleft;
    int layout = 3;
    std::array<std::string, 6> opencells;

    std::deque<bool> answers;        ///< yes, to the next questions
    std::vector<std::string> spoken; ///< "critical: ", "information: " or "question: " and the text

    void formstart();
    void textread();
    void settext(const std::string& text);
    void clickname();
    void clicknote(int i);
    void clickleft();
    void clickoption(int i);
    void cmdret(int k);
    void cmdup();
    void cmddown();
    void cmdsave();
    void cmdclear();
    void cmddelentry();
    void cmdsettings();
    void openarrange();
    void drop(int target, int source);

private:
    void init();
    void boxvisible();
    void datablankelim();
    int indexnew() const;
    bool refused();
    bool ask(const std::string& text);
    void say(const std::string& icon, const std::string& text);
    std::string getnotename(const std::string& digit) const;
    static std::string getnotedata(const std::string& name);

    int selection = 99;
    bool locked = false;
};

} // namespace tests
