// Decides when views are updated: once, when a user action ends, and not for each change within it.
// The views decide what they show.
#pragma once

#include <QObject>
#include <vector>

class Control;

/// Anything that the mirror updates: in the program, the views.
class Mirrored {
public:
    virtual ~Mirrored() = default;
    /// Makes the widget show the control's current state.
    virtual void Update() = 0;
    /// Whether the control is enabled; the widget may not show it yet.
    virtual bool IsEnabled() const = 0;

protected:
    Mirrored() = default;
    Mirrored(const Mirrored&) = default;
    Mirrored& operator=(const Mirrored&) = default;
};

/// Collects the views to update. A marked view must not be destroyed before its update.
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

    /// Updates all marked views, including those marked meanwhile. Does nothing during an update.
    void BringUpToDate();

    /// The box in which the user last worked; null before the first.
    void SetLastBox(const Control& box) { lastBox = &box; }
    const Control* LastBox() const { return lastBox; }

    /// Whether views are being updated. Signals that widgets emit meanwhile are not user actions.
    bool Updating() const { return updating; }

private:
    std::vector<Mirrored*> marked;
    const Control* lastBox = nullptr;
    int depth = 0;
    bool updating = false;
};
