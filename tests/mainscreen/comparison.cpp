// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/comparison.h"

#include <algorithm>
#include <sstream>

namespace tests {
namespace {

class Comparison {
public:
    template <typename Shown, typename Modelled>
    void compare(const char* what, const Shown& shown, const Modelled& modelled)
    {
        if (shown != modelled)
            out << what << ": [" << shown << "], model [" << modelled << "]\n";
    }
    template <typename Shown, typename Modelled>
    void compare(const char* what, std::size_t i, const Shown& shown, const Modelled& modelled)
    {
        if (shown != modelled)
            out << what << ' ' << i << ": [" << shown << "], model [" << modelled << "]\n";
    }
    std::string found() const { return out.str(); }

private:
    std::ostringstream out;
};

std::vector<std::string> checkedof(const mainscreen::SpellingMarks& marks)
{
    std::vector<std::string> checked; // in the order of the alphabet
    const auto add = [&](bool mark, const char* name) {
        if (mark)
            checked.emplace_back(name);
    };
    add(marks.mnuauto, "mnuauto");
    add(marks.mnuboth, "mnuboth");
    add(marks.mnuflat, "mnuflat");
    add(marks.mnumix1, "mnumix1");
    add(marks.mnumix2, "mnumix2");
    add(marks.mnusharp, "mnusharp");
    return checked;
}

std::string joined(const std::vector<std::string>& lines)
{
    std::string all;
    for (const std::string& line : lines)
        all += line + "; ";
    return all;
}

std::string boldof(mainscreen::BoldButton bold)
{
    switch (bold) {
    case mainscreen::BoldButton::cmdsharp:
        return "cmdsharp";
    case mainscreen::BoldButton::cmdflat:
        return "cmdflat";
    case mainscreen::BoldButton::cmdauto:
        return "cmdauto";
    case mainscreen::BoldButton::none:
        break;
    }
    return "";
}

void comparechord(Comparison& c, const mainscreen::Session& session, const Model& model)
{
    for (std::size_t i = 0; i < 8; ++i)
        c.compare("note", i, session.note[i], model.note[i]);
    core::ChordSlots slots = session.chordslots;
    for (std::size_t i = 0; i < 8; ++i)
        c.compare("slot", i, slots.slot(static_cast<int>(i)), model.slot[i]);
    c.compare("slot 8", slots.name, model.slot8);
    c.compare("slot 9", slots.alternate, model.slot9);
    c.compare("cordtyp1", session.cordtyp1, model.cordtyp1);
    c.compare("cordtyp2", session.cordtyp2, model.cordtyp2);
    c.compare("chordindex", session.chordindex, model.chordindex);
    for (std::size_t i = 0; i < 30; ++i)
        c.compare("trans1", i, session.trans1[i / 15][i % 15], model.trans1[i]);
}

void comparespelling(Comparison& c, const mainscreen::Session& session, const Model& model)
{
    c.compare("mode", static_cast<int>(session.spelling.mode), model.mode);
    c.compare("automatic", session.spelling.automatic, model.automatic == 1);
    c.compare("both", session.spelling.both, model.both == 1);
    c.compare("checked", joined(checkedof(session.marks)), joined(model.checked));
    c.compare("bold", boldof(session.marks.bold), model.bold);
    for (std::size_t k = 0; k < 26; ++k) {
        c.compare("caption", k, session.keyboard.key[k].caption, model.caption[k]);
        c.compare("key", k, session.keyboard.key[k].back, model.keyback[k]);
    }
}

void comparebox(Comparison& c, const char* name, const mainscreen::Selector& selector, const Box& box)
{
    if (selector.items != box.items)
        c.compare(name, joined(selector.items), joined(box.items));
    c.compare(name, selector.text, box.text);
    c.compare(name, selector.index, box.listindex);
}

void compareboard(Comparison& c, const instruments::Fretboard& board, const Model& model)
{
    for (std::size_t i = 0; i < 120; ++i) {
        c.compare("cell text", i, board.cell[i].text, model.text[i]);
        c.compare("cell colour", i, board.cell[i].back, model.back[i]);
        c.compare("cell visible", i, board.cell[i].visible, model.visible[i]);
    }
    c.compare("layout", static_cast<int>(board.layout), model.layout);
    c.compare("hand", board.hand == instruments::Hand::left, model.cboleft.text == "Left Hand");
    for (std::size_t row = 0; row < 6; ++row) {
        c.compare("row top", row, board.rowtop[row], model.rowtop[row]);
        bool beside = false; // a line is drawn where a shown row stands, and nowhere else
        for (std::size_t r = 0; r < 6; ++r)
            beside = beside || (model.visible[r] && model.rowtop[r] + 120 == 5760 + 240 * static_cast<int>(row));
        c.compare("line", row, board.linevisible[row], beside);
    }
}

void comparecapo(Comparison& c, const mainscreen::Session& session, const Model& model)
{
    c.compare("PositionFret", session.PositionFret, model.PositionFret);
    c.compare("bar", session.capomarker.barvisible, model.barvisible);
    c.compare("bar", session.capomarker.barleft, model.barleft);
    c.compare("follower", session.capomarker.followervisible, model.followervisible);
    if (model.followervisible)
        c.compare("follower", session.capomarker.followerleft, model.followerleft);
    c.compare("retune row", session.retune.row, model.retunerow);
    c.compare("retune note", session.retune.note, model.retunenote);
}

std::vector<std::string> messagesof(const RecordingDesktop& desktop)
{
    std::vector<std::string> messages;
    for (const Told& told : desktop.told)
        messages.push_back((told.icon == ui::Icon::critical ? "critical: " : "information: ") + told.text);
    return messages;
}

} // namespace

std::string differences(const Started& s, const Model& model)
{
    Comparison c;
    comparechord(c, s.session, model);
    comparespelling(c, s.session, model);
    compareboard(c, s.session.fretboard, model);
    comparecapo(c, s.session, model);
    comparebox(c, "cbotype", s.session.cbotype, model.cbotype);
    comparebox(c, "cbotuning", s.session.cbotuning, model.cbotuning);
    comparebox(c, "cbopreset", s.session.cbopreset, model.cbopreset);
    comparebox(c, "cboleft", s.session.cboleft, model.cboleft);
    c.compare("messages", joined(messagesof(s.desktop)), joined(model.messages));
    c.compare("retune screens", static_cast<int>(s.desktop.opened.size()), model.retunescreens);
    return c.found();
}

} // namespace tests
