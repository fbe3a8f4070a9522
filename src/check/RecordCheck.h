// Finds everything that is wrong with a record: items read differently from how they look, and
// limits that its values break.
#pragma once

#include <memory>
#include <vector>

#include "check/Finding.h"
#include "record/EditorState.h"
#include "record/RecordFile.h"

class NotingReader;

/// Checks one record after another. Each thread needs its own.
class RecordCheck {
public:
    RecordCheck();

    /// Reports the findings of the record in a stream, in the order of its items. If it cannot be
    /// read, the last finding is the error.
    void Run(std::streambuf& source, const FindingSink& sink);

    /// The number of phases that the last record says it has; 0 if that could not be read.
    int PhaseCount() const { return state->LoadedPhaseCount; }

private:
    void EndBlock(NotingReader& reader, int block, const FindingSink& sink);
    void CheckHeader(const NotingReader& reader, bool warns);
    void CheckPhase(const NotingReader& reader, int number, bool warns);
    void Add(const NotingReader& reader, const ItemPlace& place, Finding finding);
    void End(NotingReader& reader, const FindingSink& sink);

    std::unique_ptr<EditorState> state;
    std::vector<Finding> findings;  // of the current block
};
