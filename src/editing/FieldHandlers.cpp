#include "editing/FieldHandlers.h"

#include <algorithm>
#include <limits>

#include "display/ShowData.h"
#include "editing/Entries.h"
#include "rules/EruptionTypes.h"
#include "rules/FlowDurations.h"

namespace {

// The box of an Integer has already replaced a number that does not fit in 16 bits.
void StoreNumber(RecordEdit& form, const FieldBox& row) {
    const Single value = form.NumberIn(form.*row.box);
    PhaseRecord& phase = form.CurrentPhase();
    if (const auto* single = std::get_if<Single PhaseRecord::*>(&row.field.member)) {
        phase.** single = value;
    } else if (const auto rounded = RoundToInteger(value)) {
        phase.*std::get<Integer PhaseRecord::*>(row.field.member) = *rounded;
    }
}

// Clamps the number in the box to its range, rewrites the text, and returns the clamped number.
Single ClampToRange(RecordEdit& form, const FieldBox& row) {
    TextBox& box = form.*row.box;
    const Single value = std::clamp(form.NumberIn(box), row.field.range.low, row.field.range.high);
    box.SetText(form.TextOf(value, row.rewritten));
    return value;
}

// Replaces a number at or below 0 by 1, and one that does not fit in 16 bits by the largest.
void KeepAboveZero(RecordEdit& form, TextBox& box) {
    if (form.NumberIn(box) <= 0) {
        box.SetText("1");
    }
    if (!RoundToInteger(form.NumberIn(box))) {
        box.SetText(form.TextOf(std::numeric_limits<Integer>::max(), Format::Whole));
    }
}

// Fills the list of flows again, draws a duration for each flow without one, and shows flow 1.
void BuildFlows(RecordEdit& form) {
    form.cmbFlow.Clear();
    const int count = CappedFlowCount(form.CurrentPhase());
    const bool hawaiian = form.CurType == EruptionType::Hawaiian;
    for (int i = 1; i <= count; ++i) {
        form.cmbFlow.AddItem(FlowEntry(i));
        Single& duration = form.CurrentFlows()[i];
        if (duration == 0) {
            duration = NewFlowDuration(hawaiian, form.CurrentPhase().flowLength, i, form.random());
        }
    }
    ShowFlow(form, 1);
}

// The strengths at which the caldera box is enabled, with its caption.
struct CalderaRow {
    Integer eruptionType;
    Single weakest;
    Single strongest;
    std::string_view caption;
};

constexpr Single Any = std::numeric_limits<Single>::max();

// clang-format off
constexpr CalderaRow Calderas[] = {
    {EruptionType::Vulcanian,   -Any, 0.4F, DiatremeCaption},
    {EruptionType::Vulcanian,   0.6F, Any,  CalderaCaption},
    {EruptionType::Strombolian, -Any, 0.3F, DiatremeCaption},
    {EruptionType::Plinian,     0.5F, Any,  CalderaCaption},
};
// clang-format on

}  // namespace

void Field_Change(RecordEdit& form, const FieldBox& row) {
    switch (row.field.range.rule) {
        case FieldRange::AnyNumber: break;
        case FieldRange::Between: ClampToRange(form, row); break;
        case FieldRange::AboveZero: KeepAboveZero(form, form.*row.box); break;
    }
    StoreNumber(form, row);
}

void txtStr_Change(RecordEdit& form) {
    PhaseRecord& phase = form.CurrentPhase();
    const Single strength = form.NumberIn(form.txtStr);
    form.chkCald.SetEnabled(false);
    for (const CalderaRow& row : Calderas) {
        if (row.eruptionType == phase.eruptionType && strength >= row.weakest &&
            strength <= row.strongest) {
            form.chkCald.SetEnabled(true);
            form.chkCald.SetCaption(row.caption);
        }
    }
    phase.strength = strength;
}

void txtDip_Change(RecordEdit& form) {
    const FieldBox& row = BoxRow(&RecordEdit::txtDip);
    // The number as typed decides, even if the nested run saw it rounded.
    form.cmbDown.SetEnabled(ClampToRange(form, row) == 0);
    StoreNumber(form, row);
}

void txtBurst_Change(RecordEdit& form) {
    Field_Change(form, BoxRow(&RecordEdit::txtBurst));
    if (HasFlows(form.CurrentPhase())) {
        BuildFlows(form);
    }
}

void txtLava_Change(RecordEdit& form) {
    const int flow = FindFlow(form.cmbFlow.Text(), CappedFlowCount(form.CurrentPhase()));
    if (flow != 0) {
        form.CurrentFlows()[flow] = form.NumberIn(form.txtLava);
    }
}

void Field_KeyPress(RecordEdit& form) { form.Command2.SetEnabled(true); }

void SelectActiveText(RecordEdit& form) {
    if (auto* const box = dynamic_cast<TextBox*>(form.ActiveControl())) {
        box->Select(0, box->Text().size());
    }
}
