// Any bytes as a record, to tephrexcheck and to the form: what the one calls unreadable the other
// does not open, and what it calls invalid the other does not save.

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

    /// Reads the bytes as the form's button does.
    bool Open(const std::string& bytes) {
        std::stringbuf source(bytes);
        return static_cast<bool>(ReadRecord(source, form));
    }

    /// Whether Save writes what was opened. The form shows the first phase, which rounds its
    /// numbers: an erosion in front of all others is shown instead.
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
    static const ReportForm text;
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
            "unreadable is what is not opened");
    if (verdict != Verdict::Unreadable && check.PhaseCount() < MaxPhases) {
        Require((verdict == Verdict::Invalid) == !form->Saves(), "invalid is what is not saved");
    }
    return 0;
}
