// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/pagescreen.h"

#include "print/typednumber.h"
#include "ui/menukeys.h"
#include "ui/text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>

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
constexpr double usable = 0.9;    // of the display's free area, at most

/// Without telling of it.
void setchecked(QCheckBox* box, bool checked)
{
    const QSignalBlocker quiet(box);
    box->setChecked(checked);
}

} // namespace

PageScreen::PageScreen(const ui::Look& shown, QWidget* owner)
    : QMainWindow(owner),
      rtbprint(new Paper(shown, this)),
      characters(new NumberBox(shown, characterrow, this)),
      spacing(new NumberBox(shown, spacingrow, this)),
      font(new NumberBox(shown, fontrow, this)),
      chkmult(new QCheckBox(this)),
      chkalt(new QCheckBox(this)),
      look(shown),
      txtlines(new QLineEdit(this))
{
    setObjectName(QStringLiteral("mprint"));
    setWindowTitle(QStringLiteral("Tonefret Chord Printing Composer - Uses simple Text (.txt) format"));
    setPalette(look.palettefor(look.theme().surface));
    rtbprint->setObjectName(QStringLiteral("rtbprint"));
    rtbprint->setToolTip(QStringLiteral("print output screen - you can add titles or edit here also"));
    rtbprint->setAccessibleName(QStringLiteral("print page"));
    addmenus();
    auto* ground = new QWidget(this);
    auto* column = new QVBoxLayout(ground);
    const int room = qRound(10 * look.zoom());
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(room);
    auto* settings = new QHBoxLayout;
    settings->addLayout(addnumbers());
    settings->addLayout(addchecks());
    settings->addStretch();
    column->addLayout(settings);
    column->addWidget(rtbprint, 1);
    column->addLayout(addbuttons());
    setCentralWidget(ground);
}

void PageScreen::addmenus()
{
    const auto addmenu = [this](const char* name, const char* caption) {
        QMenu* menu = menuBar()->addMenu(QString::fromLatin1(caption));
        menu->menuAction()->setObjectName(QString::fromLatin1(name));
        return menu;
    };
    menuBar()->setFont(look.font(ui::Type::text));
    QMenu* file = addmenu("mnufile", "file");
    additem(file, "mnuload", "Load Chord Text File", &PageScreen::mnuload_Click)->setShortcut(Qt::CTRL | Qt::Key_O);
    additem(file, "mnusave", "Save Chord Text File", &PageScreen::mnusave_Click)->setShortcut(Qt::CTRL | Qt::Key_S);
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

QAction* PageScreen::additem(QMenu* menu, const char* name, const char* caption, Signal told) const
{
    QAction* action = menu->addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, told);
    return action;
}

QBoxLayout* PageScreen::addnumbers()
{
    auto* column = new QVBoxLayout;
    column->addWidget(characters);
    column->addWidget(spacing);
    auto* sizes = new QHBoxLayout;
    sizes->addWidget(font);
    sizes->addWidget(addbutton("cmdfonthelp", "?", "font size help", &PageScreen::cmdfonthelp_Click));
    column->addLayout(sizes);
    return column;
}

QBoxLayout* PageScreen::addchecks()
{
    const auto line = [](QWidget* first, QWidget* second) {
        auto* both = new QHBoxLayout;
        both->addWidget(first);
        both->addWidget(second);
        both->addStretch();
        return both;
    };
    const auto setcheck = [](QCheckBox* check, const char* name, const char* tip, const char* spoken) {
        check->setObjectName(QString::fromLatin1(name));
        check->setToolTip(QString::fromLatin1(tip));
        check->setAccessibleName(QString::fromLatin1(spoken));
    };
    setcheck(chkmult, "chkmult", "if checked: allows only 1 chord printed per line", "Only 1 chord/line?");
    setcheck(chkalt, "chkalt", "if checked: will show alternate fingerings as well as primary",
             "Show Alternate Fingerings");
    txtlines->setObjectName(QStringLiteral("txtlines"));
    txtlines->setToolTip(QStringLiteral("Output: shows how many lines are written"));
    txtlines->setAccessibleName(QStringLiteral("Lines Written"));
    txtlines->setReadOnly(true);
    txtlines->setFont(look.font(ui::Type::text));
    txtlines->setFixedWidth(qRound(60 * look.zoom()));
    auto* column = new QVBoxLayout;
    column->addLayout(line(chkmult, addlabel("onechord", "Only 1 chord/line?")));
    auto* alternates = line(chkalt, addlabel("alternates", "Show Alternate Fingerings"));
    alternates->addWidget(addlabel("primary", "Primary = *"));
    alternates->addWidget(addlabel("alternate", "Alternate = +"));
    column->addLayout(alternates);
    column->addLayout(line(addlabel("lineswritten", "Lines Written"), txtlines));
    return column;
}

QBoxLayout* PageScreen::addbuttons()
{
    auto* line = new QHBoxLayout;
    line->addWidget(addbutton("cmdshow", "Done. Show all Print Lines",
                              "press when done to send all stored print to this screen", &PageScreen::cmdshow_Click));
    line->addWidget(addbutton("cmdclear", "Clear Print Data", cleartip, &PageScreen::cmdclear_Click));
    line->addWidget(addbutton("cmdprint", "Print Data", cleartip, &PageScreen::cmdprint_Click));
    line->addStretch();
    line->addWidget(addbutton("cmdret", "Return to Main Program", "return to main program", &PageScreen::cmdret_Click));
    return line;
}

QWidget* PageScreen::addlabel(const char* name, const char* text)
{
    auto* label = new QLabel(QString::fromLatin1(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(look.font(ui::Type::label));
    return label;
}

ui::Button* PageScreen::addbutton(const char* name, const char* caption, const char* tip, Signal told)
{
    auto* button = new ui::Button(look, QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAutoDefault(false);
    connect(button, &QAbstractButton::clicked, this, told);
    return button;
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
    if (isVisible())
        return;
    const QSize room = screen()->availableGeometry().size() * usable;
    resize(QSize(rtbprint->widthfor(charactersinview), qRound(heightinview * look.zoom())).boundedTo(room));
}

void PageScreen::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

void PageScreen::closeEvent(QCloseEvent* event)
{
    Q_EMIT closed();
    event->accept();
}

} // namespace print
