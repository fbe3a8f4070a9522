// A reader for ReadRecordWith that takes notes on the items it reads. BlockNotes decides what is
// noted.
#pragma once

#include <functional>
#include <type_traits>
#include <utility>

#include "check/BlockNotes.h"
#include "record/ItemReader.h"

/// Reads, and fails, as ItemReader does.
class NotingReader {
public:
    /// `theEnd` is called with the number of a block (0 for the header) once the first item of the
    /// next block has been read. It must move the notes out.
    NotingReader(std::streambuf& stream, std::function<void(int block)> theEnd)
        : in(stream), endOfBlock(std::move(theEnd)) {}

    std::string_view Text();
    void SkipNumber();
    template <class Number>
    void Read(Number& value) {
        in.Read(value);
        notes.SetLine(place.item, in.Line());
        if (!in.Plain()) {
            CompareNumber(static_cast<double>(value), std::is_integral_v<Number>);
        }
    }
    std::int64_t Line() const { return in.Line(); }

    /// To be called after the last item; see ItemReader.
    std::int64_t LineOfTrailingText() { return in.LineOfTrailingText(); }

    /// Calls `theEnd` for the last complete block.
    void EndBlock(int block);

    ItemPlace place;  // of the item that is being read
    BlockNotes notes;

private:
    void CompareNumber(double value, bool isWhole);
    void NoteDropped();
    void Remember();

    ItemReader in;
    std::function<void(int block)> endOfBlock;
    bool afterQuote = false;  // the last item was quoted; text after it is not checked yet
    ItemPlace quoted;         // the place of the last item
};
