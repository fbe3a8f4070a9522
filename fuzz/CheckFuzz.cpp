// Any bytes as a record, for tephrexcheck and for the form: the form opens all but what
// tephrexcheck calls unreadable, and saves all of that but what it calls invalid.

#include <cstdint>
#include <memory>
#include <sstream>

#include "Require.h"
#include "TestForm.h"
#include "check/RecordCheck.h"
#include "check/Report.h"
#include "record/WorkingCopy.h"
#include "shell/Closing.h"

namespace {

class CheckedForm : public FormTest {
public:
    CheckedForm() { SetUp(); }

    /// Reads the bytes as Open does.
    bool Open(const std::string& bytes) {
        std::stringbuf source(bytes);
        return static_cast<bool>(ReadRecord(source, form));
    }

    /// Whether Save writes what was opened. Showing a phase rounds its numbers, so an erosion is
    /// inserted before the others and shown instead.
    bool Saves() {
        for (int i = form.LoadedPhaseCount++; i > 0; --i) {
            form.LoadedPhases[i + 1] = form.LoadedPhases[i];
            form.LoadedFlows[i + 1] = form.LoadedFlows[i];
        }
        form.LoadedPhases[1] = GoodPhase(EruptionType::Tectonic);
        form.LoadedPhases[1].tectonicKind = TectonicKind::Erosion;
        ReadData(form);
        platform.answers.assign(1, "/dev/null");
        form.Command2.SetEnabled(true);
        platform.messages.clear();
        form.Command2.Press();
        return !form.Command2.Enabled() && platform.messages.empty();
    }

private:
    void TestBody() override {}
};

Verdict Check(const std::string& bytes, RecordCheck& check) {
    static const ReportOptions text;
    Report report(text, "fuzzed");
    std::stringbuf source(bytes);
    check.Run(source, [&report](const Finding& finding) { report.Add(finding); });
    return report.Result();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto form = std::make_unique<CheckedForm>();
    static RecordCheck check;
    const std::string bytes(data, data + size);
    const Verdict verdict = Check(bytes, check);
    Require((verdict == Verdict::Unreadable) == !form->Open(bytes),
            "unreadable if and only if not opened");
    if (verdict != Verdict::Unreadable && check.PhaseCount() < MaxPhases) {
        Require((verdict == Verdict::Invalid) == !form->Saves(),
                "invalid if and only if not saved");
    }
    return 0;
}
