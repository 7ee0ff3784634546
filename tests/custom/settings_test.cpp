// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/settings.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using custom::packsettings;
using custom::Settings;
using custom::unpacksettings;

constexpr Settings firststart{.charactersperline = 72,
                              .spacing = 4,
                              .fontsize = 8,
                              .multiple = 0,
                              .alternate = 1,
                              .topmargin = 3,
                              .leftmargin = 6};

TEST(PackSettings, firstStart_isTheseCharacters)
{
    EXPECT_EQ(packsettings(firststart), "00 72 4 801 3 6000 0");
    EXPECT_EQ(packsettings({}), "00  0 0 000 0 0000 0");
}

struct ColumnRow {
    const char* row;
    std::int16_t Settings::*setting;
    std::int16_t number;
    std::size_t first; ///< column from 1, as the table of the file's format counts
    const char* written;
    std::int16_t readback;
};

class SettingsColumn : public testing::TestWithParam<ColumnRow> {};

TEST_P(SettingsColumn, number_standsInItsColumnsAlone)
{
    const ColumnRow& row = GetParam();
    Settings settings;
    settings.*row.setting = row.number;
    std::string expected = packsettings({});
    expected.replace(row.first - 1, std::string(row.written).size(), row.written);
    EXPECT_EQ(packsettings(settings), expected);
    Settings back;
    back.*row.setting = row.readback;
    EXPECT_EQ(unpacksettings(expected), back);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Columns, SettingsColumn, testing::Values(
    //        row                   setting                        number  first written  back
    ColumnRow{"left hand",          &Settings::hand,               1,      1,    "1",     1   },
    ColumnRow{"characters 40",      &Settings::charactersperline,  40,     3,    " 40",   40  },
    ColumnRow{"characters 145",     &Settings::charactersperline,  145,    3,    "145",   145 },
    ColumnRow{"characters 1999",    &Settings::charactersperline,  1999,   3,    "999",   999 }, // leading digits lost
    ColumnRow{"characters -5",      &Settings::charactersperline,  -5,     3,    " -5",   0   },
    ColumnRow{"characters -50",     &Settings::charactersperline,  -50,    3,    "-50",   0   },
    ColumnRow{"characters -500",    &Settings::charactersperline,  -500,   3,    "500",   500 },
    ColumnRow{"spacing 20",         &Settings::spacing,            20,     6,    "20",    20  },
    ColumnRow{"spacing 120",        &Settings::spacing,            120,    6,    "20",    20  },
    ColumnRow{"font 14",            &Settings::fontsize,           14,     8,    "14",    14  },
    ColumnRow{"multiple",           &Settings::multiple,           1,      10,   "1",     1   },
    ColumnRow{"multiple 7",         &Settings::multiple,           7,      10,   "7",     7   },
    ColumnRow{"alternate",          &Settings::alternate,          1,      11,   "1",     1   },
    ColumnRow{"top 30",             &Settings::topmargin,          30,     12,   "30",    30  },
    ColumnRow{"left 9",             &Settings::leftmargin,         9,      14,   " 9",    9   },
    ColumnRow{"left 255",           &Settings::leftmargin,         255,    14,   "55",    55  },
    ColumnRow{"mode 3",             &Settings::mode,               3,      16,   "3",     3   },
    ColumnRow{"both",               &Settings::both,               1,      17,   "1",     1   },
    ColumnRow{"automatic",          &Settings::automatic,          1,      18,   "1",     1   }),
    [](const auto& row) { return tests::rowname(row.param.row); });

struct NumberRow {
    const char* characters; ///< of the columns of the characters per line
    std::int16_t number;
};

class LeadingNumber : public testing::TestWithParam<NumberRow> {};

TEST_P(LeadingNumber, characters_readAsTheirLeadingDigits)
{
    std::string packed = packsettings({});
    packed.replace(2, 3, GetParam().characters);
    EXPECT_EQ(unpacksettings(packed).charactersperline, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Characters, LeadingNumber, testing::Values(
    NumberRow{" 72", 72},
    NumberRow{"072", 72},
    NumberRow{"72 ", 72},
    NumberRow{"7 2", 7},
    NumberRow{"7x2", 7},
    NumberRow{"7.9", 7},
    NumberRow{"+72", 72},
    NumberRow{"999", 999},
    NumberRow{"   ", 0},
    NumberRow{"x72", 0},
    NumberRow{"-72", 0},
    NumberRow{" -7", 0},
    NumberRow{"- 7", 0},
    NumberRow{"\t72", 0},
    NumberRow{".72", 0},
    NumberRow{"???", 0}),
    [](const auto& row) { return std::to_string(row.index) + "_" + tests::rowname(row.param.characters); });
// clang-format on

TEST(UnpackSettings, handOtherThanZero_isLeft)
{
    std::string packed = packsettings({});
    for (int c = 0; c < 128; ++c) {
        packed.front() = static_cast<char>(c);
        EXPECT_EQ(unpacksettings(packed).hand, c == '0' ? 0 : 1) << "character " << c;
    }
}

TEST(UnpackSettings, spareColumns_areNotRead)
{
    EXPECT_EQ(unpacksettings("0X 72 4 801 3 6000XX"), firststart);
}

TEST(UnpackSettings, whatWasPacked_comesBack)
{
    std::mt19937 random(1);
    const auto below = [&](unsigned n) { return static_cast<std::int16_t>(random() % n); };
    for (int i = 0; i < 10'000; ++i) {
        const Settings settings{below(2),   below(1000), below(100), below(100), below(10), below(10),
                                below(100), below(100),  below(10),  below(10),  below(10)};
        ASSERT_EQ(unpacksettings(packsettings(settings)), settings) << packsettings(settings);
    }
}

TEST(NumberText, sign_isABlankOrAMinus)
{
    EXPECT_EQ(custom::numbertext(0), " 0");
    EXPECT_EQ(custom::numbertext(50), " 50");
    EXPECT_EQ(custom::numbertext(-7), "-7");
}

} // namespace
