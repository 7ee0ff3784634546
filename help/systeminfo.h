// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/desktop.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace help {

/// Trees of the registry.
enum class RootKey : std::uint8_t { localmachine };

/// What the operating system offers for its system information tool.
class System {
public:
    System() = default;
    System(const System&) = delete;
    System& operator=(const System&) = delete;
    virtual ~System() = default;

    /// The text of a value in the registry, without its final zero; nothing when it cannot be opened or read.
    virtual std::optional<std::string> GetKeyValue(RootKey root, const std::string& key, const std::string& value) = 0;
    virtual bool fileexists(const std::string& path) = 0;
    /// Starts a program in a normal window; false when that fails.
    virtual bool start(const std::string& path) = 0;
};

/// The system that the program runs on. One without a registry has no value and no tool.
std::unique_ptr<System> thissystem();

/// Starts the system information tool, or says that there is none.
void StartSysInfo(System& system, ui::Desktop& desktop);

} // namespace help
