#include "record/ItemReader.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>
#include <utility>

#include "editing/Numbers.h"

namespace {

constexpr std::size_t Piece = 32768;

enum Kind : unsigned char { Plain = 0, Comma = 1, LineEnd = 2, Blank = 4, Quote = 8 };

constexpr std::array<unsigned char, 256> Kinds = [] {
    std::array<unsigned char, 256> kinds{};
    kinds[','] = Comma;
    kinds['\r'] = kinds['\n'] = LineEnd;
    kinds[' '] = Blank;
    kinds['"'] = Quote;
    return kinds;
}();

}  // namespace

// A piece more than the longest item that is waiting for its end.
ItemReader::ItemReader(std::streambuf& stream) : source(stream), buffer(LongestItem + Piece) {}

std::string_view ItemReader::Text() {
    std::string_view item = Next(Comma | LineEnd);
    if (behind == Behind::Separator) {
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
        throw ReadError("Overflow");
    }
    value = *rounded;
}

bool ItemReader::Is(std::size_t position, unsigned kinds) const {
    return (Kinds[static_cast<unsigned char>(buffer[position])] & kinds) != 0;
}

// A number as files mostly have it, with its separator in the buffer, needs no second look. False,
// and nothing taken, for any other item.
template <class Number>
bool ItemReader::ReadInPlace(Number& value) {
    PassBehind();
    Number number = 0;
    const auto [stop, error] = std::from_chars(buffer.data() + at, buffer.data() + end, number);
    const auto after = static_cast<std::size_t>(stop - buffer.data());
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
        throw ReadError("Overflow");
    }
    return number;
}

std::string_view ItemReader::Next(unsigned ends) {
    PassBehind();
    SkipWhile([this] { return Is(at, Blank); });
    if (!More()) {
        throw ReadError("Input past end of file");
    }
    const bool quoted = Is(at, Quote);
    if (quoted) {
        ++at;
    }
    const std::size_t length = Measure(quoted ? unsigned{Quote} : ends);
    const std::string_view item(buffer.data() + at, length);
    at += length;
    behind = quoted ? Behind::Rest : Behind::Separator;
    return item;
}

// Takes what belongs to the last item: blanks and one comma or line end; behind a closing quote
// anything up to there.
void ItemReader::PassBehind() {
    const Behind left = std::exchange(behind, Behind::Nothing);
    if (left == Behind::Rest) {
        at += at < end ? 1 : 0;  // the closing quote
        SkipWhile([this] { return !Is(at, Comma | LineEnd); });
    } else if (left == Behind::Separator && More() && Is(at, Blank)) {
        SkipWhile([this] { return Is(at, Blank); });
    }
    if (left != Behind::Nothing && More() && Is(at, Comma | LineEnd)) {
        TakeSeparator();
    }
}

void ItemReader::TakeSeparator() {
    const char separator = buffer[at++];
    if (separator == '\r' && More() && buffer[at] == '\n') {
        ++at;
    }
}

// However much there is to skip, it belongs to one item, and an item has an end.
template <class Condition>
void ItemReader::SkipWhile(Condition condition) {
    for (std::size_t skipped = 0; More() && condition(); ++at) {
        if (++skipped > LongestItem) {
            throw ReadError("Item too long");
        }
    }
}

// The length of the item at `at`, which ends before a character of these kinds or with the stream.
std::size_t ItemReader::Measure(unsigned ends) {
    std::size_t length = 0;
    do {
        while (at + length < end && !Is(at + length, ends)) {
            ++length;
        }
        if (length > LongestItem) {
            throw ReadError("Item too long");
        }
    } while (at + length == end && Refill());
    return length;
}

// Brings in another piece behind what is not yet taken; false at the end of the stream, which stays
// the end even if the stream has more to give after a fault.
bool ItemReader::Refill() {
    if (ended) {
        return false;
    }
    std::memmove(buffer.data(), buffer.data() + at, end - at);
    end -= at;
    at = 0;
    const std::streamsize got = source.sgetn(buffer.data() + end, Piece);
    ended = got <= 0;
    end += ended ? 0 : static_cast<std::size_t>(got);
    return !ended;
}
