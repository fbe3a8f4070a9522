#include "editing/Entries.h"

#include <charconv>

namespace {

// The number between `prefix` and `suffix` if the text is an entry of 1 to `last`, else 0.
int FindNumber(std::string_view text, std::string_view prefix, std::string_view suffix, int last) {
    if (text.size() <= prefix.size() + suffix.size() || !text.starts_with(prefix) ||
        !text.ends_with(suffix)) {
        return 0;
    }
    text.remove_prefix(prefix.size());
    text.remove_suffix(suffix.size());
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    // An entry has neither a leading zero nor a sign.
    const bool plain = error == std::errc{} && stop == end && text.front() >= '1' && number <= last;
    return plain ? number : 0;
}

}  // namespace

std::string PhaseEntry(int phase) { return "Phase " + std::to_string(phase); }

std::string FlowEntry(int flow) { return "Flow " + std::to_string(flow) + " Duration"; }

int FindPhase(std::string_view text, int last) { return FindNumber(text, "Phase ", "", last); }

int FindFlow(std::string_view text, int last) {
    return FindNumber(text, "Flow ", " Duration", last);
}
