#include "window/ListBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <utility>

#include "window/TextLine.h"

namespace {

bool MovesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

}  // namespace

ListBox::ListBox(QWidget* parent)
    : QComboBox(parent), line(new TextLine(this)), entries(new QStringListModel(this)) {
    setLineEdit(line);
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    setModel(entries);
    connect(this, &QComboBox::activated, this, &ListBox::PickIfJustClosed);
    connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ListBox::PickIfSelectedExternally, Qt::QueuedConnection);
}

void ListBox::SetEntries(const QStringList& shown) {
    if (entries->stringList() != shown) {
        entries->setStringList(shown);
    }
}

QSize ListBox::SizeFor(const QString& shown) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = rect();
    const QRect inside =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    line->resize(inside.size());
    return line->SizeFor(shown) + size() - inside.size();
}

void ListBox::SetTextPalette(const QPalette& palette) {
    textPalette = palette;
    line->setPalette(palette);
    view()->setPalette(palette);
}

// When the desktop's colours change, the toolkit gives the line the palette of the box.
void ListBox::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        line->setPalette(textPalette);
    }
}

void ListBox::showPopup() {
    const int wanted = view()->sizeHintForColumn(0) + 2 * view()->frameWidth() +
                       view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(wanted);
    QComboBox::showPopup();
    const QModelIndexList found =
        entries->match(entries->index(0), Qt::DisplayRole, currentText(), 1, Qt::MatchExactly);
    view()->setCurrentIndex(found.value(0));
}

// For a picked entry, the toolkit closes the list and then emits activated. It also emits it at
// other times, even for a text set by code, but only after a key press in the box or a loss of
// focus.
void ListBox::hidePopup() {
    justClosed = true;
    QComboBox::hidePopup();
}

void ListBox::PickIfJustClosed(int position) {
    if (std::exchange(justClosed, false)) {
        emit Picked(position);
    }
}

// Mouse and keys move the current entry and the selection of the open list together. An assistive
// technology picks an entry by selecting it without making it the current one.
void ListBox::PickIfSelectedExternally() {
    const QModelIndex selected = view()->selectionModel()->selectedIndexes().value(0);
    if (view()->isVisible() && selected.isValid() && selected != view()->currentIndex()) {
        hidePopup();
        justClosed = false;
        emit Picked(selected.row());
    }
}

void ListBox::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    option->rect = contentsRect();
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    justClosed = false;
    if (MovesInList(event->key())) {
        showPopup();  // moving through a closed list would pick every entry on the way
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ListBox::focusOutEvent(QFocusEvent* event) {
    justClosed = false;
    QComboBox::focusOutEvent(event);
}

void ListBox::wheelEvent(QWheelEvent* event) { event->ignore(); }
