// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/model.h"
#include "tests/support/names.h"

#include <algorithm>
#include <map>

namespace tests {

bool Model::nothing(const std::string& s)
{
    return s.empty() || s == " ";
}

int Model::notenumber(const std::string& s)
{
    for (int mode = 0; mode < modecount; ++mode)
        for (int n = 0; n < 12; ++n)
            if (written(n, mode) == s)
                return n;
    return 99;
}

std::string Model::notename(int& n) const
{
    if (n == 99)
        return " ";
    while (n > 24)
        n -= 12;
    while (n < 0)
        n += 12;
    return written(n % 12, mode);
}

void Model::noteflat(std::string& s) const
{
    if (s.size() == 2 && notenumber(s) != 99)
        s = written(notenumber(s), mode);
}

void Model::noteup(std::string& s) const
{
    if (notenumber(s) != 99)
        s = written((notenumber(s) + 1) % 12, mode);
}

void Model::setnote(std::size_t i, const std::string& s)
{
    const bool changed = note.at(i) != s;
    note.at(i) = s;
    if (changed && i == 6 && automatic == 1)
        autobrain();
}

void Model::setcordtyp1(const std::string& s)
{
    const bool changed = cordtyp1 != s;
    cordtyp1 = s;
    if (changed && automatic == 1)
        autobrain();
}

void Model::setcordtyp2(const std::string& s)
{
    cordtyp2 = rewritten(s, mode);
}

void Model::autobrain()
{
    static const std::map<std::string, int> minors{{"G", 0},  {"C", 0},  {"F", 0},  {"Bb", 0}, {"A#", 0}, {"Eb", 0},
                                                   {"D#", 0}, {"A", 1},  {"D", 1},  {"B", 2},  {"E", 2},  {"F#", 3},
                                                   {"C#", 3}, {"G#", 3}, {"Ab", 3}, {"Db", 3}, {"Gb", 3}};
    static const std::map<std::string, int> others{{"A#", 0}, {"C#", 0}, {"D#", 0}, {"F#", 0}, {"G#", 0}, {"Bb", 0},
                                                   {"Ab", 0}, {"Gb", 0}, {"Eb", 0}, {"Db", 0}, {"F", 1},  {"C", 1},
                                                   {"G", 2},  {"D", 2},  {"A", 3},  {"E", 3},  {"B", 3}};
    if (nothing(cordtyp1) || nothing(note[6]))
        return;
    const bool minor = cordtyp1.find("minor") != std::string::npos;
    const int chosen = minor ? minors.at(note[6]) : others.at(note[6]);
    if (chosen == mode)
        return;
    mode = chosen;
    fixflat();
}

void Model::fixflat()
{
    for (std::size_t i = 0; i <= 7; ++i) {
        std::string s = note[i];
        noteflat(s);
        setnote(i, s);
    }
    for (std::string& s : trans1)
        noteflat(s);
    flatkey();
    doalldoline();
    setcordtyp2(cordtyp2);
}

void Model::flatkey()
{
    static const std::map<std::size_t, std::string> doubles{
        {1, "C# Db"}, {3, "D# Eb"}, {6, "F# Gb"}, {8, "G# Ab"}, {10, "A# Bb"}};
    for (const auto& [k, names] : doubles) {
        caption[k] = both == 1 ? names : written(static_cast<int>(k), mode);
        caption[k + 12] = caption[k];
    }
}

void Model::choosespelling(const std::string& procedure)
{
    const bool autowas = std::ranges::find(checked, "mnuauto") != checked.end();
    static const std::map<std::string, int> modes{
        {"dosharps", 3}, {"doflats", 0}, {"domix1", 1}, {"domix2", 2}, {"doauto", 1}};
    const bool bothis = both == 1;
    checked = {"mnu" + procedure.substr(2)};
    if (checked[0].back() == 's')
        checked[0].pop_back();
    if (procedure == "domix2" && autowas)
        checked.emplace_back("mnuauto");
    if (bothis)
        checked.emplace_back("mnuboth");
    std::ranges::sort(checked);
    bold = procedure == "dosharps" ? "cmdsharp" : procedure == "doflats" ? "cmdflat" : "";
    if (procedure == "doauto")
        bold = "cmdauto";
    automatic = procedure == "doauto" ? 1 : 0;
    mode = modes.at(procedure);
    fixflat();
}

void Model::mnuboth_Click()
{
    const auto mark = std::ranges::find(checked, "mnuboth");
    both = mark == checked.end() ? 1 : 0;
    if (both == 1)
        checked.emplace_back("mnuboth");
    else
        checked.erase(mark);
    std::ranges::sort(checked);
    flatkey();
}

} // namespace tests
