// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/menus.h"

#include "ui/menukeys.h"

#include <QMenu>

#include <array>
#include <ranges>
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
    void (Session::*handler)() = nullptr;     ///< none: a menu, or a separator
    bool (*mark)(const Session&) = nullptr;   ///< the state of its check mark
    QKeyCombination keys{};                   ///< what picks it without the menu
    bool (*usable)(const Session&) = nullptr; ///< whether it can be picked; none: always
};

template <bool SpellingMarks::*Mark>
bool spelling(const Session& session)
{
    return session.marks.*Mark;
}

template <bool print::ModeMarks::*Mark>
bool mode(const Session& session)
{
    return session.camera.marks.*Mark;
}

bool tips(const Session& session)
{
    return session.mnutips;
}

bool chord(const Session& session)
{
    return session.cancopychord();
}

bool chart(const Session& session)
{
    return session.cancopychart();
}

constexpr QKeyCombination nokeys{};

// clang-format off
constexpr auto rows = std::to_array<MenuRow>({
//  kind             name             caption                                        handler                   check mark, keys, usable
  { Kind::menu,      "mnufile",       "File" },
  { Kind::item,      "mnuload",       "Load Custom Settings",                        &Session::mnuload_Click,  nullptr, Qt::CTRL | Qt::Key_O },
  { Kind::item,      "mnusave",       "Save Custom Settings",                        &Session::mnusave_Click,  nullptr, Qt::CTRL | Qt::Key_S },
  { Kind::item,      "mnuexit",       "Exit (Quit Program)",                         &Session::tonefretexit },
  { Kind::menu,      "mnuedit",       "Edit and Custom" },
  { Kind::item,      "mnucustom",     "Edit Custom Settings",                        &Session::mnucustom_Click },
  { Kind::item,      "mnuarrange",    "Arrange Custom Order",                        &Session::mnuarrange_Click },
  { Kind::check,     "mnutips",       "Toggle main tips",                            &Session::mnutips_Click,  tips },
  { Kind::separator, "mnu6",          "" },
  { Kind::item,      "mnucopychord",  "Copy Chord",                                  &Session::mnucopychord_Click, nullptr, Qt::CTRL | Qt::Key_C, chord },
  { Kind::item,      "mnucopychart",  "Copy Last Chart",                             &Session::mnucopychart_Click, nullptr, nokeys, chart },
  { Kind::menu,      "mnuflattype",   "Sharps and Flats" },
  { Kind::check,     "mnusharp",      "Mostly Sharps",                               &Session::dosharps,       spelling<&SpellingMarks::mnusharp> },
  { Kind::check,     "mnuflat",       "Mostly Flats",                                &Session::doflats,        spelling<&SpellingMarks::mnuflat> },
  { Kind::check,     "mnumix1",       "Mix1 (C#,Eb,F#,Ab,Bb)",                       &Session::domix1,         spelling<&SpellingMarks::mnumix1> },
  { Kind::check,     "mnumix2",       "Mix2 (C#,Eb,F#,G#,Bb)",                       &Session::domix2,         spelling<&SpellingMarks::mnumix2> },
  { Kind::check,     "mnuauto",       "Automatic Chord Sharps and Flats",            &Session::doauto,         spelling<&SpellingMarks::mnuauto> },
  { Kind::separator, "mnu5",          "" },
  { Kind::check,     "mnuboth",       "Keyboard Itself - show both",                 &Session::mnuboth_Click,  spelling<&SpellingMarks::mnuboth> },
  { Kind::menu,      "mnuprint",      "Print Chords" },
  { Kind::item,      "mnusnap",       "Snapshot Chord Text",                         &Session::photochord },
  { Kind::item,      "mnuviewprint",  "View Print Text",                             &Session::mnuviewprint_Click, nullptr, Qt::CTRL | Qt::Key_P },
  { Kind::check,     "mnuguitar",     "Stringed Instrument Chords - click to set",   &Session::mnuguitar_Click, mode<&print::ModeMarks::mnuguitar> },
  { Kind::check,     "mnupiano",      "Keyboard Chords - click to set",              &Session::mnupiano_Click, mode<&print::ModeMarks::mnupiano> },
  { Kind::item,      "mnuphotoclear", "Clear Photos and Reset Print Data",           &Session::mnuphotoclear_Click },
  { Kind::item,      "mnuprintchord", "Print the chords",                            &Session::chordprint },
  { Kind::menu,      "mnuhelp",       "Help" },
  { Kind::item,      "mnubhelp",      "Basic Help",                                  &Session::mnubhelp_Click },
  { Kind::item,      "mnuchelp",      "Help - Complete",                             &Session::mnuchelp_Click, nullptr, Qt::Key_F1 },
  { Kind::item,      "mnuabout",      "About",                                       &Session::mnuabout_Click },
});
// clang-format on
static_assert(rows.front().kind == Kind::menu);

QMenu* addmenu(QMenuBar& bar, const MenuRow& row)
{
    QMenu* menu = bar.addMenu(QString::fromLatin1(row.caption));
    menu->menuAction()->setObjectName(QString::fromLatin1(row.name));
    return menu;
}

QAction* additem(QMenu& menu, const MenuRow& row, Session& session, ui::Stage& stage)
{
    QAction* action = menu.addAction(QString::fromLatin1(row.caption));
    action->setObjectName(QString::fromLatin1(row.name));
    action->setSeparator(row.kind == Kind::separator);
    action->setCheckable(row.kind == Kind::check);
    if (row.keys != nokeys)
        action->setShortcut(row.keys);
    if (row.keys == QKeyCombination(Qt::Key_F1))
        action->setShortcutContext(Qt::ApplicationShortcut); // help is there on every screen
    if (row.handler)
        QObject::connect(action, &QAction::triggered, action,
                         [&session, &stage, handler = row.handler] { stage.act([&] { (session.*handler)(); }); });
    return action;
}

} // namespace

Menus::Menus(QMenuBar& bar, Session& shown, ui::Stage& entered) : session(shown)
{
    QMenu* menu = addmenu(bar, rows.front());
    for (const MenuRow& row : rows | std::views::drop(1)) {
        if (row.kind == Kind::menu) {
            menu = addmenu(bar, row);
            continue;
        }
        QAction* action = additem(*menu, row, session, entered);
        if (row.mark)
            marked.push_back({action, row.mark});
        if (row.usable)
            usable.push_back({action, row.usable});
    }
    ui::addmenukeys(bar);
}

void Menus::display()
{
    for (const Asking& item : marked)
        item.action->setChecked(item.question(session));
    for (const Asking& item : usable)
        item.action->setEnabled(item.question(session));
}

} // namespace mainscreen
