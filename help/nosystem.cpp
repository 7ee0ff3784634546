// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/systeminfo.h"

namespace help {
namespace {

class NoRegistry : public System {
public:
    std::optional<std::string> GetKeyValue(RootKey /*root*/, const std::string& /*key*/,
                                           const std::string& /*value*/) override
    {
        return std::nullopt;
    }
    bool fileexists(const std::string& /*path*/) override { return false; }
    bool start(const std::string& /*path*/) override { return false; }
};

} // namespace

std::unique_ptr<System> thissystem()
{
    return std::make_unique<NoRegistry>();
}

} // namespace help
