#include "record/WorkingCopy.h"

#include <cstddef>
#include <string_view>
#include <vector>

#include "display/ShowData.h"
#include "editing/Entries.h"
#include "form/ErrorPath.h"
#include "form/RecordEdit.h"

namespace {

void ShowPaths(RecordEdit& form) {
    form.labRecfile.SetCaption(form.RecFile.empty() ? std::string(NewRecordCaption)
                                                    : ShownPath(form, form.RecFile));
    form.txtTopFile.SetText(form.StratFile.empty() ? std::string(NoFileText)
                                                   : ShownPath(form, form.StratFile));
}

// A code of no option leaves the selection where it is.
void SelectScale(RecordEdit& form) {
    if (form.RecordScale == Scale::NotSet) {
        form.RecordScale = Scale::Normal;
    }
    switch (form.RecordScale) {
        case Scale::Large: form.optLarge.SetValue(true); break;
        case Scale::Normal: form.optNormal.SetValue(true); break;
        case Scale::Small: form.optSmall.SetValue(true); break;
        default: break;
    }
}

void ListPhases(RecordEdit& form) {
    form.cmbPhase.Clear();
    for (int i = 1; i <= form.LoadedPhaseCount; ++i) {
        form.cmbPhase.AddItem(PhaseEntry(i));
    }
    const bool any = form.LoadedPhaseCount >= 1;
    form.cmbPhase.SetText(any ? PhaseEntry(1) : std::string(NoPhaseText));
    EnablePhaseList(form, any);
}

void CopyPhases(RecordEdit& form) {
    form.EditStratFile = form.StratFile;  // the whole reference, not the text on show
    form.EditPhaseCount = form.LoadedPhaseCount;
    for (int i = 1; i <= form.EditPhaseCount; ++i) {
        const PhaseRecord& phase = form.LoadedPhases[i];
        form.EditPhases[i] = phase;
        if (HasFlows(phase)) {
            CopyFlows(form.LoadedFlows[i], form.EditFlows[i], phase.burstCount);
        }
    }
}

// The length in bytes of the UTF-8 sequence at the start of a text; 1 where there is none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const std::size_t length = first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 1 || first > 0xF4 || text.size() < length) {
        return 1;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return 1;
        }
    }
    // Overlong forms, surrogates and what lies beyond Unicode are no sequences either.
    const bool valid = !(first == 0xE0 && byte(1) < 0xA0) && !(first == 0xED && byte(1) > 0x9F) &&
                       !(first == 0xF0 && byte(1) < 0x90) && !(first == 0xF4 && byte(1) > 0x8F);
    return valid ? length : 1;
}

}  // namespace

void ReadData(RecordEdit& form) {
    WithErrorPath(form, "ReadData", [&form] {
        form.EditFlows.Clear();
        form.EditPhases.Clear();
        form.EditPhaseCount = 0;  // until the copy below no scale option can enable Save
        ShowPaths(form);
        ShowPhaseCount(form, form.LoadedPhaseCount);
        SelectScale(form);
        ListPhases(form);
        CopyPhases(form);
        form.CurPhase = form.EditPhaseCount != 0 ? 1 : 0;
        ShowData(form, form.CurPhase);
        form.Command2.SetEnabled(false);  // the display may have enabled it
    });
}

void cmdReset_Click(RecordEdit& form) {
    if (form.labRecfile.Caption() == NewRecordCaption) {
        form.LoadedPhaseCount = 0;
        form.StratFile.clear();
        form.RecordScale = Scale::NotSet;
    }
    ReadData(form);
    form.Command2.SetEnabled(false);
}

void ShowPhaseCount(RecordEdit& form, int count) {
    form.labPhases.SetCaption(std::to_string(count));
}

void EnablePhaseList(RecordEdit& form, bool enabled) {
    form.cmbPhase.SetEnabled(enabled);
    form.cmbType.SetEnabled(enabled);
    form.cmdDelete.SetEnabled(enabled);
    form.cmdReset.SetEnabled(enabled);
}

std::string ShownPath(const RecordEdit& form, const std::string& path) {
    return ShortenPath(form.DisplayPath(path));
}

std::string ShortenPath(const std::string& text) {
    constexpr std::size_t longest = 40;
    constexpr std::size_t kept = 37;
    std::vector<std::size_t> starts;
    for (std::size_t at = 0; at < text.size();) {
        starts.push_back(at);
        at += SequenceLength(std::string_view(text).substr(at));
    }
    if (starts.size() <= longest) {
        return text;
    }
    return "..." + text.substr(starts[starts.size() - kept]);
}
