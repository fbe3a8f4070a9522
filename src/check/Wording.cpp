#include "check/Wording.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "editing/Numbers.h"
#include "shell/PathText.h"

namespace {

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

std::string Escape(char c) {
    switch (c) {
        case '"': return "\\\"";
        case '\\': return "\\\\";
        case '\n': return "\\n";
        case '\r': return "\\r";
        case '\t': return "\\t";
        default: break;
    }
    std::array<char, 5> code{};
    std::snprintf(code.data(), code.size(), "\\x%02X", unsigned{static_cast<unsigned char>(c)});
    return code.data();
}

// The first and last of each range of invisible characters: controls, direction marks, zero-width
// characters and tags.
constexpr std::array<std::array<std::string_view, 2>, 8> Invisible{{
    {"\xC2\x80", "\xC2\x9F"},
    {"\xC2\xAD", "\xC2\xAD"},
    {"\xD8\x9C", "\xD8\x9C"},
    {"\xE2\x80\x8B", "\xE2\x80\x8F"},
    {"\xE2\x80\xA8", "\xE2\x80\xAE"},
    {"\xE2\x81\xA0", "\xE2\x81\xAF"},
    {"\xEF\xBB\xBF", "\xEF\xBB\xBF"},
    {"\xF3\xA0\x80\x80", "\xF3\xA0\x81\xBF"},
}};

// `character` is one character in UTF-8, or a byte that is not UTF-8.
bool IsInvisible(std::string_view character) {
    const auto holds = [character](const auto& range) {
        return character.size() == range[0].size() && character >= range[0] &&
               character <= range[1];
    };
    return character.size() == 1 ? IsControl(character.front())
                                 : std::any_of(Invisible.begin(), Invisible.end(), holds);
}

// Whether quoted text shows a character as it is; a byte that is not UTF-8 is escaped.
bool IsShownAsIs(std::string_view character) {
    const bool isByte = character.size() == 1 && static_cast<unsigned char>(character[0]) >= 0x80;
    return !isByte && !IsInvisible(character) && character != "\"" && character != "\\";
}

std::string Escape(std::string_view character) {
    std::string escaped;
    for (const char c : character) {
        escaped += Escape(c);
    }
    return escaped;
}

std::string_view TakeCharacter(std::string_view& text) {
    const std::string_view character = text.substr(0, SequenceLength(text));
    text.remove_prefix(character.size());
    return character;
}

// One unit in the last digit that a record keeps, for numbers just below `number`.
double LastDigit(double number) {
    const double below = std::nextafter(number, -std::numeric_limits<double>::infinity());
    return std::pow(10, std::floor(std::log10(std::abs(below))) + 1 - SignificantDigits);
}

Single NumberOf(std::string_view item) {
    Single number = 0;
    FromDecimal(item, number);
    return number;
}

std::string_view LevelWord(Level level) {
    return level == Level::Error ? "error" : level == Level::Invalid ? "invalid" : "warning";
}

std::string_view Colour(Level level) {
    return level == Level::Error     ? "\033[1;31m"
           : level == Level::Invalid ? "\033[1;33m"
                                     : "\033[1;35m";
}

// The last value that would pass, on the side where the value fails.
std::string LimitText(const Finding& finding) {
    const Single value = NumberOf(finding.value);
    const auto& [lowest, highest] = finding.passing;
    if (highest && (!lowest || value > *lowest)) {
        return ", at most " + HighestText(*highest);
    }
    return lowest ? ", at least " + LowestText(*lowest) : "";
}

std::string Remark(const Finding& finding) {
    std::string text = finding.field;
    if (finding.phaseCount != 0) {
        text.insert(0, "phase " + std::to_string(finding.place.phase) + " of " +
                           std::to_string(finding.phaseCount) + ", ");
    }
    if (finding.level == Level::Invalid && !finding.value.empty()) {
        const bool isFlow = finding.place.phase > 0 && finding.place.item >= ItemPlace::FirstFlow;
        text += (isFlow ? ": " : " ") + finding.value;
        text += finding.showsLimit ? LimitText(finding) : "";
    }
    return text.empty() ? "" : " (" + text + ")";
}

std::string PhaseOf(const Finding& finding) {
    if (finding.place.phase == 0 || finding.level == Level::Error) {
        return "";
    }
    const std::string type = finding.type.empty() ? "" : " (" + std::string(finding.type) + ")";
    return "phase " + std::to_string(finding.place.phase) + type + ": ";
}

}  // namespace

std::string Quoted(std::string_view text) {
    constexpr int longest = 40;
    std::string quoted = "\"";
    for (int count = 0; !text.empty(); ++count) {
        if (count == longest) {
            return quoted + "\"...";
        }
        const std::string_view character = TakeCharacter(text);
        quoted += IsShownAsIs(character) ? std::string(character) : Escape(character);
    }
    return quoted + '"';
}

std::string OneLine(std::string_view name) {
    std::string line;
    while (!name.empty()) {
        const std::string_view character = TakeCharacter(name);
        line += IsInvisible(character) ? Escape(character) : std::string(character);
    }
    return line;
}

std::string ValueText(Single value) {
    std::string text = ItemText(value);
    if (NumberOf(text) != value) {
        std::array<char, 24> digits{};
        char* const begin = digits.data();
        text.assign(begin, std::to_chars(begin, begin + digits.size(), value).ptr);
        std::replace(text.begin(), text.end(), 'e', 'E');
    }
    return text;
}

std::string HighestText(Single highest) {
    std::string text = ItemText(highest);
    double number = 0;
    FromDecimal(text, number);
    while (NumberOf(text) > highest) {
        number -= LastDigit(number);
        text = ItemText(static_cast<Single>(number));
    }
    return text;
}

std::string LowestText(Single lowest) {
    const std::string mirrored = HighestText(-lowest);
    return mirrored.starts_with('-') ? mirrored.substr(1) : mirrored == "0" ? "0" : '-' + mirrored;
}

Finding ErrorOf(const ReadFailure& failure, int phaseCount) {
    Finding error{.level = Level::Error, .line = failure.line, .place = failure.place};
    error.message =
        failure.device ? "the file or its device failed: " + failure.reason : failure.reason;
    if (failure.line != 0) {
        error.field = NameOf(failure.place);
        error.phaseCount = failure.place.phase == 0 ? 0 : phaseCount;
    }
    return error;
}

std::string TextLine(std::string_view name, const Finding& finding, bool coloured) {
    std::string text = OneLine(name) + ':';
    text += finding.line == 0 ? "" : std::to_string(finding.line) + ':';
    text += ' ';
    text += coloured ? Colour(finding.level) : "";
    text += LevelWord(finding.level);
    text += coloured ? ":\033[0m " : ": ";
    return text + PhaseOf(finding) + finding.message + Remark(finding) + '\n';
}

std::string ErrorLine(std::string_view name, const ReadFailure& failure, int phaseCount) {
    std::string line = TextLine(name, ErrorOf(failure, phaseCount));
    line.pop_back();
    return line;
}
