// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// The steps of the screen from top to bottom, and what stands beside them.

#include "custom/customscreen.h"

#include "ui/text.h"

#include <QGridLayout>

namespace custom {
namespace {

constexpr int stepwidth = 400; // of the texts, in pixels at zoom 1
constexpr int sidewidth = 178;
constexpr int buttonsinrow = 4;
constexpr QSize notesize{58, 24};

constexpr std::array<const char*, 4> choices{"5 string banjo (only)", "4 strings", "5 strings", "6 strings"};
constexpr std::array<const char*, 12> notecaptions{"C",     "C# Db", "D",     "D# Eb", "E",     "F",
                                                   "F# Gb", "G",     "G# Ab", "A",     "A# Bb", "B"};

} // namespace

/// A card with the step's number, its instruction and room below for its controls.
QBoxLayout* CustomScreen::step(QBoxLayout* column, int number, const char* text)
{
    auto* row = new QHBoxLayout;
    column->addWidget(card(row));
    auto* badge = readout("", ui::Type::strong, ui::Readout::Frame::root, {20, 20});
    badge->setObjectName(ui::membername("step", number));
    badge->settext(QString::number(number));
    row->addWidget(badge, 0, Qt::AlignTop);
    auto* content = new QVBoxLayout;
    fitroom(content, 0, 6);
    auto* instruction = caption("", text, ui::Type::text, stepwidth);
    instruction->setObjectName(ui::membername("instruction", number));
    content->addWidget(instruction, 0, Qt::AlignLeft);
    row->addLayout(content, 1);
    return content;
}

QLayout* CustomScreen::addsteps()
{
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 8);
    addplace(
        step(column, 1, "Use \"Next\" or \"Back\" to get to data number to enter or edit. Use first open number."));
    addname(step(column, 2,
                 "Set or Edit name of instrument or tuning variation, 25 characters maximum, do not use \";\" "
                 "semicolons"));
    addhand(step(column, 3, "Check \"Left\" only if left handed viewing is preferred to right hand :"));
    addstrings(step(column, 4, "Determine number of strings to use, and if banjo special 5 string case is needed:"));
    addnotes(step(column, 5,
                  "Set or Edit notes by first selecting one of the 12 gray notes below, and then clicking your mouse "
                  "in the note box on the left that you wish to change."));
    addsave(step(column, 6, "Done? Wish to save it for usage?"));
    return column;
}

void CustomScreen::addplace(QBoxLayout* card)
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, 6);
    row->addWidget(button("cmddown", "< back", "show the data number before",
                          [this] { stage.act([this] { form.cmddown_Click(); }); }));
    txtnum = readout("txtnum", ui::Type::reading, ui::Readout::Frame::box, {48, 28});
    txtnum->setAccessibleName(QStringLiteral("data number"));
    txtnum->setToolTip(QStringLiteral("data number, 0 to 50"));
    row->addWidget(txtnum);
    row->addWidget(
        button("cmdup", "next >", "show the next data number", [this] { stage.act([this] { form.cmdup_Click(); }); }));
    txtinfo = readout("txtinfo", ui::Type::strong, ui::Readout::Frame::box, {92, 28});
    txtinfo->setAccessibleName(QStringLiteral("this place is"));
    txtinfo->setToolTip(QStringLiteral("whether this data number is free or used"));
    row->addStretch(1);
    row->addWidget(txtinfo);
    card->addLayout(row);
}

void CustomScreen::addname(QBoxLayout* card)
{
    txtname = new NameBox(this);
    txtname->setObjectName(QStringLiteral("txtname"));
    txtname->setAccessibleName(QStringLiteral("name of instrument or tuning"));
    txtname->setToolTip(QStringLiteral("name, 25 characters at most"));
    fitbox(txtname);
    fitsize(txtname, {250, -1});
    connect(txtname, &NameBox::clicked, this, [this] { stage.act([this] { form.txtname_Click(); }); });
    connect(txtname, &QLineEdit::textChanged, this,
            [this](const QString& typed) { stage.act([&] { form.txtname_Change(typed.toStdString()); }); });
    card->addWidget(txtname, 0, Qt::AlignLeft);
}

void CustomScreen::addhand(QBoxLayout* card)
{
    chkleft = new QCheckBox(QStringLiteral("Left"), this);
    chkleft->setObjectName(QStringLiteral("chkleft"));
    chkleft->setAccessibleName(QStringLiteral("Left handed view"));
    chkleft->setToolTip(QStringLiteral("show this tuning for the left hand"));
    fitindicator(chkleft);
    connect(chkleft, &QAbstractButton::clicked, this, [this] { stage.act([this] { form.chkleft_Click(); }); });
    card->addWidget(chkleft, 0, Qt::AlignLeft);
}

void CustomScreen::addstrings(QBoxLayout* card)
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, 12);
    for (std::size_t i = 0; i < choices.size(); ++i) {
        auto* choice = new QRadioButton(QString::fromLatin1(choices.at(i)), this);
        choice->setObjectName(ui::membername("Option2", static_cast<int>(i)));
        choice->setAccessibleName(choice->text());
        choice->setToolTip(QStringLiteral("number of strings"));
        fitindicator(choice);
        connect(choice, &QAbstractButton::clicked, this,
                [this, i] { stage.act([&] { form.Option2_Click(static_cast<instruments::StringLayout>(i)); }); });
        row->addWidget(choice);
        Option2.at(i) = choice;
    }
    row->addStretch(1);
    card->addLayout(row);
}

void CustomScreen::addnotes(QBoxLayout* card)
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, 22);
    row->addLayout(addnoteboxes());
    row->addLayout(addnotebuttons());
    row->addStretch(1);
    card->addLayout(row);
}

/// The boxes stand like the strings on the neck, the highest at the top.
QBoxLayout* CustomScreen::addnoteboxes()
{
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 3);
    auto* high = caption("high", "High", ui::Type::label);
    column->addWidget(high, 0, Qt::AlignHCenter);
    for (std::size_t box = stringcount; box-- > 0;) {
        auto* made = new NoteBox(look, this);
        made->setObjectName(ui::membername("txtnote", static_cast<int>(box)));
        made->setToolTip(QStringLiteral("open note of string %1").arg(box + 1));
        fitsize(made, notesize);
        connect(made, &QAbstractButton::clicked, this, [this, box] { stage.act([&] { form.txtnote_Click(box); }); });
        column->addWidget(made);
        txtnote.at(box) = made;
    }
    column->addStretch(1);
    return column;
}

QBoxLayout* CustomScreen::addnotebuttons()
{
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 10);
    auto* grid = new QGridLayout;
    fitroom(grid, 0, 5);
    for (int i = 0; i < static_cast<int>(notecaptions.size()); ++i) {
        auto* note = button("", notecaptions.at(static_cast<std::size_t>(i)), "select this note",
                            [this, i] { stage.act([&] { form.cmdret_Click(i + 1); }); });
        note->setbackColor(QColor(core::midgrey));
        note->setObjectName(ui::membername("cmdret", i + 1));
        grid->addWidget(note, i / buttonsinrow, i % buttonsinrow);
    }
    selectednote = readout("txtnote_6", ui::Type::reading, ui::Readout::Frame::root, {58, 32});
    selectednote->setAccessibleName(QStringLiteral("selected note"));
    selectednote->setToolTip(QStringLiteral("selected note"));
    column->addLayout(grid);
    column->addWidget(selectednote);
    column->addStretch(1);
    return column;
}

void CustomScreen::addsave(QBoxLayout* card)
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, 8);
    row->addWidget(caption("savehint", "If yes, click \"save this data\"", ui::Type::text));
    row->addStretch(1);
    row->addWidget(button("cmdsave", "save this data", "store the entry at this data number",
                          [this] { stage.act([this] { form.cmdsave_Click(); }); }));
    card->addLayout(row);
}

QBoxLayout* CustomScreen::side(QBoxLayout* column)
{
    auto* content = new QVBoxLayout;
    column->addWidget(card(content));
    return content;
}

QLayout* CustomScreen::addsides()
{
    auto* column = new QVBoxLayout;
    fitroom(column, 0, 8);
    QBoxLayout* optional = side(column);
    optional->addWidget(caption("optional", "OPTIONAL: Do you wish to load current settings from Tonefret string area?",
                                ui::Type::text, sidewidth));
    optional->addWidget(button("cmdsettings", "Yes - load those settings",
                               "take the hand and the strings of the main screen",
                               [this] { Q_EMIT cmdsettings_Click(); }));
    QBoxLayout* other = side(column);
    other->addWidget(caption("otheroptions", "Other Options", ui::Type::strong));
    other->addWidget(button("cmdclear", "clear data lines", "clear what stands on this screen",
                            [this] { stage.act([this] { form.cmdclear_Click(); }); }));
    other->addWidget(button("cmddelentry", "delete this entry item", "delete the entry at this data number",
                            [this] { stage.act([this] { form.cmddelentry_Click(); }); }));
    other->addWidget(
        button("cmdarrange", "arrange data", "change the order of the entries", [this] { Q_EMIT cmdarrange_Click(); }));
    column->addStretch(1);
    QBoxLayout* done = side(column);
    done->addWidget(caption("done", "Done ?", ui::Type::strong));
    done->addWidget(caption("nomore", "If no more entries or editing, then:", ui::Type::text, sidewidth));
    done->addWidget(button("cmdreturn", "return to main program", "close this screen", [this] { close(); }));
    return column;
}

} // namespace custom
