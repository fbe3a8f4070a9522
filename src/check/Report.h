// The report on a record, as text or as JSON, which grows while the record is checked. Wording and
// JsonReport word the findings.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"

/// The format of a report, and what counts as invalid.
struct ReportOptions {
    bool json = false;
    bool quiet = false;   // reports are empty
    bool strict = false;  // a warning makes a record invalid
    bool coloured = false;
};

/// The number of records with each verdict.
struct Tally {
    int passes = 0;
    int invalid = 0;
    int unreadable = 0;

    void Count(Verdict verdict);

    /// The last line of the output, with its line end.
    std::string Summary() const;

    /// The exit status: 2 if a record is unreadable, otherwise 1 if one is invalid, otherwise 0.
    int Status() const;
};

/// The report on one record. `text` is the part that has not been printed yet; whoever prints it
/// empties it.
class Report {
public:
    /// Keeps references to both.
    Report(const ReportOptions& theOptions, std::string_view recordName);

    void Add(const Finding& finding);
    /// Completes the report. `phaseCount` is how many phases the record says it has.
    void End(int phaseCount);
    Verdict Result() const { return verdict; }

    std::string text;

private:
    const ReportOptions& options;
    std::string_view name;
    Verdict verdict = Verdict::Passes;
    bool first = true;  // no finding yet
};
