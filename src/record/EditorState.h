// The variables of the running editor: both copies of the record and where the form stands in
// them. There is one of each, open to every handler.
#pragma once

#include <string>

#include "record/PhaseRecord.h"

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

    std::string RecFile;       // full path; empty while the record has never had a file
    Integer RecordScale = 0;   // 100 large, 20 normal, 4 small, 0 not set; shared by both copies
    Integer CurPhase = 0;      // the phase on show, 0 for none
    Integer CurType = 0;       // its eruption type, -1 for none
    bool FormFilling = false;  // true while the display resets the option controls
    std::string DataPath;      // the data folder; a file name is appended to it as it stands
};
