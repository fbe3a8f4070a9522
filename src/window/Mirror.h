// When views are brought up to date: as soon as the user action has ended, and not once for each
// change within it. What a view shows is none of its business.
#pragma once

#include <QObject>
#include <vector>

class Control;

/// What the mirror brings up to date: the view of one control.
class Mirrored {
public:
    virtual ~Mirrored() = default;
    virtual void Update() = 0;
    /// Whether the control is enabled, which the widget may not show yet.
    virtual bool IsEnabled() const = 0;

protected:
    Mirrored() = default;
    Mirrored(const Mirrored&) = default;
    Mirrored& operator=(const Mirrored&) = default;
};

class Mirror : public QObject {
public:
    /// Lives in every function through which the toolkit delivers a user action. They nest; the
    /// marked views are brought up to date when the outermost one ends.
    class UserAction {
    public:
        explicit UserAction(Mirror& ownMirror) : mirror(ownMirror) { ++mirror.depth; }
        UserAction(const UserAction&) = delete;
        UserAction& operator=(const UserAction&) = delete;
        ~UserAction();

    private:
        Mirror& mirror;
    };

    /// The control of this view has changed. Outside of any user action the view follows as soon
    /// as the toolkit has time for it.
    void Mark(Mirrored& view);

    /// Brings all marked views up to date, with those that are marked in the course of it.
    void BringUpToDate();

    /// Remembers the box in which the user last worked; null before the first.
    void NoteWork(const Control& box) { lastBox = &box; }
    const Control* LastBox() const { return lastBox; }

    /// A signal that a widget gives meanwhile is an echo of the mirror and no user action.
    bool Updating() const { return updating; }

private:
    std::vector<Mirrored*> marked;
    const Control* lastBox = nullptr;
    int depth = 0;
    bool updating = false;
};
