// Keys that the user holds: in no window of the program does a held key press twice.
#pragma once

#include <QPointer>
#include <QWidget>

class QKeyEvent;

/// Watches the keys of all windows for as long as its owner lives.
class HeldKeys : public QObject {
public:
    explicit HeldKeys(QWidget& owner);

    /// Whether the last key press was the repetition of a held key.
    bool Repeating() const { return repeating; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Note(const QKeyEvent& press);
    bool Takes(const QKeyEvent& press, QObject* receiver) const;

    int releasedKey = 0;
    quint64 releaseTime = 0;
    bool repeating = false;
    QPointer<QWidget> begunIn;  // what had the focus when the last key went down
};
