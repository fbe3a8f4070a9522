#include "rules/FieldUse.h"

namespace {

using enum Use;
using P = PhaseRecord;

struct FieldUse {
    FieldMember member;
    UseRow uses;
};

// clang-format off

// 0F is Faulting, 0E is Erosion.
//                         -1 0F 0E  1  2  3  4  5  6  7
constexpr std::array<FieldUse, PhaseFields.size()> Grid{{
    {&P::eruptionType,     {X, X, X, X, X, X, X, X, X, X}},
    {&P::ventLocation,     {o, X, o, X, X, X, X, X, o, X}},
    {&P::strength,         {o, o, o, X, X, o, o, X, X, X}},
    {&P::wind,             {o, o, o, X, X, X, X, X, o, X}},
    {&P::massFlux,         {o, o, o, X, X, o, o, X, o, X}},
    {&P::burstCount,       {o, o, o, X, X, X, X, X, X, X}},
    {&P::burstFlag,        {o, o, o, o, o, o, o, o, o, X}},
    {&P::directedFlag,     {o, o, o, X, o, o, o, o, o, o}},
    {&P::calderaFlag,      {o, o, o, X, C, o, o, X, o, o}},
    {&P::calderaStyle,     {o, o, o, B, o, o, o, D, o, o}},
    {&P::tectonicKind,     {o, X, X, o, o, o, o, o, o, o}},
    {&P::faultDownSide,    {o, A, o, o, o, o, o, o, o, o}},
    {&P::scarpTop,         {o, o, o, o, o, o, o, o, X, o}},
    {&P::scarpBase,        {o, o, o, o, o, o, o, o, X, o}},
    {&P::faultMagnitude,   {o, X, o, o, o, o, o, o, o, o}},
    {&P::faultDip,         {o, X, o, o, o, o, o, o, o, o}},
    {&P::erosionCycles,    {o, o, X, o, o, o, o, o, o, o}},
    {&P::flowLength,       {o, o, o, o, o, X, X, o, o, o}},
    {&P::craterSize,       {o, o, o, X, X, o, o, X, o, E}},
    {&P::position3D,       {o, o, o, X, X, X, X, X, X, X}},
    {&P::ventPosition,     {o, o, o, B, o, o, o, D, o, E}},
    {&P::growth,           {o, o, o, X, X, o, o, X, o, X}},
    {&P::speed,            {X, X, X, X, X, X, X, X, X, X}},
    {&P::midRadius,        {o, o, o, X, X, X, X, X, X, X}},
    {&P::depositAngle,     {o, o, o, X, X, o, o, X, X, X}},
    {&P::leftAngle,        {o, o, o, o, o, X, X, o, o, o}},
    {&P::rightAngle,       {o, o, o, o, o, X, X, o, o, o}},
}};
constexpr UseRow Flows =   {o, o, o, o, o, X, X, o, o, o};

// clang-format on

consteval bool IsComplete(const UseRow& row) {
    return std::find(row.begin(), row.end(), Missing) == row.end();
}

// The rows in the order of PhaseFields.
constexpr auto Rows = [] {
    std::array<UseRow, PhaseFields.size()> rows{};
    for (const FieldUse& row : Grid) {
        for (const PhaseField& field : PhaseFields) {
            if (field.member == row.member) {
                rows[IndexOf(field)] = row.uses;
            }
        }
    }
    return rows;
}();

static_assert(std::all_of(Rows.begin(), Rows.end(), IsComplete) && IsComplete(Flows),
              "each field has a row, with a cell for each type");

constexpr bool FlowsAgree() {
    for (Integer type = EruptionType::None; type <= LastEruptionType; ++type) {
        PhaseRecord phase;
        phase.eruptionType = type;
        const auto column = static_cast<std::size_t>(type < 1 ? 0 : type + 2);
        if (HasFlows(phase) != (Flows[column] == X)) {
            return false;
        }
    }
    return true;
}
static_assert(FlowsAgree(), "a type has flows in the grid exactly when it has them in the file");

}  // namespace

std::size_t UseColumn(Integer eruptionType, Integer tectonicKind) {
    if (!IsEruptionType(eruptionType)) {
        return 0;
    }
    if (eruptionType == EruptionType::Tectonic) {
        return tectonicKind == TectonicKind::Faulting ? 1 : 2;
    }
    return static_cast<std::size_t>(eruptionType) + 2;
}

const UseRow& UseOf(const PhaseField& field) { return Rows[IndexOf(field)]; }

const UseRow& UseOfFlows() { return Flows; }

bool HasLetter(std::size_t column, Use letter) {
    return std::any_of(Rows.begin(), Rows.end(),
                       [column, letter](const UseRow& row) { return row[column] == letter; });
}

bool Offers(const PhaseRecord& phase, const PhaseField& field) {
    return UseOf(field)[UseColumn(phase.eruptionType, phase.tectonicKind)] != o;
}

bool Uses(const PhaseRecord& phase, const PhaseField& field) {
    switch (UseOf(field)[UseColumn(phase.eruptionType, phase.tectonicKind)]) {
        case Missing:
        case o: return false;
        case X: return true;
        case A: return phase.faultDip == 0;
        case B: return phase.strength >= WeakestCaldera && phase.calderaFlag == 1;
        case C: return phase.strength < StrongestDiatreme;
        case D: return phase.calderaFlag == 1;
        case E: return phase.burstFlag == 1;
    }
    return false;
}
