#include "window/FileChooser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "form/Controls.h"
#include "window/FileNameDialog.h"
#include "window/ScreenText.h"

namespace {

QString PathOf(const std::string& bytes) {
    return QFile::decodeName(QByteArray::fromStdString(bytes));
}

// Absolute paths only: others depend on the folder that the program was started in.
bool IsFolder(const QString& path) { return path.startsWith('/') && QFileInfo(path).isDir(); }

}  // namespace

bool FileChooser::AskOpen(CommonDialog& dialog) {
    FileNameDialog nameDialog(parent, dialog, QFileDialog::AcceptOpen);
    return Ask(nameDialog, dialog);
}

bool FileChooser::AskSave(CommonDialog& dialog) {
    FileNameDialog nameDialog(parent, dialog, QFileDialog::AcceptSave);
    return Ask(nameDialog, dialog);
}

bool FileChooser::Ask(FileNameDialog& nameDialog, CommonDialog& dialog) {
    const QString offered = PathOf(dialog.FileName);
    const qsizetype nameStart = offered.lastIndexOf('/') + 1;
    const QString folder = offered.left(nameStart);
    const bool toWrite = nameDialog.acceptMode() == QFileDialog::AcceptSave;
    nameDialog.Offer(IsFolder(folder) ? folder : StartFolder(PathOf(dialog.InitDir), toWrite),
                     offered.mid(nameStart));
    if (nameDialog.exec() != QDialog::Accepted) {
        return false;
    }
    lastFolder = QFileInfo(nameDialog.Chosen()).path();
    dialog.FileName = QFile::encodeName(nameDialog.Chosen()).toStdString();
    return true;
}

QString FileChooser::StartFolder(const QString& initial, bool toWrite) const {
    QStringList folders{lastFolder, initial,
                        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                        QDir::homePath(), QDir::rootPath()};
    folders.removeIf([](const QString& folder) { return !IsFolder(folder); });
    const auto writable = std::find_if(folders.begin(), folders.end(), [](const QString& folder) {
        return QFileInfo(folder).isWritable();
    });
    return toWrite && writable != folders.end() ? *writable : folders.value(0);
}
