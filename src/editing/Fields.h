// The parameter boxes of a phase as one table, in the order in which a display fills them: which
// field a box edits, by which rule, and how its number is written. The box of a flow's duration is
// not here: it edits the flow that the list of flows names.
#pragma once

#include <array>
#include <variant>

#include "form/RecordEdit.h"

using FieldMember = std::variant<Single PhaseRecord::*, Integer PhaseRecord::*>;

struct Rule {
    enum Kind {
        Store,      // any number is stored, the text stays as typed
        Range,      // the number is held in low..high and the text rewritten
        AboveZero,  // a number at or below 0 becomes 1, other text stays as typed
    } kind;
    Single low = 0;
    Single high = 0;
};

struct Field {
    BoxMember box;
    FieldMember member;
    Rule rule;
    Format onShow;
    Format rewritten;  // counts for ranges only
};

/// All 20 fields that have a box of their own.
extern const std::array<Field, 20> Fields;

/// The row of a box; the box must be in the table.
const Field& FieldOf(BoxMember box);
