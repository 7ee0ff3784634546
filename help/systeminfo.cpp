// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"

namespace help {
namespace {

constexpr const char* toolkey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* toolvalue = "PATH";
constexpr const char* folderkey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr const char* foldervalue = "MSINFO";
constexpr const char* toolname = R"(\MSINFO32.EXE)";

std::optional<std::string> toolpath(System& system)
{
    if (auto path = system.GetKeyValue(RootKey::localmachine, toolkey, toolvalue))
        return path;
    const auto folder = system.GetKeyValue(RootKey::localmachine, folderkey, foldervalue);
    if (!folder || !system.fileexists(*folder + toolname))
        return std::nullopt;
    return *folder + toolname;
}

} // namespace

void StartSysInfo(System& system, ui::Desktop& desktop)
{
    const auto path = toolpath(system);
    if (!path || !system.start(*path))
        desktop.tell(ui::Icon::plain, "System Information Is Unavailable At This Time");
}

} // namespace help
