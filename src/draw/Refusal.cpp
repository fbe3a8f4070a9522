#include "draw/Refusal.h"

#include <stdexcept>

#include "display/Limits.h"

Refusal RefusalOf(const PhaseRecord& phase, const FlowRow& flows, Integer scale) {
    std::string first;
    try {
        const auto fault = FirstFault(phase, flows, scale);
        if (!fault) {
            return {};
        }
        first = fault->message;
    } catch (const std::overflow_error& error) {
        first = error.what();
    }
    return {QString::fromStdString(first).trimmed(),
            static_cast<int>(AllFaults(phase, flows, scale).size())};
}
