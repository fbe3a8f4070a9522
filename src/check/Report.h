// What is said of a record, as text or as JSON, while it is being checked.
#pragma once

#include <string>
#include <string_view>

#include "check/Finding.h"

/// What of the findings is said, and how.
struct ReportForm {
    bool json = false;
    bool quiet = false;   // nothing is said
    bool strict = false;  // a warning makes a record invalid
    bool coloured = false;
};

/// How many records came out as what.
struct Tally {
    int passes = 0;
    int invalid = 0;
    int unreadable = 0;

    void Count(Verdict verdict);

    /// The line after all records, with its line end.
    std::string Summary() const;

    /// What the program ends with.
    int Status() const;
};

/// The report on one record. `text` is what is still to be printed; whoever prints it takes it out.
class Report {
public:
    Report(const ReportForm& theForm, std::string_view recordName);

    void Add(const Finding& finding);
    void End(int phaseCount);
    Verdict Result() const { return verdict; }

    std::string text;

private:
    const ReportForm& form;
    std::string_view name;
    Verdict verdict = Verdict::Passes;
    bool first = true;  // no finding yet
};
