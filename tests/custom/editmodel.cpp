// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/custom/editmodel.h"

#include "tests/support/names.h"

namespace tests {

std::string EditModel::getnotename(const std::string& digit) const
{
    if (digit == "A")
        return written(10, mode);
    if (digit == "B")
        return written(11, mode);
    if (digit >= "0" && digit <= "9" && digit.size() == 1)
        return written(digit[0] - '0', mode);
    return "?";
}

std::string EditModel::getnotedata(const std::string& name)
{
    if (name.empty() || name == "?")
        return "?";
    const int pitch = pitchof(name);
    return pitch == 10 ? "A" : pitch == 11 ? "B" : std::to_string(pitch);
}

void EditModel::say(const std::string& icon, const std::string& text)
{
    spoken.push_back(icon + ": " + text);
}

bool EditModel::ask(const std::string& text)
{
    say("question", text);
    const bool yes = answers.front();
    answers.pop_front();
    return yes;
}

bool EditModel::refused()
{
    if (!locked)
        return false;
    if (!ask("Wish to Edit Existing Data here?\nThat will eliminate the old entry"))
        return true;
    locked = false;
    return false;
}

void EditModel::datablankelim()
{
    for (std::size_t i = 0; i <= 50; ++i) {
        if (!customnames[i].empty())
            continue;
        std::size_t j = i + 1;
        while (j <= 50 && customnames[j].empty())
            ++j;
        if (j > 50)
            return;
        customnames[i] = customnames[j];
        customdata[i] = customdata[j];
        customnames[j] = "";
        customdata[j] = "";
    }
}

int EditModel::indexnew() const
{
    int i = 0;
    while (i <= 50 && !customnames.at(static_cast<std::size_t>(i)).empty())
        ++i;
    return i;
}

void EditModel::boxvisible()
{
    visible[4] = option != 1;
    visible[5] = option == 3;
}

void EditModel::init()
{
    txtname = "";
    for (std::string& box : txtnote)
        box = "";
    chkleft = 0;
    option = 3;
    selection = 99;
    boxvisible();
}

void EditModel::formstart()
{
    init();
    txtnum = indexnew();
    if (txtnum == 51)
        txtnum = 50;
    textread();
}

void EditModel::textread()
{
    const auto n = static_cast<std::size_t>(txtnum);
    if (customnames[n].empty()) {
        txtinfo = "- blank -";
        txtname = "";
        customdata[n] = "";
        for (std::size_t i = 0; i < 6; ++i)
            txtnote[i] = "";
        locked = false;
        return;
    }
    txtinfo = "- DATA -";
    txtname = customnames[n];
    chkleft = customdata[n].substr(0, 1) == "0" ? 0 : 1;
    const std::string digit = customdata[n].substr(1, 1);
    option = digit == "0" ? 0 : digit == "1" ? 1 : digit == "2" ? 2 : 3;
    for (std::size_t i = 0; i < 6; ++i)
        txtnote[i] = getnotename(customdata[n].substr(i + 2, 1));
    boxvisible();
    selection = 99;
    txtnote[6] = "";
    locked = true;
}

void EditModel::settext(const std::string& text)
{
    if (!locked)
        txtname = text;
}

void EditModel::clickname()
{
    if (refused())
        txtname = customnames.at(static_cast<std::size_t>(txtnum));
}

void EditModel::clicknote(int i)
{
    if (i == 6)
        return;
    const auto box = static_cast<std::size_t>(i);
    if (refused()) {
        txtnote.at(box) = getnotename(customdata.at(static_cast<std::size_t>(txtnum)).substr(box + 2, 1));
        return;
    }
    if (selection > 12) {
        say("information", "Please press a gray note button first");
        return;
    }
    txtnote.at(box) = written(selection, mode);
}

void EditModel::clickleft()
{
    if (refused())
        chkleft = customdata.at(static_cast<std::size_t>(txtnum)).substr(0, 1) == "0" ? 0 : 1;
    else
        chkleft = 1 - chkleft;
}

void EditModel::clickoption(int i)
{
    option = i;
    if (refused()) {
        const std::string digit = customdata.at(static_cast<std::size_t>(txtnum)).substr(1, 1);
        option = digit == "0" ? 0 : digit == "1" ? 1 : digit == "2" ? 2 : 3;
    }
    boxvisible();
}

void EditModel::cmdret(int k)
{
    selection = k - 1;
    txtnote[6] = written(selection, mode);
}

void EditModel::cmdup()
{
    const bool blank = customnames.at(static_cast<std::size_t>(txtnum)).empty();
    if (blank && txtname.empty()) {
        say("information", "Please fill in title (item #2)\nand save work (item #6)\nbefore advancing");
        return;
    }
    if (blank) {
        say("information", "Please save work (item #6)\nbefore advancing");
        return;
    }
    if (txtnum >= indexnew()) {
        say("information", "Cannot go above highest blank area, Sorry");
        return;
    }
    if (txtnum == 50) {
        say("information", "50 items is maximum, sorry");
        return;
    }
    txtnum = txtnum + 1;
    textread();
}

void EditModel::cmddown()
{
    if (txtnum > 0) {
        txtnum = txtnum - 1;
        textread();
    } else
        say("information", "Cannot go below 0, sorry");
}

void EditModel::cmdsave()
{
    customchanged = 1;
    if (txtname.empty())
        return say("critical", "You need to enter a name for this option first\n as requested as item 2");
    for (std::size_t i = 0; i < 6; ++i)
        if (visible[i] && txtnote[i].empty())
            return say("critical", "You need to enter note names\n as requested as item 5");
    if (txtname.size() >= 26) // the walk's names are plain letters
        return say("critical", "Please reduce name size (item 2)\nTo less than 25 characters.  Thanks");
    if (txtname.find(';') != std::string::npos)
        return say("critical", "Please remove semicolon(s) ';' from name (item 2)\nThey are needed for control "
                               "characters.  Thanks");
    std::string data = std::to_string(chkleft) + std::to_string(option);
    for (std::size_t i = 0; i < 6; ++i)
        data += getnotedata(txtnote[i]);
    customnames.at(static_cast<std::size_t>(txtnum)) = txtname;
    customdata.at(static_cast<std::size_t>(txtnum)) = data;
    cmdup();
}

void EditModel::cmdclear()
{
    init();
}

void EditModel::cmddelentry()
{
    if (!ask("This will delete this data item from your\ncustom data file.  Do you want to continue?"))
        return;
    customnames.at(static_cast<std::size_t>(txtnum)) = "";
    customdata.at(static_cast<std::size_t>(txtnum)) = "";
    datablankelim();
    customchanged = 1;
    init();
    textread();
}

void EditModel::cmdsettings()
{
    if (!customnames.at(static_cast<std::size_t>(txtnum)).empty() &&
        !ask("You already have data entered here\nDo you wish to overwrite it?"))
        return;
    locked = false;
    chkleft = cboleft.substr(0, 5) == "Right" ? 0 : 1;
    option = layout;
    boxvisible();
    for (std::size_t i = 0; i < 6; ++i)
        txtnote[i] = opencells.at(5 - i);
}

void EditModel::openarrange()
{
    if (!arranging)
        datablankelim();
    arranging = true;
}

void EditModel::drop(int target, int source)
{
    const auto t = static_cast<std::size_t>(target);
    const auto s = static_cast<std::size_t>(source);
    const std::string name = customnames.at(t);
    customnames.at(t) = customnames.at(s);
    customnames.at(s) = name;
    const std::string data = customdata.at(t);
    customdata.at(t) = customdata.at(s);
    customdata.at(s) = data;
    customchanged = 1;
    if (target != source && open)
        textread();
}

} // namespace tests
