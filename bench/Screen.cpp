#include "Screen.h"

#include <poll.h>
#include <sys/wait.h>
#include <xcb/damage.h>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

using namespace std::chrono_literals;

constexpr auto NoChangeFor = 1s;  // long enough for a program that reads a file between two changes
constexpr auto FirstChangeWithin = 30s;
constexpr auto LastWindowGoneWithin = 200ms;

// In pixels: narrower changes are a blinking insertion point, which never stops, and do not count.
constexpr int NarrowestChange = 16;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

}  // namespace

Screen::Screen() : connection(xcb_connect(nullptr, nullptr)) {
    const xcb_query_extension_reply_t* const extension =
        xcb_get_extension_data(connection, &xcb_damage_id);
    if (extension == nullptr || extension->present == 0) {
        throw std::runtime_error("No X display, or one without the damage extension");
    }
    damageEvent = static_cast<std::uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);
    const std::unique_ptr<xcb_damage_query_version_reply_t, Free> version(
        xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1),
                                       nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_damage_create(connection, xcb_generate_id(connection), root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(connection);
}

double Screen::SecondsToLastChange(const Command& command) {
    LastChange(LastWindowGoneWithin, LastWindowGoneWithin);
    const Clock::time_point start = Clock::now();
    const pid_t process = Start(command);
    const auto last = LastChange(FirstChangeWithin, NoChangeFor);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    if (!last) {
        throw std::runtime_error(command[0] + " shows nothing");
    }
    return std::chrono::duration<double>(*last - start).count();
}

std::optional<Screen::Clock::time_point> Screen::LastChange(Clock::duration first,
                                                            Clock::duration quiet) {
    std::optional<Clock::time_point> last;
    Clock::time_point end = Clock::now() + first;
    pollfd waiting{xcb_get_file_descriptor(connection), POLLIN, 0};
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        if (TakeChanges()) {
            last = now;
            end = now + quiet;
        }
        poll(&waiting, 1, 1);
    }
    return last;
}

bool Screen::TakeChanges() {
    bool any = false;
    for (;;) {
        const std::unique_ptr<xcb_generic_event_t, Free> event(xcb_poll_for_event(connection));
        if (event == nullptr) {
            return any;
        }
        if ((event->response_type & 0x7F) == damageEvent) {
            const auto& damage = reinterpret_cast<const xcb_damage_notify_event_t&>(*event);
            any = any || damage.area.width >= NarrowestChange;
        }
    }
}
