// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"
#include "tests/support/recordingdesktop.h"

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <string_view>

// What the registry gives, and what is started by it. A program of its own, for it needs a real registry, and fills the
// keys of the system information tool with its own values: let it run only where that harms nobody. A copy of it is the
// tool. Prints what went wrong; ends with 0 when nothing did.

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

constexpr const wchar_t* toolname = L"MSINFO32.EXE";
constexpr const wchar_t* startedevent = L"tonefret-tool-started";
constexpr DWORD patience = 60'000; ///< milliseconds until a tool counts as not started

int failures = 0;

void expect(bool holds, std::string_view row, std::string_view got)
{
    failures += holds ? 0 : 1;
    if (!holds)
        std::printf("%-24.*s gave %.*s\n", int(row.size()), row.data(), int(got.size()), got.data());
}

std::wstring wide(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

/// A key of the local machine that is there while this is; empty at first.
class Key {
public:
    explicit Key(std::string_view path) : name(wide(path))
    {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, name.c_str());
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened, nullptr);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key()
    {
        RegCloseKey(opened);
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, name.c_str());
    }

    /// Stores the units as they are: a final zero is among them, or is not stored.
    void set(std::string_view value, DWORD type, const std::wstring& units)
    {
        const std::wstring followed = units + L'#'; // a zero right behind would be stored too
        const auto* bytes = reinterpret_cast<const BYTE*>(followed.data());
        const auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t));
        expect(RegSetValueExW(opened, wide(value).c_str(), 0, type, bytes, size) == ERROR_SUCCESS, value, "no value");
    }

private:
    std::wstring name;
    HKEY opened = nullptr;
};

struct ValueRow {
    const char* name;
    DWORD type;
    std::wstring stored;
    std::optional<std::string> read;
};

const ValueRow valuerows[] = {
    // clang-format off
//    name                     type            stored                                   read
    { "text",                  REG_SZ,         L"C:\\Tools\\info.exe\0"s,               "C:\\Tools\\info.exe" },
    { "no final zero",         REG_SZ,         L"info"s,                                "info" },
    { "text behind the zero",  REG_SZ,         L"info\0rest\0"s,                        "info" },
    { "empty",                 REG_SZ,         L"\0"s,                                  "" },
    { "no data",               REG_SZ,         L""s,                                    "" },
    { "umlauts",               REG_SZ,         L"C:\\Größe\0"s,                         "C:\\Größe" },
    { "Japanese",              REG_SZ,         L"C:\\音楽\0"s,                          "C:\\音楽" },
    { "two surrogates",        REG_SZ,         L"\U0001D11E\0"s,                        "\U0001D11E" },
    { "lone surrogate",        REG_SZ,         L"\xD834!\0"s,                           "\uFFFD!" },
    { "longest",               REG_SZ,         std::wstring(1023, L'x') + L'\0',        std::string(1023, 'x') },
    { "longest, no zero",      REG_SZ,         std::wstring(1024, L'x'),                std::string(1024, 'x') },
    { "too long",              REG_SZ,         std::wstring(1024, L'x') + L'\0',        std::nullopt },
    { "no variable in a text", REG_SZ,         L"%TONEFRETCHECK%\\info\0"s,             "%TONEFRETCHECK%\\info" },
    { "variable",              REG_EXPAND_SZ,  L"%TONEFRETCHECK%\\info\0"s,             "C:\\Prüfung\\info" },
    { "variable, no zero",     REG_EXPAND_SZ,  L"%TONEFRETCHECK%"s,                     "C:\\Prüfung" },
    { "longest variable",      REG_EXPAND_SZ,  L"%TONEFRETLONG%\0"s,                    std::string(3000, 'y') },
    { "no such variable",      REG_EXPAND_SZ,  L"%TONEFRETNONE%\\info\0"s,              "%TONEFRETNONE%\\info" },
    { "no variable",           REG_EXPAND_SZ,  L"C:\\info\0"s,                          "C:\\info" },
    { "empty, of variables",   REG_EXPAND_SZ,  L""s,                                    "" },
    { "number",                REG_DWORD,      L"ab"s,                                  std::nullopt },
    { "bytes",                 REG_BINARY,     L"info\0"s,                              std::nullopt },
    { "several texts",         REG_MULTI_SZ,   L"one\0two\0\0"s,                        std::nullopt },
    // clang-format on
};

void values()
{
    SetEnvironmentVariableW(L"TONEFRETCHECK", L"C:\\Prüfung");
    SetEnvironmentVariableW(L"TONEFRETLONG", std::wstring(3000, L'y').c_str());
    constexpr const char* path = R"(SOFTWARE\tonefret-check)";
    Key key(path);
    const auto system = help::thissystem();
    const auto read = [&](const char* where, const char* value) {
        return system->GetKeyValue(help::RootKey::localmachine, where, value);
    };
    for (const ValueRow& row : valuerows) {
        key.set(row.name, row.type, row.stored);
        const auto got = read(path, row.name);
        expect(got == row.read, row.name, got.value_or("nothing"));
    }
    expect(!read(path, "never stored"), "missing value", "a value");
    expect(!read(R"(SOFTWARE\tonefret-check\never made)", "text"), "missing key", "a value");
}

/// A folder with a copy of this program as the tool, gone at the end.
class Tool {
public:
    explicit Tool(const fs::path& self)
    {
        fs::create_directories(folder / "empty");
        fs::copy_file(self, path(), fs::copy_options::overwrite_existing);
    }
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    ~Tool()
    {
        std::error_code inuse; // the tool may still be on its way out
        fs::remove_all(folder, inuse);
    }

    fs::path path() const { return folder / toolname; }

    const fs::path folder = fs::temp_directory_path() / L"tonefret Prüfung 音";
};

struct Registered {
    DWORD type;
    std::wstring text;
};

struct ToolRow {
    const char* name;
    std::optional<Registered> path;
    std::optional<Registered> folder;
    bool starts;
};

/// Presses the button with these values in the registry. Whether the tool ran, or else was told to be unavailable.
void press(const ToolRow& row, HANDLE started)
{
    Key toolkey(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)");
    Key folderkey(R"(SOFTWARE\Microsoft\Shared Tools Location)");
    if (row.path)
        toolkey.set("PATH", row.path->type, row.path->text);
    if (row.folder)
        folderkey.set("MSINFO", row.folder->type, row.folder->text);
    tests::RecordingDesktop desktop;
    help::StartSysInfo(*help::thissystem(), desktop);
    const std::vector<tests::Told> message{{ui::Icon::plain, "System Information Is Unavailable At This Time"}};
    expect(desktop.told == (row.starts ? std::vector<tests::Told>{} : message), row.name, "the wrong answer");
    if (desktop.told.empty())
        expect(WaitForSingleObject(started, patience) == WAIT_OBJECT_0, row.name, "no running tool");
}

void tools(const fs::path& self)
{
    const Tool tool(self);
    SetEnvironmentVariableW(L"TONEFRETCHECK", tool.folder.c_str());
    const HANDLE started = CreateEventW(nullptr, FALSE, FALSE, startedevent);
    const Registered there{REG_SZ, tool.path().wstring()};
    const Registered gone{REG_SZ, tool.path().wstring() + L".gone"};
    const Registered number{REG_DWORD, L"ab"};
    const Registered nothing{REG_SZ, L""};
    const Registered folder{REG_SZ, tool.folder.wstring()};
    const Registered empty{REG_SZ, (tool.folder / "empty").wstring()};
    const ToolRow rows[] = {
        // clang-format off
//        name                       path                                                folder         starts
        { "nothing registered",      {},                                                 {},            false },
        { "path",                    there,                                              {},            true  },
        { "path with a variable",    {{REG_EXPAND_SZ, L"%TONEFRETCHECK%\\msinfo32.exe"}}, {},           true  },
        { "path of nothing",         gone,                                               folder,        false },
        { "path of a folder",        folder,                                             folder,        false },
        { "empty path",              nothing,                                            folder,        false },
        { "number for a path",       number,                                             folder,        true  },
        { "folder",                  {},                                                 folder,        true  },
        { "folder with a variable",  {},              {{REG_EXPAND_SZ, L"%TONEFRETCHECK%"}},            true  },
        { "folder without the tool", {},                                                 empty,         false },
        { "empty folder",            {},                                                 nothing,       false },
        // clang-format on
    };
    for (const ToolRow& row : rows)
        press(row, started);
    CloseHandle(started);
}

/// What the copy does: it says that it runs.
int runastool()
{
    const HANDLE started = OpenEventW(EVENT_MODIFY_STATE, FALSE, startedevent);
    return started && SetEvent(started) ? 0 : 1;
}

} // namespace

int main()
{
    std::wstring self(MAX_PATH, L'\0');
    self.resize(GetModuleFileNameW(nullptr, self.data(), MAX_PATH));
    if (lstrcmpiW(fs::path(self).filename().c_str(), toolname) == 0)
        return runastool();
    values();
    tools(self);
    return failures == 0 ? 0 : 1;
}
