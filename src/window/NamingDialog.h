// The toolkit's file dialog, with a say of its own in which file a name means.
#pragma once

#include <QFileDialog>
#include <QString>

class CommonDialog;
class QAbstractButton;
class QLineEdit;

/// The name box decides, and what is in it is one name to the letter: the toolkit would take quotes
/// for a list of names, "~name" for somebody's home, and cut names at a line end.
class NamingDialog : public QFileDialog {
public:
    NamingDialog(QWidget& parent, const CommonDialog& dialog, AcceptMode mode);

    /// Comes up in this folder, which exists, with this name; the name can be empty.
    void Offer(const QString& folder, const QString& name);

    /// The full path of what was chosen.
    QString Chosen() const { return chosen; }

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowNamesWhole();
    void FollowSelection();
    void FitColumns();

    QString PathOfName(const QString& name) const;
    QString WithExtension(const QString& path) const;
    QString SelectedFolder() const;
    bool Enters(const QString& path, const QString& nameThere);
    bool MayTake(const QString& path);

    QLineEdit& box;
    QString extension;
    int flags;
    bool selecting = false;  // in the list, since the name was last edited
    QString offered;
    QString offeredIn;  // this folder, as the dialog calls it
    QString offeredPath;
    QString chosen;
};
