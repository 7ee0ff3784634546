// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/ending/runningprogram.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <csignal>
#include <stdexcept>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tests {
namespace {

constexpr int patience = 60'000; // milliseconds until a window that does not come is a failure

pid_t startprogram()
{
    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process can be made");
    if (child == 0) {
        ::execl(TONEFRET_PROGRAM, TONEFRET_PROGRAM, static_cast<char*>(nullptr));
        ::_exit(127);
    }
    return child;
}

/// What a window says of its property; 0: it has none.
unsigned long numberof(Display* display, Window window, const char* property)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, property, False), 0, 1, False, XA_CARDINAL, &type, &format,
                       &count, &left, &data);
    const unsigned long number = data && count == 1 ? *reinterpret_cast<unsigned long*>(data) : 0;
    if (data)
        XFree(data);
    return number;
}

} // namespace

struct RunningProgram::Window {
    Window() : display(XOpenDisplay(nullptr))
    {
        if (!display)
            throw std::runtime_error("no display");
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }); // windows of a killed program go at any moment
        XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
        XSync(display, False);
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { XCloseDisplay(display); }

    /// Waits until the main window of a process is there; it is wide, what the toolkit maps beside it is not.
    void await(pid_t process)
    {
        constexpr int leastwidth = 200;
        for (;;) {
            pollfd events{.fd = ConnectionNumber(display), .events = POLLIN, .revents = 0};
            if (XPending(display) == 0 && ::poll(&events, 1, patience) <= 0)
                throw std::runtime_error("the program shows no window");
            XEvent event;
            XNextEvent(display, &event);
            XWindowAttributes shown{};
            if (event.type == MapNotify && event.xmap.override_redirect == False &&
                XGetWindowAttributes(display, event.xmap.window, &shown) != 0 && shown.width >= leastwidth &&
                numberof(display, event.xmap.window, "_NET_WM_PID") == static_cast<unsigned long>(process)) {
                main = event.xmap.window;
                return;
            }
        }
    }

    void close()
    {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = main;
        event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
        XSendEvent(display, main, False, NoEventMask, &event);
        XSync(display, False);
    }

    Display* display;
    ::Window main = 0;
};

RunningProgram::RunningProgram() : process(-1), window(std::make_unique<Window>())
{
    process = startprogram(); // only now, so that its window is not missed
    try {
        window->await(process);
    } catch (const std::exception&) {
        kill();
        throw;
    }
}

RunningProgram::~RunningProgram()
{
    if (process > 0)
        kill();
}

void RunningProgram::closewindow()
{
    window->close();
}

void RunningProgram::kill()
{
    ::kill(process, SIGKILL);
    endswell();
}

bool RunningProgram::endswell()
{
    int status = 0;
    ::waitpid(process, &status, 0);
    process = -1;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace tests
