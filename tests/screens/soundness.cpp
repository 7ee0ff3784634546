// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/soundness.h"

#include <QApplication>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // GCC brings no header that tells of it
#else
#include <malloc.h>
#endif

namespace tests {
namespace {

std::string str(const QString& text)
{
    return text.toStdString();
}

QWidget* found(const QWidget& screen, const QString& name)
{
    auto* control = screen.findChild<QWidget*>(name);
    if (!control)
        throw std::runtime_error("no control " + str(name));
    return control;
}

std::vector<QWidget*> members(const QWidget& screen, const char* array, int count)
{
    std::vector<QWidget*> all;
    for (int i = 0; i < count; ++i)
        all.push_back(found(screen, QString::fromLatin1("%1_%2").arg(QLatin1String(array)).arg(i)));
    return all;
}

std::string textof(const char* name, const QWidget& screen)
{
    return str(found(screen, QString::fromLatin1(name))->property("text").toString());
}

QPoint middle(const QWidget& control, const QWidget& screen)
{
    return control.mapTo(&screen, control.rect().center());
}

/// Whether a click on it would do something of its own.
bool acts(const QWidget* control)
{
    return control && (control->focusPolicy() != Qt::NoFocus || !control->objectName().isEmpty() ||
                       qobject_cast<const QMenuBar*>(control));
}

QList<const QWidget*> openscreens()
{
    QList<const QWidget*> open;
    for (const QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible())
            open.append(top);
    return open;
}

std::vector<std::string> sorted(const custom::CustomTable& table)
{
    std::vector<std::string> all;
    for (const custom::Entry& entry : table)
        all.push_back(entry.name + ";" + entry.data);
    std::ranges::sort(all);
    return all;
}

} // namespace

Soundness::Soundness(app::Program& tested)
    : program(tested),
      notes(members(program.mainscreen, "note", 8)),
      keys(members(program.mainscreen, "key", 25)),
      cells(members(program.mainscreen, "Text1", 120)),
      rows(members(program.mainscreen, "trans1", 30)),
      name(found(program.mainscreen, QStringLiteral("cordtyp1"))),
      alternate(found(program.mainscreen, QStringLiteral("cordtyp2")))
{
}

std::string Soundness::shown(const QWidget* control) const
{
    return str(control->property("text").toString());
}

void Soundness::expectreadouts() const
{
    core::ChordSlots slots = session.chordslots;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const core::PitchClass slot = slots.slot(static_cast<int>(i));
        const bool beforefirst = session.note.at(i).empty() && slot == core::nonote;
        const bool chosenroot = i == 6 && session.note.at(6) == session.note.at(0); // a chord button writes no slot
        if (!beforefirst && !chosenroot) {
            EXPECT_EQ(session.note.at(i), session.spelling.nameof(slot)) << "note " << i;
        }
        EXPECT_EQ(shown(notes[i]), session.note.at(i)) << "note " << i;
    }
    EXPECT_EQ(shown(name), session.cordtyp1);
    EXPECT_EQ(shown(alternate), session.cordtyp2);
    if (slots.notes[0] == core::nonote)
        return; // a reset empties the readouts and leaves the names in their slots
    std::string spelled = slots.alternate;
    session.spelling.respell(spelled);
    EXPECT_EQ(session.cordtyp1, slots.name);
    EXPECT_EQ(session.cordtyp2, spelled);
}

void Soundness::expectspelled() const
{
    const auto expect = [&](const std::string& text, const char* where) {
        const core::PitchClass pitch = core::notenumber(text);
        EXPECT_EQ(text, pitch == core::nonote ? text : session.spelling.nameof(pitch)) << where;
    };
    for (const QWidget* cell : cells)
        expect(shown(cell), "cell");
    for (const QWidget* note : rows)
        expect(shown(note), "transpose row");
    for (std::size_t k = 0; k < keys.size(); ++k) {
        const int pitch = static_cast<int>(k) % core::octave;
        const bool both = session.spelling.both && core::isblack(pitch);
        EXPECT_EQ(shown(keys[k]), both ? core::bothnames(pitch) : session.spelling.nameof(pitch)) << "key " << k;
    }
    std::string alternatename = session.cordtyp2;
    session.spelling.respell(alternatename);
    EXPECT_EQ(session.cordtyp2, alternatename);
}

void Soundness::expectentries() const
{
    for (const custom::Entry& entry : session.customtable)
        EXPECT_EQ(entry.data.size(), entry.name.empty() ? entry.data.size() : custom::datalength);
    for (const QWidget* screen : openscreens()) {
        if (screen->objectName() != QLatin1String("arrange"))
            continue;
        const auto boxes = members(*screen, "txtx", custom::placecount);
        for (std::size_t place = 0; place < boxes.size(); ++place) {
            EXPECT_EQ(shown(boxes[place]), session.customtable.at(place).name) << "place " << place;
            EXPECT_EQ(boxes[place]->isVisible(), !session.customtable.at(place).name.empty()) << "place " << place;
        }
    }
}

void Soundness::expectcompanions() const
{
    for (const QWidget* screen : openscreens()) {
        if (screen->objectName() == QLatin1String("custom")) {
            EXPECT_EQ(textof("txtname", *screen), session.editform.txtname);
            EXPECT_EQ(textof("txtnum", *screen), session.editform.txtnum());
            const auto boxes = members(*screen, "txtnote", 7);
            for (std::size_t k = 0; k < boxes.size(); ++k) {
                EXPECT_EQ(shown(boxes[k]), session.editform.txtnote.at(k)) << "note box " << k;
                EXPECT_EQ(boxes[k]->isVisible(), session.editform.boxvisible(k)) << "note box " << k;
            }
        } else if (screen->objectName() == QLatin1String("mprint")) {
            EXPECT_EQ(str(screen->findChild<QPlainTextEdit*>(QStringLiteral("rtbprint"))->toPlainText()),
                      session.page.text);
            EXPECT_EQ(textof("txtchar", *screen), session.page.txtchar);
        } else if (screen->objectName() == QLatin1String("frmretune")) {
            const auto row = static_cast<std::size_t>(session.retune.row);
            EXPECT_NE(textof("retuneheading", *screen).find(session.fretboard.cell.at(row).text), std::string::npos);
        }
    }
}

void Soundness::expectplaces() const
{
    const QWidget* used = QApplication::focusWidget();
    EXPECT_TRUE(!used || used->isVisible()) << "the keyboard acts on " << str(used->objectName());
    for (const QWidget* cell : cells)
        if (cell->isVisible()) {
            const QWidget* there = program.mainscreen.childAt(middle(*cell, program.mainscreen));
            EXPECT_EQ(there, cell) << str(cell->objectName()) << " shares its place";
        }
}

void Soundness::expectsound() const
{
    expectreadouts();
    expectspelled();
    expectentries();
    expectcompanions();
    expectplaces();
}

std::string Soundness::clickhidden(QWidget& screen, unsigned which) const
{
    QList<const QWidget*> hidden;
    for (const QWidget* each : screen.findChildren<QWidget*>())
        if (!each->isVisible() && each->window() == &screen && !each->objectName().isEmpty() &&
            screen.rect().contains(middle(*each, screen)) && !acts(screen.childAt(middle(*each, screen))))
            hidden.append(each);
    if (hidden.isEmpty())
        return {};
    const QWidget& control = *hidden.at(static_cast<qsizetype>(which) % hidden.size());
    const std::string before = digest();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle(control, screen));
    EXPECT_TRUE(digest() == before) << "a click on " << str(control.objectName()) << ", which is hidden";
    return "where " + str(control.objectName()) + " is hidden";
}

std::string Soundness::exchange(QWidget& arrange, unsigned which) const
{
    const auto used = static_cast<unsigned>(custom::indexnew(session.customtable));
    if (used == 0)
        return "no entry";
    const auto before = sorted(session.customtable);
    const auto boxes = members(arrange, "txtx", custom::placecount);
    const unsigned from = which % used;
    const unsigned to = which / used % used;
    QTest::keyClick(boxes.at(from), Qt::Key_Space);
    QTest::keyClick(boxes.at(to), Qt::Key_Space);
    EXPECT_EQ(sorted(session.customtable), before);
    return "exchange " + std::to_string(from) + " and " + std::to_string(to);
}

std::string Soundness::digest() const
{
    std::string all = session.cordtyp1 + "|" + session.cordtyp2 + "|" + session.cbotuning.text + "|" +
                      session.cbopreset.text + "|" + session.page.text + "|" + session.editform.txtname +
                      session.editform.txtnum() + "|" + std::to_string(openscreens().size());
    for (const std::string& note : session.note)
        all += "," + note;
    for (const instruments::Cell& cell : session.fretboard.cell)
        all += "," + cell.text + std::to_string(cell.back);
    for (const std::string& box : session.editform.txtnote)
        all += "," + box;
    for (const custom::Entry& entry : session.customtable)
        all += ";" + entry.name + ";" + entry.data;
    return all;
}

std::size_t allocated()
{
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

} // namespace tests
