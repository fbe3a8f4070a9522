#include "editing/Fields.h"

#include <algorithm>

namespace {

using enum Format;
using E = RecordEdit;
using P = PhaseRecord;

constexpr Rule Store{Rule::Store};
constexpr Rule AboveZero{Rule::AboveZero};
constexpr Rule Range(Single low, Single high) { return {Rule::Range, low, high}; }

}  // namespace

// clang-format off
constexpr std::array<Field, 20> Fields{{
    // box         field               rule            on show      rewritten
    {&E::txtLoc,    &P::ventLocation,   Store,          TwoDecimals, {}},
    {&E::txtWind,   &P::wind,           Store,          Whole,       {}},
    {&E::txtPart,   &P::massFlux,       Range(1, 50),   Whole,       Plain},
    {&E::txtBurst,  &P::burstCount,     AboveZero,      Whole,       {}},
    {&E::txtStr,    &P::strength,       Store,          TwoDecimals, {}},
    {&E::txtCtop,   &P::scarpTop,       Store,          TwoDecimals, {}},
    {&E::txtCbase,  &P::scarpBase,      Store,          TwoDecimals, {}},
    {&E::txtMag,    &P::faultMagnitude, Range(0, 20),   Whole,       Whole},
    {&E::txtDip,    &P::faultDip,       Range(-10, 10), Whole,       Whole},
    {&E::txtErode,  &P::erosionCycles,  AboveZero,      Whole,       {}},
    {&E::txtSlide1, &P::flowLength,     Range(1, 11),   Whole,       Whole},
    {&E::txtSlide2, &P::craterSize,     Range(1, 11),   Whole,       Whole},
    {&E::txtSlide3, &P::position3D,     Range(0, 40),   Whole,       Whole},
    {&E::txtSlide4, &P::ventPosition,   Range(1, 11),   Whole,       Whole},
    {&E::txtSlide5, &P::growth,         Range(0, 9),    Whole,       Whole},
    {&E::txtSlide6, &P::speed,          Range(1, 11),   Whole,       Whole},
    {&E::txtMap1,   &P::midRadius,      Store,          Whole,       {}},
    {&E::txtMap2,   &P::depositAngle,   Store,          TwoDecimals, {}},
    {&E::txtMap3,   &P::leftAngle,      Store,          TwoDecimals, {}},
    {&E::txtMap4,   &P::rightAngle,     Store,          TwoDecimals, {}},
}};
// clang-format on

const Field& FieldOf(BoxMember box) {
    return *std::find_if(Fields.begin(), Fields.end(),
                         [box](const Field& field) { return field.box == box; });
}
