// The head of a page: the file name and, on the first page, a summary of the record.
#pragma once

#include "draw/Columns.h"

/// The number of phases and the scale as one text, which ends with "no stratigraphic file" or with
/// the words that introduce the reference.
QString SummaryOf(const EditorState& record);

/// The reference of a record; empty if it has none.
QString ReferenceOf(const EditorState& record);

struct PageNumber {
    int number;  // from 1
    int pages;
};

struct Head {
    Group group;
    double bottom = 0;  // with the gap below
};

/// The head of a page. `name` is the file's; it and the reference are cut if they are too wide.
Head HeadOf(const EditorState& record, const QString& name, PageNumber page, const Columns& columns,
            Lettering& lettering);
