// The window in which the help is read: a list of the headings, the text, a box to find a word.
// Where the text comes from is in HelpText.
#pragma once

#include <QLabel>
#include <QTextDocument>
#include <QWidget>
#include <memory>

class QLineEdit;
class QSplitter;
class QTextEdit;
class QTreeWidget;

/// A text that a screen reader says as soon as it comes up.
class Notice : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
};

class HelpFrame : public QWidget {
    Q_OBJECT

public:
    HelpFrame();
    ~HelpFrame() override;

    /// Shows this document from its beginning.
    void ShowDocument(std::unique_ptr<QTextDocument> next);

    /// The size at which the text is easy to read, and the smallest that is of any use.
    QSize sizeHint() const override;
    QSize LeastSize() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QLayout* FindRow();
    void AddKeys();
    void ListHeadings();
    void GoTo(int place);
    void AskForWord();
    void FindNext() { Find(Direction::Forward); }
    void FindPrevious() { Find(Direction::Backward); }
    void LeaveOrClose();

    enum class Direction { Forward, Backward };
    void Find(Direction direction);
    bool FindFrom(const QTextCursor& start, Direction direction);
    void Report(const QString& text);

    std::unique_ptr<QTextDocument> document;
    QLineEdit* const word;
    Notice* const result;
    QSplitter* const parts;
    QTreeWidget* const headings;
    QTextEdit* const page;
};
