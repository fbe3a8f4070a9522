#include "rules/TypeChoice.h"

#include "display/ShowData.h"
#include "editing/Fields.h"
#include "form/RecordEdit.h"
#include "rules/EruptionTypes.h"
#include "rules/FlowDurations.h"

namespace {

void StoreType(RecordEdit& form) {
    if (const TypeEntry* entry = FindType(form.cmbType.Text())) {
        PhaseRecord& phase = form.CurrentPhase();
        phase.eruptionType = entry->eruptionType;
        phase.tectonicKind = entry->tectonicKind.value_or(phase.tectonicKind);
        form.CurType = entry->eruptionType;
    }
}

// Setting a box stores its field; the boxes of mass flux and bursts turn 0 into 1.
void ResetEruption(RecordEdit& form) {
    using E = RecordEdit;
    for (const BoxMember box : {&E::txtLoc, &E::txtStr, &E::txtWind, &E::txtPart, &E::txtBurst,
                                &E::txtCbase, &E::txtCtop}) {
        (form.*box).SetText(form.TextOf(0, BoxRow(box).shown));
    }
}

// Restores the loaded durations if the phase has its loaded type again; otherwise draws new ones.
void PrepareFlows(RecordEdit& form) {
    const PhaseRecord& phase = form.CurrentPhase();
    if (form.LoadedPhases[form.CurPhase].eruptionType == form.CurType) {
        CopyFlows(form.LoadedFlows[form.CurPhase], form.CurrentFlows(), CappedFlowCount(phase));
        return;
    }
    const bool hawaiian = form.CurType == EruptionType::Hawaiian;
    for (int i = 1; i <= CappedFlowCount(phase); ++i) {
        form.CurrentFlows()[i] = NewFlowDuration(hawaiian, phase.flowLength, i, form.random());
    }
}

}  // namespace

void cmbType_Click(RecordEdit& form) {
    form.Command2.SetEnabled(true);
    StoreType(form);
    const PhaseRecord& phase = form.CurrentPhase();
    if (phase.eruptionType == EruptionType::Tectonic) {
        ResetEruption(form);
    }
    if (form.CurType == EruptionType::Tectonic && phase.tectonicKind == TectonicKind::Faulting &&
        form.NumberIn(form.txtMag) == 0) {
        form.txtMag.SetText("1");
    }
    if (form.CurType == EruptionType::Hawaiian || form.CurType == EruptionType::Pelean) {
        PrepareFlows(form);
    }
    ShowData(form, form.CurPhase);
}
