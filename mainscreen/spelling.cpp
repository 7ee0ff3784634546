// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/autospelling.h"
#include "mainscreen/session.h"

namespace mainscreen {

/// What one of the five choices of spelling sets.
struct SpellingChoice {
    core::SpellingMode mode;
    bool automatic;
    bool mnusharp;
    bool mnuflat;
    bool mnumix1;
    bool mnumix2;
    std::optional<bool> mnuauto; ///< nothing: left as it was
    BoldButton bold;
};

namespace {

using enum core::SpellingMode;

// The mixes have no button, so choosing one leaves none bold; the second does not touch the mark of Auto either.
// clang-format off
//                                 mode          automatic  sharp   flat    mix1    mix2    auto           bold
constexpr SpellingChoice sharps{   mostlysharps, false,     true,   false,  false,  false,  false,         BoldButton::cmdsharp };
constexpr SpellingChoice flats{    mostlyflats,  false,     false,  true,   false,  false,  false,         BoldButton::cmdflat  };
constexpr SpellingChoice firstmix{ mix1,         false,     false,  false,  true,   false,  false,         BoldButton::none     };
constexpr SpellingChoice nextmix{  mix2,         false,     false,  false,  false,  true,   std::nullopt,  BoldButton::none     };
constexpr SpellingChoice bychord{  mix1,         true,      false,  false,  false,  false,  true,          BoldButton::cmdauto  };
// clang-format on

} // namespace

void Session::dosharps()
{
    dospelling(sharps);
}

void Session::doflats()
{
    dospelling(flats);
}

void Session::domix1()
{
    dospelling(firstmix);
}

void Session::domix2()
{
    dospelling(nextmix);
}

void Session::doauto()
{
    dospelling(bychord);
}

void Session::dospelling(const SpellingChoice& choice)
{
    marks.mnusharp = choice.mnusharp;
    marks.mnuflat = choice.mnuflat;
    marks.mnumix1 = choice.mnumix1;
    marks.mnumix2 = choice.mnumix2;
    marks.mnuauto = choice.mnuauto.value_or(marks.mnuauto);
    marks.bold = choice.bold;
    spelling.automatic = choice.automatic;
    spelling.mode = choice.mode;
    fixflat();
}

void Session::mnuboth_Click()
{
    marks.mnuboth = !marks.mnuboth;
    spelling.both = marks.mnuboth;
    flatkey();
}

void Session::doflatsetup()
{
    marks.mnuboth = spelling.both;
    flatkey();
    if (spelling.automatic) {
        doauto();
        return;
    }
    switch (spelling.mode) {
    case mostlyflats:
        doflats();
        break;
    case mix1:
        domix1();
        break;
    case mix2:
        domix2();
        break;
    case mostlysharps:
        dosharps();
        break;
    }
}

void Session::autobrain()
{
    const auto chosen = core::suitingmode(cordtyp1, note[6]);
    if (!chosen || *chosen == spelling.mode)
        return;
    spelling.mode = *chosen;
    fixflat();
}

void Session::fixflat()
{
    fixnotes();
    fixtranspose();
    flatkey();
    fretboard.doalldoline(spelling);
    setcordtyp2(cordtyp2);
}

void Session::fixnotes()
{
    for (std::size_t i = 0; i < note.size(); ++i) {
        std::string name = note.at(i);
        spelling.noteflat(name);
        setnote(i, name);
    }
}

void Session::fixtranspose()
{
    for (core::ScaleRow& row : trans1)
        for (std::string& name : row)
            spelling.noteflat(name);
}

void Session::flatkey()
{
    keyboard.flatkey(spelling);
}

} // namespace mainscreen
