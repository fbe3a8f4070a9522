#include "rules/Options.h"

#include "editing/Entries.h"
#include "form/RecordEdit.h"
#include "rules/Activation.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

// Any choice enables Save, even one that changes nothing.
template <class Choice>
void Choose(RecordEdit& form, Choice choice) {
    if (form.FormFilling) {
        return;
    }
    choice(form.CurrentPhase());
    form.Command2.SetEnabled(true);
}

Integer Flag(const CheckBox& box) { return box.Value() == 1 ? 1 : 0; }

}  // namespace

void chkBurst_Click(RecordEdit& form) {
    Choose(form, [&form](PhaseRecord& phase) {
        phase.burstFlag = Flag(form.chkBurst);
        if (phase.burstFlag == 1) {
            form.labSlide4.SetCaption(FrequencyCaption);
        }
        EnableBurstFields(form, phase.burstFlag == 1);
    });
}

void chkDirected_Click(RecordEdit& form) {
    Choose(form, [&form](PhaseRecord& phase) { phase.directedFlag = Flag(form.chkDirected); });
}

void chkCald_Click(RecordEdit& form) {
    Choose(form, [&form](PhaseRecord& phase) {
        form.cmbStyle.SetText(NoStyleText);
        phase.calderaFlag = Flag(form.chkCald);
        if (phase.calderaFlag == 1 && Offers(phase, FieldOf(&PhaseRecord::calderaStyle))) {
            EnableCalderaFields(form);
        } else {
            form.cmbStyle.SetEnabled(false);
            form.labSlide4.SetEnabled(false);
            form.txtSlide4.SetEnabled(false);
        }
    });
}

void cmbStyle_Click(RecordEdit& form) {
    Choose(form, [&form](PhaseRecord& phase) {
        phase.calderaStyle =
            form.cmbStyle.Text() == VallesEntry ? CalderaStyle::Valles : CalderaStyle::Mazama;
    });
}

void cmbDown_Click(RecordEdit& form) {
    Choose(form, [&form](PhaseRecord& phase) {
        if (form.cmbDown.Text() == LeftEntry) {
            phase.faultDownSide = DownSide::Left;
        } else if (form.cmbDown.Text() == RightEntry) {
            phase.faultDownSide = DownSide::Right;
        }
    });
}

void cmbFlow_Click(RecordEdit& form) {
    Choose(form, [&form](const PhaseRecord& phase) {
        if (const int flow = FindFlow(form.cmbFlow.Text(), CappedFlowCount(phase))) {
            form.txtLava.SetText(form.TextOf(form.CurrentFlows()[flow], Format::OneDecimal));
        }
    });
}
