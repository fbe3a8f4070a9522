#include "draw/Columns.h"

#include <algorithm>

#include "display/Limits.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

using P = PhaseRecord;

template <class Visit>
void ForEachPhase(const EditorState& record, Visit visit) {
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        visit(record.LoadedPhases[i]);
    }
}

double WidestOf(const QStringList& lines, Lettering& lettering, const TextStyle& style) {
    double widest = 0;
    for (const QString& line : lines) {
        widest = std::max(widest, lettering.Width(line, style));
    }
    return widest;
}

double WidestName(const EditorState& record, Lettering& lettering) {
    double widest = lettering.Width("Phase", Sheet::Quiet);
    ForEachPhase(record, [&](const PhaseRecord& phase) {
        widest = std::max(widest, WidestOf(TypeName(phase), lettering, Sheet::Plain));
    });
    return widest;
}

template <auto Member>
double WidestNumber(const EditorState& record, Lettering& lettering) {
    double widest = 0;
    ForEachPhase(record, [&](const PhaseRecord& phase) {
        if (Uses(phase, FieldOf(Member))) {
            widest = std::max(
                widest, lettering.Width(Label(static_cast<double>(phase.*Member)), Sheet::Plain));
        }
    });
    return widest;
}

// Sets the columns right of the map, starting with the last, and where the map ends.
void SetRightColumns(const EditorState& record, const Contents& contents, Lettering& lettering,
                     Columns& columns) {
    constexpr double gap = 2;
    double end = columns.End();
    const auto take = [&end](bool used, double room) {
        const double taken = end;
        end -= used ? room + gap : 0;
        return taken;
    };
    columns.refusalsWidth = std::min(30.0, columns.width / 5);
    columns.refusalsStart = take(contents.refused, columns.refusalsWidth) - columns.refusalsWidth;
    columns.flowsWidth =
        std::clamp(Sheet::WidestBar * contents.flows, lettering.Width("durations", Sheet::Quiet),
                   std::min(26.0, columns.width / 7));
    columns.flowsStart = take(contents.flows > 0, columns.flowsWidth) - columns.flowsWidth;
    columns.burstsEnd =
        take(contents.bursts, std::max(WidestNumber<&P::burstCount>(record, lettering),
                                       lettering.Width("Bursts,", Sheet::Quiet)));
    columns.fluxEnd = take(contents.flux, std::max(WidestNumber<&P::massFlux>(record, lettering),
                                                   lettering.Width("Mass", Sheet::Quiet)));
    columns.mapEnd = end + gap - Sheet::MapGap;
}

}  // namespace

double Columns::PlaceOf(double location) const {
    const double share = (MapFactor(scale) * location - MapStart) / (MapEnd - MapStart);
    return mapStart + share * (mapEnd - mapStart);
}

double Columns::OnMap(double location) const {
    return std::clamp(PlaceOf(location), mapStart, mapEnd);
}

QStringList TypeName(const PhaseRecord& phase) {
    if (const TypeEntry* const entry = EntryOf(phase)) {
        QString name =
            QString::fromUtf8(entry->name.data(), static_cast<qsizetype>(entry->name.size()));
        return name.replace(u'/', "/ ").split(u' ');
    }
    if (phase.eruptionType == EruptionType::None) {
        return {"No type"};
    }
    return {"Unknown", "type " + Label(phase.eruptionType)};
}

Contents ContentsOf(const EditorState& record) {
    Contents contents;
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        const PhaseRecord& phase = record.LoadedPhases[i];
        contents.flux |= Uses(phase, FieldOf(&P::massFlux));
        contents.bursts |= Uses(phase, FieldOf(&P::burstCount));
        if (HasFlows(phase)) {
            contents.flows = std::max(contents.flows, CappedFlowCount(phase));
        }
    }
    return contents;
}

Columns ColumnsOf(const EditorState& record, const Contents& contents, double width,
                  Lettering& lettering) {
    constexpr double timeAxis = 3.5;
    Columns columns{};
    columns.width = width;
    columns.scale = ScaleOf(record.RecordScale);
    columns.numberEnd =
        Sheet::Margin + timeAxis + lettering.Width(Label(record.LoadedPhaseCount), Sheet::Plain);
    columns.nameStart = columns.numberEnd + 1.6;
    columns.mapStart = columns.nameStart + WidestName(record, lettering) + Sheet::MapGap;
    SetRightColumns(record, contents, lettering, columns);
    return columns;
}
