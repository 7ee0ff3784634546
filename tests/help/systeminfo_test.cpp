// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"
#include "tests/support/recordingdesktop.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

using Values = std::map<std::string, std::string>;

/// A system whose registry and files are given.
class GivenSystem : public help::System {
public:
    Values values; ///< by key, "/" and name
    std::set<std::string> files;
    std::vector<std::string> asked;
    std::vector<std::string> started;
    bool starts = true;

    std::optional<std::string> GetKeyValue(help::RootKey /*root*/, const std::string& key,
                                           const std::string& value) override
    {
        asked.push_back(key + "/" + value);
        const auto found = values.find(asked.back());
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    bool fileexists(const std::string& path) override { return files.contains(path); }
    bool start(const std::string& path) override
    {
        started.push_back(path);
        return starts;
    }
};

const std::string tool = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO/PATH)";
const std::string folder = R"(SOFTWARE\Microsoft\Shared Tools Location/MSINFO)";

struct Case {
    const char* name;
    Values values;
    std::set<std::string> files;
    std::vector<std::string> started;
    bool told;
};

class SysInfo : public testing::TestWithParam<Case> {};

TEST_P(SysInfo, registry_leadsToTheToolOrToTheMessage)
{
    GivenSystem system;
    system.values = GetParam().values;
    system.files = GetParam().files;
    tests::RecordingDesktop desktop;
    help::StartSysInfo(system, desktop);
    EXPECT_EQ(system.started, GetParam().started);
    const std::vector<tests::Told> message{{ui::Icon::plain, "System Information Is Unavailable At This Time"}};
    EXPECT_EQ(desktop.told, GetParam().told ? message : std::vector<tests::Told>{});
}

// clang-format off
const Case cases[] = {
//  name                 values                              files                      started            told
  { "no_value",          {},                                 {"\\MSINFO32.EXE"},        {},                true  },
  { "path",              {{tool, "C:\\m.exe"}},              {},                        {"C:\\m.exe"},     false },
  { "path_goes_first",   {{tool, "m"}, {folder, "C:\\x"}},   {"C:\\x\\MSINFO32.EXE"},  {"m"},             false },
  { "folder",            {{folder, "C:\\x"}},                {"C:\\x\\MSINFO32.EXE"},  {"C:\\x\\MSINFO32.EXE"}, false },
  { "folder_no_file",    {{folder, "C:\\x"}},                {"C:\\x\\other.exe"},     {},                true  },
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Registries, SysInfo, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SysInfoStart, toolThatDoesNotStart_givesTheMessage)
{
    GivenSystem system;
    system.values = {{tool, "C:\\gone.exe"}};
    system.starts = false;
    tests::RecordingDesktop desktop;
    help::StartSysInfo(system, desktop);
    EXPECT_EQ(desktop.told.size(), 1U);
}

TEST(SysInfoStart, secondValue_isAskedForOnlyWithoutTheFirst)
{
    GivenSystem system;
    tests::RecordingDesktop desktop;
    help::StartSysInfo(system, desktop);
    EXPECT_EQ(system.asked, (std::vector<std::string>{tool, folder}));
    system.asked.clear();
    system.values = {{tool, "x"}};
    help::StartSysInfo(system, desktop);
    EXPECT_EQ(system.asked, std::vector<std::string>{tool});
}

#ifndef _WIN32
TEST(SysInfoStart, systemWithoutARegistry_givesTheMessage)
{
    tests::RecordingDesktop desktop;
    help::StartSysInfo(*help::thissystem(), desktop);
    EXPECT_EQ(desktop.told.size(), 1U);
    EXPECT_FALSE(help::thissystem()->fileexists("/bin/sh"));
    EXPECT_FALSE(help::thissystem()->start("/bin/sh"));
}
#endif

} // namespace
