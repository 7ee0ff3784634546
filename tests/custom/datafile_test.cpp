// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/datafile.h"
#include "tests/support/headers.h"
#include "tests/support/huge.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <random>

namespace custom {

void PrintTo(const Entry& entry, std::ostream* out)
{
    *out << entry.name << ";" << entry.data;
}

} // namespace custom

namespace {

using custom::CustomTable;
using custom::Reading;
using custom::Unpacked;
using tests::guitar;
using tests::settings;

/// The entries as "name;data;name;data;", a free place before the last as ";;".
std::string told(const CustomTable& entries)
{
    std::string text;
    std::size_t used = entries.size();
    while (used > 0 && entries.at(used - 1).name.empty() && entries.at(used - 1).data.empty())
        --used;
    for (std::size_t i = 0; i < used; ++i)
        text += entries.at(i).name + ";" + entries.at(i).data + ";";
    return text;
}

struct UnpackRow {
    const char* row;
    std::string text;
    Reading reading;
    const char* family; ///< nullptr: no header
    std::string entries;
};

class Unpack : public testing::TestWithParam<UnpackRow> {};

TEST_P(Unpack, text_givesWhatIsWholeOfIt)
{
    const UnpackRow& row = GetParam();
    const Unpacked result = custom::unpack(row.text);
    EXPECT_EQ(result.reading, row.reading) << row.text;
    EXPECT_EQ(result.header ? result.header->name : "none", row.family ? row.family : "none") << row.text;
    EXPECT_EQ(told(result.entries), row.entries) << row.text;
    const bool nothingtolose =
        row.reading == Reading::whole || row.text.find_first_not_of(" \r\n") == std::string::npos;
    EXPECT_EQ(custom::losestext(row.text), !nothingtolose) << row.text;
}

std::string manyentries(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "tuning " + std::to_string(i) + ";0349279B;";
    return text;
}

constexpr const char* family = "       GUITAR";
constexpr const char* ascii = "A;0349279B;";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, Unpack, testing::Values(
    //        row                  text                                            reading            family   entries
    UnpackRow{"header",            guitar,                                         Reading::whole,    family,  ""},
    UnpackRow{"small signature",   "tonefret:" + guitar.substr(9),                 Reading::whole,    family,  ""},
    UnpackRow{"entry",             guitar + ascii,                                 Reading::whole,    family,  ascii},
    UnpackRow{"two entries",       guitar + ascii + "B;13??????;",                 Reading::whole,    family,  "A;0349279B;B;13??????;"},
    UnpackRow{"same names",        guitar + ascii + ascii,                         Reading::whole,    family,  "A;0349279B;A;0349279B;"},
    UnpackRow{"51 entries",        guitar + manyentries(51),                       Reading::whole,    family,  manyentries(51)},
    UnpackRow{"odd data",          guitar + "A; x;\n\"zz;",                        Reading::broken,   family,  ""},
    UnpackRow{"data with ;",       guitar + "A;03;9279B;",                         Reading::whole,    family,  "A;03;9279B;"},
    UnpackRow{"blank name",        guitar + " ;0349279B;",                         Reading::whole,    family,  " ;0349279B;"},
    UnpackRow{"line in a name",    guitar + "A\nB;0349279B;",                      Reading::whole,    family,  "A\nB;0349279B;"},
    UnpackRow{"any letters",       guitar + "\xC3\xA9\xE2\x99\xAD;0349279B;",      Reading::whole,    family,  "\xC3\xA9\xE2\x99\xAD;0349279B;"},
    UnpackRow{"other letter in data", guitar + "A;0349279\xC3\xA9;",               Reading::whole,    family,  "A;0349279?;"},
    UnpackRow{"unknown family",    "Tonefret:OTHER;" + settings + ";",             Reading::whole,    "OTHER", ""},
    UnpackRow{"CR LF",             guitar + ascii + "\r\n",                        Reading::whole,    family,  ascii},
    UnpackRow{"LF",                guitar + ascii + "\n",                          Reading::whole,    family,  ascii},
    UnpackRow{"blanks behind",     guitar + ascii + "  \r\n\r\n",                  Reading::whole,    family,  ascii},
    UnpackRow{"header twice",      "Tonefret:;" + settings + ";" + guitar.substr(9) + ascii, Reading::whole, family, ascii},
    UnpackRow{"nameless header",   "Tonefret:;" + settings + ";",                  Reading::whole,    "",      ""},
    // not to the end of what it holds
    UnpackRow{"name behind",       guitar + ascii + "B",                           Reading::loose,    family,  ascii},
    UnpackRow{"text behind",       guitar + ascii + "\r\nhello",                   Reading::loose,    family,  ascii},
    UnpackRow{"nameless entry",    guitar + ";0349279B;" + ascii,                  Reading::loose,    family,  ";0349279B;A;0349279B;"},
    UnpackRow{"no header",         "Tonefret:",                                    Reading::whole,    nullptr, ""},
    UnpackRow{"family alone",      "Tonefret:       GUITAR",                       Reading::loose,    nullptr, ""},
    // broken
    UnpackRow{"family and end",    "Tonefret:       GUITAR;",                      Reading::broken,   nullptr, ""},
    UnpackRow{"settings cut",      guitar.substr(0, guitar.size() - 1),            Reading::broken,   nullptr, ""},
    UnpackRow{"settings too short","Tonefret:G;" + settings.substr(1) + ";A;0349279B;", Reading::broken, nullptr, ""},
    UnpackRow{"settings too long", "Tonefret:G; " + settings + ";A;0349279B;",     Reading::broken,   nullptr, ""},
    UnpackRow{"nameless, then entry", "Tonefret:;" + settings + ";A;0349279B;",    Reading::broken,   "",      ""},
    UnpackRow{"data too short",    guitar + ascii + "B;0349279;C;0349279B;",       Reading::broken,   family,  ascii},
    UnpackRow{"data too long",     guitar + ascii + "B;0349279BB;C;0349279B;",     Reading::broken,   family,  ascii},
    UnpackRow{"data missing",      guitar + ascii + "B;",                          Reading::broken,   family,  ascii},
    UnpackRow{"data cut",          guitar + ascii + "B;034",                       Reading::broken,   family,  ascii},
    UnpackRow{"last separator cut",guitar + ascii + "B;0349279B",                  Reading::broken,   family,  ascii},
    UnpackRow{"line end for it",   guitar + ascii + "B;0349279B\r\n",              Reading::broken,   family,  ascii},
    UnpackRow{"two ;",             guitar + ";" + ascii,                           Reading::broken,   family,  ""},
    UnpackRow{"52 entries",        guitar + manyentries(52),                       Reading::broken,   family,  manyentries(51)},
    UnpackRow{"60 entries",        guitar + manyentries(60),                       Reading::broken,   family,  manyentries(51)},
    UnpackRow{"51 and a word",     guitar + manyentries(51) + "x",                 Reading::loose,    family,  manyentries(51)},
    UnpackRow{"51 and a field",    guitar + manyentries(51) + "x;",                Reading::broken,   family,  manyentries(51)},
    // no data text
    UnpackRow{"empty",             "",                                             Reading::foreign,  nullptr, ""},
    UnpackRow{"line ends",         "\r\n\r\n",                                     Reading::foreign,  nullptr, ""},
    UnpackRow{"8 characters",      "Tonefret",                                     Reading::foreign,  nullptr, ""},
    UnpackRow{"capitals",          "TONEFRET:" + guitar.substr(9),                 Reading::foreign,  nullptr, ""},
    UnpackRow{"mixed",             "ToneFret:" + guitar.substr(9),                 Reading::foreign,  nullptr, ""},
    UnpackRow{"blank before",      " " + guitar,                                   Reading::foreign,  nullptr, ""},
    UnpackRow{"other",             "C        major\n",                             Reading::foreign,  nullptr, ""}),
    [](const auto& row) { return std::to_string(row.index) + "_" + tests::rowname(row.param.row); });
// clang-format on

TEST(UnpackHeader, settings_areItsTwentyCharacters)
{
    const Unpacked result = custom::unpack(guitar);
    ASSERT_TRUE(result.header);
    EXPECT_EQ(result.header->data, settings);
    const Unpacked odd = custom::unpack("Tonefret:G;\xC3\xA9" + settings.substr(1) + ";");
    ASSERT_TRUE(odd.header);
    EXPECT_EQ(odd.header->data, "?" + settings.substr(1));
}

TEST(Pack, entries_standBehindTheHeaderUpToTheFirstFreePlace)
{
    CustomTable entries;
    EXPECT_EQ(custom::pack({family, settings}, entries).text, guitar);
    entries[0] = {"A", "0349279B"};
    entries[1] = {"\xC3\xA9", "13??????"};
    entries[3] = {"behind a free place", "0349279B"};
    const custom::Packed packed = custom::pack({family, settings}, entries);
    EXPECT_EQ(packed.text, guitar + "A;0349279B;\xC3\xA9;13??????;");
    EXPECT_FALSE(packed.faulty);
}

TEST(Pack, all51Entries_areWritten)
{
    const CustomTable entries = custom::unpack(guitar + manyentries(51)).entries;
    EXPECT_EQ(custom::pack({family, settings}, entries).text, guitar + manyentries(51));
}

TEST(Pack, dataOfAnotherLength_cutsTheTextThere)
{
    for (const char* data : {"", "0349279", "0349279BB"}) {
        CustomTable entries;
        entries[0] = {"A", "0349279B"};
        entries[1] = {"B", data};
        entries[2] = {"C", "0349279B"};
        const custom::Packed packed = custom::pack({family, settings}, entries);
        EXPECT_EQ(packed.text, guitar + ascii) << data;
        EXPECT_EQ(packed.faulty, 1U) << data;
    }
}

std::string randomname(std::mt19937& random)
{
    static constexpr std::array letters{"a", "Z", " ", ":", "\n", "\r", "\xC3\xA9", "\xE2\x99\xAD", "\xF0\x9F\x8E\xB8"};
    std::string name;
    for (auto length = 1 + random() % 25; length > 0; --length)
        name += letters.at(random() % letters.size());
    return name;
}

std::string randomdata(std::mt19937& random, std::size_t length)
{
    std::string data(length, ' ');
    for (char& c : data)
        c = static_cast<char>(random() % 128);
    return data;
}

TEST(PackAndUnpack, tenThousandStates_comeBack)
{
    std::mt19937 random(1);
    for (int i = 0; i < 10'000; ++i) {
        const custom::Header header{randomname(random), randomdata(random, 20)};
        CustomTable entries;
        for (std::size_t n = random() % 52; n > 0; --n)
            entries.at(n - 1) = {randomname(random), randomdata(random, 8)};
        const std::string text = custom::pack(header, entries).text;
        const Unpacked back = custom::unpack(text + "\r\n");
        ASSERT_EQ(back.reading, Reading::whole) << text;
        ASSERT_EQ(back.header, header) << text;
        ASSERT_EQ(back.entries, entries) << text;
    }
}

TEST(Unpack, everyCutOfAText_keepsItsWholeEntries)
{
    const std::string text = guitar + manyentries(5);
    for (std::size_t length = 0; length < text.size(); ++length) {
        const Unpacked result = custom::unpack(std::string_view(text).substr(0, length));
        const std::string kept = told(result.entries);
        EXPECT_LE(kept.empty() ? 0 : guitar.size() + kept.size(), length) << "what is cut off is read";
        EXPECT_EQ(manyentries(5).substr(0, kept.size()), kept) << length;
        EXPECT_GE(kept.size() + guitar.size() + manyentries(1).size(), length) << "an entry more is whole";
    }
}

TEST(Unpack, hundredMegabytes_areReadInUnderASecond)
{
    constexpr std::size_t size = tests::hugesize;
    std::string headers = "Tonefret:";
    while (headers.size() < size)
        headers += ";" + settings + ";";
    for (const std::string& text : {guitar + std::string(size, 'x'), guitar + std::string(size, ';'), headers}) {
        const tests::Stopwatch watch;
        EXPECT_TRUE(custom::unpack(text).header);
        EXPECT_LT(watch.seconds(), 1) << text.substr(0, 60);
    }
}

struct SplitRow {
    const char* row;
    std::string text;
    std::optional<std::string> page;
    std::optional<std::string> data;
};

class Split : public testing::TestWithParam<SplitRow> {};

TEST_P(Split, text_isPageDataOrBoth)
{
    const custom::PageAndData parts = custom::split(GetParam().text);
    EXPECT_EQ(parts.page, GetParam().page);
    EXPECT_EQ(parts.data, GetParam().data);
}

const std::string data = guitar + ascii;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, Split, testing::Values(
    //       row                    text                               page                      data
    SplitRow{"data",                data + "\r\n",                     std::nullopt,             data + "\r\n"},
    SplitRow{"small signature",     "tonefret:x",                      std::nullopt,             "tonefret:x"},
    SplitRow{"broken data",         "Tonefret:;;;",                    std::nullopt,             "Tonefret:;;;"},
    SplitRow{"data, then page",     data + "\r\npage\r\n",             std::nullopt,             data + "\r\npage\r\n"},
    SplitRow{"page, then data",     "C major\r\n" + data + "\r\n",     "C major",                data + "\n"},
    SplitRow{"no last line end",    "C major\n" + data,                "C major",                data},
    SplitRow{"lines of a page",     "a\nb\r\n\r\n" + data + "\r\n",    "a\nb\n",                 data + "\n"},
    SplitRow{"empty line of a page","\r\n" + data + "\r\n",            "",                       data + "\n"},
    SplitRow{"two data lines",      "a\n" + data + "\n" + data,        "a\n" + data,             data},
    SplitRow{"page",                "C major\r\nD\rE\n",               "C major\nD\nE\n",        std::nullopt},
    SplitRow{"empty",               "",                                "",                       std::nullopt},
    SplitRow{"line ends",           "\r\n\r\n",                        "\n\n",                   std::nullopt},
    SplitRow{"capitals",            "TONEFRET:x",                      "TONEFRET:x",             std::nullopt},
    SplitRow{"small, then end",     "a\ntonefret:" + data.substr(9),   "a\ntonefret:" + data.substr(9), std::nullopt},
    SplitRow{"data inside a line",  "a " + data,                       "a " + data,              std::nullopt},
    SplitRow{"more behind data",    "a\n" + data + "\nb",              "a\n" + data + "\nb",     std::nullopt},
    SplitRow{"text behind data",    "a\n" + data + "b",                "a\n" + data + "b",       std::nullopt},
    SplitRow{"cut data",            "a\n" + data.substr(0, 40),        "a\n" + data.substr(0, 40), std::nullopt},
    SplitRow{"signature alone",     "a\nTonefret:",                    "a\nTonefret:",           std::nullopt}),
    [](const auto& row) { return tests::rowname(row.param.row); });
// clang-format on

TEST(Join, pageAndData_areSplitAsTheyWere)
{
    for (const char* page : {"C major", "a\nb", "a\n", "\n", "\n\na", " ", "Tonefret", "a\nTonefret:;"}) {
        const custom::PageAndData parts = custom::split(custom::join(page, data) + "\r\n");
        EXPECT_EQ(parts.page, page);
        ASSERT_TRUE(parts.data) << page;
        EXPECT_EQ(told(custom::unpack(*parts.data).entries), ascii) << page;
    }
    EXPECT_EQ(custom::join("", data), data);
    EXPECT_EQ(custom::join("a", data), "a\r\n" + data);
}

} // namespace
