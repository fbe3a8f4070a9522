// Asks for file names with the title, filter and flags of the common dialog. FileNameDialog
// interprets a typed name.
#pragma once

#include <QString>

#include "shell/Services.h"

class FileNameDialog;
class QWidget;

class FileChooser : public FileDialogs {
public:
    /// The dialogs are modal to this window, which has to outlive the chooser.
    explicit FileChooser(QWidget& ownParent) : parent(ownParent) {}

    bool AskOpen(CommonDialog& dialog) override;
    bool AskSave(CommonDialog& dialog) override;

private:
    bool Ask(FileNameDialog& nameDialog, CommonDialog& dialog);
    QString StartFolder(const QString& initial, bool toWrite) const;

    QWidget& parent;
    QString lastFolder;  // of the file last chosen; empty before the first
};
