// The dialogs that ask for a file name. What is asked for, and under which title, stands in the
// properties of the common dialog.
#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>
#include <string_view>

#include "shell/Services.h"

class FileChooser : public FileDialogs {
public:
    /// The dialogs stand over this window.
    explicit FileChooser(QWidget& ownParent) : parent(ownParent) {}

    bool AskOpen(CommonDialog& dialog) override;
    bool AskSave(CommonDialog& dialog) override;

private:
    void Offer(QFileDialog& asking, const CommonDialog& dialog) const;
    bool Ask(QFileDialog& asking, CommonDialog& dialog);

    QWidget& parent;
    QString lastFolder;  // of the file that the user last took; empty before that
};

/// The toolkit's filters for "Records (*.rec)|*.rec;*.REC|": here "Records (*.rec *.REC)".
QStringList NameFilters(std::string_view filter);
