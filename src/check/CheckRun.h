// Checks all records with several threads, and prints the reports in the order of the records. The
// check of a single record is in RecordCheck.
#pragma once

#include <vector>

#include "check/Output.h"
#include "check/RecordList.h"
#include "check/Report.h"

/// Checks the records with up to `jobs` threads (at least 1) and prints a report on each. A record
/// that cannot be opened is reported as an error. Ends early if the output fails.
Tally CheckRecords(const std::vector<RecordName>& records, int jobs, const ReportOptions& options,
                   Output& output);
