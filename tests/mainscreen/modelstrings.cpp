// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/instruments/cataloguerows.h"
#include "tests/mainscreen/model.h"
#include "tests/support/names.h"

#include <algorithm>
#include <map>

namespace tests {
namespace {

struct Span {
    std::size_t first;
    std::size_t last;
    int capo;
};

// clang-format off
const std::map<std::string, Span> spans{
    {"0 no", { 0,  29,  0}}, {"1st ", { 6,  35,  1}}, {"2nd ", {12,  41,  2}}, {"3rd ", {18,  47,  3}},
    {"4th ", {24,  53,  4}}, {"5th ", {30,  59,  5}}, {"6th ", {36,  65,  6}}, {"7th ", {42,  71,  7}},
    {"8th ", {48,  77,  8}}, {"9th ", {54,  83,  9}}, {"10th", {60,  89, 10}}, {"11th", {66,  95, 11}},
    {"12th", {71, 101, 12}}, {"13th", {77, 107, 13}}, {"14th", {84, 114, 14}}, {"15th", {90, 119, 15}},
};

const std::vector<std::string> capos{
    "0 normal - open", "1st fret  capo / bar", "2nd fret  capo / bar", "3rd fret  capo / bar", "4th fret  capo / bar",
    "5th fret  capo / bar", "6th fret  capo / bar", "7th fret  capo / bar", "8th fret  capo / bar", "9th fret  capo / bar",
    "10th fret  capo / bar", "11th fret  capo / bar", "12th fret  capo / bar", "13th fret  capo / bar",
    "14th fret  capo / bar", "15th fret  capo / bar", "show all notes",
};
// clang-format on

const std::vector<std::string> families{"       GUITAR", "         BASS", "      UKULELE",
                                        "        BANJO", "     MANDOLIN", "       VIOLIN",
                                        " STEEL, DOBRO", "    LUTE, OUD", "       CUSTOM"};
const std::string customfamily = families.back();

int layoutcode(Strings strings)
{
    return strings == Strings::banjo ? 0 : strings == Strings::four ? 1 : strings == Strings::five ? 2 : 3;
}

bool usesnormnotes(const std::string& setter)
{
    return setter == "string6gn" || setter == "bstring6n2" || setter == "bstring5n3" || setter == "bstring4n1";
}

} // namespace

void Box::pick(int i)
{
    text = items.at(static_cast<std::size_t>(i));
    listindex = i;
}

void Box::settext(std::string_view shown)
{
    text = shown;
    listindex = -1;
    for (int i = static_cast<int>(items.size()) - 1; i >= 0; --i)
        if (items[static_cast<std::size_t>(i)] == shown)
            listindex = i;
}

void Model::Form_Load()
{
    for (int k = 0; k < 25; ++k)
        caption[static_cast<std::size_t>(k)] = written(k % 12, 0);
    caption[25] = "Reset";
    keyback.back() = 0x1000000; // the Reset button: the desktop's own colour
    for (std::size_t k = 0; k < 30; ++k)
        trans1[k] = written(static_cast<int>(k % 15 % 12), 0);
    cboleft = {{"Right Hand", "Left Hand"}, "Right Hand", 0};
    cbotype = {families, families.front(), 0};
    cbopreset.text = "scroll to select ------>";
    presets();
    gettuning();
    cbopreset.items = capos;
    cbopreset.settext("pull down menu --- >");
    gureset();
    keyreset();
    choosespelling("doflats");
}

void Model::presets()
{
    cbotuning.items.clear();
    if (cbotype.text == customfamily) {
        for (std::size_t i = 0; i <= 50 && !customnames[i].empty(); ++i)
            cbotuning.items.push_back(customnames[i]);
    } else {
        for (const CatalogueRow& row : cataloguerows)
            if (row.family == cbotype.text)
                cbotuning.items.emplace_back(row.name);
    }
    cbotuning.settext(cbotuning.items.empty() ? "" : cbotuning.items[0]);
}

void Model::gettuning()
{
    if (cbotype.text == customfamily) {
        applycustom();
        return;
    }
    for (const CatalogueRow& row : cataloguerows) {
        if (row.family != cbotype.text || row.name != cbotuning.text)
            continue;
        setlayout(layoutcode(row.strings));
        if (usesnormnotes(row.setter))
            for (int r = 0; r <= 5; ++r)
                doline(r, std::string(1, "EBGDAE"[r]));
        else {
            const std::vector<std::string> open = words(row.notes);
            for (int r = 6 - static_cast<int>(open.size()); r <= 5; ++r)
                doline(r, open.at(static_cast<std::size_t>(5 - r)));
        }
        guitarcolor();
        return;
    }
}

void Model::applycustom()
{
    if (customnames[0].empty() || cbotuning.text.empty())
        return;
    std::size_t i = 0;
    while (i <= 50 && customnames[i] != cbotuning.text)
        ++i;
    if (i > 50) {
        messages.emplace_back("critical: Error, cannot find that stored item");
        return;
    }
    const std::string code = customdata[i];
    cboleft.settext(code[0] == '0' ? "Right Hand" : "Left Hand");
    guitarcolor();
    setlayout(code[1] >= '0' && code[1] <= '2' ? code[1] - '0' : 3);
    for (std::size_t k = 0; k <= 5; ++k) {
        const char digit = code[k + 2];
        int n = digit >= '0' && digit <= '9' ? digit - '0' : digit == 'A' || digit == 'B' ? digit - 'A' + 10 : 99;
        text[5 - k] = n == 99 ? "?" : notename(n);
    }
    doalldoline();
    guitarcolor();
}

void Model::setlayout(int code)
{
    const std::size_t top = code == 3 ? 0 : code == 1 ? 2 : 1;
    for (std::size_t i = 0; i < 120; ++i)
        visible[i] = i % 6 >= top;
    rowtop = {5640, 5880, 6120, 6360, 6600, 6840};
    if (code == 0)
        for (const std::size_t i : {11, 17, 23, 29, 35})
            visible[i] = false;
    else if (code == 1)
        rowtop = {5640, 5880, 5880, 6120, 6360, 6600};
    else if (code == 2)
        rowtop = {5640, 5640, 5880, 6120, 6360, 6600};
    layout = code;
}

void Model::doline(int row, std::string s)
{
    if (row < 0 || row > 5)
        return;
    noteflat(s);
    text.at(static_cast<std::size_t>(row)) = s;
    for (int i = row; i <= 113; i += 6) {
        if (!(row == 5 && layout == 0) || i > 31)
            noteup(s);
        text.at(static_cast<std::size_t>(i + 6)) = s;
    }
}

void Model::doalldoline()
{
    for (int row = 0; row <= 5; ++row)
        doline(row, text[static_cast<std::size_t>(row)]);
}

void Model::gureset()
{
    back.fill(0xFFFFFF);
}

void Model::guitarcolor()
{
    gureset();
    if (cbopreset.text.size() < 4)
        return;
    const std::string prefix = cbopreset.text.substr(0, 4);
    const bool all = prefix == "show";
    const auto found = spans.find(prefix);
    const Span span = all ? Span{0, 119, 0} : found == spans.end() ? Span{0, 29, 0} : found->second;
    if (!all)
        PositionFret = span.capo;
    getcapo(span.capo);
    for (std::size_t i = span.first; i <= span.last; ++i)
        for (std::size_t n = 0; n <= (all ? 3U : 5U); ++n)
            if (note[n] != " " && !note[n].empty() && note[n] == text[i])
                back[i] = 0x808080;
    for (std::size_t s = span.first; !all && s <= span.first + 5; ++s) {
        bool seen = false;
        for (std::size_t i = s; i <= span.last; i += 6) {
            if (back[i] == 0x808080 && seen)
                back[i] = 0xC0C0C0;
            else if (back[i] == 0x808080)
                seen = true;
        }
    }
}

void Model::getcapo(int capo)
{
    static const std::vector<int> bars{1680, 2160, 2640, 3120, 3600, 4050, 4470, 4890,
                                       5310, 5730, 6150, 6630, 7050, 7440, 7800};
    barvisible = capo != 0;
    barleft = 1680;
    if (capo != 0) {
        barleft = bars.at(static_cast<std::size_t>(capo - 1));
        if (cboleft.text == "Left Hand")
            barleft = 9960 - barleft;
    }
    followervisible = barvisible;
    followerleft = barleft + 120;
}

void Model::cbotype_Click(int item)
{
    cbotype.pick(item);
    presets();
    gettuning();
}

void Model::cbotuning_Click(int item)
{
    cbotuning.pick(item);
    gettuning();
}

void Model::cboleft_Click(int item)
{
    cboleft.pick(item);
    guitarcolor();
}

void Model::cbopreset_Click(int item)
{
    cbopreset.pick(item);
    guitarcolor();
}

void Model::presetstep(int direction)
{
    const int n = static_cast<int>(cbopreset.items.size());
    const int i = cbopreset.listindex;
    if (direction > 0)
        cbopreset.pick(i > n - 2 ? 0 : i + 1);
    else
        cbopreset.pick(i < 1 ? n - 1 : i - 1);
    guitarcolor();
}

void Model::optu_Click()
{
    presetstep(cboleft.text == "Left Hand" ? -1 : +1);
}

void Model::optd_Click()
{
    presetstep(cboleft.text == "Left Hand" ? +1 : -1);
}

void Model::cmdret_Click(int index)
{
    retunenote = index;
    if (retunenote >= 1 && retunenote <= 12 && retunerow <= 5) {
        int n = retunenote - 1;
        text.at(static_cast<std::size_t>(retunerow)) = notename(n);
        doline(retunerow, text.at(static_cast<std::size_t>(retunerow)));
        guitarcolor();
    }
    retunenote = 0; // the retune screen closes
}

} // namespace tests
