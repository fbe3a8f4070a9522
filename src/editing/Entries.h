// The texts that name a phase or a flow in a list: "Phase n" and "Flow n Duration", built and
// found again. Numbers stand in plain decimal digits, counted from 1.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

inline std::string PhaseEntry(int phase) { return "Phase " + std::to_string(phase); }

inline std::string FlowEntry(int flow) { return "Flow " + std::to_string(flow) + " Duration"; }

namespace entries {

/// The number between `front` and `back` if the whole text is an entry of 1 to `last`, else 0.
inline int FindNumber(std::string_view text, std::string_view front, std::string_view back,
                      int last) {
    if (text.size() <= front.size() + back.size() || !text.starts_with(front) ||
        !text.ends_with(back)) {
        return 0;
    }
    text.remove_prefix(front.size());
    text.remove_suffix(back.size());
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    // An entry has neither a leading zero nor a sign.
    const bool plain = error == std::errc{} && stop == end && text.front() >= '1' &&
                       text.front() <= '9' && number <= last;
    return plain ? number : 0;
}

}  // namespace entries

/// The phase that a text names, 1 to `last`; 0 if it names none of them.
inline int FindPhase(std::string_view text, int last) {
    return entries::FindNumber(text, "Phase ", "", last);
}

/// The flow that a text names, 1 to `last`; 0 if it names none of them.
inline int FindFlow(std::string_view text, int last) {
    return entries::FindNumber(text, "Flow ", " Duration", last);
}
