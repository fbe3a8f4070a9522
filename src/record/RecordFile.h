// The text format of a record: reading a stream into the loaded copy and writing the loaded copy to
// a stream, and the same for a named file. No dialogs, no controls.
//
// The format: lines that end in CR LF, items with one comma between them, texts in double quotes.
//
//     "Stratigraphic file:",StratFile
//     "Recorded phases",LoadedPhaseCount,RecordScale
//
// and for each phase an empty line, the line "Record Phase: ",number and six lines with its 27
// fields; then, for Hawaiian and Peléean phases, a line for each flow duration.
#pragma once

#include <cstdint>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>

#include "record/EditorState.h"
#include "record/RecordItems.h"

/// The number of digits with which a Single is written; a file with more can be read too.
constexpr int SignificantDigits = 7;

/// Where and why a read ended before its record did.
struct ReadFailure {
    std::string reason;     // what was wrong, as a message for the user
    std::int64_t line = 0;  // of the item; 0 if the file could not even be opened
    ItemPlace place = {};   // the item that could not be read
    bool device = false;    // true: the device failed; false: the text is wrong
};

/// True when the whole record was read.
struct ReadResult {
    std::optional<ReadFailure> failure;
    explicit operator bool() const { return !failure; }
};

/// Reads a record from a stream, in pieces, into the loaded copy (StratFile, LoadedPhaseCount,
/// RecordScale, LoadedPhases, LoadedFlows), and does not read past the piece in which it ends.
/// Fails if the stream ends too early or fails, or if a count or a number is out of range; what was
/// read before that is kept.
ReadResult ReadRecord(std::streambuf& source, EditorState& state);

/// The same with any reader that has the functions of ItemReader. Sets `place` to each item before
/// reading it.
template <class Reader>
ReadResult ReadRecordWith(Reader& in, EditorState& state, ItemPlace& place) {
    try {
        ReadRecordItems(in, place, state);
        return {};
    } catch (const std::system_error& error) {
        return {ReadFailure{error.code().message(), in.Line(), place, true}};
    } catch (const std::exception& error) {
        return {ReadFailure{error.what(), in.Line(), place}};
    }
}

/// The same for a regular file or a link to one; anything else is a failed read.
ReadResult ReadRecordFile(const std::string& path, EditorState& state);

/// The text of a number in a record file: at most seven significant digits.
std::string ItemText(Single number);

/// Whether a reference can be written and read back: it has no double quote and is no longer than
/// LongestItem.
bool IsStorable(std::string_view reference);

/// Writes the loaded copy, whose StratFile must be storable. False if the stream does not accept
/// all of it, or a phase has more than 100 flows.
bool WriteRecord(std::streambuf& target, const EditorState& state);

/// Overwrites the file in place; true only if every byte was written and the file closed without an
/// error. A reference that is not storable, or a pipe, fails before the file is touched.
bool WriteRecordFile(const std::string& path, const EditorState& state);
