#include "rules/Activation.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "form/ErrorPath.h"
#include "form/RecordEdit.h"
#include "rules/EruptionTypes.h"

namespace {

// o: stays disabled. X: becomes enabled. A letter: the rule of that letter decides.
enum Cell : char { o, X, A, B, C, D, E };

constexpr int Columns = 10;

// The controls of a row, a field with its label, are always enabled and disabled together.
struct FieldRow {
    LabelMember label;
    BoxMember box;
    std::array<Cell, Columns> cells;
};

struct OptionRow {
    Control& (*control)(RecordEdit& form);
    std::array<Cell, Columns> cells;
};

template <auto Member>
Control& Get(RecordEdit& form) {
    return form.*Member;
}

// clang-format off

// 0F is Faulting, 0E is Erosion.
//                                                    -1 0F 0E  1  2  3  4  5  6  7
constexpr std::array<FieldRow, 19> FieldRows{{
    {&RecordEdit::labLoc,    &RecordEdit::txtLoc,    {o, X, o, X, X, X, X, X, o, X}},
    {&RecordEdit::labStr,    &RecordEdit::txtStr,    {o, o, o, X, X, o, o, X, X, X}},
    {&RecordEdit::labWind,   &RecordEdit::txtWind,   {o, o, o, X, X, X, X, X, o, X}},
    {&RecordEdit::labPart,   &RecordEdit::txtPart,   {o, o, o, X, X, o, o, X, o, X}},
    {&RecordEdit::labBurst,  &RecordEdit::txtBurst,  {o, o, o, X, X, X, X, X, X, X}},
    {&RecordEdit::labCtop,   &RecordEdit::txtCtop,   {o, o, o, o, o, o, o, o, X, o}},
    {&RecordEdit::labCbase,  &RecordEdit::txtCbase,  {o, o, o, o, o, o, o, o, X, o}},
    {&RecordEdit::labMag,    &RecordEdit::txtMag,    {o, X, o, o, o, o, o, o, o, o}},
    {&RecordEdit::labDip,    &RecordEdit::txtDip,    {o, X, o, o, o, o, o, o, o, o}},
    {&RecordEdit::labErode,  &RecordEdit::txtErode,  {o, o, X, o, o, o, o, o, o, o}},
    {&RecordEdit::labSlide1, &RecordEdit::txtSlide1, {o, o, o, o, o, X, X, o, o, o}},
    {&RecordEdit::labSlide2, &RecordEdit::txtSlide2, {o, o, o, X, X, o, o, X, o, E}},
    {&RecordEdit::labSlide3, &RecordEdit::txtSlide3, {o, o, o, X, X, X, X, X, X, X}},
    {&RecordEdit::labSlide4, &RecordEdit::txtSlide4, {o, o, o, B, o, o, o, D, o, E}},
    {&RecordEdit::labSlide5, &RecordEdit::txtSlide5, {o, o, o, X, X, o, o, X, o, X}},
    {&RecordEdit::labMap1,   &RecordEdit::txtMap1,   {o, o, o, X, X, X, X, X, X, X}},
    {&RecordEdit::labMap2,   &RecordEdit::txtMap2,   {o, o, o, X, X, o, o, X, X, X}},
    {&RecordEdit::labMap3,   &RecordEdit::txtMap3,   {o, o, o, o, o, X, X, o, o, o}},
    {&RecordEdit::labMap4,   &RecordEdit::txtMap4,   {o, o, o, o, o, X, X, o, o, o}},
}};

//                                                    -1 0F 0E  1  2  3  4  5  6  7
constexpr std::array<OptionRow, 7> OptionRows{{
    {Get<&RecordEdit::chkBurst>,                     {o, o, o, o, o, o, o, o, o, X}},
    {Get<&RecordEdit::chkDirected>,                  {o, o, o, X, o, o, o, o, o, o}},
    {Get<&RecordEdit::chkCald>,                      {o, o, o, X, C, o, o, X, o, o}},
    {Get<&RecordEdit::cmbStyle>,                     {o, o, o, B, o, o, o, D, o, o}},
    {Get<&RecordEdit::cmbDown>,                      {o, A, o, o, o, o, o, o, o, o}},
    {Get<&RecordEdit::cmbFlow>,                      {o, o, o, o, o, X, X, o, o, o}},
    {Get<&RecordEdit::txtLava>,                      {o, o, o, o, o, X, X, o, o, o}},
}};

// clang-format on

std::size_t ColumnOf(Integer etype, Integer tectonicKind) {
    if (etype < EruptionType::Tectonic || etype > EruptionType::Fumarolic) {
        return 0;
    }
    if (etype == EruptionType::Tectonic) {
        return tectonicKind == TectonicKind::Faulting ? 1 : 2;
    }
    return static_cast<std::size_t>(etype) + 2;
}

// Faulting: a side can be thrown down along a vertical fault only.
void RuleA(RecordEdit& form) { form.cmbDown.SetEnabled(form.CurrentPhase().faultDip == 0); }

// Type 1: the strength on show tells a caldera from a diatreme.
void RuleB(RecordEdit& form) {
    const Single strength = form.NumberIn(form.txtStr);
    if (strength >= 0.6F) {
        form.chkCald.SetCaption(CalderaCaption);
        if (form.chkCald.Value() == 1) {
            OpenCaldera(form);
        }
    }
    if (strength <= 0.3F) {
        form.chkCald.SetCaption(DiatremeCaption);
    }
}

// Type 2: only a weak eruption can leave a diatreme.
void RuleC(RecordEdit& form) {
    if (form.CurrentPhase().strength < 0.3F) {
        form.chkCald.SetEnabled(true);
        form.chkCald.SetCaption(DiatremeCaption);
    }
}

// Type 5: a caldera at any strength.
void RuleD(RecordEdit& form) {
    if (form.chkCald.Value() == 1) {
        OpenCaldera(form);
    }
}

// Type 7: bursts have a frequency and a crater.
void RuleE(RecordEdit& form) {
    form.labSlide4.SetCaption(FrequencyCaption);
    EnableBurstFields(form, form.chkBurst.Value() == 1);
}

void ApplyColumn(RecordEdit& form, std::size_t column) {
    for (const FieldRow& row : FieldRows) {
        const bool on = row.cells[column] == X;
        (form.*row.label).SetEnabled(on);
        (form.*row.box).SetEnabled(on);
    }
    for (const OptionRow& row : OptionRows) {
        row.control(form).SetEnabled(row.cells[column] == X);
    }
}

bool HasRule(std::size_t column, Cell rule) {
    const auto names = [column, rule](const auto& row) { return row.cells[column] == rule; };
    return std::any_of(FieldRows.begin(), FieldRows.end(), names) ||
           std::any_of(OptionRows.begin(), OptionRows.end(), names);
}

struct LetterRule {
    Cell letter;
    void (*apply)(RecordEdit& form);
};

constexpr std::array<LetterRule, 5> Rules{
    {{A, RuleA}, {B, RuleB}, {C, RuleC}, {D, RuleD}, {E, RuleE}}};

}  // namespace

void EnableBurstFields(RecordEdit& form, bool enabled) {
    form.labSlide2.SetEnabled(enabled);
    form.txtSlide2.SetEnabled(enabled);
    form.labSlide4.SetEnabled(enabled);
    form.txtSlide4.SetEnabled(enabled);
}

void OpenCaldera(RecordEdit& form) {
    form.cmbStyle.SetEnabled(true);
    form.cmbStyle.SetText(StyleEntry(form.CurrentPhase().calderaStyle, form.cmbStyle.Text()));
    form.labSlide4.SetCaption(VentCaption);
    form.labSlide4.SetEnabled(true);
    form.txtSlide4.SetEnabled(true);
}

void DataActivate(RecordEdit& form, Integer etype) {
    WithErrorPath(form, "DataActivate", [&form, etype] {
        form.chkCald.SetCaption(CalderaCaption);
        const std::size_t column = ColumnOf(etype, form.CurrentPhase().tectonicKind);
        ApplyColumn(form, column);
        for (const LetterRule& rule : Rules) {
            if (HasRule(column, rule.letter)) {
                rule.apply(form);
            }
        }
    });
}
