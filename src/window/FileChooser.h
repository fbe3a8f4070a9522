// The dialogs that ask for a file name. What is asked for, and under which title, is in the
// properties of the common dialog.
#pragma once

#include <QString>

#include "shell/Services.h"

class NamingDialog;
class QWidget;

class FileChooser : public FileDialogs {
public:
    /// The dialogs lie over this window.
    explicit FileChooser(QWidget& ownParent) : parent(ownParent) {}

    bool AskOpen(CommonDialog& dialog) override;
    bool AskSave(CommonDialog& dialog) override;

private:
    bool Ask(NamingDialog& asking, CommonDialog& dialog);
    QString StartFolder(const QString& initial, bool toWrite) const;

    QWidget& parent;
    QString lastFolder;  // of the file that the user last took; empty before that
};
