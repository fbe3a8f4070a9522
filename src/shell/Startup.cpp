#include "shell/Startup.h"

#include <exception>

#include "form/Catalogue.h"
#include "form/RecordEdit.h"
#include "record/WorkingCopy.h"
#include "rules/EruptionTypes.h"

namespace {

// Runs a step and ignores its failure.
template <class Step>
void Try(Step step) {
    try {
        step();
    } catch (const std::exception&) {
        // The editor is usable without its settings and at any place on the screen.
    }
}

void ShowCentred(RecordEdit& form) {
    Window& window = *form.services.window;
    Try([&] {
        const Extent screen = window.ScreenSize();
        const Extent size = window.FormSize();
        window.Move((screen.width - size.width) / 2, (screen.height - size.height) / 2);
    });
    Try([&] { window.Show(); });
    Try([&] { window.RunPendingEvents(); });
}

void FillFixedLists(RecordEdit& form) {
    for (const TypeEntry& entry : TypeEntries) {
        form.cmbType.AddItem(std::string(entry.name));
    }
    form.cmbStyle.AddItem(std::string(VallesEntry));
    form.cmbStyle.AddItem(std::string(MazamaEntry));
    form.cmbDown.AddItem(std::string(LeftEntry));
    form.cmbDown.AddItem(std::string(RightEntry));
}

void SetToolTips(RecordEdit& form) {
    for (const NamedText& tip : ToolTips()) {
        form.Find(tip.control)->SetToolTipText(tip.text);
    }
}

}  // namespace

void Form_Load(RecordEdit& form) {
    Try([&] { form.pathHelper = form.services.createPathHelper(); });
    Try([&] { form.settingsStore = form.services.createSettingsStore(); });
    Try([&] {
        if (form.settingsStore) {
            form.DataPath = form.settingsStore->Read("Tephrex3\\Settings", "DataPath", "");
        }
    });
    form.CD1.InitDir = form.DataPath;
    form.cmdOpen.SetVisible(true);
    form.Command1.SetCaption(CloseCaption);
    form.Command2.SetCaption(SaveCaption);
    form.labRecfile.SetCaption(NewRecordCaption);
    ShowCentred(form);
    FillFixedLists(form);
    SetToolTips(form);
    ReadData(form);
}
