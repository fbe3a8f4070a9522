// The run over all records, by as many threads as there are jobs, with one report after another in
// the order of the records.
#pragma once

#include <vector>

#include "check/Output.h"
#include "check/RecordList.h"
#include "check/Report.h"

/// Ends early if the output fails.
Tally CheckRecords(const std::vector<RecordName>& records, int jobs, const ReportForm& form,
                   Output& output);
