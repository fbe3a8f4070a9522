#include "check/PhaseWarnings.h"

#include "check/Wording.h"
#include "record/RecordFile.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

using P = PhaseRecord;

// A field that holds a code or a flag, when its value means nothing, and the warning about it.
struct Code {
    const PhaseField& field;
    bool (*isUnknown)(const PhaseRecord& phase);
    std::string_view message;  // what follows the value
};

template <auto Flag>
bool IsNoFlag(const P& phase) {
    return phase.*Flag != 0 && phase.*Flag != 1;
}

bool IsNotChosen(const P& phase) { return phase.eruptionType == EruptionType::None; }
bool IsNoType(const P& phase) { return !IsNotChosen(phase) && !IsEruptionType(phase.eruptionType); }
bool IsNoStyle(const P& phase) {
    return phase.calderaStyle != 0 && StyleEntry(phase.calderaStyle, "").empty();
}
bool IsNoSide(const P& phase) {
    return phase.faultDownSide != 0 && SideEntry(phase.faultDownSide, "").empty();
}

// Only tectonic phases need a kind.
bool IsNoKind(const P& phase) {
    const bool mayBeZero = phase.eruptionType != EruptionType::Tectonic;
    return phase.tectonicKind != TectonicKind::Faulting &&
           phase.tectonicKind != TectonicKind::Erosion && !(phase.tectonicKind == 0 && mayBeZero);
}

constexpr std::string_view NoFlag = " is neither 0 nor 1";

constexpr std::array<Code, 8> Codes{{
    {FieldOf(&P::eruptionType), IsNotChosen, " means that no eruption type is chosen"},
    {FieldOf(&P::eruptionType), IsNoType, " is no eruption type"},
    {FieldOf(&P::calderaFlag), IsNoFlag<&P::calderaFlag>, NoFlag},
    {FieldOf(&P::directedFlag), IsNoFlag<&P::directedFlag>, NoFlag},
    {FieldOf(&P::calderaStyle), IsNoStyle, " is no caldera style"},
    {FieldOf(&P::burstFlag), IsNoFlag<&P::burstFlag>, NoFlag},
    {FieldOf(&P::tectonicKind), IsNoKind, " is neither Faulting nor Erosion"},
    {FieldOf(&P::faultDownSide), IsNoSide, " is no down side"},
}};

bool BoxKeeps(const FieldRange& range, Single value) {
    switch (range.rule) {
        case FieldRange::AnyNumber: return true;
        case FieldRange::Between: return value >= range.low && value <= range.high;
        case FieldRange::AboveZero: return value > 0;
    }
    return true;
}

std::string Outside(const FieldRange& range) {
    return range.rule == FieldRange::Between
               ? " is outside " + ItemText(range.low) + " to " + ItemText(range.high)
               : " is not above 0";
}

}  // namespace

void WarnOfNumbers(
    const PhaseRecord& phase,
    const std::function<void(const PhaseField& field, const std::string& message)>& warn) {
    for (const Code& code : Codes) {
        if (code.isUnknown(phase)) {
            warn(code.field, ItemText(ValueOf(phase, code.field)) + std::string(code.message));
        }
    }
    ForEachField(phase, [&](auto index, const auto& number) {
        constexpr const PhaseField& field = PhaseFields[index];
        const auto value = static_cast<Single>(number);
        if (!BoxKeeps(field.range, value) && Uses(phase, field)) {
            warn(field, ValueText(value) + Outside(field.range));
        }
    });
}
