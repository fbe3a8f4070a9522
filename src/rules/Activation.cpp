#include "rules/Activation.h"

#include <cstddef>

#include "editing/Fields.h"
#include "form/ErrorPath.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

// A control that FieldBoxes does not list, with the grid row of what it edits.
struct OptionControl {
    Control& (*control)(RecordEdit& form);
    const UseRow& (*use)();
};

template <auto Member>
Control& Get(RecordEdit& form) {
    return form.*Member;
}

template <auto Member>
const UseRow& UseOfMember() {
    return UseOf(FieldOf(Member));
}

using E = RecordEdit;
using P = PhaseRecord;

// clang-format off
constexpr OptionControl OptionControls[] = {
    {Get<&E::chkBurst>,    UseOfMember<&P::burstFlag>},
    {Get<&E::chkDirected>, UseOfMember<&P::directedFlag>},
    {Get<&E::chkCald>,     UseOfMember<&P::calderaFlag>},
    {Get<&E::cmbStyle>,    UseOfMember<&P::calderaStyle>},
    {Get<&E::cmbDown>,     UseOfMember<&P::faultDownSide>},
    {Get<&E::cmbFlow>,     UseOfFlows},
    {Get<&E::txtLava>,     UseOfFlows},
};
// clang-format on

// Faulting: a side can be thrown down only along a vertical fault.
void RuleA(RecordEdit& form) { form.cmbDown.SetEnabled(form.CurrentPhase().faultDip == 0); }

// Type 1: the strength shown decides between a caldera and a diatreme.
void RuleB(RecordEdit& form) {
    const Single strength = form.NumberIn(form.txtStr);
    if (strength >= WeakestCaldera) {
        form.chkCald.SetCaption(CalderaCaption);
        if (form.chkCald.Value() == 1) {
            EnableCalderaFields(form);
        }
    }
    if (strength <= StrongestDiatreme) {
        form.chkCald.SetCaption(DiatremeCaption);
    }
}

// Type 2: only a weak eruption can leave a diatreme.
void RuleC(RecordEdit& form) {
    if (form.CurrentPhase().strength < StrongestDiatreme) {
        form.chkCald.SetEnabled(true);
        form.chkCald.SetCaption(DiatremeCaption);
    }
}

// Type 5: a caldera at any strength.
void RuleD(RecordEdit& form) {
    if (form.chkCald.Value() == 1) {
        EnableCalderaFields(form);
    }
}

// Type 7: bursts have a frequency and a crater.
void RuleE(RecordEdit& form) {
    form.labSlide4.SetCaption(FrequencyCaption);
    EnableBurstFields(form, form.chkBurst.Value() == 1);
}

void ApplyColumn(RecordEdit& form, std::size_t column) {
    for (const FieldBox& row : FieldBoxes) {
        const bool on = UseOf(row.field)[column] == Use::X;
        (form.*row.label).SetEnabled(on);
        (form.*row.box).SetEnabled(on);
    }
    for (const OptionControl& option : OptionControls) {
        option.control(form).SetEnabled(option.use()[column] == Use::X);
    }
}

struct LetterRule {
    Use letter;
    void (*apply)(RecordEdit& form);
};

constexpr LetterRule Rules[] = {
    {Use::A, RuleA}, {Use::B, RuleB}, {Use::C, RuleC}, {Use::D, RuleD}, {Use::E, RuleE}};

}  // namespace

void EnableBurstFields(RecordEdit& form, bool enabled) {
    form.labSlide2.SetEnabled(enabled);
    form.txtSlide2.SetEnabled(enabled);
    form.labSlide4.SetEnabled(enabled);
    form.txtSlide4.SetEnabled(enabled);
}

void EnableCalderaFields(RecordEdit& form) {
    form.cmbStyle.SetEnabled(true);
    form.cmbStyle.SetText(StyleEntry(form.CurrentPhase().calderaStyle, form.cmbStyle.Text()));
    form.labSlide4.SetCaption(VentCaption);
    form.labSlide4.SetEnabled(true);
    form.txtSlide4.SetEnabled(true);
}

void DataActivate(RecordEdit& form, Integer etype) {
    WithErrorPath(form, "DataActivate", [&form, etype] {
        form.chkCald.SetCaption(CalderaCaption);
        const std::size_t column = UseColumn(etype, form.CurrentPhase().tectonicKind);
        ApplyColumn(form, column);
        for (const LetterRule& rule : Rules) {
            if (HasLetter(column, rule.letter)) {
                rule.apply(form);
            }
        }
    });
}
