#include "record/WorkingCopy.h"

#include "display/ShowData.h"
#include "editing/Entries.h"
#include "form/ErrorPath.h"
#include "form/RecordEdit.h"

namespace {

void ShowPaths(RecordEdit& form) {
    form.labRecfile.SetCaption(form.RecFile.empty() ? std::string(NewRecordCaption)
                                                    : form.ShownPath(form.RecFile));
    form.txtTopFile.SetText(form.StratFile.empty() ? std::string(NoFileText)
                                                   : form.ShownPath(form.StratFile));
}

// A code without an option leaves the selection as it is.
void SelectScale(RecordEdit& form) {
    form.RecordScale = ScaleOf(form.RecordScale);
    switch (form.RecordScale) {
        case ScaleCode::Large: form.optLarge.SetValue(true); break;
        case ScaleCode::Normal: form.optNormal.SetValue(true); break;
        case ScaleCode::Small: form.optSmall.SetValue(true); break;
        default: break;
    }
}

void ListPhases(RecordEdit& form) {
    form.cmbPhase.Clear();
    for (int i = 1; i <= form.LoadedPhaseCount; ++i) {
        form.cmbPhase.AddItem(PhaseEntry(i));
    }
    const bool any = form.LoadedPhaseCount >= 1;
    form.cmbPhase.SetText(any ? PhaseEntry(1) : std::string(NoPhaseText));
    EnablePhaseList(form, any);
}

void CopyPhases(RecordEdit& form) {
    form.EditStratFile = form.StratFile;  // the whole reference, not the shortened text shown
    form.EditPhaseCount = form.LoadedPhaseCount;
    for (int i = 1; i <= form.EditPhaseCount; ++i) {
        const PhaseRecord& phase = form.LoadedPhases[i];
        form.EditPhases[i] = phase;
        if (HasFlows(phase)) {
            CopyFlows(form.LoadedFlows[i], form.EditFlows[i], phase.burstCount);
        }
    }
}

}  // namespace

void ReadData(RecordEdit& form) {
    WithErrorPath(form, "ReadData", [&form] {
        form.EditFlows.Clear();
        form.EditPhases.Clear();
        form.EditPhaseCount = 0;  // so no scale option enables Save before the copy below
        ShowPaths(form);
        ShowPhaseCount(form, form.LoadedPhaseCount);
        SelectScale(form);
        ListPhases(form);
        CopyPhases(form);
        form.CurPhase = form.EditPhaseCount != 0 ? 1 : 0;
        ShowData(form, form.CurPhase);
        form.Command2.SetEnabled(false);  // ShowData may have enabled it
    });
}

void cmdReset_Click(RecordEdit& form) {
    if (form.labRecfile.Caption() == NewRecordCaption) {
        form.LoadedPhaseCount = 0;
        form.StratFile.clear();
        form.RecordScale = ScaleCode::NotSet;
    }
    ReadData(form);
    form.Command2.SetEnabled(false);
}

void ShowPhaseCount(RecordEdit& form, int count) {
    form.labPhases.SetCaption(std::to_string(count));
}

void EnablePhaseList(RecordEdit& form, bool enabled) {
    form.cmbPhase.SetEnabled(enabled);
    form.cmbType.SetEnabled(enabled);
    form.cmdDelete.SetEnabled(enabled);
    form.cmdReset.SetEnabled(enabled);
}
