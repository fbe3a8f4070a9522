#include "window/FileChooser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "form/Controls.h"
#include "window/ScreenText.h"

namespace {

QString PathOf(const std::string& bytes) {
    return QFile::decodeName(QByteArray::fromStdString(bytes));
}

// Adds the extension to a name without one; if a file is to be opened that has none, leaves it.
class NamingDialog : public QFileDialog {
public:
    NamingDialog(QWidget& parent, const CommonDialog& dialog)
        : QFileDialog(&parent), extension(ToScreen(dialog.DefaultExt)) {
        // Some desktops' own dialogs look for a file to be replaced before they add the extension,
        // and so replace one without asking.
        setOption(DontUseNativeDialog);
        setWindowTitle(ToScreen(dialog.DialogTitle));
        const QStringList filters = NameFilters(dialog.Filter);
        setNameFilters(filters);
        selectNameFilter(filters.value(dialog.FilterIndex - 1));
    }

protected:
    void accept() override {
        setDefaultSuffix({});
        if (acceptMode() == AcceptSave || !QFileInfo::exists(selectedFiles().value(0))) {
            setDefaultSuffix(extension);
        }
        QFileDialog::accept();
    }

private:
    QString extension;
};

}  // namespace

bool FileChooser::AskOpen(CommonDialog& dialog) {
    NamingDialog asking(parent, dialog);
    asking.setAcceptMode(QFileDialog::AcceptOpen);
    const bool mustExist = (dialog.Flags & CommonDialog::MustExist) != 0;
    asking.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    return Ask(asking, dialog);
}

bool FileChooser::AskSave(CommonDialog& dialog) {
    NamingDialog asking(parent, dialog);
    asking.setAcceptMode(QFileDialog::AcceptSave);
    asking.setFileMode(QFileDialog::AnyFile);
    const bool askFirst = (dialog.Flags & CommonDialog::AskBeforeReplacing) != 0;
    asking.setOption(QFileDialog::DontConfirmOverwrite, !askFirst);
    return Ask(asking, dialog);
}

void FileChooser::Offer(QFileDialog& asking, const CommonDialog& dialog) const {
    const QString folder = lastFolder.isEmpty() ? PathOf(dialog.InitDir) : lastFolder;
    // Left to itself, the toolkit begins where any program of this user ended another day.
    asking.setDirectory(!folder.isEmpty() && QFileInfo(folder).isDir() ? folder
                                                                       : QDir::currentPath());
    const QFileInfo offered(PathOf(dialog.FileName));
    if (offered.isAbsolute() && offered.dir().exists()) {
        asking.setDirectory(offered.dir());
    }
    if (!dialog.FileName.empty()) {
        asking.selectFile(offered.fileName());
    }
}

bool FileChooser::Ask(QFileDialog& asking, CommonDialog& dialog) {
    Offer(asking, dialog);
    if (asking.exec() != QDialog::Accepted) {
        return false;
    }
    const QString chosen = asking.selectedFiles().value(0);
    lastFolder = QFileInfo(chosen).absolutePath();
    dialog.FileName = QFile::encodeName(chosen).toStdString();
    return true;
}

QStringList NameFilters(std::string_view filter) {
    const QStringList parts = ToScreen(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters += name + " (" + QString(parts[i + 1]).replace(';', ' ') + ')';
    }
    return filters;
}
