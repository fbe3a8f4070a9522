#include "editing/FieldHandlers.h"

#include <algorithm>
#include <limits>

#include "display/ShowData.h"
#include "editing/Entries.h"
#include "rules/EruptionTypes.h"
#include "rules/FlowDurations.h"

namespace {

// Only the boxes with a floor can hold a number beyond 16 bits, and those replace it first.
void Store(RecordEdit& form, const Field& field) {
    const Single value = form.NumberIn(form.*field.box);
    PhaseRecord& phase = form.CurrentPhase();
    if (const auto* single = std::get_if<Single PhaseRecord::*>(&field.member)) {
        phase.** single = value;
    } else if (const auto rounded = RoundToInteger(value)) {
        phase.*std::get<Integer PhaseRecord::*>(field.member) = *rounded;
    }
}

// Brings the text into the range, in form; the number it then stands for.
Single Limit(RecordEdit& form, const Field& field) {
    TextBox& box = form.*field.box;
    const Single value = std::clamp(form.NumberIn(box), field.rule.low, field.rule.high);
    box.SetText(form.TextOf(value, field.rewritten));
    return value;
}

// Brings a number above zero, and within 16 bits.
void LiftAboveZero(RecordEdit& form, TextBox& box) {
    if (form.NumberIn(box) <= 0) {
        box.SetText("1");
    }
    if (!RoundToInteger(form.NumberIn(box))) {
        box.SetText(form.TextOf(std::numeric_limits<Integer>::max(), Format::Whole));
    }
}

// The list of flows anew, with a duration for each flow that has none, and flow 1 on show.
void BuildFlows(RecordEdit& form) {
    form.cmbFlow.Clear();
    const int count = FlowsWithinTable(form.CurrentPhase());
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

// Which strengths of an eruption leave a caldera, and what it is called then.
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

void Field_Change(RecordEdit& form, const Field& field) {
    switch (field.rule.kind) {
        case Rule::Store: break;
        case Rule::Range: Limit(form, field); break;
        case Rule::AboveZero: LiftAboveZero(form, form.*field.box); break;
    }
    Store(form, field);
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
    const Field& field = FieldOf(&RecordEdit::txtDip);
    // The number of this run decides, also when a nested run has seen a rounded one.
    form.cmbDown.SetEnabled(Limit(form, field) == 0);
    Store(form, field);
}

void txtBurst_Change(RecordEdit& form) {
    Field_Change(form, FieldOf(&RecordEdit::txtBurst));
    if (HasFlows(form.CurrentPhase())) {
        BuildFlows(form);
    }
}

void txtLava_Change(RecordEdit& form) {
    const int flow = FindFlow(form.cmbFlow.Text(), FlowsWithinTable(form.CurrentPhase()));
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
