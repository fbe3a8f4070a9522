#include "record/ItemReader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>
#include <utility>

#include "editing/Numbers.h"

namespace {

constexpr std::size_t ReadSize = 32768;
constexpr const char* TooLong = "an item is longer than 65,535 bytes";

enum ByteClass : unsigned char { Plain = 0, Comma = 1, LineEnd = 2, Blank = 4, Quote = 8 };

constexpr std::array<unsigned char, 256> ByteClasses = [] {
    std::array<unsigned char, 256> classes{};
    classes[','] = Comma;
    classes['\r'] = classes['\n'] = LineEnd;
    classes[' '] = Blank;
    classes['"'] = Quote;
    return classes;
}();

unsigned ClassOf(char c) { return ByteClasses[static_cast<unsigned char>(c)]; }

}  // namespace

// Room for the longest unfinished item and one more piece.
ItemReader::ItemReader(std::streambuf& stream)
    : source(stream), buffer(std::make_unique_for_overwrite<char[]>(LongestItem + ReadSize)) {}

std::string_view ItemReader::Text() {
    Next(Comma | LineEnd);
    if (pending == Pending::Separator) {
        item.remove_suffix(item.size() - (item.find_last_not_of(' ') + 1));
    }
    return item;
}

void ItemReader::SkipNumber() { Next(Comma | LineEnd | Blank); }

void ItemReader::Read(Single& value) {
    if (!ReadInPlace(value)) {
        value = Convert<Single>();
    }
}

void ItemReader::Read(Integer& value) {
    if (ReadInPlace(value)) {
        return;
    }
    const auto rounded = RoundToInteger(Convert<double>());
    if (!rounded) {
        throw ReadError("the number is out of its range");
    }
    value = *rounded;
}

bool ItemReader::Is(std::size_t position, unsigned classes) const {
    return (ClassOf(buffer[position]) & classes) != 0;
}

// The fast path: a number directly followed by its separator, both in the buffer. Otherwise returns
// false and does not consume the item.
template <class Number>
bool ItemReader::ReadInPlace(Number& value) {
    SkipPending();
    itemLine = line;
    Number number = 0;
    const auto [stop, error] = std::from_chars(buffer.get() + at, buffer.get() + end, number);
    const auto after = static_cast<std::size_t>(stop - buffer.get());
    const bool plain = error == std::errc{} && std::isfinite(number) && after + 1 < end &&
                       Is(after, Comma | LineEnd);
    if (plain) {
        value = number;
        at = after;
        TakeSeparator();
    }
    return plain;
}

template <class Number>
Number ItemReader::Convert() {
    Number number = 0;
    if (FromDecimal(Next(Comma | LineEnd | Blank), number) == Conversion::TooLarge) {
        throw ReadError("the number is out of its range");
    }
    return number;
}

std::string_view ItemReader::Next(unsigned ends) {
    SkipPending();
    SkipWhile([this] { return Is(at, Blank); });
    itemLine = line;
    if (!More()) {
        itemLine -= (ClassOf(lastByte) & LineEnd) != 0 ? 1 : 0;
        throw ReadError("the file ends before the record does");
    }
    const bool quoted = Is(at, Quote);
    if (quoted) {
        ++at;
    }
    const std::size_t length = Measure(quoted ? unsigned{Quote} : ends);
    item = std::string_view(buffer.get() + at, length);
    at += length;
    line += quoted ? LineEndsIn(at - length, at) : 0;
    pending = quoted ? Pending::Rest : Pending::Separator;
    return item;
}

// Skips what follows the last item: blanks and one comma or line end; after a quoted item
// everything up to and including that separator.
void ItemReader::SkipPending() {
    const Pending left = std::exchange(pending, Pending::Nothing);
    if (left == Pending::Rest) {
        at += at < end ? 1 : 0;  // the closing quote
        dropped = false;
        SkipWhile([this] {
            const bool isRest = !Is(at, Comma | LineEnd);
            dropped = dropped || (isRest && !Is(at, Blank));
            return isRest;
        });
    } else if (left == Pending::Separator && More() && Is(at, Blank)) {
        SkipWhile([this] { return Is(at, Blank); });
    }
    if (left != Pending::Nothing && More() && Is(at, Comma | LineEnd)) {
        TakeSeparator();
    }
}

std::int64_t ItemReader::LineOfTrailingText() {
    if (pending == Pending::Nothing && at > 0 && buffer[at - 1] == ',') {
        return line;
    }
    if (pending == Pending::Rest) {
        at += at < end ? 1 : 0;
        for (dropped = false; More() && !Is(at, Comma | LineEnd); ++at) {
            dropped = dropped || !Is(at, Blank);
        }
    }
    while (More() && Is(at, Blank | LineEnd)) {
        if (Is(at, Blank)) {
            ++at;
        } else {
            TakeSeparator();
        }
    }
    return More() ? line : 0;
}

void ItemReader::TakeSeparator() {
    const char separator = buffer[at++];
    line += separator == ',' ? 0 : 1;
    if (separator == '\r' && More() && buffer[at] == '\n') {
        ++at;
    }
}

int ItemReader::LineEndsIn(std::size_t first, std::size_t last) const {
    int count = 0;
    for (std::size_t i = first; i < last; ++i) {
        const bool secondOfPair = buffer[i] == '\n' && i > first && buffer[i - 1] == '\r';
        count += Is(i, LineEnd) && !secondOfPair ? 1 : 0;
    }
    return count;
}

// Skipped bytes belong to one item, so LongestItem limits them too.
template <class Condition>
void ItemReader::SkipWhile(Condition condition) {
    for (std::size_t skipped = 0; More() && condition(); ++at) {
        if (++skipped > LongestItem) {
            throw ReadError(TooLong);
        }
    }
}

// The length of the item at `at`, which ends before a character of these classes or at the end of
// the stream.
std::size_t ItemReader::Measure(unsigned ends) {
    std::size_t length = 0;
    do {
        while (at + length < end && !Is(at + length, ends)) {
            ++length;
        }
        if (length > LongestItem) {
            throw ReadError(TooLong);
        }
    } while (at + length == end && Refill());
    return length;
}

// Reads another piece after the bytes not yet consumed; false at the end of the stream. From then
// on nothing more is read, even from a stream that could continue after a fault.
bool ItemReader::Refill() {
    if (ended) {
        return false;
    }
    std::memmove(buffer.get(), buffer.get() + at, end - at);
    end -= at;
    at = 0;
    const std::streamsize got = source.sgetn(buffer.get() + end, ReadSize);
    ended = got <= 0;
    if (!ended) {
        end += static_cast<std::size_t>(got);
        lastByte = buffer[end - 1];
    }
    return !ended;
}
