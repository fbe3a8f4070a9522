// The items of a record in the order of its file, their names, and reading them with any reader.
// Opening and writing files is in RecordFile.
#pragma once

#include <string>
#include <string_view>

#include "record/EditorState.h"
#include "record/ItemReader.h"
#include "record/PhaseFields.h"

/// An item of a record: of its header, or of the block of a phase.
struct ItemPlace {
    int phase = 0;  // 0 for the header
    int item = 0;   // counted from 0, in the order of the names below; then the flows

    enum Header { HeaderLabel, Reference, CountLabel, PhaseCount, RecordScale };
    enum Block { EmptyLine, PhaseLabel, PhaseNumber, FirstField };
    static constexpr int FirstFlow = FirstField + static_cast<int>(PhaseFields.size());

    friend bool operator==(const ItemPlace&, const ItemPlace&) = default;
};

/// The labels in a written record. Reading a record does not compare them with the file.
constexpr std::string_view ReferenceLabel = "Stratigraphic file:";
constexpr std::string_view PhaseCountLabel = "Recorded phases";
constexpr std::string_view PhaseLabel = "Record Phase: ";

/// The name of an item: that of its field, "flow 3", "phase count" and so on. Throws
/// std::out_of_range if `item` is negative or, in the header, above RecordScale.
std::string NameOf(const ItemPlace& place);

/// Reads the items of the block of a phase into the phase and its flows. Throws ReadError for more
/// than 100 flows.
template <class Reader>
void ReadPhaseItems(Reader& in, ItemPlace& place, PhaseRecord& phase, FlowRow& flows) {
    place.item = ItemPlace::EmptyLine;
    in.Text();
    place.item = ItemPlace::PhaseLabel;
    in.Text();
    place.item = ItemPlace::PhaseNumber;
    in.SkipNumber();
    ForEachField(phase, [&](auto index, auto& value) {
        place.item = ItemPlace::FirstField + static_cast<int>(index);
        in.Read(value);
    });
    if (!HasFlows(phase)) {
        return;
    }
    for (int j = 1; j <= phase.burstCount; ++j) {
        place.item = ItemPlace::FirstFlow + j - 1;
        if (j > MaxFlows) {
            throw ReadError("a phase has more than 100 flows");
        }
        in.Read(flows[j]);
    }
}

/// Reads a record into the loaded copy. Sets `place` to each item before reading it. The reader
/// needs the functions of ItemReader; its exceptions are not caught. Throws ReadError for a phase
/// count outside 0 to 500.
template <class Reader>
void ReadRecordItems(Reader& in, ItemPlace& place, EditorState& state) {
    place = {0, ItemPlace::HeaderLabel};
    in.Text();
    place.item = ItemPlace::Reference;
    state.StratFile = in.Text();
    place.item = ItemPlace::CountLabel;
    in.Text();
    place.item = ItemPlace::PhaseCount;
    Integer count = 0;
    in.Read(count);
    if (count < 0 || count > MaxPhases) {
        throw ReadError("the number of phases is not 0 to 500");
    }
    state.LoadedPhaseCount = count;
    place.item = ItemPlace::RecordScale;
    in.Read(state.RecordScale);
    for (place.phase = 1; place.phase <= state.LoadedPhaseCount; ++place.phase) {
        ReadPhaseItems(in, place, state.LoadedPhases[place.phase], state.LoadedFlows[place.phase]);
    }
}
