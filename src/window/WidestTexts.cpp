#include "window/WidestTexts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/Limits.h"
#include "editing/Entries.h"
#include "editing/Fields.h"
#include "form/Catalogue.h"
#include "record/RecordFile.h"
#include "rules/EruptionTypes.h"
#include "rules/FlowDurations.h"
#include "window/ScreenText.h"

namespace {

using Texts = std::vector<std::string>;

// A number just below the end of a range with as many digits as a file keeps.
Single LongestBelow(Single end) {
    const int digits = static_cast<int>(std::floor(std::log10(end))) + 1;
    return end - static_cast<Single>(std::pow(10, digits - SignificantDigits));
}

Texts InRange(const RecordEdit& form, const FieldBox& row) {
    const FieldRange& range = row.field.range;
    Texts texts{form.TextOf(range.low, row.shown), form.TextOf(range.high, row.shown)};
    if (row.rewritten == Format::Plain) {
        texts.push_back(form.TextOf(LongestBelow(range.high), row.rewritten));
    }
    return texts;
}

// The limits within which some phase can be saved, at the scale with the widest map.
Texts WithinLimits(const RecordEdit& form, const FieldBox& row) {
    Texts texts;
    const Bounds limits = WidestBounds(row.field, ScaleCode::Large);
    for (const auto& limit : {limits.lowest, limits.highest}) {
        if (limit) {
            texts.push_back(form.TextOf(*limit, row.shown));
        }
    }
    return texts;
}

Texts NumbersIn(const RecordEdit& form, const FieldBox& row) {
    switch (row.field.range.rule) {
        case FieldRange::Between: return InRange(form, row);
        case FieldRange::AnyNumber: return WithinLimits(form, row);
        case FieldRange::AboveZero:
            return {form.TextOf(std::numeric_limits<Integer>::max(), row.shown)};
    }
    return {};
}

std::string LongestDuration(const RecordEdit& form) {
    PhaseRecord phase;
    phase.flowLength = static_cast<Integer>(FieldOf(&PhaseRecord::flowLength).range.high);
    double longest = 0;
    for (const Integer type : {EruptionType::Hawaiian, EruptionType::Pelean}) {
        phase.eruptionType = type;
        longest = std::max(longest, LongestFlow(phase, MaxFlows));
    }
    return form.TextOf(static_cast<Single>(longest), Format::OneDecimal);
}

Texts TypeNames() {
    Texts names;
    for (const TypeEntry& entry : TypeEntries) {
        names.emplace_back(entry.name);
    }
    return names;
}

class Collection {
public:
    void Add(const Control& control, std::string_view text) { texts[&control] += ToScreen(text); }
    void Add(const Control& control, const Texts& all) {
        for (const std::string& text : all) {
            Add(control, text);
        }
    }
    std::unordered_map<const Control*, QStringList> texts;
};

void AddLaterTexts(const RecordEdit& form, Collection& to) {
    to.Add(form.Command1, CloseCaption);
    to.Add(form.Command2, SaveCaption);
    to.Add(form.labPhases, std::to_string(MaxPhases));
    to.Add(form.chkCald, CalderaCaption);
    to.Add(form.chkCald, DiatremeCaption);
    to.Add(form.labSlide4, VentCaption);
    to.Add(form.labSlide4, FrequencyCaption);
    to.Add(form.cmbPhase, NoPhaseText);
    to.Add(form.cmbPhase, PhaseEntry(MaxPhases));
    to.Add(form.cmbType, TypeNames());
    to.Add(form.cmbStyle, VallesEntry);
    to.Add(form.cmbStyle, MazamaEntry);
    to.Add(form.cmbDown, LeftEntry);
    to.Add(form.cmbDown, RightEntry);
    to.Add(form.cmbFlow, FlowEntry(MaxFlows));
    to.Add(form.txtLava, LongestDuration(form));
    for (const FieldBox& row : FieldBoxes) {
        to.Add(form.*row.box, NumbersIn(form, row));
    }
}

}  // namespace

std::unordered_map<const Control*, QStringList> TextsToFit(const RecordEdit& form) {
    Collection all;
    for (const CatalogueRow& row : Catalogue()) {
        all.Add(*form.Find(row.name), row.caption);
    }
    AddLaterTexts(form, all);
    return std::move(all.texts);
}
