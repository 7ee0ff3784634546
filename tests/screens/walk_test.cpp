// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <random>

// Long seeded walks on the real screen: after each step every control shows what the session's state says.

namespace {

using WalkTest = tests::ScreenTest;
using tests::member;
using tests::str;

class Walk : public WalkTest {
protected:
    int below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    std::string step()
    {
        switch (below(8)) {
        case 0:
        case 1:
            return clickon(member("key", below(26)));
        case 2:
            return clickcell();
        case 3:
            return clickon(member("Crd", below(28)));
        case 4:
            return chooseany();
        case 5:
            return pickany();
        case 6:
            return clickon(QLatin1String(
                std::array{"topl", "topr", "botl", "botr", "optu", "optd"}.at(static_cast<std::size_t>(below(6)))));
        default:
            return clickon(
                QLatin1String(std::array{"cmdsharp", "cmdflat", "cmdauto"}.at(static_cast<std::size_t>(below(3)))));
        }
    }

    void expectshown(const std::string& after)
    {
        for (std::size_t k = 0; k < session.keyboard.key.size(); ++k)
            expectcontrol(member("key", static_cast<int>(k)), session.keyboard.key[k].caption,
                          session.keyboard.key[k].back, after);
        for (std::size_t i = 0; i < session.fretboard.cell.size(); ++i) {
            const instruments::Cell& cell = session.fretboard.cell[i];
            expectcontrol(member("Text1", static_cast<int>(i)), cell.text, cell.back, after);
            EXPECT_EQ(control(member("Text1", static_cast<int>(i)))->isVisible(), cell.visible)
                << after << " cell " << i;
        }
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(shown(member("note", i)), session.note.at(static_cast<std::size_t>(i))) << after << " note " << i;
        for (std::size_t k = 0; k < 30; ++k)
            EXPECT_EQ(shown(member("trans1", static_cast<int>(k))), session.trans1.at(k / 15).at(k % 15)) << after;
        EXPECT_EQ(shown(QStringLiteral("cordtyp1")), session.cordtyp1) << after;
        EXPECT_EQ(shown(QStringLiteral("cordtyp2")), session.cordtyp2) << after;
        expectlists(after);
        expectmarks(after);
    }

private:
    std::string clickon(const QString& name)
    {
        click(name);
        return str(name);
    }

    std::string clickcell()
    {
        const int cell = below(120);
        if (!control(member("Text1", cell))->isVisible())
            return "nothing";
        click(member("Text1", cell));
        if (cell < 6) {
            for (QWidget* top : QApplication::topLevelWidgets())
                if (top->objectName() == QLatin1String("frmretune") && top->isVisible())
                    QTest::mouseClick(control(member("cmdret", below(13)), top), Qt::LeftButton);
        }
        return str(member("Text1", cell));
    }

    std::string chooseany()
    {
        const QString name = QLatin1String(
            std::array{"cbotype", "cbotuning", "cboleft", "cbopreset"}.at(static_cast<std::size_t>(below(4))));
        const int count = control<QComboBox>(name)->count();
        if (count == 0)
            return "nothing";
        const int item = below(count);
        choose(name, item);
        return str(name) + " " + std::to_string(item);
    }

    std::string pickany()
    {
        const QString name =
            QLatin1String(std::array{"mnusharp", "mnuflat", "mnumix1", "mnumix2", "mnuauto", "mnuboth"}.at(
                static_cast<std::size_t>(below(6))));
        pick(name);
        return str(name);
    }

    void expectcontrol(const QString& name, const std::string& text, core::Colour colour, const std::string& after)
    {
        EXPECT_EQ(shown(name), text) << after << ": " << str(name);
        const auto back = control(name)->property("backColor").value<QColor>();
        EXPECT_EQ(back.isValid() ? back.rgb() & 0xFFFFFF : core::nocolour, colour) << after << ": " << str(name);
    }

    void expectlists(const std::string& after)
    {
        const std::pair<const char*, const mainscreen::Selector*> lists[] = {{"cbotype", &session.cbotype},
                                                                             {"cbotuning", &session.cbotuning},
                                                                             {"cboleft", &session.cboleft},
                                                                             {"cbopreset", &session.cbopreset}};
        for (const auto& [name, state] : lists) {
            const auto* list = control<QComboBox>(QLatin1String(name));
            EXPECT_EQ(shown(QLatin1String(name), "currentText"), state->text) << after;
            EXPECT_EQ(list->currentIndex(), state->index) << after << ": " << name;
            ASSERT_EQ(list->count(), static_cast<int>(state->items.size())) << after << ": " << name;
            for (int i = 0; i < list->count(); ++i)
                EXPECT_EQ(str(list->itemText(i)), state->items.at(static_cast<std::size_t>(i))) << after;
        }
    }

    void expectmarks(const std::string& after)
    {
        const std::pair<const char*, bool> marks[] = {
            {"mnusharp", session.marks.mnusharp}, {"mnuflat", session.marks.mnuflat},
            {"mnumix1", session.marks.mnumix1},   {"mnumix2", session.marks.mnumix2},
            {"mnuauto", session.marks.mnuauto},   {"mnuboth", session.marks.mnuboth}};
        for (const auto& [name, mark] : marks)
            EXPECT_EQ(control<QAction>(QLatin1String(name))->isChecked(), mark) << after << ": " << name;
    }

    std::mt19937 random{20260501}; // one seed, so that a failure comes again
};

TEST_F(Walk, everystep_showsTheState)
{
    for (int i = 0; i < 600 && !HasFailure(); ++i)
        expectshown("step " + std::to_string(i) + ", " + step());
}

} // namespace
