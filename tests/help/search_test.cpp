// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using help::Match;
using testing::Optional;

class SearchTest : public testing::Test {
protected:
    void load(const char16_t* text) { search.loaddata(text); }
    void expectfound(const char16_t* text, std::size_t begin, std::size_t end)
    {
        EXPECT_THAT(search.findcommand(text), Optional(Match{begin, end}));
    }
    void expectmissed(const char16_t* text) { EXPECT_EQ(search.findcommand(text), std::nullopt); }

    help::Search search;
};

TEST_F(SearchTest, find_hitHitMissHit)
{
    load(u"A chord, a Chord.");
    expectfound(u"chord", 2, 7);
    expectfound(u"chord", 11, 16);
    expectmissed(u"chord");
    expectfound(u"chord", 2, 7);
}

TEST_F(SearchTest, findOfAnotherText_goesOnFromTheLastMatch)
{
    load(u"fret string fret string");
    expectfound(u"string", 5, 11);
    expectfound(u"fret", 12, 16);
    expectmissed(u"fret");
    expectfound(u"string", 5, 11);
}

TEST_F(SearchTest, findAfterATopic_goesOnFromTheHeading)
{
    load(u"Bass is low. BASS: four strings, bass notes");
    EXPECT_THAT(search.findtopic("BASS"), Optional(Match{13, 17}));
    expectfound(u"bass", 33, 37);
}

TEST_F(SearchTest, topic_isSearchedFromTheTopExactlyAsWritten)
{
    load(u"banjo Banjo with Banjo with ");
    EXPECT_THAT(search.findtopic("Banjo with "), Optional(Match{6, 17}));
    EXPECT_THAT(search.findtopic("Banjo with "), Optional(Match{6, 17}));
    EXPECT_EQ(search.findtopic("BANJO"), std::nullopt);
    expectfound(u"banjo", 0, 5);
}

TEST_F(SearchTest, finalBlank_counts)
{
    load(u"Overlap. Overlap ");
    EXPECT_THAT(search.findtopic("Overlap "), Optional(Match{9, 17}));
}

TEST_F(SearchTest, emptytext_findsNothingAndForgetsNothing)
{
    load(u"one one");
    expectfound(u"one", 0, 3);
    expectmissed(u"");
    expectfound(u"one", 4, 7);
}

TEST_F(SearchTest, emptydocument_hasNoMatch)
{
    load(u"");
    expectmissed(u"a");
    EXPECT_EQ(search.findtopic("A"), std::nullopt);
    EXPECT_EQ(search.findtopic(""), std::nullopt);
}

TEST_F(SearchTest, matchAtTheEnd_isFollowedByAMiss)
{
    load(u"the end");
    expectfound(u"end", 4, 7);
    expectmissed(u"end");
}

TEST_F(SearchTest, newdocument_isSearchedFromItsTop)
{
    load(u"fret fret");
    expectfound(u"fret", 0, 4);
    load(u"fret fret");
    expectfound(u"fret", 0, 4);
}

TEST_F(SearchTest, capitalsOutsideAscii_matchTheirSmallLetters)
{
    load(u"PRÉLUDE, Čtyři, ΛΥΡΑ, ГИТАРА, Ÿ, \U0001D11E clef");
    expectfound(u"prélude", 0, 7);
    expectfound(u"čTYŘI", 9, 14);
    expectfound(u"λυρα", 16, 20);
    expectfound(u"гитара", 22, 28);
    expectfound(u"ÿ", 30, 31);
    expectfound(u"\U0001D11E CLEF", 33, 40);
    expectmissed(u"prelude");
}

struct AlphabetRow {
    const char16_t* capitals;
    const char16_t* small;
};

// clang-format off
const AlphabetRow alphabetrows[] = {
    {u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",                       u"abcdefghijklmnopqrstuvwxyz"},
    {u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ",                   u"àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"},
    {u"ĀĂĄĆĈĊČĎĐĒĔĖĘĚĜĞĠĢĤĦĨĪĬĮĲĴĶĹĻĽĿŁŃŅŇŊŌŎŐŒŔŖŘŚŜŞŠŢŤŦŨŪŬŮŰŲŴŶŸŹŻŽ",
     u"āăąćĉċčďđēĕėęěĝğġģĥħĩīĭįĳĵķĺļľŀłńņňŋōŏőœŕŗřśŝşšţťŧũūŭůűųŵŷÿźżž"},
    {u"ΆΈΉΊΌΎΏΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫ",                u"άέήίόύώαβγδεζηθικλμνξοπρστυφχψωϊϋ"},
    {u"ЀЁЂЃЄЅІЇЈЉЊЋЌЍЎЏАБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ", u"ѐёђѓєѕіїјљњћќѝўџабвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {u"ѠѪѲҀҐҒҖҚҢҮҶҺӀӁӋӍӐӘӢӨӶԀԮ",                          u"ѡѫѳҁґғҗқңүҷһӏӂӌӎӑәӣөӷԁԯ"},
    {u"ḀḐẀẄẔẞẠẤỆỌỮỸỾ",                                    u"ḁḑẁẅẕßạấệọữỹỿ"},
};
// clang-format on

TEST_F(SearchTest, wordsOfOneAlphabet_areFoundBothWays)
{
    for (const auto& [capitals, small] : alphabetrows) {
        const std::size_t length = std::u16string_view(small).size();
        load(capitals);
        expectfound(small, 0, length);
        load(small);
        expectfound(capitals, 0, length);
    }
}

TEST_F(SearchTest, sigmaAtTheEnd_isASigma)
{
    load(u"Ο ΗΧΟΣ, ο ήχος");
    expectfound(u"ηχος", 2, 6);
    expectfound(u"ΉΧΟΣ", 10, 14);
}

TEST_F(SearchTest, textBesideTheAlphabets_isFoundAsItIs)
{
    load(u"日本語の和音 ♯♭");
    expectfound(u"和音", 4, 6);
    expectfound(u"♭", 8, 9);
    expectmissed(u"和声");
}

TEST(SmallLetter, signsAndSmallLetters_stay)
{
    for (const char16_t unit : {u'a', u'ß', u'÷', u'×', u'#', u'9', u'ž', u'\u0130', u'\u0131', u'\u0138', u'ŉ', u'ſ',
                                u'\u03A2', u'ΐ', u'ӏ', u'\u1E9F', u'@', u'[', u'\uFFFD'})
        EXPECT_EQ(help::smallletter(unit), unit) << std::hex << unsigned{unit};
}

TEST(SmallLetter, everyunit_isSmallAfterOneStep)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const char16_t once = help::smallletter(static_cast<char16_t>(unit));
        EXPECT_EQ(help::smallletter(once), once) << std::hex << unit;
    }
}

} // namespace
