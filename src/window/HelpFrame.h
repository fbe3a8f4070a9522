// The window that shows the help: a list of headings, the text and a box to find a word. HelpText
// reads the text.
#pragma once

#include <QLabel>
#include <QTextDocument>
#include <QWidget>
#include <memory>

class QLineEdit;
class QSplitter;
class QTextEdit;
class QTreeWidget;

/// A text that a screen reader announces when it appears.
class Notice : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
};

/// A top-level window. Closing it hides it and does not end the program.
class HelpFrame : public QWidget {
    Q_OBJECT

public:
    HelpFrame();
    ~HelpFrame() override;

    /// Shows the document, which must not be null, from its beginning and lists its headings.
    void ShowDocument(std::unique_ptr<QTextDocument> next);

    /// A size at which the text is easy to read, and the smallest useful one, without the frame.
    QSize sizeHint() const override;
    QSize SmallestSize() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QLayout* NewFindRow();
    void AddKeys();
    void ListHeadings();
    void GoTo(int place);
    void FocusFindBox();
    void FindNext() { Find(Direction::Forward); }
    void FindPrevious() { Find(Direction::Backward); }
    void LeaveOrClose();

    enum class Direction { Forward, Backward };
    void Find(Direction direction);
    bool FindFrom(const QTextCursor& start, Direction direction);
    void Report(const QString& text);

    std::unique_ptr<QTextDocument> document;
    // The Tab key visits them in this order.
    QSplitter* const parts;
    QTextEdit* const page;
    QTreeWidget* const headings;
    QLineEdit* const word;
    Notice* const result;
};
