// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/typednumber.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

struct Typed {
    const char* text;
    double number;
    int whole;
};

class TypedNumber : public testing::TestWithParam<Typed> {};

TEST_P(TypedNumber, text_isReadAsItsLeadingNumber)
{
    EXPECT_DOUBLE_EQ(print::typednumber(GetParam().text), GetParam().number) << GetParam().text;
    EXPECT_EQ(print::wholenumber(GetParam().text), GetParam().whole) << GetParam().text;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, TypedNumber, testing::Values(
    Typed{"72",            72,       72},
    Typed{"  72",          72,       72},
    Typed{"72 lines",      72,       72},
    Typed{"7 2",            7,        7},
    Typed{"+5",             5,        5},
    Typed{"-5",            -5,       -5},
    Typed{"4.4",            4.4,      4},
    Typed{"4.6",            4.6,      5},
    Typed{"2.5",            2.5,      2},   // a half goes to the even neighbour
    Typed{"3.5",            3.5,      4},
    Typed{"-1.5",          -1.5,     -2},
    Typed{".75",            0.75,     1},
    Typed{"5.",             5,        5},
    Typed{"1.2.3",          1.2,      1},
    Typed{"1e3",            1,        1},
    Typed{"0x10",           0,        0},
    Typed{"",               0,        0},
    Typed{" ",              0,        0},
    Typed{"abc",            0,        0},
    Typed{"-",              0,        0},
    Typed{"- 5",            0,        0},
    Typed{".",              0,        0},
    Typed{"inf",            0,        0},
    Typed{"nan",            0,        0},
    Typed{"\xC3\xBC 5",     0,        0},
    Typed{"0.1234567890123456789", 0.123456789012345, 0},
    Typed{"99999999999",    99999999999.0, std::numeric_limits<int>::max()},
    Typed{"-99999999999",  -99999999999.0, -std::numeric_limits<int>::max()}),
    [](const auto& row) { return "row" + std::to_string(row.index) + "_" + tests::rowname(row.param.text); });
// clang-format on

TEST(TypedNumberTooLong, ofManyDigits_isInfinite)
{
    EXPECT_TRUE(std::isinf(print::typednumber(std::string(400, '9') + ".5")));
    EXPECT_EQ(print::wholenumber(std::string(400, '9')), std::numeric_limits<int>::max());
}

} // namespace
