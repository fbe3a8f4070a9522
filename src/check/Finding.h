// A problem found in a record, and the verdict on the record. Wording and JsonReport word the
// findings.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "display/Limits.h"
#include "record/RecordItems.h"

enum class Level {
    Error,    // the record cannot be read
    Invalid,  // Save would refuse it
    Warning   // it is read differently from how it looks
};

struct Finding {
    Level level = Level::Warning;
    std::int64_t line = 0;       // 0 where there is none
    ItemPlace place = {};        // the item at fault
    std::string_view type = {};  // the name of the eruption type of an invalid phase
    std::string field = {};      // the name of the item, or of all items expected on its line
    std::string message = {};    // for the user
    std::string value = {};      // of the field, as in a record; text is quoted
    Bounds passing = {};         // the values that would pass
    int phaseCount = 0;          // for an error in a phase: how many phases the record says it has
    bool showsLimit = false;     // text adds the limit, which the message does not name
};

/// Receives the findings of a record in the order in which they are listed.
using FindingSink = std::function<void(const Finding& finding)>;

/// The verdict on a record, the worst last.
enum class Verdict { Passes, Invalid, Unreadable };
