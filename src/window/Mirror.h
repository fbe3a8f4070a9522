// When pictures are brought up to date: as soon as the user's act has ended, and not once for
// each change within it. What a picture shows is none of its business.
#pragma once

#include <QObject>
#include <vector>

class Picture;

class Mirror : public QObject {
public:
    /// Stands in every function through which the toolkit brings an act of the user. Acts nest;
    /// the marked pictures are brought up to date when the outermost one ends.
    class Act {
    public:
        explicit Act(Mirror& ownMirror) : mirror(ownMirror) { ++mirror.depth; }
        Act(const Act&) = delete;
        Act& operator=(const Act&) = delete;
        ~Act();

    private:
        Mirror& mirror;
    };

    /// The control of this picture has changed. Outside of any act the picture follows as soon as
    /// the toolkit has time for it.
    void Mark(Picture& picture);

    /// Brings all marked pictures up to date, with those that are marked in the course of it.
    void BringUpToDate();

    /// A signal that a widget gives meanwhile is an echo of the mirror and no act of the user.
    bool Updating() const { return updating; }

private:
    std::vector<Picture*> marked;
    int depth = 0;
    bool updating = false;
};
