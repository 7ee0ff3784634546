// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/editform.h"

#include "core/textcode.h"

#include <algorithm>

namespace custom {
namespace {

std::size_t boxcount(instruments::StringLayout choice)
{
    return stringcount - static_cast<std::size_t>(instruments::layoutrow(choice).firstrow);
}

} // namespace

bool EditForm::boxvisible(std::size_t box) const
{
    return box == selectionbox || box < boxcount(Option2);
}

void EditForm::formstart()
{
    init();
    showfree();
}

void EditForm::showfree()
{
    place = std::min(indexnew(table), placecount - 1);
    textread();
}

void EditForm::init()
{
    txtname.clear();
    textclear();
    chkleft = false;
    Option2 = instruments::StringLayout::sixstrings;
    forgetselection();
}

void EditForm::textread()
{
    protectedplace = !entry().name.empty();
    txtname = entry().name;
    if (!protectedplace) {
        txtinfo = "- blank -";
        entry().data.clear();
        textclear();
        return;
    }
    txtinfo = "- DATA -";
    chkleft = storedleft();
    optionset();
    for (std::size_t box = 0; box < stringcount; ++box)
        txtnote.at(box) = storednote(box);
    forgetselection();
}

void EditForm::textclear()
{
    std::fill_n(txtnote.begin(), stringcount, std::string());
}

void EditForm::forgetselection()
{
    selected = core::nonote;
    txtnote[selectionbox].clear();
}

/// Asks before the first change to a stored entry; a "Yes" holds until a place is shown anew.
bool EditForm::mayedit()
{
    if (protectedplace)
        protectedplace =
            desktop.ask("Wish to Edit Existing Data here?\nThat will eliminate the old entry", "") == ui::Answer::no;
    return !protectedplace;
}

std::string EditForm::storednote(std::size_t box)
{
    return getnotename(dataat(entry(), box + 2), spelling);
}

void EditForm::txtname_Click()
{
    if (!mayedit())
        txtname = entry().name;
}

void EditForm::txtname_Change(const std::string& typed)
{
    if (!protectedplace)
        txtname = typed;
}

void EditForm::txtnote_Click(std::size_t box)
{
    if (box >= stringcount)
        return;
    if (!mayedit())
        txtnote.at(box) = storednote(box);
    else if (selected == core::nonote)
        desktop.tell(ui::Icon::information, "Please press a gray note button first");
    else
        txtnote.at(box) = spelling.nameof(selected);
}

void EditForm::chkleft_Click()
{
    chkleft = mayedit() ? !chkleft : storedleft();
}

void EditForm::Option2_Click(instruments::StringLayout choice)
{
    if (mayedit())
        Option2 = choice;
    else
        optionset();
}

void EditForm::cmdret_Click(int button)
{
    selected = button - 1;
    txtnote[selectionbox] = spelling.nameof(selected);
}

void EditForm::moveup()
{
    if (entry().name.empty())
        desktop.tell(ui::Icon::information,
                     txtname.empty() ? "Please fill in title (item #2)\nand save work (item #6)\nbefore advancing"
                                     : "Please save work (item #6)\nbefore advancing");
    else if (place + 1 > indexnew(table))
        desktop.tell(ui::Icon::information, "Cannot go above highest blank area, Sorry");
    else if (place + 1 == placecount)
        desktop.tell(ui::Icon::information, "50 items is maximum, sorry");
    else {
        ++place;
        textread();
    }
}

void EditForm::cmddown_Click()
{
    if (place == 0) {
        desktop.tell(ui::Icon::information, "Cannot go below 0, sorry");
        return;
    }
    --place;
    textread();
}

// The button marks a change even when a check refuses; see docs/behaviour.md.
void EditForm::cmdsave_Click()
{
    datasave();
    customchanged = true;
}

/// What keeps the form from being stored; empty: nothing.
std::string_view EditForm::objection() const
{
    if (txtname.empty())
        return "You need to enter a name for this option first\n as requested as item 2";
    if (std::any_of(txtnote.begin(), txtnote.begin() + static_cast<std::ptrdiff_t>(boxcount(Option2)),
                    [](const std::string& name) { return name.empty(); }))
        return "You need to enter note names\n as requested as item 5";
    if (core::charactercount(txtname) > longestname)
        return "Please reduce name size (item 2)\nTo less than 25 characters.  Thanks";
    if (txtname.find(';') != std::string::npos)
        return "Please remove semicolon(s) ';' from name (item 2)\nThey are needed for control characters.  Thanks";
    return {};
}

void EditForm::datasave()
{
    if (const std::string_view wrong = objection(); !wrong.empty()) {
        desktop.tell(ui::Icon::critical, std::string(wrong));
        return;
    }
    entry() = {txtname, {chkleft ? '1' : '0', static_cast<char>('0' + static_cast<int>(Option2))}};
    for (std::size_t box = 0; box < stringcount; ++box)
        entry().data += getnotedata(txtnote.at(box));
    moveup();
}

void EditForm::cmddelentry_Click()
{
    if (desktop.ask("This will delete this data item from your\ncustom data file.  Do you want to continue?", "") ==
        ui::Answer::no)
        return;
    entry() = {};
    datablankelim(table);
    customchanged = true;
    init();
    textread();
}

void EditForm::cmdsettings_Click(std::string_view cboleft, const instruments::Fretboard& fretboard)
{
    if (!entry().name.empty() &&
        desktop.ask("You already have data entered here\nDo you wish to overwrite it?", "") == ui::Answer::no)
        return;
    protectedplace = false;
    chkleft = !cboleft.starts_with("Right");
    Option2 = fretboard.layout;
    for (std::size_t box = 0; box < stringcount; ++box)
        txtnote.at(box) = fretboard.cell.at(instruments::lastrow - box).text;
}

} // namespace custom
