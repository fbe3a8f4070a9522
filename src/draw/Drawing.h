// A picture as data: shapes and texts with their places on pages. Nothing here depends on the
// device that they are painted on. All lengths are millimetres, from the top left corner of the
// page.
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QRgb>
#include <QSizeF>
#include <QString>
#include <vector>

/// What a shape shows.
enum class Mark {
    Frame,  // axes, rules and backgrounds
    Symbol,
    OffMap,
    Wind,
    Flows,
    Caldera,
    Diatreme,
    Blast,
    Bursts,
    FaultLine,
    Throw,
    Ground,  // on both sides of a fault
    Scarp,
    Erosion,
    Refused,
};

struct Style {
    QRgb line = 0;
    double width = 0;  // of the line; 0 for none
    QRgb fill = 0;     // transparent for none
};

struct Shape {
    Mark mark;
    QPainterPath path;
    Style style;
};

enum class Anchor { Left, Middle, Right };

struct Text {
    QString text;
    QPointF at;  // on the baseline: the left end, middle or right end, by the anchor
    Anchor anchor;
    double size;  // of the font
    QRgb colour;
    QRectF room;  // the area that the text covers, as measured
};

/// Shapes and texts that belong together: a phase, or the head, axes or legend of a page.
struct Group {
    int phase = 0;  // 0 for a group that is not a phase
    QString title;  // of a phase, for screen readers
    std::vector<Shape> shapes;
    std::vector<Text> texts;  // painted over the shapes
};

/// Moves a group down the page.
inline void MoveDown(Group& group, double distance) {
    for (Shape& shape : group.shapes) {
        shape.path.translate(0, distance);
    }
    for (Text& text : group.texts) {
        text.at.ry() += distance;
        text.room.translate(0, distance);
    }
}

struct Page {
    QSizeF size;
    std::vector<Group> groups;
};

struct Drawing {
    QString title;
    QString description;
    std::vector<Page> pages;
};
