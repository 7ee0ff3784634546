// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/pagescreen.h"

#include "print/typednumber.h"
#include "ui/menukeys.h"
#include "ui/text.h"

#include <QMenuBar>
#include <QSignalBlocker>

namespace print {
namespace {

// clang-format off
constexpr NumberRow characterrow{"Characters / line : ", "charactersperline", "characters per line", "txtchar", "cmdchardown", "less characters per line",
                                 "cmdcharup", "more characters per line", 130};
constexpr NumberRow spacingrow{"Chord Spacing: ", "chordspacing", "chord spacing", "txtspace", "cmdspacedown", "less spacing between chords",
                               "cmdspaceup", "more spacing between chords", 130};
constexpr NumberRow fontrow{"Change Font Size", "changefontsize", "font size", "txtfont", "cmddownfont", "lower the font size",
                            "cmdupfont", "raise the font size", 130};
// clang-format on
constexpr const char* cleartip = "clears the print screen and all print data"; // the print button has it too
constexpr int charactersinview = 80;
constexpr int heightinview = 620; // pixels at zoom 1

/// Without telling of it.
void setchecked(QCheckBox* box, bool checked)
{
    const QSignalBlocker quiet(box);
    box->setChecked(checked);
}

} // namespace

PageScreen::PageScreen(const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner, Qt::Window),
      rtbprint(new Paper(look, this)),
      characters(new NumberBox(*this, characterrow)),
      spacing(new NumberBox(*this, spacingrow)),
      font(new NumberBox(*this, fontrow)),
      chkmult(new QCheckBox(this)),
      chkalt(new QCheckBox(this)),
      txtlines(new QLineEdit(this))
{
    setObjectName(QStringLiteral("mprint"));
    setWindowTitle(QStringLiteral("Tonefret Chord Printing Composer - Uses simple Text (.txt) format"));
    dressparts();
    addmenus();
    auto* column = new QVBoxLayout;
    column->addWidget(card(addsettings()));
    column->addWidget(rtbprint, 1);
    column->addLayout(addbuttons());
    setcontent(column, 10);
}

void PageScreen::dressparts()
{
    rtbprint->setObjectName(QStringLiteral("rtbprint"));
    rtbprint->setToolTip(QStringLiteral("print output screen - you can add titles or edit here also"));
    rtbprint->setAccessibleName(QStringLiteral("print page"));
    fitarea(rtbprint);
    dresscheck(chkmult, "chkmult", "if checked: allows only 1 chord printed per line", "Only 1 chord/line?");
    dresscheck(chkalt, "chkalt", "if checked: will show alternate fingerings as well as primary",
               "Show Alternate Fingerings");
    txtlines->setObjectName(QStringLiteral("txtlines"));
    txtlines->setToolTip(QStringLiteral("Output: shows how many lines are written"));
    txtlines->setAccessibleName(QStringLiteral("Lines Written"));
    txtlines->setReadOnly(true);
    txtlines->setAlignment(Qt::AlignRight);
    fitbox(txtlines);
    fitsize(txtlines, {60, -1});
}

void PageScreen::dresscheck(QCheckBox* check, const char* name, const char* tip, const char* spoken)
{
    check->setObjectName(QString::fromLatin1(name));
    check->setToolTip(QString::fromLatin1(tip));
    check->setAccessibleName(QString::fromLatin1(spoken));
    fitindicator(check);
}

void PageScreen::addmenus()
{
    QMenu* file = addmenu("mnufile", "file");
    additem(file, "mnuload", "Load Chord Text File", &PageScreen::mnuload_Click, Qt::CTRL | Qt::Key_O);
    additem(file, "mnusave", "Save Chord Text File", &PageScreen::mnusave_Click, Qt::CTRL | Qt::Key_S);
    additem(file, "mnuexit", "Exit", &PageScreen::cmdret_Click);
    QMenu* modes = addmenu("mnuprintmain", "Print Chords");
    mnuguitar = additem(modes, "mnuguitar", "Stringed Instrument Chords - click to set", &PageScreen::mnuguitar_Click);
    mnupiano = additem(modes, "mnupiano", "Keyboard Chords - click to set", &PageScreen::mnupiano_Click);
    mnuguitar->setCheckable(true);
    mnupiano->setCheckable(true);
    QAction* print = menuBar()->addAction(QStringLiteral("Print"), this, &PageScreen::cmdprint_Click);
    print->setObjectName(QStringLiteral("mnuprint"));
    print->setShortcut(Qt::CTRL | Qt::Key_P);
    additem(addmenu("mnuhelp", "Help"), "mnuhelpcomplete", "Help - complete", &PageScreen::mnuhelpcomplete_Click);
    ui::addmenukeys(*menuBar());
}

QAction* PageScreen::additem(QMenu* menu, const char* name, const char* text, Signal told, QKeyCombination keys)
{
    return Companion::additem(
        menu, name, text, [this, told] { (this->*told)(); }, keys);
}

/// Numbers at the left, what can be ticked at the right, in the same rows.
QLayout* PageScreen::addsettings()
{
    auto* grid = new QGridLayout;
    grid->addWidget(characters, 0, 0);
    grid->addWidget(spacing, 1, 0);
    grid->addWidget(font, 2, 0);
    grid->addWidget(addbutton("cmdfonthelp", "?", "font size help", &PageScreen::cmdfonthelp_Click), 2, 1);
    fit([this, grid] { grid->setColumnMinimumWidth(2, scaled(edge)); });
    grid->addLayout(addline({chkmult, caption("onechord", "Only 1 chord/line?", ui::Type::text)}), 0, 3);
    grid->addLayout(addline({chkalt, caption("alternates", "Show Alternate Fingerings", ui::Type::text),
                             caption("primary", "Primary = *", ui::Type::label),
                             caption("alternate", "Alternate = +", ui::Type::label)}),
                    1, 3);
    grid->addLayout(addline({caption("lineswritten", "Lines Written", ui::Type::text), txtlines}), 2, 3);
    grid->setColumnStretch(3, 1);
    return grid;
}

QLayout* PageScreen::addline(std::initializer_list<QWidget*> parts)
{
    auto* line = new QHBoxLayout;
    fitroom(line, 0, gap);
    for (QWidget* part : parts)
        line->addWidget(part);
    line->addStretch();
    return line;
}

QLayout* PageScreen::addbuttons()
{
    auto* line = new QHBoxLayout;
    fitroom(line, 0, gap);
    line->addWidget(addbutton("cmdshow", "Done. Show all Print Lines",
                              "press when done to send all stored print to this screen", &PageScreen::cmdshow_Click));
    line->addWidget(addbutton("cmdclear", "Clear Print Data", cleartip, &PageScreen::cmdclear_Click));
    line->addWidget(addbutton("cmdprint", "Print Data", cleartip, &PageScreen::cmdprint_Click));
    line->addStretch();
    line->addWidget(addbutton("cmdret", "Return to Main Program", "return to main program", &PageScreen::cmdret_Click));
    return line;
}

QWidget* PageScreen::addbutton(const char* name, const char* text, const char* tip, Signal told)
{
    return button(name, text, tip, [this, told] { (this->*told)(); });
}

void PageScreen::display(const Page& page, const ModeMarks& marks)
{
    rtbprint->setpoints(page.fontsize);
    rtbprint->setcharacters(wholenumber(page.txtchar));
    rtbprint->display(page.text);
    characters->display(page.txtchar);
    spacing->display(page.txtspace);
    font->display(page.txtfont);
    setchecked(chkmult, page.chkmult);
    setchecked(chkalt, page.chkalt);
    txtlines->setText(ui::totext(page.txtlines));
    mnuguitar->setChecked(marks.mnuguitar);
    mnupiano->setChecked(marks.mnupiano);
}

std::optional<QSize> PageScreen::openingsize() const
{
    return QSize(rtbprint->widthfor(charactersinview) + 2 * scaled(edge), scaled(heightinview));
}

} // namespace print
