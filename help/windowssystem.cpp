// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"
#include "help/unicode.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <filesystem>

namespace help {
namespace {

constexpr REGSAM access = 0x2003F; ///< what a key allows, but to delete it and to change who may use it
constexpr DWORD most = 1024;       ///< characters of a value

std::wstring wide(const std::string& text)
{
    const std::u16string units = toutf16(text);
    return {units.begin(), units.end()};
}

std::string narrow(const std::wstring& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool pair = ishighsurrogate(unit) && i + 1 < text.size() && islowsurrogate(text[i + 1]);
        appendutf8(result, pair ? joined(unit, text[++i]) : unit);
    }
    return result;
}

/// The text with the values of its %variables%; one that is not set stays as it is written.
std::wstring expanded(const std::wstring& text)
{
    std::wstring result(ExpandEnvironmentStringsW(text.c_str(), nullptr, 0), L'\0');
    const DWORD length = ExpandEnvironmentStringsW(text.c_str(), result.data(), static_cast<DWORD>(result.size()));
    return length == 0 || length > result.size() ? text : result.substr(0, length - 1);
}

/// The value of an open key: the units before its first zero. Nothing for one that is no text, or too long.
std::optional<std::wstring> textof(HKEY key, const std::wstring& value)
{
    std::array<wchar_t, most> text{};
    DWORD size = sizeof text;
    DWORD type = 0;
    const LSTATUS status =
        RegQueryValueExW(key, value.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
        return std::nullopt;
    const auto end = std::find(text.begin(), text.begin() + size / sizeof(wchar_t), L'\0');
    const std::wstring found(text.begin(), end);
    return type == REG_EXPAND_SZ ? expanded(found) : found;
}

class Windows : public System {
public:
    std::optional<std::string> GetKeyValue(RootKey /*root*/, const std::string& key, const std::string& value) override
    {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, wide(key).c_str(), 0, access, &opened) != ERROR_SUCCESS)
            return std::nullopt;
        const auto text = textof(opened, wide(value));
        RegCloseKey(opened);
        return text ? std::optional(narrow(*text)) : std::nullopt;
    }

    bool fileexists(const std::string& path) override
    {
        std::error_code unreadable;
        return std::filesystem::is_regular_file(wide(path), unreadable);
    }

    bool start(const std::string& path) override
    {
        std::error_code unreadable;
        if (path.empty() || std::filesystem::is_directory(wide(path), unreadable))
            return false; // the shell would open a folder instead
        constexpr INT_PTR lastfailure = 32;
        const HINSTANCE result = ShellExecuteW(nullptr, L"open", wide(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
        return reinterpret_cast<INT_PTR>(result) > lastfailure;
    }
};

} // namespace

std::unique_ptr<System> thissystem()
{
    return std::make_unique<Windows>();
}

} // namespace help
