// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/rtf.h"
#include "help/rtftokens.h"

#include <map>

namespace help {

/// Reads one RTF text from beginning to end, group by group without recursion.
class RtfReader {
public:
    explicit RtfReader(std::string_view text) : tokens(text) {}

    std::vector<Paragraph> read();

private:
    /// Where the text of a group goes.
    enum class Destination : std::uint8_t { text, fonts, colours, nowhere };

    struct Font {
        int page = 0; ///< code page; 0: the document's
        bool fixed = false;
        bool symbol = false; ///< its characters are signs, not letters
    };

    /// What a group's end gives back.
    struct Group {
        Destination destination = Destination::text;
        RunFormat run;
        ParagraphFormat paragraph;
        int font = 0;
        bool hidden = false;
        bool label = false; ///< a list's bullet or number
        int fallbacks = 1;  ///< how many characters stand for one that is written as a number
    };

    /// A control word and what it does. `absent` stands for a number that is not written.
    struct Word {
        std::string_view name;
        void (RtfReader::*act)(int value);
        int absent = 0;
    };
    static const Word* findword(std::string_view name);

    void opengroup();
    void closegroup();
    void doword(const Token& token);
    void dosign(unsigned char sign);
    void dobyte(unsigned char byte);
    void addcolour();
    void addcharacter(char32_t character);
    void addunit(char32_t unit);
    void appendtext(char32_t character);
    void endparagraph();
    void endtext();
    Font currentfont() const;

    void bold(int on) { now.run.bold = on != 0; }
    void italic(int on) { now.run.italic = on != 0; }
    void underline(int on) { now.run.underline = on != 0; }
    void nounderline(int) { now.run.underline = false; }
    void hide(int on) { now.hidden = on != 0; }
    void label(int) { now.label = true; }
    void plain(int);
    void size(int halfpoints);
    void colour(int number);
    void font(int number);
    void charset(int number);
    void fixedfont(int);

    void par(int) { endparagraph(); }
    void pard(int) { now.paragraph = {}; }
    void left(int) { now.paragraph.alignment = Alignment::left; }
    void centre(int) { now.paragraph.alignment = Alignment::centre; }
    void right(int) { now.paragraph.alignment = Alignment::right; }
    void justified(int) { now.paragraph.alignment = Alignment::justified; }
    void leftindent(int twips);
    void rightindent(int twips);
    void firstindent(int twips);
    void spacebefore(int twips);
    void spaceafter(int twips);
    void tabstop(int twips);
    void intable(int) { now.paragraph.intable = true; }
    void cell(int);
    void innercell(int)
    {
        intable(0);
        endparagraph();
    }
    void row(int);

    void character(int code) { addcharacter(static_cast<char32_t>(code)); }
    void unit(int number);
    void fallbacks(int count);
    void documentpage(int number) { page = number; }
    void ansi(int) { page = ansipage; }
    void mac(int) { page = macpage; }
    void pc(int) { page = pcpage; }
    void pca(int) { page = pcapage; }
    void defaultfont(int number);

    void skip(int) { now.destination = Destination::nowhere; }
    void fonttable(int) { enter(Destination::fonts); }
    void colourtable(int) { enter(Destination::colours); }
    void enter(Destination destination);
    void red(int share) { setshare(16, share); }
    void green(int share) { setshare(8, share); }
    void blue(int share) { setshare(0, share); }
    void setshare(unsigned shift, int share);

    static constexpr int ansipage = 1252;
    static constexpr int macpage = 10000;
    static constexpr int pcpage = 437;
    static constexpr int pcapage = 850;

    Tokens tokens;
    std::vector<Paragraph> paragraphs;
    Paragraph building;
    Group now;
    std::vector<Group> groups;
    std::size_t unsaved = 0; ///< open groups too deep to keep what their end gives back
    int toskip = 0;          ///< characters that stand for one that was read already
    char32_t highsurrogate = 0;
    TablePlace place{0, 0};
    int page = ansipage;
    int plainfont = 0;
    std::map<int, Font> fonts;
    std::vector<std::optional<std::uint32_t>> colours;
    std::optional<std::uint32_t> mixed; ///< the colour that is being read
};

} // namespace help
