#include "display/ApplyParams.h"

#include "display/Limits.h"
#include "display/ShowData.h"
#include "editing/Entries.h"
#include "form/ErrorPath.h"
#include "form/RecordEdit.h"

namespace {

// Only locations are corrected, and those are Singles.
void Correct(PhaseRecord& phase, const Fault& fault) {
    if (fault.correction) {
        phase.*std::get<Single PhaseRecord::*>(fault.field->member) = *fault.correction;
    }
}

// The message appears before the form shows the phase at fault.
void Report(RecordEdit& form, int phase, const Fault& fault) {
    form.ShowMessage(PhaseEntry(phase) + std::string(fault.message), MessageIcon::Information);
    form.cmbPhase.SetText(PhaseEntry(phase));
    cmbPhase_Click(form);
    if (fault.flow != 0) {
        ShowFlow(form, fault.flow);
    }
}

bool AllPass(RecordEdit& form) {
    const int count = form.EditPhaseCount;
    for (int n = 1; n <= count; ++n) {
        PhaseRecord& phase = form.EditPhases[n];
        if (const auto fault = FirstFault(phase, form.EditFlows[n], form.RecordScale)) {
            Correct(phase, *fault);
            Report(form, n, *fault);
            return false;
        }
    }
    return true;
}

// Once NoFileText is applied it stays, even if the user has attached a file since.
void Commit(RecordEdit& form) {
    if (form.StratFile != NoFileText) {
        form.StratFile = form.EditStratFile;
    }
    form.LoadedPhaseCount = form.EditPhaseCount;
    for (int n = 1; n <= form.EditPhaseCount; ++n) {
        const PhaseRecord& phase = form.EditPhases[n];
        form.LoadedPhases[n] = phase;
        if (HasFlows(phase)) {
            CopyFlows(form.EditFlows[n], form.LoadedFlows[n], phase.burstCount);
        }
    }
}

}  // namespace

bool ApplyParams(RecordEdit& form) {
    bool passed = false;
    const bool completed = WithErrorPath(form, "ApplyParams", [&form, &passed] {
        passed = AllPass(form);
        if (passed) {
            Commit(form);
        }
    });
    return completed && passed;
}
