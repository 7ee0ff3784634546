// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/access/accessbus.h"
#include "tests/support/directory.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// The program as assistive technology has it: another process, of which nothing is known but what it tells on the bus.

namespace {

constexpr int patience = 30000; // milliseconds until what does not come is a failure

class Access : public testing::Test {
protected:
    void SetUp() override
    {
        if (const QString missing = tests::AccessBus::missing(); !missing.isEmpty())
            GTEST_SKIP() << "a tree for assistive technology needs " << missing.toStdString();
        bus.emplace();
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        program.setStandardErrorFile(QProcess::nullDevice());
        program.start(QStringLiteral(TONEFRET_PROGRAM), QStringList());
        ASSERT_TRUE(comes([this] { return bus->application(QStringLiteral("tonefret")).has_value(); }));
        root = *bus->application(QStringLiteral("tonefret"));
        ASSERT_TRUE(comes([this] { return find("push button", "Reset").has_value(); }));
    }

    void TearDown() override
    {
        program.kill();
        program.waitForFinished();
    }

    /// Asks again and again until the answer is yes.
    static bool comes(const std::function<bool()>& wanted)
    {
        QElapsedTimer waited;
        waited.start();
        while (waited.elapsed() < patience) {
            if (wanted())
                return true;
            QThread::msleep(20);
        }
        return false;
    }

    std::vector<tests::Heard> tree() const { return bus->tree(root); }

    std::optional<tests::Heard> find(const char* role, const char* name) const
    {
        const auto all = tree();
        const auto found = std::ranges::find_if(all, [&](const tests::Heard& each) {
            return each.role == QLatin1String(role) && each.name == QLatin1String(name);
        });
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    /// The names of a role, for the message of a failure.
    std::string names(const char* role) const
    {
        std::string all;
        for (const tests::Heard& each : tree())
            if (each.role == QLatin1String(role))
                all += each.name.toStdString() + "\n";
        return all;
    }

    std::optional<tests::Heard> screen(const char* title) const
    {
        for (const tests::Node& each : bus->children(root))
            if (const tests::Heard heard = bus->hear(each); heard.name == QLatin1String(title))
                return heard;
        return std::nullopt;
    }
    std::string screens() const
    {
        std::string all;
        for (const tests::Node& each : bus->children(root))
            all += bus->hear(each).role.toStdString() + " " + bus->hear(each).name.toStdString() + "\n";
        return all;
    }

    bool comes(const char* role, const char* name) const
    {
        return comes([&] { return find(role, name).has_value(); });
    }

    /// Presses the button or picks the item of a name.
    void press(const char* name) const
    {
        for (const char* role : {"push button", "menu item", "check menu item"})
            if (const auto found = find(role, name))
                return bus->act(found->node);
        ADD_FAILURE() << "nothing to press is called " << name << "; there are:\n" << names("push button");
    }

    std::optional<tests::AccessBus> bus;
    QProcess program;
    tests::Node root;
    tests::Directory directory; ///< what the program saves, it saves here
};

/// Roles of what only holds other things.
bool holdsonly(const tests::Heard& each)
{
    const auto roles = {"filler", "separator", "scroll bar", "panel", "scroll pane", "layered pane"};
    return std::ranges::any_of(roles, [&](const char* role) { return each.role == QLatin1String(role); });
}

/// What there is of a tree that has no name, a line each.
std::string nameless(const std::vector<tests::Heard>& tree)
{
    std::string all;
    for (const tests::Heard& each : tree)
        if (each.name.trimmed().isEmpty() && !holdsonly(each))
            all += each.role.toStdString() + " " + each.node.path.toStdString() + "\n";
    return all;
}

struct Opening {
    std::vector<const char*> steps; ///< names of what is pressed, from the main screen on
    const char* screen;             ///< title of what then stands there
};

TEST_F(Access, everyControl_hasAName)
{
    const Opening rows[] = {
        {{}, "tonefret"},
        {{"E string, open"}, "custom string retune"},
        {{"no retune", "Edit Custom Settings"}, "Custom Instrument and Tuning Settings"},
        {{"Arrange Custom Order"}, "Arrange the Order (position) of custom data"},
        {{"View Print Text"}, "Tonefret Chord Printing Composer - Uses simple Text (.txt) format"},
        {{"Snapshot Chord Text"}, "Keyboard or Stringed Instrument?"},
        {{"Keyboard or Piano"}, "Chord Camera - vexlor 2000"},
        {{"Print the chords"}, "tonefret print dialog box"},
        {{"CANCEL", "Basic Help"},
         "vexlor 2000 tonefret basic help - note that more help is available by pressing the "
         "'more help' button"},
        {{"Help - Complete"}, "Help, membank, vexlor_2000"},
        {{"view picture"}, "The main screen"},
        {{"About"}, "About tonefret"},
    };
    for (const Opening& row : rows) {
        for (const char* step : row.steps)
            press(step);
        ASSERT_TRUE(comes([&] { return screen(row.screen).has_value(); })) << row.screen << " among " << screens();
        const auto all = bus->tree(screen(row.screen)->node);
        EXPECT_GT(all.size(), 3U) << row.screen;
        EXPECT_EQ(nameless(all), "") << row.screen;
    }
}

TEST_F(Access, enteredNotes_areReadAsAChord)
{
    EXPECT_TRUE(comes("notification", "no chord")) << names("notification");
    for (const char* key : {"C key, lower octave", "E key, lower octave", "G key, lower octave"})
        press(key);
    EXPECT_TRUE(comes("notification", "C major: C E G")) << names("notification");
    EXPECT_TRUE(comes("label", "Chord: major")) << names("label");
    EXPECT_TRUE(comes("label", "Root of the chord: C")) << names("label");
    EXPECT_TRUE(comes("label", "Note 3: G")) << names("label");
    EXPECT_TRUE(comes("label", "Note 4: none")) << names("label");
    EXPECT_TRUE(comes("push button", "E key, lower octave, in the chord")) << names("push button");
    EXPECT_TRUE(comes("push button", "E string, fret 3, G, in the chord")) << names("push button");
    EXPECT_TRUE(comes("combo box", "Family: GUITAR")) << names("combo box");
    EXPECT_TRUE(comes("list item", "UKULELE")) << names("list item");
    press("Reset");
    EXPECT_TRUE(comes("notification", "no chord")) << names("notification");
    EXPECT_TRUE(comes("push button", "E key, lower octave")) << names("push button");
}

TEST_F(Access, alternate_isToldToo)
{
    for (const char* pressed : {"C key, lower octave", "minor 7th"})
        press(pressed);
    EXPECT_TRUE(comes("notification", "C minor 7th: C Eb G Bb; also Eb major 6th")) << names("notification");
}

TEST_F(Access, everySelector_showsItsList)
{
    for (const char* list : {"Family: GUITAR", "View: Right Hand", "Instruments / Tuning: Standard 6 or 12 string",
                             "Capo / Bar Adjust: pull down menu --- >"}) {
        const auto box = find("combo box", list);
        ASSERT_TRUE(box) << list << " among " << names("combo box");
        EXPECT_GT(bus->tree(box->node).size(), 2U) << list;
    }
}

} // namespace
