// The items of a stream one after another, texts and numbers. What they mean in a record stands in
// RecordFile.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <streambuf>
#include <string_view>
#include <vector>

#include "record/PhaseRecord.h"

/// Why an item cannot be read: the stream is at its end or has failed, the item is longer than
/// LongestItem, or its number is out of range.
struct ReadError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The most bytes that an item can have, or that can be passed over before or behind it.
constexpr std::size_t LongestItem = 65535;

/// Cuts a stream into items. It looks no further ahead than the piece in which an item ends, and
/// what stands behind an item is taken only when the next one is asked for. Every read throws
/// ReadError where there is no item to be had.
class ItemReader {
public:
    /// The stream is to outlive the reader.
    explicit ItemReader(std::streambuf& stream);

    /// An item of any kind, as text; the view holds until the next item is read.
    std::string_view Text();

    /// Passes over an item that is delimited as a number, whatever it is.
    void SkipNumber();

    /// An item that is no number gives 0; a fraction is rounded, a tie to the even neighbour.
    void Read(Single& value);
    void Read(Integer& value);

private:
    // What still stands between the last item and the next.
    enum class Behind { Nothing, Separator, Rest };

    bool Is(std::size_t position, unsigned kinds) const;
    template <class Number>
    bool ReadInPlace(Number& value);
    template <class Number>
    Number Convert();
    std::string_view Next(unsigned ends);
    void PassBehind();
    void TakeSeparator();
    template <class Condition>
    void SkipWhile(Condition condition);
    std::size_t Measure(unsigned ends);
    bool More() { return at < end || Refill(); }
    bool Refill();

    std::streambuf& source;
    std::vector<char> buffer;
    std::size_t at = 0;
    std::size_t end = 0;
    bool ended = false;
    Behind behind = Behind::Nothing;
};
