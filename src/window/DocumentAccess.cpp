#include "window/DocumentAccess.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>

namespace {

constexpr auto Line = QAccessible::LineBoundary;

// Paragraphs, lines and table cells end in special characters that a screen reader cannot speak.
QString Speakable(QString raw) {
    for (QChar& each : raw) {
        const char16_t code = each.unicode();
        const bool ends = code == QChar::ParagraphSeparator || code == QChar::LineSeparator ||
                          code == 0xFDD0 || code == 0xFDD1;
        each = ends ? QChar('\n') : code == QChar::Nbsp ? QChar(' ') : each;
    }
    return raw;
}

}  // namespace

DocumentAccess::DocumentAccess(QTextEdit& ownPage)
    : QAccessibleWidget(&ownPage, QAccessible::Document), page(ownPage) {}

void* DocumentAccess::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                              : QAccessibleWidget::interface_cast(type);
}

QAccessible::State DocumentAccess::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = state.multiLine = state.selectableText = true;
    return state;
}

int DocumentAccess::characterCount() const {
    return page.document()->characterCount() - 1;  // without the end of the last paragraph
}

QString DocumentAccess::text(int start, int end) const {
    return Speakable(page.document()->toRawText().mid(start, end - start));
}

// Lines are those on the screen: the arrow keys move by them.
QString DocumentAccess::LineAt(int offset, int* start, int* end) const {
    const QTextBlock block = page.document()->findBlock(qBound(0, offset, characterCount()));
    const QTextLine line = block.layout()->lineForTextPosition(offset - block.position());
    const bool isLast = !line.isValid() || line.lineNumber() == block.layout()->lineCount() - 1;
    *start = block.position() + (line.isValid() ? line.textStart() : 0);
    *end = isLast ? block.position() + block.length() : *start + line.textLength();
    return text(*start, *end);
}

QString DocumentAccess::textBeforeOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                                         int* end) const {
    if (unit != Line) {
        return QAccessibleTextInterface::textBeforeOffset(offset, unit, start, end);
    }
    LineAt(offset, start, end);
    if (*start == 0) {
        *end = 0;
        return {};
    }
    return LineAt(*start - 1, start, end);
}

QString DocumentAccess::textAtOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                                     int* end) const {
    return unit == Line ? LineAt(offset, start, end)
                        : QAccessibleTextInterface::textAtOffset(offset, unit, start, end);
}

QString DocumentAccess::textAfterOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                                        int* end) const {
    if (unit != Line) {
        return QAccessibleTextInterface::textAfterOffset(offset, unit, start, end);
    }
    LineAt(offset, start, end);
    if (*end > characterCount()) {
        *start = *end = characterCount();
        return {};
    }
    return LineAt(*end, start, end);
}

QString DocumentAccess::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

int DocumentAccess::cursorPosition() const { return page.textCursor().position(); }

void DocumentAccess::setCursorPosition(int place) { setSelection(0, place, place); }

int DocumentAccess::selectionCount() const { return page.textCursor().hasSelection() ? 1 : 0; }

void DocumentAccess::selection(int /*index*/, int* start, int* end) const {
    *start = page.textCursor().selectionStart();
    *end = page.textCursor().selectionEnd();
}

void DocumentAccess::addSelection(int start, int end) { setSelection(0, start, end); }

void DocumentAccess::removeSelection(int /*index*/) { setCursorPosition(cursorPosition()); }

void DocumentAccess::setSelection(int /*index*/, int start, int end) {
    QTextCursor cursor = page.textCursor();
    cursor.setPosition(qBound(0, start, characterCount()));
    cursor.setPosition(qBound(0, end, characterCount()), QTextCursor::KeepAnchor);
    page.setTextCursor(cursor);
}

QRect DocumentAccess::characterRect(int offset) const {
    QTextCursor cursor(page.document());
    cursor.setPosition(qBound(0, offset, characterCount()));
    QRect place = page.cursorRect(cursor);
    const QChar character = page.document()->characterAt(cursor.position());
    place.setWidth(QFontMetrics(cursor.charFormat().font()).horizontalAdvance(character));
    return {page.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int DocumentAccess::offsetAtPoint(const QPoint& point) const {
    return page.cursorForPosition(page.viewport()->mapFromGlobal(point)).position();
}

void DocumentAccess::scrollToSubstring(int start, int /*end*/) { setCursorPosition(start); }
