// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "mainscreen/session.h"
#include "print/typednumber.h"

namespace mainscreen {

void Session::mnuviewprint_Click()
{
    openpage();
}

void Session::openpage()
{
    if (!page.open) {
        if (page.text.empty())
            page.text = page.kept;
        page.getlinenumber();
        print::setpagedefaults(pagesettings);
        page.show(pagesettings);
        charsize();
        page.open = true;
    }
    desktop.open(ui::Screen::mprint);
}

void Session::charsize()
{
    const int characters = print::wholenumber(page.txtchar);
    if (characters == 0)
        return;
    pagesettings.fontsize = static_cast<std::int16_t>(print::sizefor(characters, pagesettings.leftmargin));
    page.txtfont = std::to_string(pagesettings.fontsize);
    changefont();
}

void Session::changefont()
{
    page.fontsize = pagesettings.fontsize;
}

void Session::rtbprint_Change(const std::string& text)
{
    page.text = text;
}

void Session::rtbprint_Edit(const print::Edit& edit)
{
    page.text.replace(edit.at, edit.removed, edit.added);
}

void Session::txtchar_Change(const std::string& text)
{
    page.txtchar = text;
}

void Session::txtspace_Change(const std::string& text)
{
    page.txtspace = text;
}

void Session::txtfont_Change(const std::string& text)
{
    page.txtfont = text;
}

void Session::chkmult_Click(bool checked)
{
    page.chkmult = checked;
}

void Session::chkalt_Click(bool checked)
{
    page.chkalt = checked;
}

/// Moves a number by its button. False: it stands at its limit, which was told.
bool Session::movenumber(const print::Step& button, std::string& box, std::int16_t& setting)
{
    const std::string refusal = print::step(button, box, setting);
    if (!refusal.empty())
        desktop.tell(ui::Icon::information, refusal);
    return refusal.empty();
}

void Session::cmdchardown_Click()
{
    if (movenumber(print::chardown, page.txtchar, pagesettings.charactersperline))
        charsize();
}

void Session::cmdcharup_Click()
{
    if (movenumber(print::charup, page.txtchar, pagesettings.charactersperline))
        charsize();
}

void Session::cmdspacedown_Click()
{
    movenumber(print::spacedown, page.txtspace, pagesettings.spacing);
}

void Session::cmdspaceup_Click()
{
    movenumber(print::spaceup, page.txtspace, pagesettings.spacing);
}

void Session::cmddownfont_Click()
{
    if (movenumber(print::fontdown, page.txtfont, pagesettings.fontsize))
        changefont();
}

void Session::cmdupfont_Click()
{
    if (movenumber(print::fontup, page.txtfont, pagesettings.fontsize))
        changefont();
}

void Session::cmdfonthelp_Click()
{
    desktop.tell(ui::Icon::information, "Adjust to suit but ensure no 'word wrap'\n"
                                        "(long text that overlaps the next line).\n\n"
                                        "Note that this font size may be adjusted\n"
                                        "Automatically if 'characters per line'\n"
                                        "is changed.");
}

void Session::cmdshow_Click()
{
    printfill();
}

void Session::mprint_cmdclear_Click()
{
    allclear();
}

void Session::mexit()
{
    if (!page.open)
        return;
    page.open = false; // closing the screen comes here once more
    page.kept = page.text;
    if (!print::storeboxes(page, pagesettings))
        desktop.tell(ui::Icon::critical, "one of the print variables is set wrong\n"
                                         "Please ensure that numbers are set to\n"
                                         "reasonable numbers only");
    desktop.close(ui::Screen::mprint);
}

void Session::loadpage(const std::string& text)
{
    allclear();
    page.text = core::withlinefeeds(text);
    page.kept = page.text;
    page.getlinenumber();
}

} // namespace mainscreen
