#include "check/Report.h"

#include <algorithm>
#include <utility>

#include "check/JsonForm.h"
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

Report::Report(const ReportForm& theForm, std::string_view recordName)
    : form(theForm), name(recordName) {
    if (form.json && !form.quiet) {
        text = JsonStart(name);
    }
}

void Report::Add(const Finding& finding) {
    const Verdict meant = finding.level == Level::Error     ? Verdict::Unreadable
                          : finding.level == Level::Invalid ? Verdict::Invalid
                          : form.strict                     ? Verdict::Invalid
                                                            : Verdict::Passes;
    verdict = std::max(verdict, meant);
    if (form.quiet) {
        return;
    }
    if (form.json) {
        text += std::exchange(first, false) ? "" : ",";
        text += JsonOf(finding);
    } else {
        text += TextLine(name, finding, form.coloured);
    }
}

void Report::End(int phaseCount) {
    if (form.json && !form.quiet) {
        text += JsonEnd(phaseCount, verdict);
    }
}
