// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/rtfreader.h"

#include "help/codepages.h"
#include "help/unicode.h"

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr std::string_view signature = "{\\rtf";
constexpr std::size_t deepest = 1000; ///< groups further in end without giving anything back
constexpr std::size_t mostparagraphs = 100'000;
constexpr std::size_t mosttabs = 32;
constexpr std::size_t mostcolours = 4096;
constexpr std::size_t mostfonts = 4096;
constexpr int lastcolumn = 31;
constexpr int farthest = 22 * 1440;
constexpr char32_t bulletsign = 0x2022;
constexpr char32_t hardblank = 0xA0;
constexpr char32_t hardhyphen = 0x2011;
constexpr unsigned char symbolbullet = 0xB7;

int held(int twips)
{
    return std::clamp(twips, -farthest, farthest);
}

} // namespace

std::vector<Paragraph> RtfReader::read()
{
    for (Token token = tokens.next(); token.kind != Token::Kind::end; token = tokens.next()) {
        switch (token.kind) {
        case Token::Kind::open:
            opengroup();
            break;
        case Token::Kind::close:
            closegroup();
            break;
        case Token::Kind::word:
            doword(token);
            break;
        case Token::Kind::sign:
            dosign(token.byte);
            break;
        default:
            dobyte(token.byte);
        }
    }
    endtext();
    return std::move(paragraphs);
}

void RtfReader::opengroup()
{
    toskip = 0;
    if (groups.size() < deepest)
        groups.push_back(now);
    else
        ++unsaved;
}

void RtfReader::closegroup()
{
    toskip = 0;
    if (unsaved > 0) {
        --unsaved;
    } else if (!groups.empty()) {
        if (groups.size() == 1)
            endtext(); // while the last paragraph's form is still in force
        now = std::move(groups.back());
        groups.pop_back();
    }
}

void RtfReader::doword(const Token& token)
{
    if (toskip > 0) {
        --toskip;
        return;
    }
    const Word* word = findword(token.word);
    if (word && now.destination != Destination::nowhere)
        (this->*word->act)(token.value.value_or(word->absent));
}

void RtfReader::dosign(unsigned char sign)
{
    if (toskip > 0) {
        --toskip;
        return;
    }
    switch (sign) {
    case '*':
        return skip(0);
    case '~':
        return addcharacter(hardblank);
    case '_':
        return addcharacter(hardhyphen);
    case '\\':
    case '{':
    case '}':
        return addcharacter(sign);
    case '\r':
    case '\n':
        return addcharacter('\n');
    case '\t':
        return addcharacter('\t');
    default:
        return;
    }
}

void RtfReader::dobyte(unsigned char byte)
{
    if (toskip > 0) {
        --toskip;
        return;
    }
    if (now.destination == Destination::colours && byte == ';')
        return addcolour();
    const Font shown = currentfont();
    if (shown.symbol)
        return addcharacter(byte == symbolbullet ? bulletsign : byte);
    constexpr unsigned char upper = 0x80;
    addcharacter(byte < upper ? byte : codepage(shown.page != 0 ? shown.page : page).upper.at(byte - upper));
}

void RtfReader::addcolour()
{
    if (colours.size() < mostcolours)
        colours.push_back(mixed);
    mixed.reset();
}

void RtfReader::addcharacter(char32_t character)
{
    const bool unprintable = character < ' ' && character != '\t' && character != '\n';
    if (now.destination != Destination::text || now.hidden || unprintable)
        return;
    if (now.label && building.runs.empty() && (character == ' ' || character == '\t'))
        return; // of a number that is set flush right, or of a label without any
    if (character == '\n')
        endparagraph();
    else
        addunit(character);
}

/// A character beyond the first plane comes as two surrogates; one without the other is no character.
void RtfReader::addunit(char32_t unit)
{
    const char32_t high = std::exchange(highsurrogate, 0);
    if (high != 0 && islowsurrogate(unit))
        return appendtext(joined(high, unit));
    if (high != 0)
        appendtext(replacement);
    if (ishighsurrogate(unit))
        highsurrogate = unit;
    else
        appendtext(unit);
}

void RtfReader::appendtext(char32_t character)
{
    RunFormat format = now.run;
    format.fixed = currentfont().fixed;
    if (building.runs.empty() || building.runs.back().format != format)
        building.runs.push_back({{}, format});
    appendutf8(building.runs.back().text, character);
}

void RtfReader::endtext()
{
    if (!building.runs.empty() || highsurrogate != 0)
        endparagraph();
}

void RtfReader::endparagraph()
{
    if (now.destination != Destination::text)
        return;
    if (std::exchange(highsurrogate, 0) != 0)
        appendtext(replacement);
    building.format = now.paragraph;
    if (building.format.intable)
        building.cell = place;
    if (paragraphs.size() < mostparagraphs)
        paragraphs.push_back(std::move(building));
    building = {};
}

RtfReader::Font RtfReader::currentfont() const
{
    const auto found = fonts.find(now.font);
    return found == fonts.end() ? Font{} : found->second;
}

void RtfReader::plain(int /*unused*/)
{
    now.run = {};
    now.font = plainfont;
    now.hidden = false;
}

void RtfReader::size(int halfpoints)
{
    constexpr int smallest = 2;
    constexpr int largest = 400;
    now.run.size = std::clamp(halfpoints, smallest, largest);
}

void RtfReader::colour(int number)
{
    const auto i = static_cast<std::size_t>(number);
    now.run.colour = number >= 0 && i < colours.size() ? colours.at(i) : std::nullopt;
}

void RtfReader::font(int number)
{
    now.font = number;
    if (now.destination == Destination::fonts && fonts.size() < mostfonts)
        fonts[number] = {};
}

void RtfReader::charset(int number)
{
    const auto found = fonts.find(now.font);
    if (now.destination != Destination::fonts || found == fonts.end())
        return;
    constexpr int symbols = 2;
    found->second.page = charsetpage(number);
    found->second.symbol = number == symbols;
}

void RtfReader::fixedfont(int /*unused*/)
{
    const auto found = fonts.find(now.font);
    if (now.destination == Destination::fonts && found != fonts.end())
        found->second.fixed = true;
}

void RtfReader::leftindent(int twips)
{
    now.paragraph.left = held(twips);
}

void RtfReader::rightindent(int twips)
{
    now.paragraph.right = held(twips);
}

void RtfReader::firstindent(int twips)
{
    now.paragraph.first = held(twips);
}

void RtfReader::spacebefore(int twips)
{
    now.paragraph.before = held(twips);
}

void RtfReader::spaceafter(int twips)
{
    now.paragraph.after = held(twips);
}

void RtfReader::tabstop(int twips)
{
    if (now.paragraph.tabs.size() < mosttabs)
        now.paragraph.tabs.push_back(held(twips));
}

void RtfReader::cell(int /*unused*/)
{
    now.paragraph.intable = true;
    endparagraph();
    place.column = std::min(place.column + 1, lastcolumn);
}

void RtfReader::row(int /*unused*/)
{
    if (place.column > 0) // a row without cells is none
        ++place.row;
    place.column = 0;
}

void RtfReader::unit(int number)
{
    constexpr int units = 0x10000;
    addcharacter(static_cast<char32_t>(((number % units) + units) % units));
    toskip = now.fallbacks;
}

void RtfReader::fallbacks(int count)
{
    constexpr int most = 100;
    now.fallbacks = std::clamp(count, 0, most);
}

void RtfReader::defaultfont(int number)
{
    plainfont = number;
    now.font = number;
}

void RtfReader::enter(Destination destination)
{
    now.destination = destination;
    mixed.reset();
}

void RtfReader::setshare(unsigned shift, int share)
{
    constexpr int most = 255;
    const auto bits = static_cast<std::uint32_t>(std::clamp(share, 0, most));
    mixed = (mixed.value_or(0) & ~(0xFFU << shift)) | bits << shift;
}

// clang-format off
const RtfReader::Word* RtfReader::findword(std::string_view name)
{
    using R = RtfReader;
    static constexpr auto words = std::to_array<Word>({
    //  word            what it does        number when there is none, if the word takes one
      { "ansi",         &R::ansi },
      { "ansicpg",      &R::documentpage,   ansipage },
      { "author",       &R::skip },
      { "b",            &R::bold,           1 },
      { "blue",         &R::blue,           0 },
      { "bullet",       &R::character,      0x2022 },
      { "buptim",       &R::skip },
      { "cell",         &R::cell },
      { "cf",           &R::colour,         0 },
      { "colortbl",     &R::colourtable },
      { "comment",      &R::skip },
      { "deff",         &R::defaultfont,    0 },
      { "emdash",       &R::character,      0x2014 },
      { "emspace",      &R::character,      0x2003 },
      { "endash",       &R::character,      0x2013 },
      { "enspace",      &R::character,      0x2002 },
      { "f",            &R::font,           0 },
      { "fcharset",     &R::charset,        0 },
      { "fi",           &R::firstindent,    0 },
      { "filetbl",      &R::skip },
      { "fldinst",      &R::skip },
      { "fmodern",      &R::fixedfont },
      { "fonttbl",      &R::fonttable },
      { "footer",       &R::skip },
      { "footerf",      &R::skip },
      { "footerl",      &R::skip },
      { "footerr",      &R::skip },
      { "footnote",     &R::skip },
      { "fs",           &R::size,           24 },
      { "green",        &R::green,          0 },
      { "header",       &R::skip },
      { "headerf",      &R::skip },
      { "headerl",      &R::skip },
      { "headerr",      &R::skip },
      { "i",            &R::italic,         1 },
      { "info",         &R::skip },
      { "intbl",        &R::intable },
      { "ldblquote",    &R::character,      0x201C },
      { "li",           &R::leftindent,     0 },
      { "line",         &R::character,      0x2028 },
      { "listoverridetable", &R::skip },
      { "listtable",    &R::skip },
      { "listtext",     &R::label },
      { "lquote",       &R::character,      0x2018 },
      { "mac",          &R::mac },
      { "nestcell",     &R::innercell },
      { "nonesttables", &R::skip },
      { "nonshppict",   &R::skip },
      { "objdata",      &R::skip },
      { "object",       &R::skip },
      { "page",         &R::par },
      { "par",          &R::par },
      { "pard",         &R::pard },
      { "pc",           &R::pc },
      { "pca",          &R::pca },
      { "pict",         &R::skip },
      { "plain",        &R::plain },
      { "pntext",       &R::label },
      { "qc",           &R::centre },
      { "qj",           &R::justified },
      { "ql",           &R::left },
      { "qr",           &R::right },
      { "rdblquote",    &R::character,      0x201D },
      { "red",          &R::red,            0 },
      { "revtbl",       &R::skip },
      { "ri",           &R::rightindent,    0 },
      { "row",          &R::row },
      { "rquote",       &R::character,      0x2019 },
      { "rxe",          &R::skip },
      { "sa",           &R::spaceafter,     0 },
      { "sb",           &R::spacebefore,    0 },
      { "sect",         &R::par },
      { "stylesheet",   &R::skip },
      { "tab",          &R::character,      '\t' },
      { "tc",           &R::skip },
      { "tx",           &R::tabstop,        0 },
      { "txe",          &R::skip },
      { "u",            &R::unit,           '?' },
      { "uc",           &R::fallbacks,      1 },
      { "ul",           &R::underline,      1 },
      { "uld",          &R::underline,      1 },
      { "uldb",         &R::underline,      1 },
      { "ulnone",       &R::nounderline },
      { "ulw",          &R::underline,      1 },
      { "v",            &R::hide,           1 },
      { "xe",           &R::skip },
    });
    static_assert(std::ranges::is_sorted(words, {}, &Word::name));
    const auto* found = std::ranges::lower_bound(words, name, {}, &Word::name);
    return found != words.end() && found->name == name ? found : nullptr;
}
// clang-format on

std::string Paragraph::text() const
{
    std::string whole;
    for (const Run& run : runs)
        whole += run.text;
    return whole;
}

std::vector<Paragraph> readrtf(std::string_view text)
{
    return text.starts_with(signature) ? RtfReader(text).read() : std::vector<Paragraph>{};
}

} // namespace help
