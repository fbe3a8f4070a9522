// What can be wrong with a record, and what a record comes out as.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "display/Limits.h"
#include "record/RecordItems.h"

enum class Level {
    Error,    // the record cannot be read
    Invalid,  // it could not be saved as it is
    Warning   // it is read otherwise than it looks
};

struct Finding {
    Level level = Level::Warning;
    std::int64_t line = 0;  // 0 where there is none
    ItemPlace place = {};   // the item at fault
    std::string_view type =
        {};                  // the name of the phase's eruption type, where the rule is the type's
    std::string field = {};  // the name of what is at fault; empty for a line as a whole
    std::string message = {};  // in words for the user
    std::string value = {};    // of the field, as a record has it; in quotes where it is a text
    Bounds passing = {};       // the values that would pass
    int phaseCount = 0;        // of an error in a phase: how many the record says it has
    bool showsLimit = false;   // whether the message leaves the last of them unsaid
};

/// Takes the findings of a record in the order in which they are to be listed.
using FindingSink = std::function<void(const Finding& finding)>;

/// What a record comes out as, the worst last.
enum class Verdict { Passes, Invalid, Unreadable };
