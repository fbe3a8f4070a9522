#include "window/FileChooser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "form/Controls.h"
#include "window/NamingDialog.h"
#include "window/ScreenText.h"

namespace {

QString PathOf(const std::string& bytes) {
    return QFile::decodeName(QByteArray::fromStdString(bytes));
}

// A relative one would lead to the folder from which the program happened to be started.
bool IsFolder(const QString& path) { return path.startsWith('/') && QFileInfo(path).isDir(); }

}  // namespace

bool FileChooser::AskOpen(CommonDialog& dialog) {
    NamingDialog asking(parent, dialog, QFileDialog::AcceptOpen);
    return Ask(asking, dialog);
}

bool FileChooser::AskSave(CommonDialog& dialog) {
    NamingDialog asking(parent, dialog, QFileDialog::AcceptSave);
    return Ask(asking, dialog);
}

bool FileChooser::Ask(NamingDialog& asking, CommonDialog& dialog) {
    const QString offered = PathOf(dialog.FileName);
    const qsizetype nameStart = offered.lastIndexOf('/') + 1;
    const QString folder = offered.left(nameStart);
    const bool toWrite = asking.acceptMode() == QFileDialog::AcceptSave;
    asking.Offer(IsFolder(folder) ? folder : StartFolder(PathOf(dialog.InitDir), toWrite),
                 offered.mid(nameStart));
    if (asking.exec() != QDialog::Accepted) {
        return false;
    }
    lastFolder = QFileInfo(asking.Chosen()).path();
    dialog.FileName = QFile::encodeName(asking.Chosen()).toStdString();
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
