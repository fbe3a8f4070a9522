#include "form/Wiring.h"

#include "display/ShowData.h"
#include "editing/FieldHandlers.h"
#include "editing/PhaseList.h"
#include "form/RecordEdit.h"
#include "record/OpenSave.h"
#include "record/WorkingCopy.h"
#include "rules/Options.h"
#include "rules/TypeChoice.h"
#include "shell/Closing.h"
#include "shell/FileFrame.h"

namespace {

void WireFields(RecordEdit& form) {
    for (const FieldBox& row : FieldBoxes) {
        TextBox& box = form.*row.box;
        box.Change = [&form, &row] { Field_Change(form, row); };
        box.KeyPress = [&form] { Field_KeyPress(form); };
        box.GotFocus = [&form] { SelectActiveText(form); };
    }
}

}  // namespace

void Wire(RecordEdit& form) {
    const auto to = [&form](void (*handler)(RecordEdit&)) {
        return [&form, handler] { handler(form); };
    };

    form.Unload = to(Form_Unload);
    form.Command1.Click = to(Command1_Click);
    form.Command2.Click = to(Command2_Click);
    form.cmdHelp.Click = to(cmdHelp_Click);

    form.cmdOpen.Click = to(cmdOpen_Click);
    form.cmdChange.Click = to(cmdChange_Click);
    form.txtTopFile.Change = to(txtTopFile_Change);
    form.txtTopFile.KeyPress = to(txtTopFile_KeyPress);
    form.txtTopFile.GotFocus = to(SelectActiveText);
    form.txtTopFile.MouseMove = to(txtTopFile_MouseMove);
    form.labRecfile.MouseMove = to(labRecfile_MouseMove);
    form.optLarge.Click = to(optLarge_Click);
    form.optNormal.Click = to(optNormal_Click);
    form.optSmall.Click = to(optSmall_Click);

    form.cmbPhase.Click = to(cmbPhase_Click);
    form.cmdAdd.Click = to(cmdAdd_Click);
    form.cmdDelete.Click = to(cmdDelete_Click);
    form.cmdReset.Click = to(cmdReset_Click);
    form.cmbType.Click = to(cmbType_Click);

    form.chkBurst.Click = to(chkBurst_Click);
    form.chkDirected.Click = to(chkDirected_Click);
    form.chkCald.Click = to(chkCald_Click);
    form.cmbStyle.Click = to(cmbStyle_Click);
    form.cmbDown.Click = to(cmbDown_Click);
    form.cmbFlow.Click = to(cmbFlow_Click);

    WireFields(form);
    form.txtStr.Change = to(txtStr_Change);  // these do more than their field's rule
    form.txtDip.Change = to(txtDip_Change);
    form.txtBurst.Change = to(txtBurst_Change);
    form.txtLava.Change = to(txtLava_Change);
    form.txtLava.KeyPress = to(Field_KeyPress);
    form.txtLava.GotFocus = to(SelectActiveText);
}
