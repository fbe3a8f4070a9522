#include "display/ShowData.h"

#include "editing/Entries.h"
#include "editing/Fields.h"
#include "form/ErrorPath.h"
#include "rules/Activation.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

// CurPhase is already the phase to show: without FormFilling, clearing a check box would store a 0
// in it.
void ResetOptions(RecordEdit& form) {
    form.FormFilling = true;
    form.chkBurst.SetValue(0);
    form.chkDirected.SetValue(0);
    form.chkCald.SetValue(0);
    form.cmbStyle.SetText(NoStyleText);
    form.cmbFlow.SetText("Flow Duration");
    form.cmbDown.SetText(NoSideText);
    form.FormFilling = false;
}

void ShowNoType(RecordEdit& form) {
    form.cmbType.SetText("Select Parameters");
    form.CurType = EruptionType::None;
}

void ShowTectonics(RecordEdit& form, const PhaseRecord& phase) {
    if (phase.tectonicKind == TectonicKind::Faulting) {
        form.cmbDown.SetText(SideEntry(phase.faultDownSide, NoSideText));
        if (form.cmbDown.Text() == NoSideText) {
            form.Command2.SetEnabled(false);
        }
    } else {
        form.txtErode.SetText(form.TextOf(phase.erosionCycles, Format::Whole));
    }
}

void ShowFlows(RecordEdit& form, const PhaseRecord& phase) {
    for (int j = 1; j <= CappedFlowCount(phase); ++j) {
        form.cmbFlow.AddItem(FlowEntry(j));
    }
    ShowFlow(form, 1);
}

// A flag of 1 raises Click, whose handler enables Save.
void ShowOptions(RecordEdit& form, const PhaseRecord& phase) {
    const auto show = [&phase](CheckBox& box, const PhaseField& flag) {
        if (Offers(phase, flag)) {
            box.SetValue(static_cast<int>(ValueOf(phase, flag)));
        }
    };
    show(form.chkDirected, FieldOf(&PhaseRecord::directedFlag));
    show(form.chkCald, FieldOf(&PhaseRecord::calderaFlag));
    show(form.chkBurst, FieldOf(&PhaseRecord::burstFlag));
    if (HasFlows(phase)) {
        ShowFlows(form, phase);
    }
    if (phase.eruptionType == EruptionType::Tectonic) {
        ShowTectonics(form, phase);
    }
}

void ShowType(RecordEdit& form, Integer pha) {
    const PhaseRecord& phase = form.EditPhases[pha];
    if (pha == 0 || phase.eruptionType == EruptionType::None) {
        ShowNoType(form);
    }
    if (pha == 0 && phase.eruptionType == EruptionType::Tectonic) {
        return;  // element 0 of an empty record is not an erosion
    }
    // A code that is not a type leaves cmbType and CurType as they were.
    if (const TypeEntry* entry = EntryOf(phase)) {
        form.cmbType.SetText(entry->name);
        form.CurType = entry->eruptionType;
        ShowOptions(form, phase);
    }
}

void FillBoxes(RecordEdit& form, Integer pha) {
    for (const FieldBox& row : FieldBoxes) {
        const Single value = ValueOf(form.EditPhases[pha], row.field);
        (form.*row.box).SetText(form.TextOf(value, row.shown));
    }
}

}  // namespace

void ShowData(RecordEdit& form, Integer pha) {
    WithErrorPath(form, "ShowData", [&form, pha] {
        ResetOptions(form);
        form.cmbFlow.Clear();
        form.txtLava.SetText("");
        ShowType(form, pha);
        FillBoxes(form, pha);
        DataActivate(form, form.CurType);
    });
}

void ShowFlow(RecordEdit& form, int flow) {
    form.cmbFlow.SetText(FlowEntry(flow));
    form.txtLava.SetText(form.TextOf(form.CurrentFlows()[flow], Format::OneDecimal));
}

void cmbPhase_Click(RecordEdit& form) {
    if (const int named = FindPhase(form.cmbPhase.Text(), form.EditPhaseCount)) {
        form.CurPhase = static_cast<Integer>(named);
    }
    ShowData(form, form.CurPhase);
}
