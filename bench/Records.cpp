#include "Records.h"

#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "form/Wiring.h"
#include "record/RecordFile.h"
#include "shell/Startup.h"

namespace {

PhaseRecord Phase(int i) {
    const auto whole = [i](int from, int to) {
        return static_cast<Integer>(from + i % (to - from + 1));
    };
    const auto hundredths = [i](int from, int to) {
        return static_cast<Single>(from * 100 + i * 37 % ((to - from) * 100)) / 100;
    };
    PhaseRecord phase;
    phase.ventLocation = hundredths(2, 24);
    phase.eruptionType = EruptionType::Hawaiian;
    phase.strength = hundredths(0, 1);
    phase.wind = whole(-50, 50);
    phase.massFlux = whole(1, 50);
    phase.scarpTop = hundredths(2, 20);
    phase.scarpBase = hundredths(3, 21);
    phase.burstCount = MaxFlows;
    phase.faultMagnitude = whole(0, 20);
    phase.faultDip = whole(-10, 10);
    phase.erosionCycles = whole(1, 40);
    phase.flowLength = whole(1, 11);
    phase.craterSize = whole(1, 11);
    phase.position3D = whole(0, 40);
    phase.ventPosition = whole(1, 11);
    phase.growth = whole(0, 9);
    phase.speed = whole(1, 11);
    phase.midRadius = whole(0, 320);
    phase.depositAngle = hundredths(-1, 1);
    phase.leftAngle = hundredths(-4, 4);
    phase.rightAngle = hundredths(-3, 4);
    return phase;
}

}  // namespace

std::unique_ptr<EditorState> RecordOf(Integer phases, int shift) {
    auto record = std::make_unique<EditorState>();
    record->StratFile = "/usr/share/tephrex/Layers.str";
    record->RecordScale = 20;
    record->LoadedPhaseCount = phases;
    RandomSource random = NewRandomSource();
    for (int i = 1; i <= phases; ++i) {
        const PhaseRecord& phase = record->LoadedPhases[i] = Phase(i + shift);
        for (int j = 1; j <= MaxFlows; ++j) {
            record->LoadedFlows[i][j] = NewFlowDuration(true, phase.flowLength, j, random());
        }
    }
    return record;
}

RecordOnDisk::RecordOnDisk(Integer phases, int shift) {
    std::string name = std::filesystem::temp_directory_path() / "tephrexXXXXXX";
    const int file = mkstemp(name.data());
    if (file < 0) {
        throw std::runtime_error("Cannot make a temporary file");
    }
    close(file);
    path = name;
    if (!WriteRecordFile(path, *RecordOf(phases, shift))) {
        throw std::runtime_error("The record cannot be written to " + path);
    }
}

std::string RecordOnDisk::Bytes() const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool QuietPlatform::AskOpen(CommonDialog& dialog) {
    dialog.FileName = answer;
    return true;
}

void QuietPlatform::Load(RecordEdit& form, Window& window) {
    form.services.messages = this;
    form.services.dialogs = this;
    form.services.help = this;
    form.services.device = this;
    form.services.window = &window;
    Wire(form);
    Form_Load(form);
}

QuietForm::QuietForm() { platform.Load(form, platform); }

void QuietForm::Open(const RecordOnDisk& record) {
    platform.answer = record.Path();
    form.cmdOpen.Press();
}
