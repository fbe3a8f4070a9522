// Everything that is wrong with one record: how it reads, and what its numbers break.
#pragma once

#include <memory>
#include <vector>

#include "check/Finding.h"
#include "record/EditorState.h"
#include "record/RecordFile.h"

class NotingReader;

/// Checks one record after another; one serves one thread.
class RecordCheck {
public:
    RecordCheck();

    /// Lists the findings of the record that a stream holds, in the order of its items.
    void Run(std::streambuf& source, const FindingSink& sink);

    /// The number of phases that the last record says it has.
    int PhaseCount() const { return state->LoadedPhaseCount; }

private:
    void EndBlock(NotingReader& reader, int block, const FindingSink& sink);
    void LookAtHeader(const NotingReader& reader, bool warns);
    void LookAtPhase(const NotingReader& reader, int number, bool warns);
    void Add(const NotingReader& reader, const ItemPlace& place, Finding finding);
    void End(NotingReader& reader, const FindingSink& sink);

    std::unique_ptr<EditorState> state;
    std::vector<Finding> findings;  // of the block
};
