// Why Save would refuse a phase.
#pragma once

#include <QString>

#include "record/PhaseRecord.h"

/// The message that Save would show, and how many faults the phase has; empty and 0 if it passes.
struct Refusal {
    QString message;
    int faults = 0;
};

/// The scale must not be 0, and the phase may have at most 100 flows.
Refusal RefusalOf(const PhaseRecord& phase, const FlowRow& flows, Integer scale);
