// The head of a page: the file name and, on the first page, a summary of the record.
#pragma once

#include "draw/Columns.h"

/// Number of phases, scale, and whether there is a reference, as one text.
QString SummaryOf(const EditorState& record);

/// The reference of a record; empty if it has none.
QString ReferenceOf(const EditorState& record);

struct PageNumber {
    int number;
    int pages;
};

struct Head {
    Group group;
    double bottom = 0;
};

/// The head of a page. `name` is that of the file; names too wide for the page are cut.
Head HeadOf(const EditorState& record, const QString& name, PageNumber page, const Columns& columns,
            Lettering& lettering);
