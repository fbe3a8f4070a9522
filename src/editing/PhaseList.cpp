#include "editing/PhaseList.h"

#include "display/ShowData.h"
#include "editing/Entries.h"
#include "form/ErrorPath.h"
#include "form/RecordEdit.h"
#include "record/WorkingCopy.h"

namespace {

Integer NamedPhase(const RecordEdit& form) {
    const int named = FindPhase(form.cmbPhase.Text(), form.EditPhaseCount);
    return named != 0 ? static_cast<Integer>(named) : form.CurPhase;
}

// Sets all fields but the mapping fields, which keep what is in this element of the table.
void SetStartingValues(PhaseRecord& phase) {
    PhaseRecord fresh;
    fresh.eruptionType = EruptionType::None;
    fresh.flowLength = 6;
    fresh.craterSize = 6;
    fresh.position3D = 20;
    fresh.ventPosition = 6;
    fresh.growth = 6;
    fresh.midRadius = phase.midRadius;
    fresh.depositAngle = phase.depositAngle;
    fresh.leftAngle = phase.leftAngle;
    fresh.rightAngle = phase.rightAngle;
    phase = fresh;
}

// The list grows and shrinks only at its end, since entry k is always "Phase k".
void RemoveFromList(RecordEdit& form) {
    --form.EditPhaseCount;
    form.cmbPhase.RemoveItem(form.cmbPhase.Entries().size() - 1);
    ShowPhaseCount(form, form.EditPhaseCount);
    if (form.EditPhaseCount == 0) {
        form.EditFlows.Clear();
        form.EditPhases.Clear();
        form.CurPhase = 0;
        form.cmbPhase.SetText(NoPhaseText);
        EnablePhaseList(form, false);
    }
}

// Copies only the flows in use; a count above 100 is a failure here.
void CloseGap(RecordEdit& form) {
    if (form.CurPhase > form.EditPhaseCount) {
        form.CurPhase = form.EditPhaseCount;
        form.cmbPhase.SetText(PhaseEntry(form.CurPhase));
        return;
    }
    for (int i = form.CurPhase; i <= form.EditPhaseCount; ++i) {
        const PhaseRecord& moved = form.EditPhases[i + 1];
        form.EditPhases[i] = moved;
        if (HasFlows(moved)) {
            CopyFlows(form.EditFlows[i + 1], form.EditFlows[i], moved.burstCount);
        }
    }
}

// From the end, so that each element is read before it is overwritten.
void OpenGap(RecordEdit& form) {
    for (int i = form.EditPhaseCount; i > form.CurPhase; --i) {
        const PhaseRecord& moved = form.EditPhases[i - 1];
        form.EditPhases[i] = moved;
        if (HasFlows(moved)) {
            CopyFlows(form.EditFlows[i - 1], form.EditFlows[i], CappedFlowCount(moved));
        }
    }
}

}  // namespace

void cmdAdd_Click(RecordEdit& form) {
    if (form.EditPhaseCount >= MaxPhases || NamedPhase(form) >= MaxPhases) {
        form.ShowMessage("A record holds at most " + std::to_string(MaxPhases) + " phases.",
                         MessageIcon::Information);
        return;
    }
    form.CurPhase = NamedPhase(form);
    ++form.EditPhaseCount;
    ++form.CurPhase;
    form.cmbPhase.SetText(PhaseEntry(form.CurPhase));
    form.cmbPhase.AddItem(PhaseEntry(form.EditPhaseCount));
    ShowPhaseCount(form, form.EditPhaseCount);
    EnablePhaseList(form, true);
    form.Command2.SetEnabled(false);
    OpenGap(form);
    SetStartingValues(form.CurrentPhase());
    ShowData(form, form.CurPhase);
}

void cmdDelete_Click(RecordEdit& form) {
    WithErrorPath(form, "cmdDelete", [&form] {
        form.CurPhase = NamedPhase(form);
        RemoveFromList(form);
        CloseGap(form);
        ShowData(form, form.CurPhase);
        form.Command2.SetEnabled(form.EditPhaseCount != 0);
    });
}
