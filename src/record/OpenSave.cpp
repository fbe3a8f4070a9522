#include "record/OpenSave.h"

#include "form/RecordEdit.h"
#include "record/RecordFile.h"
#include "record/WorkingCopy.h"

namespace {

// Asks until the user gives a name that may be written; false if the user cancels.
bool AskSaveName(RecordEdit& form) {
    for (;;) {
        form.CD1.DialogTitle = "Save Record File";
        form.CD1.Flags = CommonDialog::AskBeforeReplacing;
        form.CD1.CancelError = true;
        form.CD1.Filter = "Record File (*.rec)|*.rec|";
        form.CD1.DefaultExt = "rec";
        form.CD1.FileName = form.RecFile;
        if (!form.CD1.ShowSave(*form.services.dialogs)) {
            return false;
        }
        if (form.CD1.FileName != form.DataPath + "TephrexDemo.rec") {
            return true;
        }
        form.ShowMessage("Cannot replace TEPHREX Demonstration file", MessageIcon::Stop);
    }
}

}  // namespace

void cmdOpen_Click(RecordEdit& form) {
    form.CD1.DialogTitle = "Open Record File";
    form.CD1.Flags = CommonDialog::MustExist;
    form.CD1.CancelError = true;
    form.CD1.Filter = "Recorder Files (*.rec)|*.rec;*.REC|";
    if (!form.CD1.ShowOpen(*form.services.dialogs)) {
        return;
    }
    form.RecFile = form.CD1.FileName;
    if (ReadRecordFile(form.RecFile, form)) {
        ReadData(form);
    }
}

void SaveRec(RecordEdit& form) {
    if (!AskSaveName(form)) {
        return;
    }
    form.RecFile = form.CD1.FileName;
    form.labRecfile.SetCaption(form.ShownPath(form.RecFile));
    if (!WriteRecordFile(form.RecFile, form) || !form.services.device->Flush(form.RecFile)) {
        form.ShowMessage("Recorder file save error", MessageIcon::Exclamation);
        return;
    }
    form.Command2.SetEnabled(false);
}
