// Accessibility of a read-only text: a document that a screen reader can move through with the
// caret. By default the toolkit presents it as a label.
#pragma once

#include <QAccessibleWidget>

class QTextEdit;

/// Offsets are in UTF-16 units of the text; one outside it counts as the nearest end.
class DocumentAccess : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit DocumentAccess(QTextEdit& ownPage);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    using QAccessibleWidget::text;

    int characterCount() const override;
    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                             int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                         int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType unit, int* start,
                            int* end) const override;
    QString attributes(int offset, int* start, int* end) const override;

    int cursorPosition() const override;
    void setCursorPosition(int place) override;
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;

private:
    QString LineAt(int offset, int* start, int* end) const;

    QTextEdit& page;
};
