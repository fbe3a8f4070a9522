#include "draw/Rows.h"

#include <QtMath>
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "display/LimitTests.h"
#include "draw/Symbols.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"
#include "rules/FlowDurations.h"

namespace {

using P = PhaseRecord;

// A phase, and what its row is drawn with.
struct Row {
    const PhaseRecord& phase;
    const FlowRow& flows;
    const Columns& columns;
    double top;
    double ground;
    Lettering& lettering;
    Group& group;

    void Add(Shape shape) const {
        if (!shape.path.isEmpty()) {
            group.shapes.push_back(std::move(shape));
        }
    }
    void Write(const QString& text, double x, double y, Anchor anchor,
               const TextStyle& style = Sheet::Plain) const {
        group.texts.push_back(lettering.Put(text, {x, y}, anchor, style));
    }
    // The baseline of the first of `lines` lines that are centred in the row.
    double FirstLine(qsizetype lines) const {
        return top + Sheet::RowHeight / 2 + 0.85 -
               static_cast<double>(lines - 1) * Sheet::LineHeight / 2;
    }
    double Vent() const { return columns.OnMap(static_cast<double>(phase.ventLocation)); }
    QPointF Foot() const { return {Vent(), ground}; }
};

template <auto Member>
bool Uses(const Row& row) {
    return Uses(row.phase, FieldOf(Member));
}

void WriteLines(const Row& row, const QStringList& lines, double x, const TextStyle& style) {
    double y = row.FirstLine(lines.size());
    for (const QString& line : lines) {
        row.Write(line, x, y, Anchor::Left, style);
        y += Sheet::LineHeight;
    }
}

void AddName(const Row& row, int number) {
    row.Write(Label(number), row.columns.numberEnd, row.FirstLine(1), Anchor::Right);
    WriteLines(row, TypeName(row.phase), row.columns.nameStart, Sheet::Plain);
}

double HeightOf(const Row& row) {
    return Uses<&P::strength>(row) ? SymbolHeight(row.phase.strength) : PlainSymbolHeight;
}

void AddOffMap(const Row& row, Single location) {
    const double place = row.columns.PlaceOf(static_cast<double>(location));
    const double edge = row.columns.OnMap(static_cast<double>(location));
    const double factor = MapFactor(row.columns.scale);
    if (LimitTests::IsBeforeMap(location, factor) || LimitTests::IsAfterMap(location, factor)) {
        row.Add(Arrow(Mark::OffMap, {edge, row.ground + 1.2}, place < edge ? -3.4 : 3.4,
                      Palette::Vermilion));
    }
}

void AddGround(const Row& row) {
    QPainterPath ground(QPointF(row.columns.mapStart, row.ground));
    ground.lineTo(row.columns.mapEnd, row.ground);
    row.Add(Lined(Mark::Frame, ground, Palette::Rule, 0.2));
}

// Draws a caldera or a diatreme below the vent; a caldera too weak for a style has none.
void AddStructure(const Row& row) {
    const PhaseRecord& phase = row.phase;
    if (!Uses<&P::calderaFlag>(row) || phase.calderaFlag != 1) {
        return;
    }
    const bool diatreme =
        phase.eruptionType != EruptionType::Plinian && phase.strength <= StrongestDiatreme;
    row.Add(diatreme ? DiatremeMark(row.Foot())
                     : CalderaMark(row.Foot(),
                                   Uses<&P::calderaStyle>(row) ? phase.calderaStyle : Integer{0}));
}

// Where the wind's arrow begins and how long it is. It is downwind of the vent or, where the map
// has no room for it, upwind.
struct WindPlace {
    double from;
    double length;  // with the sign of the wind
    double label;   // the left edge of the label
};

WindPlace PlaceWind(const Row& row, double labelWidth) {
    constexpr double shortest = 2.5;
    constexpr double longest = 12;
    constexpr double strongest = 50;  // that Save accepts
    constexpr double gap = 0.7;
    const double wind = static_cast<double>(row.phase.wind);
    const double share = std::min(std::abs(wind), strongest) / strongest;
    const double length = wind == 0 ? 0 : shortest + (longest - shortest) * share;
    const Shape symbol = SymbolOf(row.phase.eruptionType, {}, HeightOf(row));
    const double clear = symbol.path.boundingRect().right() + gap;
    const double reach = clear + length + gap + labelWidth;
    const double direction = wind < 0 ? -1 : 1;
    const double ahead =
        direction > 0 ? row.columns.mapEnd - row.Vent() : row.Vent() - row.columns.mapStart;
    const double side = ahead >= reach ? direction : -direction;
    const double nearEnd = row.Vent() + side * clear;
    const double farEnd = nearEnd + side * length;
    const double label = side > 0 ? farEnd + gap : farEnd - gap - labelWidth;
    const double lastLabel = std::max(row.columns.mapStart, row.columns.mapEnd - labelWidth);
    return {side == direction ? nearEnd : farEnd, direction * length,
            std::clamp(label, row.columns.mapStart, lastLabel)};
}

void AddWind(const Row& row) {
    const QString label =
        row.phase.wind == 0 ? "calm" : Label(static_cast<double>(row.phase.wind), true);
    const WindPlace place = PlaceWind(row, row.lettering.Width(label, Sheet::Small));
    const double y = row.ground - 3.7;
    if (place.length != 0) {
        row.Add(Arrow(Mark::Wind, {place.from, y}, place.length, Palette::Ink));
    }
    row.Write(label, place.label, y + 0.75, Anchor::Left, Sheet::Small);
}

void AddFault(const Row& row) {
    constexpr double reach = 2.6;        // of the line, above and below the ground
    constexpr double degreesForOne = 6;  // unit of dip
    constexpr double longestThrow = 5;   // of the largest magnitude
    const double dip = std::clamp<int>(row.phase.faultDip, -10, 10) * degreesForOne;
    const double slope = std::tan(qDegreesToRadians(dip));  // sideways for each unit downwards
    const double thrown = std::clamp<int>(row.phase.faultMagnitude, 0, 20) / 20.0 * longestThrow;
    const double y = row.top + Sheet::RowHeight / 2;
    const auto on = [&](double down) { return QPointF(row.Vent() + slope * down, y + down); };
    QPainterPath line(on(-reach - 0.9));
    line.lineTo(on(reach + 0.9));
    row.Add(Lined(Mark::FaultLine, line, Palette::Black, 0.35));
    QPainterPath thick(on(-thrown / 2));
    thick.lineTo(on(thrown / 2));
    row.Add(Lined(Mark::Throw, thick, Palette::Black, 1));
    if (Uses<&P::faultDownSide>(row) && !SideEntry(row.phase.faultDownSide, {}).empty()) {
        const double down = row.phase.faultDownSide == DownSide::Right ? 1 : -1;
        QPainterPath ground(on(thrown / 2) + QPointF(down * 0.5, 0));
        ground.lineTo(on(thrown / 2) + QPointF(down * HalfSymbol, 0));
        ground.moveTo(on(-thrown / 2) - QPointF(down * 0.5, 0));
        ground.lineTo(on(-thrown / 2) - QPointF(down * HalfSymbol, 0));
        row.Add(Lined(Mark::Ground, ground, Palette::Grey, 0.5));
    }
}

void AddScarp(const Row& row) {
    const double top = row.columns.OnMap(static_cast<double>(row.phase.scarpTop));
    const double base = row.columns.OnMap(static_cast<double>(row.phase.scarpBase));
    QPainterPath wedge(QPointF(top, row.ground - HeightOf(row)));
    wedge.lineTo(base, row.ground);
    wedge.lineTo(top, row.ground);
    wedge.closeSubpath();
    row.Add({Mark::Scarp, wedge, {Palette::Ink, 0.25, ColourOf(row.phase.eruptionType)}});
    AddOffMap(row, row.phase.scarpTop);
    AddOffMap(row, row.phase.scarpBase);
}

void AddErosion(const Row& row) {
    constexpr int most = 100;  // waves that can be told apart
    const int waves = std::clamp<int>(row.phase.erosionCycles, 1, most);
    row.Add(Wave({row.columns.mapStart, row.top + Sheet::RowHeight / 2},
                 row.columns.mapEnd - row.columns.mapStart, waves));
    row.Write(row.phase.erosionCycles == 1 ? "1 cycle" : Label(row.phase.erosionCycles) + " cycles",
              row.columns.mapEnd - 1, row.top + 2.4, Anchor::Right, Sheet::Small);
}

// The height of a flow's bar; 0 if its ceiling cannot be computed.
double BarHeight(const Row& row, int flow) {
    constexpr double highest = 1.15;  // share of the ceiling; longer durations look the same
    try {
        const double ceiling = LongestFlow(row.phase, flow);
        const double duration = std::max(0.0, static_cast<double>(row.flows[flow]));
        const double share = ceiling > 0 ? duration / ceiling : duration > 0 ? highest : 0;
        return std::min(share, highest) * LargestSymbol;
    } catch (const std::overflow_error&) {
        return 0;
    }
}

void AddFlows(const Row& row) {
    const int count = CappedFlowCount(row.phase);
    if (count < 1) {
        return;
    }
    const double pitch = std::min(Sheet::WidestBar, row.columns.flowsWidth / count);
    QPainterPath ceiling;
    ceiling.addRect(row.columns.flowsStart, row.ground - LargestSymbol, pitch * count,
                    LargestSymbol);
    row.Add(Filled(Mark::Frame, ceiling, Palette::Shade));
    QPainterPath bars;
    for (int flow = 1; flow <= count; ++flow) {
        const double x = row.columns.flowsStart + (flow - 0.5) * pitch;
        bars.moveTo(x, row.ground);
        bars.lineTo(x, row.ground - BarHeight(row, flow));
    }
    row.Add(Lined(Mark::Flows, bars, ColourOf(row.phase.eruptionType), pitch * 0.75));
}

void AddEruption(const Row& row) {
    AddStructure(row);
    if (Uses<&P::directedFlag>(row) && row.phase.directedFlag == 1) {
        const double room = row.columns.mapEnd - row.Vent();
        const int away = row.phase.wind < 0 ? 1 : -1;
        row.Add(BlastMark(row.Foot(), room < BlastWidth                                ? -1
                                      : row.Vent() - row.columns.mapStart < BlastWidth ? 1
                                                                                       : away));
    }
    row.Add(SymbolOf(row.phase.eruptionType, row.Foot(), HeightOf(row)));
    if (Uses<&P::burstFlag>(row) && row.phase.burstFlag == 1) {
        row.Add(BurstMark(row.Foot(), HeightOf(row)));
    }
}

template <auto Member>
void AddNumber(const Row& row, double end) {
    if (Uses<Member>(row)) {
        row.Write(Label(static_cast<double>(row.phase.*Member)), end, row.FirstLine(1),
                  Anchor::Right);
    }
}

void AddRefusal(const Row& row, const Refusal& refusal) {
    constexpr double mark = 4;
    const double x = row.columns.refusalsStart;
    row.Add(RefusedMark({x + 1.3, row.top + Sheet::RowHeight / 2}));
    QString text = refusal.message;
    if (refusal.faults > 1) {
        text += " +" + Label(refusal.faults - 1);
    }
    WriteLines(row, row.lettering.Wrapped(text, row.columns.refusalsWidth - mark, Sheet::Small),
               x + mark, Sheet::Small);
}

void AddEvent(const Row& row) {
    if (Uses<&P::erosionCycles>(row)) {
        AddErosion(row);
    }
    if (Uses<&P::scarpTop>(row)) {
        AddGround(row);
        AddScarp(row);
    }
    if (Uses<&P::faultDip>(row)) {
        AddFault(row);
    } else if (Uses<&P::ventLocation>(row)) {
        AddGround(row);
        AddEruption(row);
    }
    if (Uses<&P::ventLocation>(row)) {
        AddOffMap(row, row.phase.ventLocation);
    }
    if (Uses<&P::wind>(row)) {
        AddWind(row);
    }
    if (HasFlows(row.phase)) {
        AddFlows(row);
    }
    AddNumber<&P::massFlux>(row, row.columns.fluxEnd);
    AddNumber<&P::burstCount>(row, row.columns.burstsEnd);
}

}  // namespace

Group RowOf(const EditorState& record, int number, const Refusal& refusal, const Columns& columns,
            Lettering& lettering) {
    constexpr double top = 0;
    const PhaseRecord& phase = record.LoadedPhases[number];
    Group group{
        number, QString("Phase %1: %2").arg(number).arg(TypeName(phase).join(u' ')), {}, {}};
    const Row row{phase,
                  record.LoadedFlows[number],
                  columns,
                  top,
                  top + Sheet::RowHeight - Sheet::Ground,
                  lettering,
                  group};
    AddName(row, number);
    AddEvent(row);
    if (refusal.faults > 0) {
        AddRefusal(row, refusal);
    }
    return group;
}
