#include "shell/FileFrame.h"

#include <algorithm>

#include "form/RecordEdit.h"

namespace {

constexpr int EditorTopic = 94;

// A record without phases has nothing to save.
void EnableSaveIfPhases(RecordEdit& form) {
    if (form.EditPhaseCount > 0) {
        form.Command2.SetEnabled(true);
    }
}

void ChooseScale(RecordEdit& form, Integer scale) {
    form.RecordScale = scale;
    EnableSaveIfPhases(form);
}

bool IsNone(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text == "none";
}

void RunHelp(RecordEdit& form, int command) {
    form.CD1.HelpFile = form.services.programFolder + "\\Tephrex3.hlp";
    form.CD1.HelpCommand = command;
    form.services.help->ShowHelp(form.CD1);
}

}  // namespace

void cmdChange_Click(RecordEdit& form) {
    form.CD1.DialogTitle = "Open Stratigraphic File";
    form.CD1.Flags = CommonDialog::MustExist;
    form.CD1.CancelError = true;
    form.CD1.Filter =
        "Stratigraphic Files (*.str)|*.str;*.STR|Topographic Files (*.top)|*.top;*.TOP|";
    form.CD1.FilterIndex = 1;
    form.CD1.FileName = form.StratFile;
    if (!form.CD1.ShowOpen(*form.services.dialogs)) {
        return;
    }
    form.EditStratFile = form.CD1.FileName;
    form.txtTopFile.SetText(form.ShownPath(form.EditStratFile));
    form.EditStratFile = form.CD1.FileName;  // the box has just stored the shortened text
    EnableSaveIfPhases(form);
}

void txtTopFile_Change(RecordEdit& form) {
    if (form.txtTopFile.Text().empty() || IsNone(form.txtTopFile.Text())) {
        form.txtTopFile.SetText(NoFileText);
    }
    form.EditStratFile = form.txtTopFile.Text();
}

void txtTopFile_KeyPress(RecordEdit& form) { EnableSaveIfPhases(form); }

void txtTopFile_MouseMove(RecordEdit& form) {
    form.txtTopFile.SetToolTipText(form.txtTopFile.Text() == NoFileText
                                       ? "No stratigraphic file attached"
                                       : "Stratigraphic file, delete to remove");
}

void labRecfile_MouseMove(RecordEdit& form) {
    form.labRecfile.SetToolTipText(form.labRecfile.Caption() == NewRecordCaption
                                       ? "Edit unsaved (new) file"
                                       : "Currently opened recorder file");
}

void optLarge_Click(RecordEdit& form) { ChooseScale(form, ScaleCode::Large); }
void optNormal_Click(RecordEdit& form) { ChooseScale(form, ScaleCode::Normal); }
void optSmall_Click(RecordEdit& form) { ChooseScale(form, ScaleCode::Small); }

void cmdHelp_Click(RecordEdit& form) {
    form.CD1.HelpContext = EditorTopic;
    RunHelp(form, CommonDialog::ShowTopic);
}

void CloseHelp(RecordEdit& form) { RunHelp(form, CommonDialog::Quit); }
