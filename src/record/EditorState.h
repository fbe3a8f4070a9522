// The variables of the running editor: both copies of the record, and which phase the form shows.
// Every handler can use them. The form itself is in RecordEdit.
#pragma once

#include <string>
#include <string_view>

#include "record/PhaseRecord.h"

constexpr std::string_view NewRecordCaption = "(New)";  // the record has no file yet
constexpr std::string_view NoFileText = "(None)";       // no stratigraphic file is attached

/// Codes of `EditorState::RecordScale`. A file may contain any other code too.
namespace ScaleCode {
constexpr Integer Large = 100;
constexpr Integer Normal = 20;
constexpr Integer Small = 4;
constexpr Integer NotSet = 0;
}  // namespace ScaleCode

/// The scale that counts for a record with this code: a record without a scale is normal.
constexpr Integer ScaleOf(Integer recordScale) {
    return recordScale == ScaleCode::NotSet ? ScaleCode::Normal : recordScale;
}

/// About half a megabyte: create it on the heap, not on the stack.
struct EditorState {
    // The record as last read or applied; a file is written from this copy.
    PhaseTable LoadedPhases;
    FlowTable LoadedFlows;
    Integer LoadedPhaseCount = 0;  // 0 to 500
    std::string StratFile;         // the bytes as they are in the file

    // The working copy, which every edit goes into.
    PhaseTable EditPhases;
    FlowTable EditFlows;
    Integer EditPhaseCount = 0;  // 0 to 500
    std::string EditStratFile;

    std::string RecFile;                      // full path; empty if the record has never had a file
    Integer RecordScale = ScaleCode::NotSet;  // of the map; shared by both copies
    Integer CurPhase = 0;                     // the phase shown, 0 for none
    Integer CurType = 0;                      // the eruption type shown, -1 for none
    bool FormFilling = false;                 // true while ShowData resets the option controls
    std::string DataPath;  // the data folder; file names are appended without a slash
};
