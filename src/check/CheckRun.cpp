#include "check/CheckRun.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "check/RecordCheck.h"
#include "check/Wording.h"

namespace {

// Hands out the records and prints the reports in order. A thread that is ahead leaves its report
// here; one that is far ahead, or has a long report, waits.
class Turns {
public:
    Turns(std::size_t records, Output& theOutput) : all(records), output(theOutput) {}

    /// The next record to check; none after the last one or a failed write.
    std::optional<std::size_t> Next() {
        const std::size_t record = next++;
        return record < all && !stopped ? std::optional(record) : std::nullopt;
    }

    /// Prints part of a report when it is the record's turn, and empties `text`.
    void Print(std::size_t record, std::string& text) {
        std::unique_lock lock(mutex);
        advanced.wait(lock, [&] { return record == printed; });
        output.Write(text);
        text.clear();
    }

    /// Takes the rest of a report, and prints all reports that are due.
    void Finish(std::size_t record, Report& report) {
        std::unique_lock lock(mutex);
        advanced.wait(lock, [&] { return record < printed + finished.size(); });
        Slot(record) = std::move(report.text);
        tally.Count(report.Result());
        const std::size_t before = printed;
        for (; Slot(printed); ++printed) {
            output.Write(*std::exchange(Slot(printed), std::nullopt));
        }
        if (printed != before) {
            advanced.notify_all();
        }
        stopped = output.Failed();
        output.ShowProgress(++done, all);
    }

    const Tally& Result() const { return tally; }

private:
    std::optional<std::string>& Slot(std::size_t record) {
        return finished.at(record % finished.size());
    }

    const std::size_t all;
    Output& output;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> stopped = false;
    std::mutex mutex;
    std::condition_variable advanced;
    std::array<std::optional<std::string>, 256> finished;  // reports, from `printed` on
    std::size_t printed = 0;
    std::size_t done = 0;
    Tally tally;
};

// Checks records until there are none left.
class Worker {
public:
    Worker(const std::vector<RecordName>& theRecords, const ReportOptions& theOptions,
           Turns& theTurns)
        : records(theRecords), options(theOptions), turns(theTurns) {}

    void Run() {
        while (const auto record = turns.Next()) {
            Check(*record);
        }
    }

private:
    void Check(std::size_t record) {
        Report report(options, records[record].name);
        const FindingSink sink = [&](const Finding& finding) {
            constexpr std::size_t longText = 1 << 16;
            report.Add(finding);
            if (report.text.size() > longText) {
                turns.Print(record, report.text);
            }
        };
        const bool opened = Read(records[record], sink);
        report.End(opened ? check.PhaseCount() : 0);
        turns.Finish(record, report);
    }

    bool Read(const RecordName& record, const FindingSink& sink) {
        ReadFailure failure{.reason = record.problem};
        try {
            if (record.problem.empty()) {
                check.Run(*OpenRecord(record.name), sink);
                return true;
            }
        } catch (const std::system_error& error) {
            failure.reason = error.code().message();
        } catch (const std::exception& error) {
            failure.reason = error.what();
        }
        sink(ErrorOf(failure, 0));
        return false;
    }

    const std::vector<RecordName>& records;
    const ReportOptions& options;
    Turns& turns;
    RecordCheck check;
};

}  // namespace

Tally CheckRecords(const std::vector<RecordName>& records, int jobs, const ReportOptions& options,
                   Output& output) {
    Turns turns(records.size(), output);
    const auto work = [&] { Worker(records, options, turns).Run(); };
    std::vector<std::jthread> others;
    const std::size_t threads = std::min(static_cast<std::size_t>(jobs), records.size());
    try {
        while (others.size() + 1 < threads) {
            others.emplace_back(work);
        }
    } catch (const std::system_error&) {
        // The system allows no more threads; the existing ones do all the work.
    }
    work();
    others.clear();
    return turns.Result();
}
