// The text form of a record: reading a stream into the loaded copy and writing the loaded copy to
// a stream, and the same for a named file. No dialogs, no controls.
//
// The form: lines that end in CR LF, items with one comma between them, texts in double quotes.
//
//     "Stratigraphic file:",StratFile
//     "Recorded phases",LoadedPhaseCount,RecordScale
//
// and for each phase an empty line, the line "Record Phase: ",number and six lines with its 27
// fields; for Hawaiian and Peléean phases a line for each flow duration next.
#pragma once

#include <cstdint>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>

#include "record/EditorState.h"
#include "record/RecordItems.h"

/// As many digits of a Single are written; more of them read as well.
constexpr int SignificantDigits = 7;

/// Where and why a read ended before its record did.
struct ReadFailure {
    std::string reason;     // what was wrong, in words for the user
    std::int64_t line = 0;  // of the item; 0 if the file could not even be opened
    ItemPlace place = {};   // the item that was to be read
    bool device = false;    // the file or its device failed, and not its text
};

/// True when the whole record was read.
struct ReadResult {
    std::optional<ReadFailure> failure;
    explicit operator bool() const { return !failure; }
};

/// Fills the loaded copy (StratFile, LoadedPhaseCount, RecordScale, LoadedPhases, LoadedFlows)
/// from a stream, in pieces, and no further than the record calls for. Fails if the stream ends
/// too early or fails, or if a count or a number is out of range; what came before it is kept.
ReadResult ReadRecord(std::streambuf& source, EditorState& state);

/// The same with a reader of one's own, which has the functions of ItemReader. `place` is always
/// that of the item that is being read.
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

/// The same for a regular file or a link to one; anything else under that name reads as failed.
ReadResult ReadRecordFile(const std::string& path, EditorState& state);

/// A number as a record has it: seven digits at most.
std::string ItemText(Single number);

/// Whether a reference can be written so that it reads back: there is no double quote in it, and it
/// is no longer than an item can be.
bool IsStorable(std::string_view reference);

/// Writes the loaded copy. False if the stream takes less than all of it.
bool WriteRecord(std::streambuf& target, const EditorState& state);

/// Replaces the file from its first line on; true only when every byte has reached it and it is
/// closed. A reference that is not storable fails before the file is touched; so does a pipe, which
/// would wait for a reader.
bool WriteRecordFile(const std::string& path, const EditorState& state);
