// Numbers of a phase that the form reads otherwise than they look, or would not take.
#pragma once

#include <functional>
#include <string>

#include "record/PhaseFields.h"

/// Reports codes that stand for nothing, flags other than 0 and 1, and numbers outside the range of
/// their box in fields that the phase uses; in the order of the table of fields.
void WarnOfNumbers(
    const PhaseRecord& phase,
    const std::function<void(const PhaseField& field, const std::string& message)>& warn);
