#include "display/ShowData.h"

#include "editing/Entries.h"
#include "editing/Fields.h"
#include "form/ErrorPath.h"
#include "form/RecordEdit.h"
#include "rules/Activation.h"
#include "rules/EruptionTypes.h"

namespace {

// The phase to be shown is the current one already: unguarded, a check box that is cleared here
// would store the 0 in it.
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
    for (int j = 1; j <= FlowsWithinTable(phase); ++j) {
        form.cmbFlow.AddItem(FlowEntry(j));
    }
    ShowFlow(form, 1);
}

// A flag of 1 runs the box's own handler, which enables Save.
void ShowOptions(RecordEdit& form, const PhaseRecord& phase) {
    switch (phase.eruptionType) {
        case EruptionType::Tectonic: ShowTectonics(form, phase); break;
        case EruptionType::Vulcanian:
            form.chkDirected.SetValue(phase.directedFlag);
            form.chkCald.SetValue(phase.calderaFlag);
            break;
        case EruptionType::Strombolian:
        case EruptionType::Plinian: form.chkCald.SetValue(phase.calderaFlag); break;
        case EruptionType::Hawaiian:
        case EruptionType::Pelean: ShowFlows(form, phase); break;
        case EruptionType::Fumarolic: form.chkBurst.SetValue(phase.burstFlag); break;
        default: break;
    }
}

void ShowType(RecordEdit& form, Integer pha) {
    const PhaseRecord& phase = form.EditPhases[pha];
    if (pha == 0 || phase.eruptionType == EruptionType::None) {
        ShowNoType(form);
    }
    if (pha == 0 && phase.eruptionType == EruptionType::Tectonic) {
        return;  // an empty record's element 0 is no erosion
    }
    // A code of no type leaves the name and the type of the phase shown before.
    if (const TypeEntry* entry = EntryOf(phase)) {
        form.cmbType.SetText(entry->name);
        form.CurType = entry->eruptionType;
        ShowOptions(form, phase);
    }
}

Single Value(const PhaseRecord& phase, const FieldMember& member) {
    return std::visit([&phase](auto each) { return static_cast<Single>(phase.*each); }, member);
}

// The box of a field that comes later may change what an earlier one stored, so each field is read
// when its box is filled.
void FillBoxes(RecordEdit& form, Integer pha) {
    for (const Field& field : Fields) {
        const Single value = Value(form.EditPhases[pha], field.member);
        (form.*field.box).SetText(form.TextOf(value, field.onShow));
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
