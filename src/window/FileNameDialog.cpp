#include "window/FileNameDialog.h"

#include <unistd.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <algorithm>

#include "form/Controls.h"
#include "window/ScreenText.h"

namespace {

// Turns "Records (*.rec)|*.rec;*.REC|" into the toolkit's "Records (*.rec *.REC)".
QStringList NameFilters(std::string_view filter) {
    const QStringList parts = ToScreen(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters += name + " (" + QString(parts[i + 1]).replace(';', ' ') + ')';
    }
    return filters;
}

// Shows names with stand-ins, even while they are edited.
class NameDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override {
        return value.typeId() == QMetaType::QString
                   ? WithStandIns(value.toString())
                   : QStyledItemDelegate::displayText(value, locale);
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
            line->setText(WithStandIns(index.data(Qt::EditRole).toString()));
        }
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override {
        if (const auto* const line = qobject_cast<QLineEdit*>(editor)) {
            model->setData(index, WithoutStandIns(line->text()));
        }
    }
};

// Puts stand-ins into the names and tips in one of the toolkit's models of folders. The toolkit
// never reads these names back.
void ShowStandIns(QAbstractItemModel& folders) {
    const auto keep = [&folders](const QModelIndex& index, int role) {
        const QString text = index.data(role).toString();
        if (const QString shown = WithStandIns(text); shown != text) {
            folders.setData(index, shown, role);
        }
    };
    QObject::connect(&folders, &QAbstractItemModel::dataChanged, &folders,
                     [keep](const QModelIndex& first, const QModelIndex& last) {
                         for (int row = first.row(); row <= last.row(); ++row) {
                             keep(first.siblingAtRow(row), Qt::DisplayRole);
                             keep(first.siblingAtRow(row), Qt::ToolTipRole);
                         }
                     });
}

// Turns off the desktop's own dialog, so that the toolkit creates its widgets, and returns its name
// box. Some desktops' dialogs check for an existing file before they add the extension, and so
// replace a file without asking.
QLineEdit& NameBox(QFileDialog& dialog) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return *dialog.findChild<QLineEdit*>("fileNameEdit");
}

// Removes `.`, `..` and repeated slashes, so that equal paths compare equal. If a `..` after a
// symbolic link would then lead to another folder, the folder's real path is used instead.
QString Tidied(const QString& path) {
    const qsizetype nameStart = path.lastIndexOf('/') + 1;
    const QString folder = path.left(nameStart);
    const QString clean = QDir::cleanPath(folder);
    const QString real = QFileInfo(folder).canonicalFilePath();
    const bool same = real.isEmpty() || QFileInfo(clean).canonicalFilePath() == real;
    const QString best = same ? clean : real;
    return (best.endsWith('/') ? best : best + '/') + path.mid(nameStart);
}

// An ending that begins with a digit belongs to the name, as in "eruption v1.2".
bool IsExtension(const QString& ending) {
    return !ending.isEmpty() && ending.front().isLetter() &&
           !QMimeDatabase().suffixForFileName("name." + ending).isEmpty();
}

bool NameFits(const QString& path) {
    const QFileInfo file(path);
    const long longest = pathconf(QFile::encodeName(file.path()).constData(), _PC_NAME_MAX);
    return longest < 0 || QFile::encodeName(file.fileName()).size() <= longest;
}

}  // namespace

FileNameDialog::FileNameDialog(QWidget& parent, const CommonDialog& dialog, AcceptMode mode)
    : QFileDialog(&parent),
      box(NameBox(*this)),
      extension(ToScreen(dialog.DefaultExt)),
      flags(dialog.Flags) {
    setWindowTitle(ToScreen(dialog.DialogTitle));
    const QStringList filters = NameFilters(dialog.Filter);
    setNameFilters(filters);
    selectNameFilter(filters.value(dialog.FilterIndex - 1));
    setAcceptMode(mode);
    setFileMode(AnyFile);  // ConfirmChoice checks whether the file exists
    // The toolkit's own size leaves hardly any room for the names.
    const QSize roomy(140 * fontMetrics().averageCharWidth(), 30 * fontMetrics().height());
    resize(roomy.boundedTo(screen()->availableSize()));
    ShowNamesWithStandIns();
    FollowSelection();
    // The toolkit has just disabled its button for a name that it would reject. Here such a name is
    // valid, or refused with a message.
    connect(&box, &QLineEdit::textChanged, this, [this](const QString& text) {
        for (auto* const button : findChildren<QPushButton*>()) {
            button->setEnabled(button->isEnabled() || !text.isEmpty());
        }
    });
}

void FileNameDialog::ShowNamesWithStandIns() {
    QList<QAbstractItemView*> views{box.completer()->popup(), findChild<QListView*>("listView")};
    views += findChild<QTreeView*>();
    for (QAbstractItemView* const view : views) {
        view->setItemDelegate(new NameDelegate(view));
    }
    ShowStandIns(*findChild<QComboBox*>("lookInCombo")->model());
    ShowStandIns(*findChild<QListView*>("sidebar")->model());
    connect(&box, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (const QString shown = WithStandIns(text); shown != text) {
            const int place = box.cursorPosition();
            box.setText(shown);
            box.setCursorPosition(place);
        }
    });
    connect(findChild<QFileSystemModel*>(), &QFileSystemModel::directoryLoaded, this,
            &FileNameDialog::FitColumns, Qt::QueuedConnection);
    findChild<QTreeView*>()->viewport()->installEventFilter(this);
}

void FileNameDialog::FollowSelection() {
    connect(&box, &QLineEdit::textEdited, this, [this] { selecting = false; });
    connect(this, &QFileDialog::currentChanged, this, [this] { selecting = true; });
    for (const auto* const view : findChildren<QAbstractItemView*>()) {
        connect(view, &QAbstractItemView::pressed, this, [this] { selecting = true; });
    }
}

// The column of names gets the width that the others do not need, but at least a third.
void FileNameDialog::FitColumns() {
    auto& tree = *findChild<QTreeView*>();
    int rest = tree.viewport()->width();
    for (int column = 1; column < tree.model()->columnCount(); ++column) {
        tree.resizeColumnToContents(column);
        rest -= tree.columnWidth(column);
    }
    tree.setColumnWidth(0, std::max(rest, tree.viewport()->width() / 3));
}

void FileNameDialog::Offer(const QString& folder, const QString& name) {
    setDirectory(folder);
    offeredFolder = directory().path();
    offered = name;
    offeredPath = (folder.endsWith('/') ? folder : folder + '/') + name;
    box.setText(name);
}

void FileNameDialog::accept() {
    const QString name = WithoutStandIns(box.text());
    if (EnterFolder(SelectedPath(), box.text()) || name.isEmpty()) {
        return;
    }
    const bool unchanged = name == offered && directory().path() == offeredFolder;
    const QString path = unchanged ? offeredPath : PathOfName(name);
    const QString nameToKeep = acceptMode() == AcceptSave ? offered : QString();
    if (EnterFolder(path, nameToKeep)) {
        return;
    }
    const bool keepAsIs = (unchanged || acceptMode() == AcceptOpen) && QFileInfo::exists(path);
    const QString file = keepAsIs ? path : WithExtension(path);
    if (!EnterFolder(file, nameToKeep) && ConfirmChoice(file)) {
        chosen = file;
        done(Accepted);
    }
}

bool FileNameDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        FitColumns();
    }
    return QFileDialog::eventFilter(watched, event);
}

QString FileNameDialog::PathOfName(const QString& name) const {
    if (name.startsWith('/')) {
        return Tidied(name);
    }
    const QString here = directory().isAbsolute() ? directory().path() + '/' : QDir::rootPath();
    const bool fromHome = name == "~" || name.startsWith("~/");
    return Tidied(fromHome && !QFileInfo::exists(here + '~') ? QDir::homePath() + name.mid(1)
                                                             : here + name);
}

// Adds the extension unless the name has one or would become too long.
QString FileNameDialog::WithExtension(const QString& path) const {
    const QString name = path.mid(path.lastIndexOf('/') + 1);
    const QString ending = name.contains('.') ? name.section('.', -1).trimmed() : QString();
    const bool hasOne = ending.compare(extension, Qt::CaseInsensitive) == 0 || IsExtension(ending);
    const QString extended = path + '.' + extension;
    return hasOne || !NameFits(extended) ? path : extended;
}

// The path of the file or folder selected in the list; empty while the user edits the name instead.
QString FileNameDialog::SelectedPath() const {
    if (!selecting || box.hasFocus()) {
        return {};
    }
    const auto rows = findChild<QTreeView*>()->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString()
                          : rows.front().data(QFileSystemModel::FilePathRole).toString();
}

bool FileNameDialog::EnterFolder(const QString& path, const QString& nameThere) {
    if (path.isEmpty() || !QFileInfo(path).isDir()) {
        return false;
    }
    setDirectory(path);
    box.setText(nameThere);
    return true;
}

bool FileNameDialog::ConfirmChoice(const QString& path) {
    const QString name = NameInMessage(path.mid(path.lastIndexOf('/') + 1));
    if (name.isEmpty() || path.contains(QChar::Null) || !NameFits(path)) {
        QMessageBox::warning(this, windowTitle(), tr("%1\nNo file can have this name.").arg(name));
        return false;
    }
    const bool exists = QFileInfo::exists(path);
    if ((flags & CommonDialog::MustExist) != 0 && !exists) {
        QMessageBox::warning(
            this, windowTitle(),
            tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(name));
        return false;
    }
    return (flags & CommonDialog::AskBeforeReplacing) == 0 || !exists ||
           QMessageBox::warning(
               this, windowTitle(), tr("%1 already exists.\nDo you want to replace it?").arg(name),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}
