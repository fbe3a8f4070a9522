// How long a program takes until the screen no longer changes.
#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <optional>

#include "Programs.h"

/// The X display that the environment names. Throws without one, or without its damage extension.
class Screen {
public:
    Screen();
    ~Screen() { xcb_disconnect(connection); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Starts a program, waits until nothing on the screen changes any more, ends the program, and
    /// returns the seconds from its start to the last change. Throws if nothing changes at all.
    double SecondsToLastChange(const Command& command);

private:
    using Clock = std::chrono::steady_clock;

    /// The time of the last change that is followed by `quiet` without one; nothing if there is
    /// none within `first`.
    std::optional<Clock::time_point> LastChange(Clock::duration first, Clock::duration quiet);
    bool TakeChanges();

    xcb_connection_t* connection;
    std::uint8_t damageEvent = 0;
};
