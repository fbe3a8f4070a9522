// Decides when views are updated: once, when a user action ends, and not for each change within it.
// What a view shows is in the views.
#pragma once

#include <QObject>
#include <vector>

class Control;

/// What the mirror updates: the view of one control.
class Mirrored {
public:
    virtual ~Mirrored() = default;
    /// Makes the widget show the control's current state.
    virtual void Update() = 0;
    /// Whether the control is enabled; the widget may still have to be updated.
    virtual bool IsEnabled() const = 0;

protected:
    Mirrored() = default;
    Mirrored(const Mirrored&) = default;
    Mirrored& operator=(const Mirrored&) = default;
};

/// A marked view must not be destroyed before its update.
class Mirror : public QObject {
public:
    /// Create one in every function through which the toolkit delivers a user action. They can
    /// nest; the marked views are updated when the outermost one is destroyed.
    class UserAction {
    public:
        explicit UserAction(Mirror& ownMirror) : mirror(ownMirror) { ++mirror.depth; }
        UserAction(const UserAction&) = delete;
        UserAction& operator=(const UserAction&) = delete;
        ~UserAction();

    private:
        Mirror& mirror;
    };

    /// Call it when the control of this view has changed. Outside any user action, the view is
    /// updated from the event loop.
    void Mark(Mirrored& view);

    /// Updates all marked views, including those marked meanwhile.
    void BringUpToDate();

    /// Remembers the box in which the user last worked; null before the first.
    void NoteWork(const Control& box) { lastBox = &box; }
    const Control* LastBox() const { return lastBox; }

    /// Whether views are being updated. Signals that widgets emit meanwhile are no user actions.
    bool Updating() const { return updating; }

private:
    std::vector<Mirrored*> marked;
    const Control* lastBox = nullptr;
    int depth = 0;
    bool updating = false;
};
