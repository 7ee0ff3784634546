// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/documents.h"
#include "help/rtf.h"
#include "help/search.h"
#include "help/topics.h"
#include "help/unicode.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

namespace {

using help::Match;

/// The document that comes with the program, as the viewer shows its text: paragraphs with line feeds between.
const std::u16string& documenttext()
{
    static const std::u16string text = [] {
        const auto bytes = help::loaddata(help::completehelp, {TONEFRET_HELP});
        std::u16string whole;
        for (const help::Paragraph& paragraph : help::readrtf(bytes.value()))
            whole += help::toutf16(paragraph.text()) + u'\n';
        return whole;
    }();
    return text;
}

class EveryTopic : public testing::TestWithParam<help::Topic> {};

TEST_P(EveryTopic, title_landsOnItsOwnHeading)
{
    help::Search search;
    search.loaddata(documenttext());
    const std::u16string wanted = help::toutf16(GetParam().heading);
    const auto match = search.findtopic(help::itemsearch(GetParam().title));
    ASSERT_TRUE(match);
    EXPECT_TRUE(documenttext().substr(match->begin, match->end - match->begin) == wanted);
    ASSERT_GT(match->begin, 0U);
    const auto paragraph = documenttext().substr(match->begin - 1, 120);
    EXPECT_EQ(paragraph.front(), u'\n') << "stands within a paragraph";
    const auto longer = std::ranges::find_if(help::topics, [&](const help::Topic& other) {
        return other.heading.size() > GetParam().heading.size() && other.heading.starts_with(GetParam().heading) &&
               paragraph.substr(1).starts_with(help::toutf16(other.heading));
    });
    EXPECT_EQ(longer, help::topics.end()) << "landed on " << longer->heading;
}

INSTANTIATE_TEST_SUITE_P(Topics, EveryTopic, testing::ValuesIn(help::topics),
                         [](const auto& row) { return "topic_" + std::to_string(row.index + 1); });

TEST(Topics, headings_are62)
{
    std::set<std::string_view> headings;
    for (const help::Topic& topic : help::topics)
        headings.insert(topic.heading);
    EXPECT_EQ(headings.size(), 62U);
}

struct TitleCase {
    const char* title;
    const char* heading;
};

TEST(Topics, itemsearch_takesTitlesExactlyAsListed)
{
    constexpr TitleCase rows[] = {
        {"Options - Guitar", "GUITAR AND STRINGED INSTRUMENT"},
        {"Options - String Instruments", "GUITAR AND STRINGED INSTRUMENT"},
        {"Banjo", "Banjo - 5 string banjo with "},
        {"Other Stringed Instruments", "Other - Multiple tunings are "},
        {"Troubleshooting - overlap", "Printer Paper Overlap "},
        {"Alternate Fingering, Print", "Fingering Signs and Alternate Fingering for Print"},
        {"banjo", ""},
        {"Banjo ", ""},
        {"Use Down Arrow at Right - > ", ""},
        {"", ""},
    };
    for (const TitleCase& row : rows)
        EXPECT_EQ(help::itemsearch(row.title), row.heading) << row.title;
}

bool isheading(const help::Paragraph& paragraph)
{
    constexpr int smallestheading = 24; // half points
    return !paragraph.runs.empty() && paragraph.runs.front().format.bold &&
           paragraph.runs.front().format.size >= smallestheading;
}

/// The longest paragraph, lists and tables aside, between a heading and the next one.
std::string longestbelow(std::string_view heading)
{
    static const auto read = help::readrtf(help::loaddata(help::completehelp, {TONEFRET_HELP}).value());
    auto at = std::ranges::find_if(read, [&](const auto& p) { return isheading(p) && p.text().starts_with(heading); });
    std::string longest;
    while (at != read.end() && ++at != read.end() && !isheading(*at))
        if (at->format.left == 0 && !at->cell && at->text().size() > longest.size())
            longest = at->text();
    return longest;
}

TEST(Topics, everyheading_hasASolidParagraphOfItsOwn)
{
    constexpr std::size_t solid = 200; // characters
    for (const help::Topic& topic : help::topics)
        EXPECT_GE(longestbelow(topic.heading).size(), solid) << topic.heading;
}

} // namespace
