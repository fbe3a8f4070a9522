#include "editing/Fields.h"

#include <algorithm>

namespace {

using enum Format;
using E = RecordEdit;
using P = PhaseRecord;

}  // namespace

// clang-format off
constexpr std::array<FieldBox, 20> FieldBoxes{{
    // label         box            field                        shown        rewritten
    {&E::labLoc,    &E::txtLoc,    FieldOf(&P::ventLocation),   TwoDecimals, {}},
    {&E::labWind,   &E::txtWind,   FieldOf(&P::wind),           Whole,       {}},
    {&E::labPart,   &E::txtPart,   FieldOf(&P::massFlux),       Whole,       Plain},
    {&E::labBurst,  &E::txtBurst,  FieldOf(&P::burstCount),     Whole,       {}},
    {&E::labStr,    &E::txtStr,    FieldOf(&P::strength),       TwoDecimals, {}},
    {&E::labCtop,   &E::txtCtop,   FieldOf(&P::scarpTop),       TwoDecimals, {}},
    {&E::labCbase,  &E::txtCbase,  FieldOf(&P::scarpBase),      TwoDecimals, {}},
    {&E::labMag,    &E::txtMag,    FieldOf(&P::faultMagnitude), Whole,       Whole},
    {&E::labDip,    &E::txtDip,    FieldOf(&P::faultDip),       Whole,       Whole},
    {&E::labErode,  &E::txtErode,  FieldOf(&P::erosionCycles),  Whole,       {}},
    {&E::labSlide1, &E::txtSlide1, FieldOf(&P::flowLength),     Whole,       Whole},
    {&E::labSlide2, &E::txtSlide2, FieldOf(&P::craterSize),     Whole,       Whole},
    {&E::labSlide3, &E::txtSlide3, FieldOf(&P::position3D),     Whole,       Whole},
    {&E::labSlide4, &E::txtSlide4, FieldOf(&P::ventPosition),   Whole,       Whole},
    {&E::labSlide5, &E::txtSlide5, FieldOf(&P::growth),         Whole,       Whole},
    {&E::labSlide6, &E::txtSlide6, FieldOf(&P::speed),          Whole,       Whole},
    {&E::labMap1,   &E::txtMap1,   FieldOf(&P::midRadius),      Whole,       {}},
    {&E::labMap2,   &E::txtMap2,   FieldOf(&P::depositAngle),   TwoDecimals, {}},
    {&E::labMap3,   &E::txtMap3,   FieldOf(&P::leftAngle),      TwoDecimals, {}},
    {&E::labMap4,   &E::txtMap4,   FieldOf(&P::rightAngle),     TwoDecimals, {}},
}};
// clang-format on

// The other fields are flags and codes, which the option controls edit.
static_assert(std::all_of(PhaseFields.begin(), PhaseFields.end(),
                          [](const PhaseField& field) {
                              const bool number =
                                  field.range.rule != FieldRange::AnyNumber ||
                                  std::holds_alternative<Single PhaseRecord::*>(field.member);
                              return std::count_if(FieldBoxes.begin(), FieldBoxes.end(),
                                                   [&field](const FieldBox& row) {
                                                       return &row.field == &field;
                                                   }) == (number ? 1 : 0);
                          }),
              "each number of a phase has one box");

const FieldBox& BoxRow(BoxMember box) {
    return *std::find_if(FieldBoxes.begin(), FieldBoxes.end(),
                         [box](const FieldBox& row) { return row.box == box; });
}
