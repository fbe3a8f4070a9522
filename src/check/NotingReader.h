// A reader of records that takes notes of what it reads, for ReadRecordWith.
#pragma once

#include <functional>
#include <type_traits>
#include <utility>

#include "check/BlockNotes.h"
#include "record/ItemReader.h"

/// Reads as ItemReader does.
class NotingReader {
public:
    /// `theEnd` is called with the number of a block (0 for the header) once the first item of the
    /// next has been read; it is to take the notes.
    NotingReader(std::streambuf& stream, std::function<void(int block)> theEnd)
        : in(stream), endOfBlock(std::move(theEnd)) {}

    std::string_view Text();
    void SkipNumber();
    template <class Number>
    void Read(Number& value) {
        in.Read(value);
        notes.SetLine(place.item, in.Line());
        if (!in.Plain()) {
            Look(static_cast<double>(value), std::is_integral_v<Number>);
        }
    }
    std::int64_t Line() const { return in.Line(); }

    /// After the last item: what ItemReader says of what follows it.
    std::int64_t LineOfTrailingText() { return in.LineOfTrailingText(); }

    /// Ends the last block that was read whole.
    void EndBlock(int block);

    ItemPlace place;  // of the item that is being read
    BlockNotes notes;

private:
    void Look(double value, bool isWhole);
    void Settle();
    void Watch();

    ItemReader in;
    std::function<void(int block)> endOfBlock;
    bool afterQuote = false;  // what came after the item in quotes is not looked at yet
    ItemPlace quoted;         // that item
};
