#include "draw/Legend.h"

#include <algorithm>
#include <array>
#include <optional>

#include "draw/Symbols.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

using P = PhaseRecord;

constexpr double SymbolWidth = 15.5;
constexpr double EntryHeight = 6.4;
constexpr double Foot = 5.2;  // of a symbol, below the top of its entry

struct Entry {
    QString text;
    std::vector<Shape> shapes;  // from the top left corner of the entry
};

using Shapes = std::vector<Shape>;

constexpr QPointF Middle{SymbolWidth / 2, Foot};

// Whether `visit` returns true for any phase.
template <class Visit>
bool AnyPhase(const EditorState& record, Visit visit) {
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        if (visit(record.LoadedPhases[i])) {
            return true;
        }
    }
    return false;
}

bool Occurs(const std::vector<Group>& rows, Mark mark) {
    return std::any_of(rows.begin(), rows.end(), [mark](const Group& row) {
        return std::any_of(row.shapes.begin(), row.shapes.end(),
                           [mark](const Shape& shape) { return shape.mark == mark; });
    });
}

QString Named(std::string_view name) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

Shapes FaultSample() {
    QPainterPath line(Middle + QPointF(1, -4.6));
    line.lineTo(Middle + QPointF(-1, 0.4));
    QPainterPath thick(Middle + QPointF(0.4, -3.1));
    thick.lineTo(Middle + QPointF(-0.4, -1.1));
    return {Lined(Mark::FaultLine, line, Palette::Black, 0.35),
            Lined(Mark::Throw, thick, Palette::Black, 1)};
}

Shapes ScarpSample(QRgb colour) {
    QPainterPath wedge(Middle - QPointF(3.5, 3.6));
    wedge.lineTo(Middle + QPointF(3.5, 0));
    wedge.lineTo(Middle - QPointF(3.5, 0));
    wedge.closeSubpath();
    return {{Mark::Scarp, wedge, {Palette::Ink, 0.25, colour}}};
}

Shapes DownSample() {
    QPainterPath ground(Middle + QPointF(-4.5, -3.4));
    ground.lineTo(Middle + QPointF(-0.5, -3.4));
    ground.moveTo(Middle + QPointF(0.5, -1.4));
    ground.lineTo(Middle + QPointF(4.5, -1.4));
    return {Lined(Mark::Ground, ground, Palette::Grey, 0.5)};
}

Shapes FlowSample() {
    QPainterPath ceiling;
    ceiling.addRect(QRectF(Middle - QPointF(2.4, 4.6), QSizeF(4.8, 4.6)));
    QPainterPath bars;
    for (const auto& [x, height] : {std::pair{-1.6, 2.6}, {0.0, 4.2}, {1.6, 1.4}}) {
        bars.moveTo(Middle + QPointF(x, 0));
        bars.lineTo(Middle + QPointF(x, -height));
    }
    return {Filled(Mark::Frame, ceiling, Palette::Shade),
            Lined(Mark::Flows, bars, Palette::Grey, 1.2)};
}

// The symbol of a type, or a sample of what is drawn instead.
Shapes SampleOf(const TypeEntry& type) {
    PhaseRecord phase;
    phase.eruptionType = type.eruptionType;
    phase.tectonicKind = type.tectonicKind.value_or(Integer{0});
    if (Uses(phase, FieldOf(&P::faultDip))) {
        return FaultSample();
    }
    if (Uses(phase, FieldOf(&P::erosionCycles))) {
        return {Wave(Middle - QPointF(4.5, 2.2), 9, 3)};
    }
    if (Uses(phase, FieldOf(&P::scarpTop))) {
        return ScarpSample(ColourOf(type.eruptionType));
    }
    return {SymbolOf(type.eruptionType, Middle, 4.2)};
}

QString NameOf(const TypeEntry& type) {
    switch (type.eruptionType) {
        case EruptionType::Tectonic:
            return type.tectonicKind == TectonicKind::Faulting ? "Faulting; thick part: throw"
                                                               : "Erosion; one wave per cycle";
        case EruptionType::Collapse: return "Sector Collapse, top to base";
        default: return Named(type.name);
    }
}

bool IsEntryOf(const PhaseRecord& phase, const TypeEntry& type) {
    const TypeEntry* const entry = EntryOf(phase);
    return entry != nullptr && entry->name == type.name;
}

std::vector<Entry> TypesIn(const EditorState& record) {
    std::vector<Entry> entries;
    for (const TypeEntry& type : TypeEntries) {
        if (AnyPhase(record,
                     [&type](const PhaseRecord& phase) { return IsEntryOf(phase, type); })) {
            entries.push_back({NameOf(type), SampleOf(type)});
        }
    }
    return entries;
}

// Symbols of three strengths, without the colour of a type.
Shapes StrengthSample() {
    Shapes shapes;
    double x = 0;
    for (const Single strength : {0.1F, 0.5F, 2.0F}) {
        Shape symbol = SymbolOf(EruptionType::Strombolian, {0, Foot}, SymbolHeight(strength));
        symbol.path.translate(x - symbol.path.boundingRect().left(), 0);
        symbol.style.fill = 0xFFFFFFFF;
        x = symbol.path.boundingRect().right() + 0.5;
        shapes.push_back(symbol);
    }
    return shapes;
}

struct MarkEntry {
    Mark mark;
    const char* text;
    Shapes (*shapes)();
};

constexpr std::array MarkEntries{
    MarkEntry{Mark::Wind, "Wind, by speed",
              [] { return Shapes{Arrow(Mark::Wind, QPointF(1.5, 3.4), 8, Palette::Ink)}; }},
    MarkEntry{Mark::Flows, "Flow durations against their ceilings", FlowSample},
    MarkEntry{Mark::Caldera, "Caldera",
              [] { return Shapes{CalderaMark(Middle - QPointF(0, 2.5), 0)}; }},
    MarkEntry{Mark::Diatreme, "Diatreme",
              [] { return Shapes{DiatremeMark(Middle - QPointF(0, 2.5))}; }},
    MarkEntry{Mark::Blast, "Directed blast",
              [] { return Shapes{BlastMark(Middle - QPointF(2, 1), 1)}; }},
    MarkEntry{Mark::Bursts, "Explosive bursts", [] { return Shapes{BurstMark(Middle, 1.8)}; }},
    MarkEntry{Mark::Ground, "Side thrown down", DownSample},
    MarkEntry{Mark::OffMap, "Off the map",
              [] { return Shapes{Arrow(Mark::OffMap, QPointF(4, 3.2), 3.4, Palette::Vermilion)}; }},
    MarkEntry{Mark::Refused, "Cannot be saved; +n: further reasons",
              [] { return Shapes{RefusedMark(Middle - QPointF(0, 2))}; }},
};

std::vector<Entry> EntriesOf(const EditorState& record, const std::vector<Group>& rows) {
    std::vector<Entry> entries = TypesIn(record);
    if (AnyPhase(record,
                 [](const PhaseRecord& phase) { return Uses(phase, FieldOf(&P::strength)); })) {
        entries.push_back({"Size: strength 0.1, 0.5, 2", StrengthSample()});
    }
    for (const MarkEntry& entry : MarkEntries) {
        if (Occurs(rows, entry.mark)) {
            entries.push_back({QString(entry.text), entry.shapes()});
        }
    }
    return entries;
}

void AddEntry(const Entry& entry, QPointF corner, Group& group, Lettering& lettering) {
    for (Shape shape : entry.shapes) {
        shape.path.translate(corner);
        group.shapes.push_back(shape);
    }
    group.texts.push_back(lettering.Put(entry.text, corner + QPointF(SymbolWidth + 1, 3.9),
                                        Anchor::Left, Sheet::Small));
}

}  // namespace

Legend LegendOf(const EditorState& record, const std::vector<Group>& rows, const Columns& columns,
                Lettering& lettering) {
    const std::vector<Entry> entries = EntriesOf(record, rows);
    double widest = 1;
    for (const Entry& entry : entries) {
        widest = std::max(widest, SymbolWidth + 1 + lettering.Width(entry.text, Sheet::Small) + 3);
    }
    const double room = columns.End() - Sheet::Margin;
    const int across = std::max(1, static_cast<int>(room / widest));
    const int count = static_cast<int>(entries.size());
    const int down = (count + across - 1) / across;
    Legend legend{{}, down * EntryHeight};
    for (int i = 0; i < count; ++i) {
        const int column = i / down;
        const QPointF corner(Sheet::Margin + column * (room / across), i % down * EntryHeight);
        AddEntry(entries[static_cast<std::size_t>(i)], corner, legend.group, lettering);
    }
    return legend;
}
