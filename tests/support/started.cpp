// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include "tests/support/names.h"

#include <algorithm>
#include <stdexcept>

namespace tests {
namespace {

int itemof(const mainscreen::Selector& selector, std::string_view text)
{
    const auto found = std::ranges::find(selector.items, text);
    if (found == selector.items.end())
        throw std::invalid_argument("no such item: " + std::string(text));
    return static_cast<int>(found - selector.items.begin());
}

void append(std::string& line, const std::string& word)
{
    line += (line.empty() ? "" : " ") + word;
}

} // namespace

Started::Started() : own(std::in_place)
{
    session.Form_Load();
}

Started::Started(const Directory& /*current*/)
{
    session.Form_Load();
}

void Started::enter(std::string_view names)
{
    for (const int pitch : pitches(names))
        session.key_Click(pitch);
}

void Started::pickmode(int mode)
{
    switch (mode) {
    case 0:
        return session.doflats();
    case 1:
        return session.domix1();
    case 2:
        return session.domix2();
    case 3:
        return session.dosharps();
    default:
        throw std::invalid_argument("no such mode");
    }
}

std::string Started::notes() const
{
    std::string line;
    for (std::size_t i = 0; i < 6; ++i)
        if (session.note[i] != " " && !session.note[i].empty())
            append(line, session.note[i]);
    return line;
}

void Started::pickfamily(std::string_view text)
{
    session.cbotype_Click(itemof(session.cbotype, text));
}

void Started::picktuning(std::string_view text)
{
    session.cbotuning_Click(itemof(session.cbotuning, text));
}

void Started::pickcapo(std::string_view text)
{
    session.cbopreset_Click(itemof(session.cbopreset, text));
}

std::string Started::rowtext(int row) const
{
    std::string line;
    for (int fret = 0; fret < 20; ++fret)
        append(line, cell(row, fret).text);
    return line;
}

std::string Started::opennotes() const
{
    std::string line;
    for (int row = 5; row >= 0; --row)
        if (cell(row, 0).visible)
            append(line, cell(row, 0).text);
    return line;
}

std::string Started::rowmarks(int row) const
{
    std::string line;
    for (int fret = 0; fret < 20; ++fret) {
        const core::Colour back = cell(row, fret).back;
        line += back == 0x808080 ? '#' : back == 0xC0C0C0 ? '+' : back == 0xFFFFFF ? '.' : '?';
    }
    return line;
}

const instruments::Cell& Started::cell(int row, int fret) const
{
    return session.fretboard.cell.at(static_cast<std::size_t>(row + 6 * fret));
}

} // namespace tests
