// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/rtf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using help::Alignment;
using help::Paragraph;
using help::readrtf;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

/// A document's paragraphs as plain texts.
Texts texts(std::string_view document)
{
    Texts found;
    for (const Paragraph& paragraph : readrtf(document))
        found.push_back(paragraph.text());
    return found;
}

std::string inbraces(std::string_view body)
{
    return R"({\rtf1\ansi )" + std::string(body) + "}";
}

struct TextCase {
    const char* name;
    const char* body;
    Texts paragraphs;
};

class RtfText : public testing::TestWithParam<TextCase> {};

TEST_P(RtfText, body_readsAsParagraphs)
{
    EXPECT_EQ(texts(inbraces(GetParam().body)), GetParam().paragraphs);
}

// clang-format off
const TextCase textcases[] = {
//  name                       body                                              paragraphs
  { "nothing",                 R"()",                                            {} },
  { "par_ends_a_paragraph",    R"(one\par two)",                                 {"one", "two"} },
  { "final_par_adds_none",     R"(one\par)",                                     {"one"} },
  { "empty_paragraph",         R"(one\par\par two)",                             {"one", "", "two"} },
  { "line_ends_are_no_text",   "o\r\nne\n",                                     {"one"} },
  { "escaped_line_end",        "one\\\ntwo",                                    {"one", "two"} },
  { "escaped_signs",           R"(\{\\\})",                                      {"{\\}"} },
  { "one_blank_ends_a_word",   R"(\b  one)",                                     {" one"} },
  { "number_ends_a_word",      R"(\fs24one)",                                    {"one"} },
  { "tab",                     R"(one\tab two)",                                 {"one\ttwo"} },
  { "line",                    R"(one\line two)",                                {"one\u2028two"} },
  { "hard_blank",              R"(one\~two)",                                    {"one\u00A0two"} },
  { "quotes_and_dashes",       R"(\ldblquote a\rdblquote\emdash\rquote)",       {"\u201Ca\u201D\u2014\u2019"} },
  { "spaces_and_signs",        R"(a\emspace b\enspace c\endash\bullet\lquote)", {"a\u2003b\u2002c\u2013\u2022\u2018"} },
  { "windows_1252",            R"(\'e9\'80\'95)",                                {"\u00E9\u20AC\u2022"} },
  { "raw_byte",                "\xE9",                                          {"\u00E9"} },
  { "windows_1250",            R"(\ansicpg1250 \'e8)",                           {"\u010D"} },
  { "windows_1251",            R"(\ansicpg1251 \'e8)",                           {"\u0438"} },
  { "unknown_page",            R"(\ansicpg4711 \'e8)",                           {"\u00E8"} },
  { "mac",                     R"(\mac \'8e)",                                   {"\u00E9"} },
  { "unicode",                 R"(\u8364?)",                                     {"\u20AC"} },
  { "unicode_fallback_byte",   R"(\u233\'e9!)",                                  {"\u00E9!"} },
  { "unicode_no_fallback",     R"(\uc0\u233 !)",                                 {"\u00E9!"} },
  { "unicode_two_fallbacks",   R"(\uc2\u233 ab!)",                               {"\u00E9!"} },
  { "unicode_negative",        R"(\u-3?)",                                       {"\uFFFD"} },
  { "unicode_surrogates",      R"(\u-10188?\u-8930?)",                           {"\U0001D11E"} },
  { "lone_surrogate",          R"(\u-10188?a)",                                  {"\uFFFDa"} },
  { "fallback_ends_at_group",  R"({\u233}a)",                                    {"\u00E9a"} },
  { "unknown_word",            R"(a\frobnicate12 b)",                            {"ab"} },
  { "unknown_destination",     R"(a{\*\frobnicate b{c}}d)",                      {"ad"} },
  { "known_destinations",      R"(a{\info{\title b}}{\header c}{\pict 00ff}d)",  {"ad"} },
  { "field_shows_its_result",  R"({\field{\*\fldinst X}{\fldrslt y}})",          {"y"} },
  { "hidden_text",             R"(a{\v b}c)",                                    {"ac"} },
  { "font_table",              R"({\fonttbl{\f0\fswiss Arial;}}a)",              {"a"} },
  { "font_with_charset",       R"({\fonttbl{\f1\fcharset204 A;}}\f1\'e8)",      {"\u0438"} },
  { "symbol_bullet",           R"({\fonttbl{\f1\fcharset2 S;}}{\f1\'b7}\tab a)", {"\u2022\ta"} },
  { "bullet_text",             R"({\pntext\f0\bullet\tab}a\par)",               {"\u2022\ta"} },
  { "list_text",               R"({\listtext 1.\tab}a\par)",                    {"1.\ta"} },
  { "label_set_flush_right",   R"({\listtext  1.\tab}a\par)",                   {"1.\ta"} },
  { "label_of_no_number",      R"({\listtext\tab}a\par)",                      {"a"} },
  { "tab_behind_no_label",     R"({\listtext\tab}\tab a\par)",                 {"\ta"} },
  { "page_ends_paragraph",     R"(a\page b\sect c)",                              {"a", "b", "c"} },
  { "bin_is_passed_over",      R"(a\bin5 }}}}}b)",                               {"ab"} },
  { "bin_longer_than_text",    R"(a\bin999999 b)",                               {"a"} },
  { "negative_bin",            R"(a\bin-5 b)",                                   {"ab"} },
  { "huge_number",             R"(\fs99999999999999999999 a\li-99999999999 b)",  {"ab"} },
  { "hard_hyphen",             R"(one\_two)",                                     {"one\u2011two"} },
  { "escaped_tab",             "one\\\ttwo",                                     {"one\ttwo"} },
  { "unknown_sign",            R"(one\:two)",                                     {"onetwo"} },
  { "capital_word",            R"(a\B\PAR b)",                                    {"ab"} },
  { "minus_without_a_number",  R"(a\b-c)",                                        {"a-c"} },
  { "minus_at_the_end",        "a\\b-",                                          {"a-"} },
  { "fallback_word",           R"(\u233\emdash b)",                               {"\u00E9b"} },
  { "fallback_sign",           R"(\u233\~b)",                                     {"\u00E9b"} },
  { "high_surrogate_at_end",   R"(a\u-10188?)",                                   {"a\uFFFD"} },
  { "two_high_surrogates",     R"(\u-10188?\u-10188?\u-8930?)",                   {"\uFFFD\U0001D11E"} },
  { "low_surrogate",           R"(a\u-8930?b)",                                   {"a\uFFFDb"} },
  { "pc",                      R"(\pc \'82)",                                     {"\u00E9"} },
  { "pca",                     R"(\pca \'d5)",                                    {"\u0131"} },
  { "symbol_letter",           R"({\fonttbl{\f1\fcharset2 S;}}\f1 a)",           {"a"} },
  { "charset_of_no_font",      R"({\fonttbl\fcharset204 A;}\'e8)",               {"\u00E8"} },
  { "charset_outside_table",   R"({\fonttbl{\f0 A;}}\f0\fcharset204\'e8)",       {"\u00E8"} },
  { "semicolon_is_text",       R"({\colortbl;}a;b)",                             {"a;b"} },
  { "par_outside_text",        R"(a{\fonttbl\par}b)",                            {"ab"} },
  { "end_outside_text",        R"(a\fonttbl)",                                   {"a"} },
  { "half_an_escape",          R"(a\'4)",                                        {"a"} },
  { "bad_escape",              R"(a\'zz)",                                       {"azz"} },
  { "too_many_ends",           R"(a}}}b)",                                       {"a", "b"} },
  { "too_few_ends",            R"(a{{{b)",                                       {"ab"} },
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Texts, RtfText, testing::ValuesIn(textcases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Rtf, textThatDoesNotBeginAsRtf_givesNothing)
{
    for (const char* text : {"", "{", "plain text", "{\\rt", " {\\rtf1 a}", "\\rtf1 a"})
        EXPECT_TRUE(readrtf(text).empty()) << text;
}

TEST(Rtf, runs_bearTheirLook)
{
    const auto read = readrtf(inbraces(
        R"({\fonttbl{\f0 A;}{\f1\fmodern B;}}{\colortbl;\red1\green2\blue255;}{\b a}{\i b}{\ul c}\f1 d\f0\cf1\fs30 e\plain f)"));
    ASSERT_EQ(read.size(), 1U);
    const std::vector<help::Run> expected{
        {"a", {.bold = true}},
        {"b", {.italic = true}},
        {"c", {.underline = true}},
        {"d", {.fixed = true}},
        {"e", {.size = 30, .colour = 0x0102FF}},
        {"f", {}},
    };
    EXPECT_EQ(read.front().runs, expected);
}

struct PageRow {
    int charset; ///< of a font
    int page;    ///< of the document
    const char* byte;
    const char* character;
};

TEST(Rtf, charsetOfAFontAndPageOfTheDocument_nameTheSameBytes)
{
    const PageRow rows[] = {{77, 10000, "8e", "\u00E9"}, {161, 1253, "e1", "\u03B1"}, {162, 1254, "fe", "\u015F"},
                            {186, 1257, "e0", "\u0105"}, {204, 1251, "e8", "\u0438"}, {238, 1250, "e8", "\u010D"},
                            {254, 437, "9b", "\u00A2"},  {255, 850, "9b", "\u00F8"},  {0, 1252, "9b", "\u203A"}};
    for (const PageRow& row : rows) {
        const std::string byte = std::string("\\'") + row.byte;
        const std::string font = "{\\fonttbl{\\f1\\fcharset" + std::to_string(row.charset) + " A;}}\\f1";
        EXPECT_THAT(texts(inbraces(font + byte)), ElementsAre(row.character)) << row.charset;
        EXPECT_THAT(texts(inbraces("\\ansicpg" + std::to_string(row.page) + byte)), ElementsAre(row.character))
            << row.page;
    }
}

TEST(Rtf, everyDestinationThatIsNoText_isPassedOver)
{
    for (const char* name :
         {"author",    "buptim",     "comment", "filetbl", "fldinst", "footer",  "footerf", "footerl",
          "footerr",   "footnote",   "header",  "headerf", "headerl", "headerr", "info",    "listoverridetable",
          "listtable", "nonshppict", "objdata", "object",  "pict",    "revtbl",  "rxe",     "stylesheet",
          "tc",        "txe",        "xe"})
        EXPECT_THAT(texts(inbraces("a{\\" + std::string(name) + " b{c}}d")), ElementsAre("ad")) << name;
}

TEST(Rtf, slashAtTheVeryEnd_isPassedOver)
{
    EXPECT_THAT(texts("{\\rtf1 a\\"), ElementsAre("a"));
}

TEST(Rtf, nullBytes_arePassedOver)
{
    EXPECT_THAT(texts(std::string_view("{\\rtf1 a\0\0b}", 12)), ElementsAre("ab"));
}

TEST(Rtf, underlines_endInEitherWay)
{
    for (const char* begin : {"\\ul", "\\uld", "\\uldb", "\\ulw"})
        for (const char* end : {"\\ulnone", "\\ul0"}) {
            const auto read = readrtf(inbraces(std::string(begin) + " a" + end + " b"));
            ASSERT_EQ(read.at(0).runs.size(), 2U) << begin << end;
            EXPECT_TRUE(read.at(0).runs.at(0).format.underline) << begin;
            EXPECT_FALSE(read.at(0).runs.at(1).format.underline) << end;
        }
}

TEST(Rtf, fixedPitch_countsInTheFontTableOnly)
{
    for (const char* body :
         {R"({\fonttbl{\f0 A;}}\f0\fmodern a)", R"({\fonttbl\fmodern A;}a)", R"({\fonttbl{\f1\fmodern A;}}\f0 a)"})
        EXPECT_FALSE(readrtf(inbraces(body)).at(0).runs.at(0).format.fixed) << body;
}

TEST(Rtf, textOfOneLook_isOneRun)
{
    EXPECT_EQ(readrtf(inbraces(R"(a{b}{\b0 c}\cf0 d)")).at(0).runs.size(), 1U);
}

TEST(Rtf, colourOutsideTheTable_isTheReadersOwn)
{
    for (const char* body : {R"({\colortbl;\red9;}\cf2 a)", R"(\cf-1 a)", R"({\colortbl;\red9;}\cf0 a)"})
        EXPECT_EQ(readrtf(inbraces(body)).at(0).runs.at(0).format.colour, std::nullopt) << body;
}

TEST(Rtf, paragraphs_bearTheirForm)
{
    const auto read =
        readrtf(inbraces(R"(\qc\li100\ri200\fi-50\sb10\sa20\tx300\tx600 a\par\pard b\par\qr c\par\qj d)"));
    ASSERT_EQ(read.size(), 4U);
    const help::ParagraphFormat form{.alignment = Alignment::centre,
                                     .left = 100,
                                     .right = 200,
                                     .first = -50,
                                     .before = 10,
                                     .after = 20,
                                     .tabs = {300, 600}};
    EXPECT_EQ(read[0].format, form);
    const help::ParagraphFormat plain{.alignment = Alignment::left,
                                      .left = 0,
                                      .right = 0,
                                      .first = 0,
                                      .before = 0,
                                      .after = 0,
                                      .tabs = {},
                                      .intable = false};
    EXPECT_EQ(read[1].format, plain);
    EXPECT_EQ(read[2].format.alignment, Alignment::right);
    EXPECT_EQ(read[3].format.alignment, Alignment::justified);
}

TEST(Rtf, wordsWithoutTheirNumber_haveTheUsualOne)
{
    const auto indented = readrtf(inbraces(R"(\li9\ri9\fi9\sb9\sa9 a\li\ri\fi\sb\sa\tx\par)"));
    EXPECT_EQ(indented.at(0).format, help::ParagraphFormat{.tabs = {0}});
    const auto sized = readrtf(inbraces(R"(\fs60\fs a)"));
    EXPECT_EQ(sized.at(0).runs.at(0).format.size, 24);
    const auto coloured =
        readrtf(inbraces(R"({\colortbl\red1;\red9\green9\blue9\red\green\blue;}\cf1 a\cf b)")).at(0).runs;
    EXPECT_EQ(coloured.at(0).format.colour, 0U);
    EXPECT_EQ(coloured.at(1).format.colour, 0x010000U);
    const auto lettered = readrtf(inbraces(R"({\fonttbl{\f\fmodern A;}{\f1 B;}}\deff a\f1 b\f c)")).at(0).runs;
    EXPECT_TRUE(lettered.at(0).format.fixed);
    EXPECT_FALSE(lettered.at(1).format.fixed);
    EXPECT_TRUE(lettered.at(2).format.fixed);
}

TEST(Rtf, leftAlignment_takesBackAnother)
{
    EXPECT_EQ(readrtf(inbraces(R"(\qc\ql a\par)")).at(0).format.alignment, Alignment::left);
}

TEST(Rtf, cells_knowTheirPlaceInTheTable)
{
    const auto read = readrtf(
        inbraces(R"(\trowd\cellx1\cellx2\pard\intbl a\par b\cell c\cell\row\row\trowd\intbl d\cell\row\pard e\par)"));
    std::vector<std::string> places;
    places.reserve(read.size());
    for (const Paragraph& p : read)
        places.push_back(p.text() + (p.cell ? std::to_string(p.cell->row) + std::to_string(p.cell->column) : ""));
    EXPECT_THAT(places, ElementsAre("a00", "b00", "c01", "d10", "e"));
}

TEST(Rtf, tableWithinACell_givesItsTextsToThatCell)
{
    const auto read = readrtf(inbraces(R"(\trowd\intbl a\cell{\itap2 b\nestcell c\nestcell{\*\nesttableprops\trowd})"
                                       R"({\nonesttables\par}}\intbl d\cell\row)"));
    const std::vector<help::TablePlace> places{{0, 0}, {0, 1}, {0, 1}, {0, 1}};
    ASSERT_EQ(read.size(), places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
        EXPECT_EQ(read[i].cell, places[i]) << read[i].text();
}

// What follows would take hours, or the stack, if it were read in the wrong way.

std::string repeated(std::string_view part, int count)
{
    std::string whole;
    for (int i = 0; i < count; ++i)
        whole += part;
    return whole;
}

TEST(Rtf, groupsAMillionDeep_areRead)
{
    const std::string deep = inbraces(repeated("{\\tx1\\b", 1'000'000) + " a" + repeated("}", 1'000'000) + "b");
    EXPECT_THAT(texts(deep), ElementsAre("ab"));
}

TEST(Rtf, everytruncation_givesABeginning)
{
    const std::string whole = inbraces(R"({\fonttbl{\f0 A;}}a\u8364?\'e9{\b b}\par\bin3 xyz\trowd\intbl c\cell\row)");
    const std::string text = texts(whole).at(0);
    for (std::size_t size = 6; size < whole.size(); ++size) {
        const Texts read = texts(whole.substr(0, size));
        if (!read.empty()) {
            EXPECT_TRUE(text.starts_with(read.front().substr(0, text.size())) || read.front().starts_with("a")) << size;
        }
    }
}

TEST(Rtf, manyparagraphs_areHeldToTheirLimit)
{
    EXPECT_EQ(readrtf(inbraces(repeated("\\par", 200'000))).size(), 100'000U);
}

TEST(Rtf, manycolours_areHeldToTheirLimit)
{
    const std::string table = R"({\colortbl)" + repeated(R"(\red1;)", 5000) + "}";
    EXPECT_EQ(readrtf(inbraces(table + R"(\cf4095 a)")).at(0).runs.at(0).format.colour, 0x010000);
    EXPECT_EQ(readrtf(inbraces(table + R"(\cf4096 a)")).at(0).runs.at(0).format.colour, std::nullopt);
}

TEST(Rtf, manyfonts_areHeldToTheirLimit)
{
    std::string table = R"({\fonttbl)";
    for (int i = 0; i < 5000; ++i)
        table += R"({\f)" + std::to_string(i) + R"(\fmodern A;})";
    EXPECT_TRUE(readrtf(inbraces(table + R"(}\f4095 a)")).at(0).runs.at(0).format.fixed);
    EXPECT_FALSE(readrtf(inbraces(table + R"(}\f4096 a)")).at(0).runs.at(0).format.fixed);
}

TEST(Rtf, manytabs_areHeldToTheirLimit)
{
    EXPECT_EQ(readrtf(inbraces(repeated("\\tx5", 1000) + " a")).at(0).format.tabs.size(), 32U);
}

} // namespace
