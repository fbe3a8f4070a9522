#include "check/PhaseWarnings.h"

#include "check/Wording.h"
#include "record/RecordFile.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

using P = PhaseRecord;

// A field that holds a code or a flag, when its value has no meaning, and the warning about it.
struct Code {
    const PhaseField& field;
    bool (*isUnknown)(const PhaseRecord& phase);
    std::string_view message;  // the text after the value
};

template <auto Flag>
bool IsUnknownFlag(const P& phase) {
    return phase.*Flag != 0 && phase.*Flag != 1;
}

bool IsNotChosen(const P& phase) { return phase.eruptionType == EruptionType::None; }
bool IsUnknownType(const P& phase) {
    return !IsNotChosen(phase) && !IsEruptionType(phase.eruptionType);
}
bool IsUnknownStyle(const P& phase) {
    return phase.calderaStyle != 0 && StyleEntry(phase.calderaStyle, "").empty();
}
bool IsUnknownSide(const P& phase) {
    return phase.faultDownSide != 0 && SideEntry(phase.faultDownSide, "").empty();
}

// Only tectonic phases need a kind.
bool IsUnknownKind(const P& phase) {
    const bool mayBeZero = phase.eruptionType != EruptionType::Tectonic;
    return phase.tectonicKind != TectonicKind::Faulting &&
           phase.tectonicKind != TectonicKind::Erosion && !(phase.tectonicKind == 0 && mayBeZero);
}

constexpr std::string_view NotAFlag = " is neither 0 nor 1";

constexpr std::array<Code, 8> Codes{{
    {FieldOf(&P::eruptionType), IsNotChosen, " means that no eruption type is chosen"},
    {FieldOf(&P::eruptionType), IsUnknownType, " is no eruption type"},
    {FieldOf(&P::calderaFlag), IsUnknownFlag<&P::calderaFlag>, NotAFlag},
    {FieldOf(&P::directedFlag), IsUnknownFlag<&P::directedFlag>, NotAFlag},
    {FieldOf(&P::calderaStyle), IsUnknownStyle, " is no caldera style"},
    {FieldOf(&P::burstFlag), IsUnknownFlag<&P::burstFlag>, NotAFlag},
    {FieldOf(&P::tectonicKind), IsUnknownKind, " is neither Faulting nor Erosion"},
    {FieldOf(&P::faultDownSide), IsUnknownSide, " is no down side"},
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
