#include "shell/PathText.h"

#include <vector>

std::size_t SequenceLength(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const std::size_t length = first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 1 || first > 0xF4 || text.size() < length) {
        return 1;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return 1;
        }
    }
    // Overlong forms, surrogates and code points above U+10FFFF are invalid too.
    const bool valid = !(first == 0xE0 && byte(1) < 0xA0) && !(first == 0xED && byte(1) > 0x9F) &&
                       !(first == 0xF0 && byte(1) < 0x90) && !(first == 0xF4 && byte(1) > 0x8F);
    return valid ? length : 1;
}

std::string ShortenPath(const std::string& text) {
    constexpr std::size_t longest = 40;
    constexpr std::size_t kept = 37;
    std::vector<std::size_t> starts;
    for (std::size_t at = 0; at < text.size();) {
        starts.push_back(at);
        at += SequenceLength(std::string_view(text).substr(at));
    }
    if (starts.size() <= longest) {
        return text;
    }
    return "..." + text.substr(starts[starts.size() - kept]);
}
