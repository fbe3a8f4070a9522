// The items of a record in the order of its file, and their names. Whoever reads a record with a
// reader of its own goes through them here; the file itself is RecordFile's.
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

/// The labels that a record is written with. No reader compares them with what it finds.
constexpr std::string_view ReferenceLabel = "Stratigraphic file:";
constexpr std::string_view PhaseCountLabel = "Recorded phases";
constexpr std::string_view PhaseLabel = "Record Phase: ";

/// The name of an item: that of its field, "flow 3", "phase count" and so on.
std::string NameOf(const ItemPlace& place);

/// Reads the items of the block of a phase into the phase and its flows.
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

/// Reads a record into the loaded copy. `place` is always that of the item that is being read. A
/// reader has the functions of ItemReader; what it throws ends the reading.
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
