// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>
#include <thread>

namespace app {

/// Reads the desktop's list of fonts in a thread of its own. The first text that is measured has to wait for that list,
/// which is a third of the time of a start; so it is read while the toolkit looks for its display and the screens are
/// made. Where the system has another kind of list, nothing is done.
class FontWarmup {
public:
    FontWarmup();
    FontWarmup(const FontWarmup&) = delete;
    FontWarmup& operator=(const FontWarmup&) = delete;
    ~FontWarmup();

    /// The toolkit is up; from now on it can take over what was read.
    void toolkitmade() { tell(Toolkit::made); }
    /// To be called before the first text is measured: what is half read would be read twice.
    void finish();

private:
    enum class Toolkit : std::uint8_t { awaited, made, notcoming };

    void run();
    void tell(Toolkit news);

    std::atomic<Toolkit> toolkit{Toolkit::awaited};
    std::thread reader;
};

} // namespace app
