// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"
#include "help/unicode.h"

#include <windows.h>

#include <shellapi.h>

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

std::string narrow(const wchar_t* text, std::size_t length)
{
    std::string result;
    for (std::size_t i = 0; i < length && text[i] != 0; ++i) {
        const auto unit = static_cast<char32_t>(text[i]);
        const bool pair = ishighsurrogate(unit) && i + 1 < length && islowsurrogate(static_cast<char32_t>(text[i + 1]));
        appendutf8(result, pair ? joined(unit, static_cast<char32_t>(text[++i])) : unit);
    }
    return result;
}

class Windows : public System {
public:
    std::optional<std::string> GetKeyValue(RootKey /*root*/, const std::string& key, const std::string& value) override
    {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, wide(key).c_str(), 0, access, &opened) != ERROR_SUCCESS)
            return std::nullopt;
        std::array<wchar_t, most> text{};
        DWORD size = sizeof text;
        DWORD type = 0;
        const LSTATUS status =
            RegQueryValueExW(opened, wide(value).c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
        RegCloseKey(opened);
        if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
            return std::nullopt;
        return narrow(text.data(), size / sizeof(wchar_t));
    }

    bool fileexists(const std::string& path) override
    {
        std::error_code unreadable;
        return std::filesystem::is_regular_file(wide(path), unreadable);
    }

    bool start(const std::string& path) override
    {
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
