// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/menus.h"

#include <QMenu>

#include <array>
#include <string_view>

namespace mainscreen {
namespace {

/// What picking an item does, or what kind of row it is.
enum class Kind : std::uint8_t {
    menu, ///< opens a menu; the rows up to the next one are its items
    separator,
    item,
    check, ///< an item with a check mark
};

struct MenuRow {
    Kind kind;
    const char* name;
    const char* caption;
    void (Session::*handler)() = nullptr;   ///< none: nothing to do yet, the item is disabled
    bool (*mark)(const Session&) = nullptr; ///< the state of its check mark
};

template <bool SpellingMarks::*Mark>
bool spelling(const Session& session)
{
    return session.marks.*Mark;
}

bool tips(const Session& session)
{
    return session.mnutips;
}

// clang-format off
constexpr auto rows = std::to_array<MenuRow>({
//  kind             name             caption                                        handler                   check mark
  { Kind::menu,      "mnufile",       "File" },
  { Kind::item,      "mnuload",       "Load Custom Settings" },
  { Kind::item,      "mnusave",       "Save Custom Settings" },
  { Kind::item,      "mnuexit",       "Exit (Quit Program)",                         &Session::tonefretexit },
  { Kind::menu,      "mnuedit",       "Edit and Custom" },
  { Kind::item,      "mnucustom",     "Edit Custom Settings" },
  { Kind::item,      "mnuarrange",    "Arrange Custom Order" },
  { Kind::check,     "mnutips",       "Toggle main tips",                            &Session::mnutips_Click,  tips },
  { Kind::menu,      "mnuflattype",   "Sharps and Flats" },
  { Kind::check,     "mnusharp",      "Mostly Sharps",                               &Session::dosharps,       spelling<&SpellingMarks::mnusharp> },
  { Kind::check,     "mnuflat",       "Mostly Flats",                                &Session::doflats,        spelling<&SpellingMarks::mnuflat> },
  { Kind::check,     "mnumix1",       "Mix1 (C#,Eb,F#,Ab,Bb)",                       &Session::domix1,         spelling<&SpellingMarks::mnumix1> },
  { Kind::check,     "mnumix2",       "Mix2 (C#,Eb,F#,G#,Bb)",                       &Session::domix2,         spelling<&SpellingMarks::mnumix2> },
  { Kind::check,     "mnuauto",       "Automatic Chord Sharps and Flats",            &Session::doauto,         spelling<&SpellingMarks::mnuauto> },
  { Kind::separator, "mnu5",          "" },
  { Kind::check,     "mnuboth",       "Keyboard Itself - show both",                 &Session::mnuboth_Click,  spelling<&SpellingMarks::mnuboth> },
  { Kind::menu,      "mnuprint",      "Print Chords" },
  { Kind::item,      "mnusnap",       "Snapshot Chord Text" },
  { Kind::item,      "mnuviewprint",  "View Print Text" },
  { Kind::check,     "mnuguitar",     "Stringed Instrument Chords - click to set" },
  { Kind::check,     "mnupiano",      "Keyboard Chords - click to set" },
  { Kind::item,      "mnuphotoclear", "Clear Photos and Reset Print Data" },
  { Kind::item,      "mnuprintchord", "Print the chords" },
  { Kind::menu,      "mnuhelp",       "Help" },
  { Kind::item,      "mnubhelp",      "Basic Help",                                  &Session::mnubhelp_Click },
  { Kind::item,      "mnuchelp",      "Help - Complete",                             &Session::mnuchelp_Click },
  { Kind::item,      "mnuabout",      "About",                                       &Session::mnuabout_Click },
});
// clang-format on
static_assert(rows.front().kind == Kind::menu);

QAction* additem(QMenu* menu, const MenuRow& row, Session& session, ui::Stage& stage)
{
    QAction* action = menu->addAction(QString::fromLatin1(row.caption));
    action->setCheckable(row.kind == Kind::check);
    action->setEnabled(row.handler != nullptr);
    if (row.handler)
        QObject::connect(action, &QAction::triggered, action,
                         [&session, &stage, handler = row.handler] { stage.act([&] { (session.*handler)(); }); });
    return action;
}

} // namespace

Menus::Menus(QMenuBar& bar, Session& shown, ui::Stage& entered) : session(shown)
{
    QMenu* menu = nullptr;
    for (const MenuRow& row : rows) {
        QAction* action = nullptr;
        if (row.kind == Kind::menu || !menu) { // the first row is one
            menu = bar.addMenu(QString::fromLatin1(row.caption));
            action = menu->menuAction();
        } else if (row.kind == Kind::separator) {
            action = menu->addSeparator();
        } else {
            action = additem(menu, row, session, entered);
        }
        action->setObjectName(QString::fromLatin1(row.name));
        if (row.mark)
            marked.push_back({action, row.mark});
    }
}

void Menus::display()
{
    for (const Marked& item : marked)
        item.action->setChecked(item.mark(session));
}

} // namespace mainscreen
