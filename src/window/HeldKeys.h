// Keeps a held key from pressing anything more than once, in every window of the program.
#pragma once

#include <QPointer>
#include <QWidget>

class QKeyEvent;

/// Watches the keys of all windows for as long as its owner lives.
class HeldKeys : public QObject {
public:
    explicit HeldKeys(QWidget& owner);

    /// Whether the last key press was a repeat of a held key.
    bool Repeating() const { return repeating; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Note(const QKeyEvent& press);
    bool Consumes(const QKeyEvent& press, QObject* receiver) const;

    int releasedKey = 0;
    quint64 releaseTime = 0;
    bool repeating = false;
    QPointer<QWidget> pressedIn;  // had the focus at the last key press that was not a repeat
};
