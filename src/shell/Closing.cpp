#include "shell/Closing.h"

#include "display/ApplyParams.h"
#include "form/RecordEdit.h"
#include "record/OpenSave.h"
#include "shell/FileFrame.h"

void Command1_Click(RecordEdit& form) { form.services.window->Unload(); }

void Command2_Click(RecordEdit& form) {
    if (ApplyParams(form)) {
        SaveRec(form);
    }
}

void Form_Unload(RecordEdit& form) {
    CloseHelp(form);
    form.pathHelper.reset();
    form.settingsStore.reset();
}
