// One phase of a record: its 27 numbers and the codes that some of them hold. Their text
// format is in RecordFile, their limits are in Limits.
#pragma once

#include <algorithm>
#include <cstdint>

#include "record/Table.h"

using Single = float;
using Integer = std::int16_t;

constexpr Integer MaxPhases = 500;
constexpr Integer MaxFlows = 100;

/// Codes of `PhaseRecord::eruptionType`. A file may contain any other code too.
namespace EruptionType {
constexpr Integer None = -1;     // a phase just added, no type chosen yet
constexpr Integer Tectonic = 0;  // tectonicKind says which
constexpr Integer Vulcanian = 1;
constexpr Integer Strombolian = 2;
constexpr Integer Hawaiian = 3;
constexpr Integer Pelean = 4;
constexpr Integer Plinian = 5;
constexpr Integer Collapse = 6;
constexpr Integer Fumarolic = 7;
}  // namespace EruptionType

/// The codes of types run from Tectonic to here without a gap.
constexpr Integer LastEruptionType = EruptionType::Fumarolic;
constexpr bool IsEruptionType(Integer code) {
    return code >= EruptionType::Tectonic && code <= LastEruptionType;
}

/// Codes of `PhaseRecord::tectonicKind`; anything but Faulting is shown as Erosion.
namespace TectonicKind {
constexpr Integer Faulting = 1;
constexpr Integer Erosion = 2;
}  // namespace TectonicKind

/// Codes of `PhaseRecord::calderaStyle`; 0 while none is chosen.
namespace CalderaStyle {
constexpr Integer Mazama = 1;
constexpr Integer Valles = 2;
}  // namespace CalderaStyle

/// Codes of `PhaseRecord::faultDownSide`; 0 while none is chosen.
namespace DownSide {
constexpr Integer Left = 1;
constexpr Integer Right = 2;
}  // namespace DownSide

/// One event of an eruption history. Every phase has every field; its type decides which it uses.
/// Flags are 0 or 1, but a file may contain other numbers. The numbers have no physical unit here;
/// the simulator defines it.
struct PhaseRecord {
    Single ventLocation = 0;
    Integer eruptionType = 0;
    Single strength = 0;
    Single wind = 0;  // the sign is the direction
    Single massFlux = 0;
    Integer calderaFlag = 0;  // a caldera or, depending on type and strength, a diatreme
    Integer directedFlag = 0;
    Integer calderaStyle = 0;
    Single scarpTop = 0;
    Single scarpBase = 0;
    Integer burstCount = 0;  // of Hawaiian and Peléean phases: the number of flows
    Integer tectonicKind = 0;
    Integer faultMagnitude = 0;
    Integer faultDip = 0;  // the sign is the direction, 0 is vertical
    Integer faultDownSide = 0;
    Integer erosionCycles = 0;
    Integer burstFlag = 0;
    Integer flowLength = 0;
    Integer craterSize = 0;
    Integer position3D = 0;
    Integer ventPosition = 0;
    Integer growth = 0;
    Integer speed = 0;
    Single midRadius = 0;  // this and the three angles: 0 leaves the choice to the simulator
    Single depositAngle = 0;
    Single leftAngle = 0;
    Single rightAngle = 0;

    friend bool operator==(const PhaseRecord&, const PhaseRecord&) = default;
};

using FlowRow = Table<Single, MaxFlows>;      // flow durations of one phase; column 0 is unused
using FlowTable = Table<FlowRow, MaxPhases>;  // one row per phase; row 0 is not part of the record
using PhaseTable = Table<PhaseRecord, MaxPhases>;

/// Whether the phase has flows; the flow row of any other phase is ignored.
constexpr bool HasFlows(const PhaseRecord& phase) {
    return phase.eruptionType == EruptionType::Hawaiian ||
           phase.eruptionType == EruptionType::Pelean;
}

/// The number of flows for routines without an error path: `burstCount`, but at most 100, since a
/// user can enter a larger count.
constexpr int CappedFlowCount(const PhaseRecord& phase) {
    return std::min<int>(phase.burstCount, MaxFlows);
}

/// Copies durations 1 to `count` from one row to another. A count above 100 throws
/// std::out_of_range after duration 100 is copied; nothing is written outside the row.
inline void CopyFlows(const FlowRow& from, FlowRow& to, int count) {
    for (int j = 1; j <= count; ++j) {
        to[j] = from[j];
    }
}
