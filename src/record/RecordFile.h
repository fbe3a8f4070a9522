// The text form of a record: reading a stream into the loaded copy and writing the loaded copy to
// a stream, and the same for a named file. No dialogs, no controls.
//
// The form: lines that end in CR LF, items with one comma between them, texts in double quotes.
//
//     "Stratigraphic file:",StratFile
//     "Recorded phases",LoadedPhaseCount,RecordScale
//
// and for each phase an empty line, the line "Record Phase: ",number and six lines with its 27
// fields; for Hawaiian and Peléean phases a line for each flow duration behind them.
#pragma once

#include <streambuf>
#include <string>

#include "record/EditorState.h"

/// Fills the loaded copy (StratFile, LoadedPhaseCount, RecordScale, LoadedPhases, LoadedFlows)
/// from a stream, in pieces, and no further than the record calls for. False if the stream ends
/// too early or fails, or if a count or a number is out of range; what came before it is kept.
bool ReadRecord(std::streambuf& source, EditorState& state);

/// The same for a regular file or a link to one; anything else under that name reads as failed.
bool ReadRecordFile(const std::string& path, EditorState& state);

/// Writes the loaded copy. False if the stream takes less than all of it.
bool WriteRecord(std::streambuf& target, const EditorState& state);

/// Replaces the file from its first line on; true only when every byte has reached it and it is
/// closed. A reference that could not be read back (a double quote in it, or longer than an item
/// can be) fails before the file is touched; so does a pipe, which would wait for a reader.
bool WriteRecordFile(const std::string& path, const EditorState& state);
