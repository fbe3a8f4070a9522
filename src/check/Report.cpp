#include "check/Report.h"

#include <algorithm>
#include <utility>

#include "check/JsonReport.h"
#include "check/Wording.h"

void Tally::Count(Verdict verdict) {
    ++(verdict == Verdict::Passes ? passes : verdict == Verdict::Invalid ? invalid : unreadable);
}

std::string Tally::Summary() const {
    const int all = passes + invalid + unreadable;
    std::string text = std::to_string(all) + (all == 1 ? " record" : " records");
    const char* separator = ": ";
    const auto add = [&](int count, const char* what) {
        if (count != 0) {
            text += std::exchange(separator, ", ") + std::to_string(count) + what;
        }
    };
    add(passes, passes == 1 ? " passes" : " pass");
    add(invalid, " invalid");
    add(unreadable, " unreadable");
    return text + '\n';
}

int Tally::Status() const { return unreadable != 0 ? 2 : invalid != 0 ? 1 : 0; }

Report::Report(const ReportOptions& theOptions, std::string_view recordName)
    : options(theOptions), name(recordName) {
    if (options.json && !options.quiet) {
        text = JsonStart(name);
    }
}

void Report::Add(const Finding& finding) {
    const Verdict meant = finding.level == Level::Error     ? Verdict::Unreadable
                          : finding.level == Level::Invalid ? Verdict::Invalid
                          : options.strict                  ? Verdict::Invalid
                                                            : Verdict::Passes;
    verdict = std::max(verdict, meant);
    if (options.quiet) {
        return;
    }
    if (options.json) {
        text += std::exchange(first, false) ? "" : ",";
        text += JsonOf(finding);
    } else {
        text += TextLine(name, finding, options.coloured);
    }
}

void Report::End(int phaseCount) {
    if (options.json && !options.quiet) {
        text += JsonEnd(phaseCount, verdict);
    }
}
