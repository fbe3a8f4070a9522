// The toolkit's file dialog, but with our own rules for which file a typed name means.
#pragma once

#include <QFileDialog>
#include <QString>

class CommonDialog;
class QLineEdit;

/// The text in the name box is one name, taken literally except for "~" and "~/" at its start, the
/// home folder. The toolkit would read quotes as a list of names and "~name" as a home folder, and
/// cut names off at a line end.
class FileNameDialog : public QFileDialog {
public:
    /// Takes title, filter, flags and default extension from `dialog`. `mode` is for opening or
    /// saving.
    FileNameDialog(QWidget& parent, const CommonDialog& dialog, AcceptMode mode);

    /// Starts in this folder, which has to exist, with this name, which can be empty.
    void Offer(const QString& folder, const QString& name);

    /// The full path of the chosen file; empty until the dialog is accepted.
    QString Chosen() const { return chosen; }

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowNamesWithStandIns();
    void FollowSelection();
    void FitColumns();

    QString PathOfName(const QString& name) const;
    QString WithExtension(const QString& path) const;
    QString SelectedPath() const;
    bool EnterFolder(const QString& path, const QString& nameThere);
    bool ConfirmChoice(const QString& path);

    QLineEdit& box;
    QString extension;
    int flags;
    bool selecting = false;  // the user last selected in the list, rather than edited the name
    QString offered;
    QString offeredFolder;  // the folder offered, as directory() spells it
    QString offeredPath;
    QString chosen;
};
