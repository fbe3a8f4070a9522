// One phase of a record: its 27 numbers and the codes that some of them hold. How they are
// stored, judged and shown is told elsewhere.
#pragma once

#include <algorithm>
#include <cstdint>

#include "record/Table.h"

using Single = float;
using Integer = std::int16_t;

constexpr Integer MaxPhases = 500;
constexpr Integer MaxFlows = 100;

/// Codes of `PhaseRecord::eruptionType`. A file can bring any other code too.
namespace EruptionType {
constexpr Integer None = -1;     // a phase just added, no type chosen yet
constexpr Integer Tectonic = 0;  // tectonicKind tells which
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

/// One event of an eruption history. Every phase has every field; its type decides which count.
/// Flags are 0 and 1. The numbers have no physical unit here: the simulator gives them theirs.
struct PhaseRecord {
    Single ventLocation = 0;
    Integer eruptionType = 0;
    Single strength = 0;
    Single wind = 0;  // the sign is the direction
    Single massFlux = 0;
    Integer calderaFlag = 0;  // a caldera or, by type and strength, a diatreme
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
using FlowTable = Table<FlowRow, MaxPhases>;  // one row a phase; row 0 belongs to no record
using PhaseTable = Table<PhaseRecord, MaxPhases>;

/// Only these phases have flows; the flow row of any other phase does not count.
constexpr bool HasFlows(const PhaseRecord& phase) {
    return phase.eruptionType == EruptionType::Hawaiian ||
           phase.eruptionType == EruptionType::Pelean;
}

/// The flows that a routine without an error path looks at: `burstCount`, but never past the
/// table's end, however large a count a file or a user brings.
constexpr int FlowsWithinTable(const PhaseRecord& phase) {
    return std::min<int>(phase.burstCount, MaxFlows);
}

/// Copies durations 1 to `count` from one row to another. A count above the table's end throws
/// std::out_of_range when it gets there; nothing is written outside the row.
inline void CopyFlows(const FlowRow& from, FlowRow& to, int count) {
    for (int j = 1; j <= count; ++j) {
        to[j] = from[j];
    }
}
