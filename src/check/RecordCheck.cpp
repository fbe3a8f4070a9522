#include "check/RecordCheck.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "check/NotingReader.h"
#include "check/PhaseWarnings.h"
#include "check/Wording.h"
#include "rules/EruptionTypes.h"

namespace {

constexpr std::array<Integer, 3> Scales{ScaleCode::Small, ScaleCode::Normal, ScaleCode::Large};

int ItemsOf(const PhaseRecord& phase) {
    return ItemPlace::FirstFlow + (HasFlows(phase) ? std::max<int>(phase.burstCount, 0) : 0);
}

int ItemOf(const PhaseField& field) {
    return ItemPlace::FirstField + static_cast<int>(IndexOf(field));
}

std::string_view Trimmed(std::string_view message) {
    message.remove_prefix(message.starts_with(' ') ? 1 : 0);
    message.remove_suffix(message.ends_with(' ') ? 1 : 0);
    return message;
}

// A quick test, as most phases pass; AllFaults is slower.
bool Passes(const PhaseRecord& phase, const FlowRow& flows, Integer scale) {
    try {
        return !FirstFault(phase, flows, scale);
    } catch (const std::overflow_error&) {
        return false;
    }
}

bool NamesNumber(std::string_view message) {
    return message.find_first_of("0123456789") != message.npos;
}

}  // namespace

RecordCheck::RecordCheck() : state(std::make_unique<EditorState>()) {}

void RecordCheck::Run(std::streambuf& source, const FindingSink& sink) {
    state->LoadedPhaseCount = 0;
    findings.clear();
    NotingReader reader(source, [&](int block) { EndBlock(reader, block, sink); });
    const ReadResult result = ReadRecordWith(reader, *state, reader.place);
    if (result) {
        End(reader, sink);
        return;
    }
    const ItemPlace& place = result.failure->place;
    if (place.phase > 0 && place.item == ItemPlace::EmptyLine) {
        reader.EndBlock(place.phase - 1);  // complete; the next one has no first item
    }
    sink(ErrorOf(*result.failure, PhaseCount()));
}

// A device failure after the last item is only a warning: the form never reads that far.
void RecordCheck::End(NotingReader& reader, const FindingSink& sink) {
    Finding rest{.message = "text after the last item is not read"};
    try {
        rest.line = reader.LineOfTrailingText();
    } catch (const std::system_error& error) {
        rest = {
            .line = reader.Line(),
            .message = "the file cannot be read after the last item: " + error.code().message()};
    }
    reader.EndBlock(PhaseCount());
    if (rest.line != 0) {
        sink(rest);
    }
}

void RecordCheck::EndBlock(NotingReader& reader, int block, const FindingSink& sink) {
    const int items = block == 0 ? ItemPlace::RecordScale + 1 : ItemsOf(state->LoadedPhases[block]);
    const bool labelled = reader.notes.MoveInto(findings, block, items);
    if (block == 0) {
        CheckHeader(reader, labelled);
    } else {
        CheckPhase(reader, block, labelled);
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return a.place.item < b.place.item;
    });
    std::for_each(findings.begin(), findings.end(), sink);
    findings.clear();
}

void RecordCheck::CheckHeader(const NotingReader& reader, bool warns) {
    const Integer scale = state->RecordScale;
    if (warns && std::find(Scales.begin(), Scales.end(), scale) == Scales.end()) {
        const std::string text = ItemText(scale);
        Add(reader, {0, ItemPlace::RecordScale},
            {.message =
                 text + (scale == ScaleCode::NotSet ? " is judged as 20"
                                                    : " is not one of the scales 4, 20 and 100"),
             .value = text});
    }
    if (!IsStorable(state->StratFile)) {
        Add(reader, {0, ItemPlace::Reference},
            {.level = Level::Invalid,
             .message = "Recorder file save error",
             .value = Quoted(state->StratFile)});
    }
}

void RecordCheck::CheckPhase(const NotingReader& reader, int number, bool warns) {
    const PhaseRecord& phase = state->LoadedPhases[number];
    const FlowRow& flows = state->LoadedFlows[number];
    if (warns) {
        WarnOfNumbers(phase, [&](const PhaseField& field, const std::string& message) {
            Add(reader, {number, ItemOf(field)},
                {.message = message, .value = ValueText(ValueOf(phase, field))});
        });
    }
    const Integer scale = ScaleOf(state->RecordScale);
    if (Passes(phase, flows, scale)) {
        return;
    }
    const TypeEntry* const type = EntryOf(phase);
    for (const Fault& fault : AllFaults(phase, flows, scale)) {
        const bool isFlow = fault.flow != 0;
        Add(reader, {number, isFlow ? ItemPlace::FirstFlow + fault.flow - 1 : ItemOf(*fault.field)},
            {.level = Level::Invalid,
             .type = type != nullptr ? type->name : "",
             .message = std::string(Trimmed(fault.message)),
             .value = ValueText(isFlow ? flows[fault.flow] : ValueOf(phase, *fault.field)),
             .passing = fault.passing,
             .showsLimit = !NamesNumber(fault.message)});
    }
}

void RecordCheck::Add(const NotingReader& reader, const ItemPlace& place, Finding finding) {
    finding.line = reader.notes.LineOf(place.item);
    finding.place = place;
    finding.field = NameOf(place);
    findings.push_back(std::move(finding));
}
