// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/page.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct SizeRow {
    int characters;
    int margin;
    int points;
};

TEST(SizeFor, widths_getTheirSize)
{
    // clang-format off
    constexpr auto rows = std::to_array<SizeRow>({
        {  72,  0, 12}, {  75,  0, 12}, {  76,  0, 11}, {  83,  0, 11}, {  84,  0, 10}, {  94,  0, 10}, {  95, 0, 9},
        { 106,  0,  9}, { 107,  0,  7}, { 145,  0,  7}, { 150,  0,  7}, { 151,  0,  5}, {  40,  0, 12},
        {  72,  6, 11}, {  69,  6, 12}, {  70,  6, 11}, {  72, 10, 11}, { 145,  6,  5}, { 144,  6,  7},
        { -10,  0, 12}, { -10, 200, 5}, {   1, 30, 12}, {  45, 30, 12}, {  46, 30, 11}, { 1000000000, 30, 5},
    });
    // clang-format on
    for (const SizeRow& row : rows)
        EXPECT_EQ(print::sizefor(row.characters, row.margin), row.points) << row.characters << ", " << row.margin;
}

struct StepRow {
    const char* name;
    print::Step step;
    const char* typed;
    const char* shown;
    int stored; ///< -1: as it was
    const char* refusal;
};

class Steps : public testing::TestWithParam<StepRow> {};

TEST_P(Steps, typedNumber_movesOrIsRefused)
{
    constexpr std::int16_t before = -1;
    std::int16_t stored = before;
    std::string box = GetParam().typed;
    EXPECT_EQ(print::step(GetParam().step, box, stored), GetParam().refusal);
    EXPECT_EQ(box, GetParam().shown);
    EXPECT_EQ(stored, GetParam().stored);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Buttons, Steps, testing::Values(
    StepRow{"chardown72",      print::chardown,   "72",    "71",    71,    ""},
    StepRow{"chardown41",      print::chardown,   "41",    "40",    40,    ""},
    StepRow{"chardown40",      print::chardown,   "40",    "40",    -1,    "sorry, cannot go lower than 40"},
    StepRow{"chardownText",    print::chardown,   "wide",  "wide",  -1,    "sorry, cannot go lower than 40"},
    StepRow{"chardown200",     print::chardown,   "200",   "199",   199,   ""},
    StepRow{"chardownHuge",    print::chardown,   "99999", "32766", 32766, ""},
    StepRow{"charup144",       print::charup,     "144",   "145",   145,   ""},
    StepRow{"charup145",       print::charup,     "145",   "145",   -1,    "sorry, cannot go higher than 145"},
    StepRow{"charupEmpty",     print::charup,     "",      "1",     1,     ""},
    StepRow{"charupBelow",     print::charup,     "-7",    "-6",    -6,    ""},
    StepRow{"charupRounds",    print::charup,     "71.6",  "73",    73,    ""},
    StepRow{"spacedown2",      print::spacedown,  "2",     "1",     1,     ""},
    StepRow{"spacedown1",      print::spacedown,  "1",     "1",     -1,    "sorry, cannot go lower than 1"},
    StepRow{"spaceup19",       print::spaceup,    "19",    "20",    20,    ""},
    StepRow{"spaceup20",       print::spaceup,    "20",    "20",    -1,    "sorry, cannot go higher than 20"},
    StepRow{"fontdown6",       print::fontdown,   "6",     "5",     5,     ""},
    StepRow{"fontdown5",       print::fontdown,   "5",     "5",     -1,    "sorry, cannot go lower than 5"},
    StepRow{"fontdownHuge",    print::fontdown,   "300",   "254",   254,   ""},
    StepRow{"fontup13",        print::fontup,     "13",    "14",    14,    ""},
    StepRow{"fontup14",        print::fontup,     "14",    "14",    -1,    "sorry, cannot go higher than 14"},
    StepRow{"fontupBelow",     print::fontup,     "-3",    "1",     1,     ""},
    StepRow{"margindown1",     print::margindown, "1",     "0",     0,     ""},
    StepRow{"margindown0",     print::margindown, "0",     "0",     -1,    "sorry, cannot go lower than 0"},
    StepRow{"margindown50",    print::margindown, "50",    "49",    49,    ""},
    StepRow{"marginup29",      print::marginup,   "29",    "30",    30,    ""},
    StepRow{"marginup30",      print::marginup,   "30",    "30",    -1,    "sorry, cannot go higher than 30"}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

struct Stored {
    const char* character;
    const char* space;
    const char* font;
    print::PageSettings settings; ///< those of the three that are looked at
    bool all;
};

TEST(StoreBoxes, numbersThatTheirSettingsHold_areStored)
{
    // clang-format off
    const std::array rows{
        Stored{"80",     "5",      "9",    {.charactersperline = 80,     .spacing = 5,      .fontsize = 9},   true},
        Stored{"abc",    "",       "x",    {.charactersperline = 0,      .spacing = 0,      .fontsize = 0},   true},
        Stored{"32767",  "-32768", "255",  {.charactersperline = 32767,  .spacing = -32768, .fontsize = 255}, true},
        Stored{"32768",  "5",      "9",    {.charactersperline = 1,      .spacing = 5,      .fontsize = 9},   false},
        Stored{"80",     "-32769", "9",    {.charactersperline = 80,     .spacing = 2,      .fontsize = 9},   false},
        Stored{"80",     "5",      "256",  {.charactersperline = 80,     .spacing = 5,      .fontsize = 3},   false},
        Stored{"80",     "5",      "-1",   {.charactersperline = 80,     .spacing = 5,      .fontsize = 3},   false},
        Stored{"1e9",    "4.5",    "7.5",  {.charactersperline = 1,      .spacing = 4,      .fontsize = 8},   true},
    };
    // clang-format on
    for (const Stored& row : rows) {
        print::Page page;
        page.txtchar = row.character;
        page.txtspace = row.space;
        page.txtfont = row.font;
        page.chkmult = true;
        page.chkalt = false;
        print::PageSettings settings{.charactersperline = 1, .spacing = 2, .fontsize = 3};
        const std::string told = std::string(row.character) + ", " + row.space + ", " + row.font;
        EXPECT_EQ(print::storeboxes(page, settings), row.all) << told;
        EXPECT_EQ(settings.charactersperline, row.settings.charactersperline) << told;
        EXPECT_EQ(settings.spacing, row.settings.spacing) << told;
        EXPECT_EQ(settings.fontsize, row.settings.fontsize) << told;
        EXPECT_TRUE(settings.multiple) << told;
        EXPECT_FALSE(settings.alternate) << told;
    }
}

TEST(TypedMargin, boxes_areHeldToThePaper)
{
    const std::array<std::pair<const char*, int>, 8> rows{
        {{"6", 6}, {"0", 0}, {"30", 30}, {"31", 30}, {"-1", 0}, {"", 0}, {"12 lines", 12}, {"99999999999", 30}}};
    for (const auto& [typed, margin] : rows)
        EXPECT_EQ(print::typedmargin(typed), margin) << typed;
}

TEST(LineNumber, texts_areCountedByTheirLineFeeds)
{
    print::Page page;
    for (const auto& [text, count] : std::array<std::pair<std::string, const char*>, 5>{
             {{"", "0"}, {"one", "0"}, {"one\n", "1"}, {"\n\n\n", "3"}, {std::string(40000, '\n'), "32767"}}}) {
        page.text = text;
        page.getlinenumber();
        EXPECT_EQ(page.txtlines, count) << text.size();
    }
}

} // namespace
