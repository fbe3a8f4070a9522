#include "draw/Axis.h"

#include <algorithm>
#include <cmath>

#include "display/Limits.h"
#include "draw/Symbols.h"

namespace {

struct Tick {
    double place;
    QString label;
};

// The distance between ticks: 1, 2 or 5 times a power of ten, at least `least`.
double NiceStep(double least) {
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (step * power >= least) {
            return step * power;
        }
    }
    return 10 * power;
}

// The ends of the map (only the first if they are too close), and round numbers between them where
// there is room for their labels.
std::vector<Tick> TicksOf(const Columns& columns, Lettering& lettering) {
    const auto tickAt = [&columns](double location) {
        return Tick{columns.PlaceOf(location), Label(location)};
    };
    const double factor = MapFactor(columns.scale);
    const double first = std::min(MapStart / factor, MapEnd / factor);
    const double last = std::max(MapStart / factor, MapEnd / factor);
    const double room = std::max(lettering.Width(Label(first), Sheet::Quiet),
                                 lettering.Width(Label(last), Sheet::Quiet)) +
                        3;
    std::vector<Tick> ticks{tickAt(first), tickAt(last)};
    if (columns.mapEnd - columns.mapStart < room) {
        ticks.pop_back();
        return ticks;
    }
    const double step =
        NiceStep((last - first) / (columns.mapEnd - columns.mapStart) * std::max(room, 10.0));
    for (double i = std::ceil(first / step); i * step < last; ++i) {
        const Tick tick = tickAt(i * step);
        if (std::min(std::abs(tick.place - ticks[0].place), std::abs(tick.place - ticks[1].place)) >
            room) {
            ticks.push_back(tick);
        }
    }
    return ticks;
}

void AddMap(Group& group, double top, double bottom, const Columns& columns, Lettering& lettering) {
    QPainterPath frame;
    frame.addRect(QRectF(QPointF(columns.mapStart, top), QPointF(columns.mapEnd, bottom)));
    QPainterPath grid;
    QPainterPath marks;
    for (const Tick& tick : TicksOf(columns, lettering)) {
        grid.moveTo(tick.place, top);
        grid.lineTo(tick.place, bottom);
        for (const auto& [from, to] : {std::pair{top, top - 1}, std::pair{bottom, bottom + 1}}) {
            marks.moveTo(tick.place, from);
            marks.lineTo(tick.place, to);
        }
        for (const double y : {top - 1.8, bottom + 3.4}) {
            group.texts.push_back(
                lettering.Put(tick.label, {tick.place, y}, Anchor::Middle, Sheet::Quiet));
        }
    }
    group.shapes.push_back(Lined(Mark::Frame, grid, Palette::Rule, 0.15));
    group.shapes.push_back(Lined(Mark::Frame, frame, Palette::Grey, 0.2));
    group.shapes.push_back(Lined(Mark::Frame, marks, Palette::Grey, 0.2));
    const double middle = (columns.mapStart + columns.mapEnd) / 2;
    group.texts.push_back(
        lettering.Put("Location on the map", {middle, top - 5.4}, Anchor::Middle, Sheet::Quiet));
}

void AddTime(Group& group, double top, double bottom, Lettering& lettering) {
    const double x = Sheet::Margin + 1;
    QPainterPath arrow(QPointF(x, bottom));
    arrow.lineTo(x, top - 0.6);
    arrow.moveTo(x - 0.8, top + 1);
    arrow.lineTo(x, top - 0.6);
    arrow.lineTo(x + 0.8, top + 1);
    group.shapes.push_back(Lined(Mark::Frame, arrow, Palette::Grey, 0.25));
    group.texts.push_back(
        lettering.Put("Time", {Sheet::Margin, top - 1.8}, Anchor::Left, Sheet::Quiet));
}

}  // namespace

Group AxesOf(double top, double bottom, const Columns& columns, const Contents& contents,
             Lettering& lettering) {
    Group group;
    AddMap(group, top, bottom, columns, lettering);
    AddTime(group, top, bottom, lettering);
    const auto head = [&](bool used, const QStringList& lines, double x, Anchor anchor) {
        double y = top - 1.8 - static_cast<double>(lines.size() - 1) * Sheet::LineHeight;
        for (const QString& line : lines) {
            if (used) {
                group.texts.push_back(lettering.Put(line, {x, y}, anchor, Sheet::Quiet));
            }
            y += Sheet::LineHeight;
        }
    };
    head(true, {"Phase"}, columns.nameStart, Anchor::Left);
    head(contents.flux, {"Mass", "flux"}, columns.fluxEnd, Anchor::Right);
    head(contents.bursts, {"Bursts,", "flows"}, columns.burstsEnd, Anchor::Right);
    head(contents.flows > 0, {"Flow", "durations"}, columns.flowsStart, Anchor::Left);
    head(contents.refused, {"Cannot", "be saved"}, columns.refusalsStart, Anchor::Left);
    return group;
}
