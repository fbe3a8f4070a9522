// Programs run from outside: how long until the screen stands still.
#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <optional>

#include "Programs.h"

/// The X display that the environment names.
class Screen {
public:
    Screen();
    ~Screen() { xcb_disconnect(connection); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Starts a program, waits until nothing on the screen changes any more, ends the program, and
    /// tells the seconds from its start to the last change.
    double SecondsToLastChange(const Command& command);

private:
    using Clock = std::chrono::steady_clock;

    /// When the last change came before `quiet` went by without one; nothing if none came within
    /// `first`.
    std::optional<Clock::time_point> LastChange(Clock::duration first, Clock::duration quiet);
    bool TakeChanges();

    xcb_connection_t* connection;
    std::uint8_t damageEvent = 0;
};
