#include "window/HelpFrame.h"

#include <QAbstractTextDocumentLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <utility>

namespace {

constexpr int PlaceRole = Qt::UserRole;  // a heading's offset in the text

QToolButton* ArrowButton(Qt::ArrowType arrow, const QString& name, QWidget* parent) {
    auto* const button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    return button;
}

QTextEdit* NewPage(QWidget* parent) {
    auto* const page = new QTextEdit(parent);
    page->setReadOnly(true);
    page->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    page->setFrameShape(QFrame::NoFrame);
    // A found word must be visible while the focus is in the Find box.
    QPalette palette = page->palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Inactive, role, palette.color(QPalette::Active, role));
    }
    page->setPalette(palette);
    return page;
}

QTreeWidget* NewHeadings(QWidget* parent) {
    auto* const headings = new QTreeWidget(parent);
    headings->setAccessibleName("Headings");
    headings->setHeaderLabel("Headings");
    headings->setHeaderHidden(true);
    headings->setRootIsDecorated(false);
    headings->setIndentation(headings->fontMetrics().averageCharWidth() * 2);
    headings->setItemsExpandable(false);
    headings->setFrameShape(QFrame::NoFrame);
    headings->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    headings->header()->setStretchLastSection(false);
    headings->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return headings;
}

QSize InCharacters(const QFontMetrics& metrics, int width, int lines) {
    return {metrics.averageCharWidth() * width, metrics.lineSpacing() * lines};
}

}  // namespace

HelpFrame::HelpFrame()
    : parts(new QSplitter(this)),
      page(NewPage(parts)),
      headings(NewHeadings(parts)),
      word(new QLineEdit(this)),
      result(new Notice(this)) {
    setWindowTitle("TephrexEdit Help");
    setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with the form

    parts->insertWidget(0, headings);
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addLayout(NewFindRow());
    all->addWidget(parts, 1);

    const auto follow = [this](const QTreeWidgetItem* heading) {
        GoTo(heading->data(0, PlaceRole).toInt());
    };
    connect(headings, &QTreeWidget::itemClicked, this, follow);
    connect(headings, &QTreeWidget::itemActivated, this, follow);
    AddKeys();
}

QLayout* HelpFrame::NewFindRow() {
    auto* const caption = new QLabel("Find:", this);
    caption->setBuddy(word);
    word->setAccessibleName("Find");
    word->setMaximumWidth(InCharacters(fontMetrics(), 40, 1).width());
    connect(word, &QLineEdit::returnPressed, this, &HelpFrame::FindNext);
    connect(word, &QLineEdit::textEdited, this, [this] { Report({}); });
    auto* const previous = ArrowButton(Qt::UpArrow, "Find previous (Shift+F3)", this);
    auto* const next = ArrowButton(Qt::DownArrow, "Find next (F3)", this);
    connect(previous, &QToolButton::clicked, this, &HelpFrame::FindPrevious);
    connect(next, &QToolButton::clicked, this, &HelpFrame::FindNext);

    auto* const row = new QHBoxLayout;
    row->setContentsMargins(6, 6, 6, 0);
    row->addWidget(caption);
    row->addWidget(word);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(result);
    row->addStretch(1);
    return row;
}

// The document is destroyed before the page.
HelpFrame::~HelpFrame() { page->setDocument(nullptr); }

void HelpFrame::ShowDocument(std::unique_ptr<QTextDocument> next) {
    page->setDocument(next.get());
    document = std::move(next);
    ListHeadings();
    Report({});
}

QSize HelpFrame::sizeHint() const { return InCharacters(fontMetrics(), 132, 42); }

QSize HelpFrame::SmallestSize() const { return InCharacters(fontMetrics(), 64, 16); }

// In a narrow window the headings are above the text: side by side, both would be too narrow.
void HelpFrame::resizeEvent(QResizeEvent* event) {
    const QSize share = InCharacters(fontMetrics(), 34, 10);
    const bool narrow = width() < 3 * share.width();
    const Qt::Orientation wanted = narrow ? Qt::Vertical : Qt::Horizontal;
    if (parts->orientation() != wanted || event->oldSize().isEmpty()) {
        parts->setOrientation(wanted);
        parts->setSizes(narrow ? QList{share.height(), height() - share.height()}
                               : QList{share.width(), width() - share.width()});
    }
}

void HelpFrame::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {  // restoring the window leaves the focus where it was
        page->setFocus();
    }
}

void HelpFrame::AddKeys() {
    using Action = void (HelpFrame::*)();
    const std::pair<QKeyCombination, Action> keys[]{
        {Qt::CTRL | Qt::Key_F, &HelpFrame::FocusFindBox},
        {Qt::Key_F3, &HelpFrame::FindNext},
        {Qt::SHIFT | Qt::Key_F3, &HelpFrame::FindPrevious},
        {Qt::Key_Escape, &HelpFrame::LeaveOrClose},
    };
    for (const auto& [key, action] : keys) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    }
    connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this,
            &QWidget::close);
}

void HelpFrame::ListHeadings() {
    headings->clear();
    QTreeWidgetItem* section = nullptr;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0) {
            continue;
        }
        auto* const heading = new QTreeWidgetItem({block.text()});
        heading->setData(0, PlaceRole, block.position());
        if (level > 2 && section != nullptr) {
            section->addChild(heading);
        } else {
            headings->addTopLevelItem(section = heading);
        }
    }
    headings->expandAll();
    page->setAccessibleName(document->firstBlock().text());
}

void HelpFrame::GoTo(int place) {
    QTextCursor cursor(document.get());
    cursor.setPosition(place);
    page->setTextCursor(cursor);
    const QRectF heading = document->documentLayout()->blockBoundingRect(cursor.block());
    page->verticalScrollBar()->setValue(static_cast<int>(heading.top()));
    page->setFocus();
}

void HelpFrame::FocusFindBox() {
    word->setFocus();
    word->selectAll();
}

// Escape moves from the Find box to the text; elsewhere it closes the window.
void HelpFrame::LeaveOrClose() {
    if (word->hasFocus()) {
        page->setFocus();
    } else {
        close();
    }
}

void HelpFrame::Find(Direction direction) {
    if (word->text().isEmpty()) {
        FocusFindBox();
        return;
    }
    const bool back = direction == Direction::Backward;
    QTextCursor edge(document.get());
    edge.movePosition(back ? QTextCursor::End : QTextCursor::Start);
    if (FindFrom(page->textCursor(), direction)) {
        Report({});
    } else if (FindFrom(edge, direction)) {
        Report(back ? "Continued from the end" : "Continued from the beginning");
    } else {
        Report("Not found");
    }
}

bool HelpFrame::FindFrom(const QTextCursor& start, Direction direction) {
    const bool back = direction == Direction::Backward;
    const QTextCursor found = document->find(
        word->text(), start, back ? QTextDocument::FindBackward : QTextDocument::FindFlags());
    if (!found.isNull()) {
        page->setTextCursor(found);
    }
    return !found.isNull();
}

void HelpFrame::Report(const QString& text) {
    result->hide();  // so that the same text is announced again
    result->setText(text);
    result->setAccessibleName(text);
    result->setVisible(!text.isEmpty());
}
