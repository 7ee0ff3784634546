// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/cameramodel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tests {
namespace {

constexpr std::size_t chars = 0;
constexpr std::size_t font = 2;
constexpr std::size_t topmargin = 5;
constexpr std::size_t leftmargin = 6;

double number(const std::string& text)
{
    const std::size_t end = text.find_first_not_of("0123456789.+- ");
    return std::strtod(text.substr(0, end).c_str(), nullptr);
}

int whole(const std::string& text)
{
    return static_cast<int>(std::lrint(std::clamp(number(text), -2e9, 2e9)));
}

std::string turned(std::string line)
{
    return {line.rbegin(), line.rend()};
}

} // namespace

void CameraModel::photochord()
{
    if (chosen == 1)
        chordsnap();
    else
        heard.emplace_back("open camquestion");
}

void CameraModel::question(int mode)
{
    heard.emplace_back("close camquestion");
    setmode(mode);
    chordsnap();
}

void CameraModel::setmode(int mode)
{
    piano = mode;
    chosen = 1;
}

void CameraModel::chordsnap()
{
    snapshots += snapshots < 32767 ? 1 : 0;
    readfrets();
    shot[7] = main.note[6] + " " + main.cordtyp1;
    shot[8] = main.note[7] + " " + main.cordtyp2;
    shot[9] = "";
    for (std::size_t i = 0; i <= 5; ++i)
        if (main.note[i] != " " && !main.note[i].empty())
            shot[9] += main.note[i] + " ";
    for (std::size_t i = 7; i <= 9; ++i)
        blockwidth = std::max(blockwidth, static_cast<int>(shot[i].size()));
    while (shot[9].size() > 2 && shot[9].back() == ' ')
        shot[9].erase(shot[9].size() - 1);
    if (piano == 1)
        keyboard();
    else
        strings();
    if (pad())
        place();
    else
        heard.emplace_back("critical: Problem with this print string.  Have to abort");
    showcamera();
}

void CameraModel::readfrets()
{
    const auto colour = [&](std::size_t f, std::size_t s) { return main.fretboard.cell.at(f * 6 + s).back; };
    int most = 0;
    pressed.fill(0);
    further.fill(0);
    for (std::size_t s = 0; s <= 5; ++s)
        for (int f = 0; f <= 19; ++f)
            if (colour(static_cast<std::size_t>(f), s) == 0x808080) {
                pressed[s] = f;
                most = std::max(most, f);
                break;
            }
    top = most;
    const int end = std::min(main.PositionFret + 4, 19);
    for (std::size_t s = 0; alt && s <= 5; ++s)
        for (int f = pressed[s]; pressed[s] < top && pressed[s] < end && f <= end; ++f)
            if (colour(static_cast<std::size_t>(f), s) == 0xC0C0C0) {
                further[s] = f;
                most = std::max(most, f);
                break;
            }
    top = most;
    blockwidth = 2 * most + 4;
}

void CameraModel::strings()
{
    const int layout = static_cast<int>(main.fretboard.layout);
    for (std::size_t s = 0; s <= 5; ++s) {
        shot[s] = "";
        if ((s == 0 && layout != 3) || (s == 1 && layout == 1))
            continue;
        shot[s] = main.fretboard.cell.at(s).text;
        shot[s] += shot[s].size() < 2 ? " " : "";
        for (int f = 0; f <= top; ++f) {
            std::string cell = "-|";
            if (alt && f == further[s] && f >= 1)
                cell = "+|";
            if (f == pressed[s])
                cell = "*|";
            if (layout == 0 && s == 5 && f < 6)
                cell = "  ";
            shot[s] += cell;
        }
    }
    shot[6] = "  0";
    for (int j = 1; j <= top; ++j) {
        std::string d = (j < 10 ? " " : "") + std::to_string(j);
        if (j >= 10 && main.cboleft.text == "Left Hand")
            d = turned(d);
        shot[6] += (j == 10 ? " " : "") + d;
    }
}

void CameraModel::keyboard()
{
    shot[0] = "";
    shot[1] = "_______________________________";
    shot[2] = "|| | ||| | | ||| | ||| | | || |";
    shot[3] = "||_|_|||_|_|_|||_|_|||_|_|_|| |";
    shot[4] = "| | | | | | | | | | | | | | | |";
    shot[5] = "|_|_|_|_|_|_|_|_|_|_|_|_|_|_|_|";
    shot[6] = " C D E F G A B|C D E F G A B C ";
    shot[10] = "234567890123456789212345678931";
    const std::array<std::size_t, 12> column{2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13, 14};
    const std::string black = "010100101010";
    for (std::size_t k = 0; k <= 24; ++k) {
        const unsigned back = main.keyboard.key.at(k).back;
        if (back != 0xE0E0E0 && back != 0xFFFFFF)
            shot.at(black[k % 12] == '1' ? 2 : 4).at(column.at(k % 12) + 14 * (k / 12) - 1) = k < 12 ? '*' : '+';
    }
    blockwidth = 31;
}

bool CameraModel::pad()
{
    const bool mirrored = piano == 0 && main.cboleft.text == "Left Hand";
    const auto width = static_cast<std::size_t>(blockwidth);
    for (std::size_t i = 0; i <= 9; ++i) {
        if (shot[i].empty())
            continue;
        if (shot[i].size() > width)
            return false;
        const std::string blanks(width - shot[i].size(), ' ');
        if (mirrored && i <= 6 && shot[i].size() >= 2)
            shot[i] = turned(blanks + shot[i].substr(1, 1) + shot[i].substr(0, 1) + shot[i].substr(2));
        else
            shot[i] = blanks + shot[i];
    }
    return true;
}

void CameraModel::place()
{
    if (!pending[2].empty()) {
        const double s = number(txtspace);
        const auto n = static_cast<std::size_t>(std::clamp(std::nearbyint(s), 0.0, 255.0));
        const bool layouts = (!pending[0].empty() || shot[0].empty()) && (shot[1].empty() || !pending[1].empty());
        const bool narrow = pending[7].size() + n + shot[7].size() <= 255;
        if (!mult && number(txtchar) >= rowwidth + blockwidth + s && layouts && narrow) {
            for (std::size_t i = 0; i <= 9; ++i)
                if (!shot[i].empty())
                    pending[i] += std::string(n, ' ') + shot[i];
            rowwidth = static_cast<int>(pending[7].size());
            return;
        }
        printfill();
    }
    std::copy_n(shot.begin(), 10, pending.begin());
    if (mult)
        printfill();
}

void CameraModel::showcamera()
{
    taken = "Chord Snapshots taken so far = " + std::to_string(snapshots);
    last = "Last snapshot:  " + shot[7] + ",  " + shot[8];
    if (chosen == 1)
        kind = piano == 0 ? "STRINGED INSTRUMENTS" : "KEYBOARD / PIANO";
    const std::array<std::string, 4> roll{"3 or more", "2 or more", "1 or more", "maybe more"};
    if (piano == 0)
        left = "Snapshots Left:  " + (blocks < 4 ? roll.at(static_cast<std::size_t>(blocks)) : "roll finished");
    else
        left = "Snapshots Left: " + (snapshots < 10 ? std::to_string(10 - snapshots) : "Roll finished");
    heard.emplace_back("open ccamera");
    heard.emplace_back("beep");
}

void CameraModel::printfill()
{
    if (text.empty()) {
        text = "Chords:  KEYBOARD     (* = keys to press, + = alternate choices)";
        if (piano == 0)
            text = "Chords:  " + main.cbotype.text.substr(main.cbotype.text.find_first_not_of(' ')) + ",  " +
                   main.cbotuning.text + ",  " + main.cboleft.text + " view\n";
    }
    if (!pending[2].empty()) {
        text += "\n\n";
        for (const std::size_t i : {7U, 8U, 9U, 100U, 0U, 1U, 2U, 3U, 4U, 5U, 6U}) {
            if (i == 100U) {
                text += piano == 0 ? "\n" : "";
                continue;
            }
            text += pending.at(i) + (pending.at(i).empty() ? "" : "\n");
            pending.at(i) = "";
        }
        blocks += blocks < 32767 ? 1 : 0;
        rowwidth = 0;
    }
    countlines();
}

void CameraModel::countlines()
{
    int count = 0;
    for (const char c : text)
        count += c == '\n' ? 1 : 0;
    lines = std::to_string(std::min(count, 32767));
}

void CameraModel::allclear()
{
    text = kept = "";
    shot.fill("");
    pending.fill("");
    blockwidth = rowwidth = snapshots = blocks = 0;
    countlines();
}

void CameraModel::ask(const std::string& question, bool yes, bool camera)
{
    heard.push_back("ask: " + question);
    if (yes)
        allclear();
    if (camera)
        heard.emplace_back("close ccamera");
}

void CameraModel::view()
{
    openpage();
    printfill();
    heard.emplace_back("close ccamera");
}

void CameraModel::openpage()
{
    heard.emplace_back("open mprint");
    if (open)
        return;
    open = true;
    if (text.empty())
        text = kept;
    countlines();
    const std::array<int, 3> first{72, 4, 8};
    for (std::size_t i = 0; i < first.size(); ++i)
        if (stored.at(i) == 0)
            stored.at(i) = first.at(i);
    txtchar = std::to_string(stored[chars]);
    txtspace = std::to_string(stored[1]);
    txtfont = std::to_string(stored[font]);
    points = stored[font];
    mult = stored[3] == 1;
    alt = stored[4] == 1;
    charsize();
}

void CameraModel::charsize()
{
    const int c = whole(txtchar);
    const int m = stored[leftmargin];
    if (c == 0)
        return;
    const int size = c > 150 - m ? 5 : c > 106 - m ? 7 : c > 94 - m ? 9 : c > 83 - m ? 10 : c > 75 - m ? 11 : 12;
    txtfont = std::to_string(size);
    stored[font] = points = size;
}

void CameraModel::press(std::string& box, std::size_t setting, int change, int limit)
{
    const bool bytes = setting >= font;
    const int value = std::clamp(whole(box), bytes ? 0 : -32768, bytes ? 255 : 32767);
    if (change < 0 ? value <= limit : value >= limit) {
        heard.push_back(std::string("information: sorry, cannot go ") + (change < 0 ? "lower" : "higher") + " than " +
                        std::to_string(limit));
        return;
    }
    stored.at(setting) = value + change;
    box = std::to_string(value + change);
    if (setting == chars)
        charsize();
    if (setting == font)
        points = stored[font];
}

void CameraModel::mexit()
{
    if (!open)
        return;
    open = false;
    kept = text;
    bool held = true;
    const std::array<const std::string*, 3> boxes{&txtchar, &txtspace, &txtfont};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const int value = whole(*boxes.at(i));
        if (i == font ? value >= 0 && value <= 255 : value >= -32768 && value <= 32767)
            stored.at(i) = value;
        else
            held = false;
    }
    stored[3] = mult ? 1 : 0;
    stored[4] = alt ? 1 : 0;
    if (!held)
        heard.emplace_back("critical: one of the print variables is set wrong\nPlease ensure that numbers are set to\n"
                           "reasonable numbers only");
    heard.emplace_back("close mprint");
}

void CameraModel::loadpage(const std::string& file)
{
    allclear();
    for (std::size_t i = 0; i < file.size(); ++i) {
        if (file[i] == '\r')
            text += i + 1 < file.size() && file[i + 1] == '\n' ? "" : "\n";
        else
            text += file[i];
    }
    kept = text;
    countlines();
}

void CameraModel::chordprint()
{
    printfill();
    if (stored[topmargin] == 0)
        stored[topmargin] = 3;
    if (stored[leftmargin] == 0)
        stored[leftmargin] = 6;
    txttop = std::to_string(stored[topmargin]);
    txtleft = std::to_string(stored[leftmargin]);
    heard.emplace_back("open printdialog");
}

void CameraModel::cmdprint()
{
    stored[topmargin] = std::clamp(whole(txttop), 0, 30);
    stored[leftmargin] = std::clamp(whole(txtleft), 0, 30);
    printfill();
    std::string printed = text;
    if (const std::string indent(static_cast<std::size_t>(stored[leftmargin]), ' '); !indent.empty()) {
        for (std::size_t i = printed.size(); i-- > 0;)
            if (printed[i] == '\n')
                printed.insert(i + 1, indent);
        printed = indent + printed;
        while (printed.size() >= 2 && printed.back() == ' ')
            printed.erase(printed.size() - 1);
    }
    heard.push_back("print " + std::to_string(points) + ": " +
                    std::string(static_cast<std::size_t>(stored[topmargin]), '\n') + printed);
    heard.emplace_back("close printdialog");
}

} // namespace tests
