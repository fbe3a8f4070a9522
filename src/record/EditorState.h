// The variables of the running editor: both copies of the record and where the form stands in
// them. There is one of each, open to every handler.
#pragma once

#include <string>
#include <string_view>

#include "record/PhaseRecord.h"

constexpr std::string_view NewRecordCaption = "(New)";  // the record has no file yet
constexpr std::string_view NoFileText = "(None)";       // no stratigraphic file is attached

/// Codes of `EditorState::RecordScale`. A file can bring any other code too.
namespace ScaleCode {
constexpr Integer Large = 100;
constexpr Integer Normal = 20;
constexpr Integer Small = 4;
constexpr Integer NotSet = 0;
}  // namespace ScaleCode

struct EditorState {
    // The record as last read or applied; this is what a file is written from.
    PhaseTable LoadedPhases;
    FlowTable LoadedFlows;
    Integer LoadedPhaseCount = 0;  // 0 to 500
    std::string StratFile;         // bytes as they stand in the file

    // The working copy, which every edit goes into.
    PhaseTable EditPhases;
    FlowTable EditFlows;
    Integer EditPhaseCount = 0;  // 0 to 500
    std::string EditStratFile;

    std::string RecFile;  // full path; empty while the record has never had a file
    Integer RecordScale = ScaleCode::NotSet;  // of the map; shared by both copies
    Integer CurPhase = 0;                     // the phase on show, 0 for none
    Integer CurType = 0;                      // its eruption type, -1 for none
    bool FormFilling = false;                 // true while the display resets the option controls
    std::string DataPath;  // the data folder; a file name is appended to it as it stands
};
