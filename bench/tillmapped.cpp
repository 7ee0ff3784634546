// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
// Starts a program on an empty display and writes how many milliseconds it took until its first window was mapped, how
// many until that was painted, and how many KiB of memory the program held a little later; then ends it.

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

/// The program's main window is wide; what Qt itself maps beside it is not.
constexpr int leastwidth = 200;

void awaitmapped(Display* display)
{
    while (true) {
        XEvent event;
        XNextEvent(display, &event);
        XWindowAttributes window{};
        if (event.type == MapNotify && event.xmap.override_redirect == False &&
            XGetWindowAttributes(display, event.xmap.window, &window) != 0 && window.width >= leastwidth)
            return;
    }
}

/// Qt paints a window all at once. Before that there is the black of the display to be seen in it.
void awaitpainted(Display* display)
{
    const int screen = DefaultScreen(display);
    const int height = DisplayHeight(display, screen);
    for (bool black = true; black;) {
        XImage* column = XGetImage(display, RootWindow(display, screen), DisplayWidth(display, screen) / 2, 0, 1,
                                   static_cast<unsigned>(height), AllPlanes, ZPixmap);
        for (int y = 0; black && y < height; ++y)
            black = XGetPixel(column, 0, y) == 0;
        XDestroyImage(column);
    }
}

pid_t start(char** command)
{
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process can be made");
    if (child == 0) {
        ::execv(*command, command);
        ::_exit(127);
    }
    return child;
}

std::string residentmemory(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;)
        if (word == "VmRSS:" && status >> word)
            return word;
    throw std::runtime_error("the program has ended");
}

void measure(Display* display, char** command)
{
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, True);
    const Clock::time_point begin = Clock::now();
    const pid_t child = start(command);
    awaitmapped(display);
    const std::chrono::duration<double, std::milli> mapped = Clock::now() - begin;
    awaitpainted(display);
    const std::chrono::duration<double, std::milli> painted = Clock::now() - begin;
    constexpr std::chrono::milliseconds settling{500};
    std::this_thread::sleep_for(settling);
    std::cout << mapped.count() << ' ' << painted.count() << ' ' << residentmemory(child) << '\n';
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

} // namespace

int main(int argc, char** argv)
{
    constexpr unsigned longest = 60; // seconds; a program that opens no window is not waited for
    ::alarm(longest);
    Display* display = XOpenDisplay(nullptr);
    if (argc < 2 || !display) {
        std::cerr << "usage: tillmapped program [argument...], on an X display\n";
        return 1;
    }
    try {
        measure(display, argv + 1); // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
