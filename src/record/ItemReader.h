// Reads the items of a stream one after another, texts and numbers, and counts lines. What the
// items mean in a record is in RecordItems.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <streambuf>
#include <string_view>

#include "record/PhaseRecord.h"

/// Why an item cannot be read, as a message for the user: the stream is at its end, the item is
/// longer than LongestItem, or its number is out of range. A stream that fails throws its own
/// exception.
struct ReadError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The most bytes that an item can have, or that can be skipped before or after it.
constexpr std::size_t LongestItem = 65535;

/// Splits a stream into items. Reads it in pieces, and past the piece in which an item ends only
/// when the next one is requested. Every read throws ReadError if there is no item.
class ItemReader {
public:
    /// The stream must outlive the reader.
    explicit ItemReader(std::streambuf& stream);

    /// An item of any kind, as text; the view is valid until the next item is read.
    std::string_view Text();

    /// Skips one item, whatever it contains. Like a number it ends at a blank too.
    void SkipNumber();

    /// Reads a number; 0 for an item that is not a number. For an Integer a fraction is rounded, a
    /// tie to the even neighbour. Throws ReadError for a number that the type cannot hold.
    void Read(Single& value);
    void Read(Integer& value);

    /// The line of the last item's first character, counted from 1: for a quoted item its opening
    /// quote, for an empty one its separator. CR LF, LF and CR end a line, in quotes too. If there
    /// was no item, the line of the stream's last byte.
    std::int64_t Line() const { return itemLine; }

    /// True only if the last item was a number directly followed by its separator. If false, Item
    /// and Quoted give its text and whether it was in quotes, until the next item is read.
    bool Plain() const { return pending == Pending::Nothing; }
    std::string_view Item() const { return item; }
    bool Quoted() const { return pending == Pending::Rest; }

    /// Whether more than blanks was dropped after the closing quote of the last quoted item; known
    /// once the next item has been read or LineOfTrailingText called.
    bool Dropped() const { return dropped; }

    /// The line of the first character after the last item, and after what is dropped after its
    /// closing quote, that is neither a blank nor a line end; 0 if there is none. Reads to it, or
    /// to the end of the stream; do not read another item afterwards.
    std::int64_t LineOfTrailingText();

private:
    // What has not been consumed after the last item: nothing, its separator, or, if it was in
    // quotes, everything from the closing quote on.
    enum class Pending { Nothing, Separator, Rest };

    bool Is(std::size_t position, unsigned classes) const;
    template <class Number>
    bool ReadInPlace(Number& value);
    template <class Number>
    Number Convert();
    std::string_view Next(unsigned ends);
    void SkipPending();
    void TakeSeparator();
    template <class Condition>
    void SkipWhile(Condition condition);
    std::size_t Measure(unsigned ends);
    int LineEndsIn(std::size_t first, std::size_t last) const;
    bool More() { return at < end || Refill(); }
    bool Refill();

    std::streambuf& source;
    std::unique_ptr<char[]> buffer;
    std::size_t at = 0;
    std::size_t end = 0;
    bool ended = false;
    bool dropped = false;
    std::string_view item;
    char lastByte = 0;  // the last byte received so far
    Pending pending = Pending::Nothing;
    std::int64_t line = 1;  // of the next byte
    std::int64_t itemLine = 1;
};
