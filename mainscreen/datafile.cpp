// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "core/textfile.h"
#include "custom/keepbeside.h"
#include "mainscreen/session.h"

#include <array>

namespace mainscreen {
namespace {

constexpr const char* datafile = "tonefret.txt";
constexpr std::array openfilters{ui::FileFilter{"All Files (*.*)", "*.*"},
                                 ui::FileFilter{"Text Files(*.txt)", "*.txt"}};
constexpr std::array savefilters{ui::FileFilter{"Text Files (*.txt)", "*.txt"}};

std::string lines(std::initializer_list<std::string> text)
{
    std::string all;
    for (const std::string& line : text)
        all += (all.empty() ? "" : "\n") + line;
    return all;
}

/// A message about a file: what is the matter, which file, why.
std::string failuretext(const char* what, const std::filesystem::path& file, const std::error_code& why)
{
    return lines({std::string(what) + " " + file.string(), why.message()});
}

std::string keepfailuretext(const std::filesystem::path& file, const std::error_code& why)
{
    return lines({"Cannot keep the file " + file.string() + " beside itself", why.message(),
                  "It is left as it is, and the settings are not saved"});
}

core::SpellingMode keptmode(std::int16_t number)
{
    return static_cast<core::SpellingMode>(number);
}

} // namespace

void Session::loadcustom()
{
    datafilename = datafile;
    datapath = workdir / datafile;
    core::FileText read = core::readtext(datapath);
    keepfirst = read.failure && !read.missing();
    if (read.failure)
        return;
    customtext = core::decode(std::move(read.bytes));
    customout = customtext;
    keepfirst = custom::losestext(customtext);
    getinstring();
}

void Session::savecustom()
{
    getoutstring();
    datafilename = datafile;
    datapath = startdir / datafile;
    if (!keepdamaged(datapath))
        return;
    core::replacetext(datapath, customout + std::string(custom::lineend)); // a failure is not told of
}

/// Keeps a data file that could not be read whole beside itself, once. False: it could not, which was told.
bool Session::keepdamaged(const std::filesystem::path& file)
{
    if (keepfirst)
        if (const auto failure = custom::keepbeside(file)) {
            desktop.tell(ui::Icon::critical, keepfailuretext(file, failure));
            return false;
        }
    keepfirst = false;
    return true;
}

void Session::getinstring()
{
    custom::Unpacked read = custom::unpack(customtext);
    if (read.reading == custom::Reading::foreign)
        return;
    customtable = {};
    optionsname.clear();
    if (read.header) {
        optionsname = read.header->name;
        optionsdata = read.header->data;
        applysettings(*read.header);
    }
    customtable = std::move(read.entries);
    if (read.reading == custom::Reading::broken)
        desktop.tell(ui::Icon::information, "Problem with Option Custom Data; am aborting");
}

void Session::applysettings(const custom::Header& read)
{
    const custom::Settings kept = custom::unpacksettings(read.data);
    cbotype.settext(instruments::listedfamily(read.name));
    cboleft.settext(cboleft.items.at(kept.hand == 0 ? 0 : 1));
    pagesettings = {.charactersperline = kept.charactersperline,
                    .spacing = kept.spacing,
                    .fontsize = kept.fontsize,
                    .multiple = core::keptflag(kept.multiple),
                    .alternate = core::keptflag(kept.alternate),
                    .topmargin = kept.topmargin,
                    .leftmargin = kept.leftmargin};
    page.show(pagesettings);
    spelling = {
        .mode = keptmode(kept.mode), .automatic = core::keptflag(kept.automatic), .both = core::keptflag(kept.both)};
    presets();
    gettuning();
    dorightlefthand();
}

custom::Settings Session::settings() const
{
    return {.hand = static_cast<std::int16_t>(cboleft.text == cboleft.items.front() ? 0 : 1),
            .charactersperline = pagesettings.charactersperline,
            .spacing = pagesettings.spacing,
            .fontsize = pagesettings.fontsize,
            .multiple = pagesettings.multiple.number,
            .alternate = pagesettings.alternate.number,
            .topmargin = pagesettings.topmargin,
            .leftmargin = pagesettings.leftmargin,
            .mode = static_cast<std::int16_t>(spelling.mode),
            .both = spelling.both.number,
            .automatic = spelling.automatic.number};
}

custom::Header Session::header() const
{
    return {cbotype.text, custom::packsettings(settings())};
}

void Session::getoutstring()
{
    closegaps();
    custom::Packed packed = custom::pack(header(), customtable);
    customout = std::move(packed.text);
    if (packed.faulty)
        desktop.tell(ui::Icon::critical, lines({"option data for custom information: " +
                                                    custom::numbertext(static_cast<int>(*packed.faulty)),
                                                "is not the right length.  Caution, data", "file may be cut short"}));
}

void Session::checksave()
{
    custom::Header now = header();
    if (now.name != optionsname || now.data != optionsdata)
        customchanged = true;
    optionsname = std::move(now.name);
    optionsdata = std::move(now.data);
}

void Session::mnuload_Click()
{
    userload();
}

void Session::mnusave_Click()
{
    Saveas(SaveKind::custom);
}

void Session::mprint_mnusave_Click()
{
    Saveas(SaveKind::page);
}

void Session::userload()
{
    const auto picked = desktop.pickfile(ui::Direction::open, openfilters);
    if (!picked)
        return;
    datapath = *picked;
    core::FileText read = core::readtext(datapath);
    if (read.failure) {
        desktop.tell(ui::Icon::critical, failuretext("Cannot read", datapath, read.failure));
        return;
    }
    loadtext(core::decode(std::move(read.bytes)));
}

void Session::loadtext(const std::string& text)
{
    custom::PageAndData parts = custom::split(text);
    if (parts.page)
        loadpage(*parts.page);
    if (!parts.data)
        return;
    customtext = std::move(*parts.data);
    getinstring();
    if (customshown)
        editform.showfree();
    presets();
    gettuning();
    customchanged = true;
    doflatsetup();
    page.getlinenumber();
}

void Session::Saveas(SaveKind kind)
{
    const auto picked = picksave(savefilters, ".txt");
    if (!picked)
        return;
    datapath = *picked;
    if (kind == SaveKind::custom)
        getoutstring();
    const std::string text = kind == SaveKind::custom ? custom::join(page.text, customout) : page.text;
    // Without any text the file is emptied all the same.
    const std::string bytes = text.empty() ? text : text + std::string(custom::lineend);
    if (isdatafile(datapath)) {
        if (!keepdamaged(datapath))
            return;
        if (kind == SaveKind::custom)
            customchanged = true; // the end writes it as a data file alone, which the next start can read
        else
            keepfirst = true; // the end writes data over this page
    }
    if (const auto failure = core::replacetext(datapath, bytes))
        desktop.tell(ui::Icon::critical, failuretext("Cannot write", datapath, failure));
    else if (text.empty())
        desktop.tell(ui::Icon::information,
                     lines({"Problem:  No data in chord printout area,", "have to abort, sorry"}));
}

bool Session::isdatafile(const std::filesystem::path& file) const
{
    std::error_code missing;
    return std::filesystem::equivalent(file, startdir / datafile, missing);
}

std::optional<std::filesystem::path> Session::picksave(std::span<const ui::FileFilter> filters, const char* ending)
{
    auto picked = desktop.pickfile(ui::Direction::save, filters);
    if (!picked)
        return std::nullopt;
    if (!picked->has_extension())
        *picked += ending;
    std::error_code unknown;
    if (std::filesystem::exists(*picked, unknown) &&
        desktop.ask("Overwrite existing file?", "Overwrite File Message") == ui::Answer::no)
        return std::nullopt;
    return picked;
}

} // namespace mainscreen
