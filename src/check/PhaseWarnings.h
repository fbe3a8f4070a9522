// Warnings about numbers of a phase that mean nothing or that the form would change. The limits
// that Save checks are in Limits.
#pragma once

#include <functional>
#include <string>

#include "record/PhaseFields.h"

/// Calls `warn` for codes without a meaning and flags other than 0 and 1, then for numbers outside
/// the range of their box in fields that the phase uses.
void WarnOfNumbers(
    const PhaseRecord& phase,
    const std::function<void(const PhaseField& field, const std::string& message)>& warn);
