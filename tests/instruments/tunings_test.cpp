// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/tunings.h"
#include "tests/instruments/cataloguerows.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using instruments::StringLayout;
using tests::cataloguerows;
using tests::Strings;

StringLayout layoutfor(Strings strings)
{
    switch (strings) {
    case Strings::four:
        return StringLayout::fourstrings;
    case Strings::five:
        return StringLayout::fivestrings;
    case Strings::six:
        return StringLayout::sixstrings;
    case Strings::banjo:
        break;
    }
    return StringLayout::shortfifth;
}

std::size_t stringcount(Strings strings)
{
    return strings == Strings::four ? 4 : strings == Strings::six ? 6 : 5;
}

/// The open notes of the rows that the tuning shows, from row 5 upward.
std::string shownnotes(const instruments::Tuning& tuning, std::size_t strings)
{
    std::string line;
    for (std::size_t k = 0; k < strings; ++k)
        line += (k == 0 ? "" : " ") + std::string(tuning.opennote(5 - static_cast<int>(k)));
    return line;
}

TEST(Catalogue, everyRow_isAsListed)
{
    ASSERT_EQ(instruments::tunings.size(), cataloguerows.size());
    for (std::size_t i = 0; i < cataloguerows.size(); ++i) {
        const tests::CatalogueRow& row = cataloguerows[i];
        const instruments::Tuning& tuning = instruments::tunings[i];
        SCOPED_TRACE(std::string(row.family) + ", " + row.name);
        EXPECT_EQ(instruments::textof(tuning.family), row.family);
        EXPECT_EQ(tuning.name, row.name);
        EXPECT_EQ(tuning.setter, row.setter);
        EXPECT_EQ(tuning.layout, layoutfor(row.strings));
        EXPECT_EQ(shownnotes(tuning, stringcount(row.strings)), row.notes);
    }
}

TEST(Catalogue, everyFamily_hasItsNumberOfTunings)
{
    std::map<std::string_view, int> counted;
    for (const instruments::Tuning& tuning : instruments::tunings)
        ++counted[instruments::textof(tuning.family)];
    EXPECT_EQ(counted, (std::map<std::string_view, int>{{"       GUITAR", 38},
                                                        {"         BASS", 10},
                                                        {"      UKULELE", 8},
                                                        {"        BANJO", 14},
                                                        {"     MANDOLIN", 30},
                                                        {"       VIOLIN", 14},
                                                        {" STEEL, DOBRO", 12},
                                                        {"    LUTE, OUD", 10}}));
}

TEST(Catalogue, setters_areOneTuningEach)
{
    std::map<std::string_view, std::string> notes;
    for (const instruments::Tuning& tuning : instruments::tunings)
        EXPECT_EQ(notes.try_emplace(tuning.setter, tuning.notes).first->second, tuning.notes) << tuning.setter;
    EXPECT_EQ(notes.size(), 127U); // nine names share a setter with an earlier one
}

TEST(Catalogue, rowsAboveTheStrings_areWrittenByTwoBassesOnly)
{
    for (std::size_t i = 0; i < cataloguerows.size(); ++i) {
        const std::string setter = cataloguerows[i].setter;
        const int shown = 6 - static_cast<int>(stringcount(cataloguerows[i].strings));
        const bool writesmore = setter == "bstring4n1" || setter == "bstring5n3";
        EXPECT_EQ(instruments::tunings[i].toprow(), writesmore ? 0 : shown) << cataloguerows[i].name;
    }
}

TEST(OpenNote, rowsOfATuning_readUpwardFromTheLowest)
{
    const instruments::Tuning tuning{instruments::Family::guitar, "", "", StringLayout::fourstrings, "C F# A# D"};
    EXPECT_EQ(tuning.toprow(), 2);
    EXPECT_EQ(tuning.opennote(5), "C");
    EXPECT_EQ(tuning.opennote(4), "F#");
    EXPECT_EQ(tuning.opennote(3), "A#");
    EXPECT_EQ(tuning.opennote(2), "D");
    EXPECT_EQ(tuning.opennote(1), "");
    EXPECT_EQ(tuning.opennote(0), "");
}

TEST(FindTuning, nameInTwoFamilies_isTheFamilysOwn)
{
    using enum instruments::Family;
    EXPECT_EQ(instruments::findtuning(guitar, "Open E")->setter, "string6gopene2");
    EXPECT_EQ(instruments::findtuning(steel, "Open E")->setter, "stringsdopene");
    EXPECT_EQ(instruments::findtuning(guitar, "Open E")->notes, instruments::findtuning(steel, "Open E")->notes);
    EXPECT_EQ(instruments::findtuning(guitar, "G 6th")->notes, "D G D G B E");
    EXPECT_EQ(instruments::findtuning(steel, "G 6th")->notes, "G B E G B D");
    EXPECT_EQ(instruments::findtuning(ukulele, "Standard Tuning")->setter, "string4uc");
    EXPECT_EQ(instruments::findtuning(mandolin, "Standard Tuning")->setter, "string4ms");
}

TEST(FindTuning, nameThatTheFamilyLacks_isNone)
{
    using enum instruments::Family;
    EXPECT_EQ(instruments::findtuning(bass, "Open E"), nullptr);
    EXPECT_EQ(instruments::findtuning(guitar, "open e"), nullptr); // capitals count
    EXPECT_EQ(instruments::findtuning(guitar, "Open E "), nullptr);
    EXPECT_EQ(instruments::findtuning(guitar, ""), nullptr);
    EXPECT_EQ(instruments::findtuning(custom, "Open E"), nullptr);
}

TEST(FamilyOf, everyListedText_isItsFamily)
{
    const auto listed = std::to_array<std::string_view>({"       GUITAR", "         BASS", "      UKULELE",
                                                         "        BANJO", "     MANDOLIN", "       VIOLIN",
                                                         " STEEL, DOBRO", "    LUTE, OUD", "       CUSTOM"});
    EXPECT_EQ(instruments::familylist, listed);
    for (std::size_t i = 0; i < listed.size(); ++i) {
        ASSERT_TRUE(instruments::familyof(listed[i])) << listed[i];
        EXPECT_EQ(static_cast<std::size_t>(*instruments::familyof(listed[i])), i) << listed[i];
    }
}

TEST(FamilyOf, otherText_isNoFamily)
{
    for (const char* text : {"", "GUITAR", "      GUITAR", "       GUITAR ", "       guitar", "        GUITAR"})
        EXPECT_FALSE(instruments::familyof(text)) << '"' << text << '"';
}

} // namespace
