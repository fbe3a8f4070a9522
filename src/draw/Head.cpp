#include "draw/Head.h"

#include <algorithm>

namespace {

constexpr TextStyle Heading{3.8};
constexpr double HeadGap = 3;

QString ScaleName(Integer scale) {
    switch (scale) {
        case ScaleCode::Large: return "scale 100 (large)";
        case ScaleCode::Normal: return "scale 20 (normal)";
        case ScaleCode::Small: return "scale 4 (small)";
        case ScaleCode::NotSet: return "scale not set, drawn as 20";
        default: return "scale " + Label(scale);
    }
}

// A very long name is slow to measure, and cannot fit anyway.
QString Shortened(const QString& text) {
    constexpr qsizetype most = 1000;
    return text.size() <= most ? text : text.left(most / 2) + text.right(most / 2);
}

// A text that begins or ends at x.
struct PlacedText {
    QString text;
    double x;
    Anchor anchor;
    TextStyle style;
};

// Returns the lower edge of the line: letters of some scripts are taller than the line, and the
// next one must not touch them.
double AddLine(const std::vector<PlacedText>& texts, double top, double height, Group& group,
               Lettering& lettering) {
    double above = height * 0.75;
    for (const PlacedText& each : texts) {
        const Text text = lettering.Put(each.text, {}, each.anchor, each.style);
        above = std::max(above, -text.room.top());
    }
    double bottom = top + above + height * 0.25;
    for (const PlacedText& each : texts) {
        group.texts.push_back(
            lettering.Put(each.text, {each.x, top + above}, each.anchor, each.style));
        bottom = std::max(bottom, group.texts.back().room.bottom());
    }
    return bottom;
}

}  // namespace

QString ReferenceOf(const EditorState& record) {
    return record.StratFile == NoFileText ? QString() : Readable(record.StratFile);
}

QString SummaryOf(const EditorState& record) {
    const int phases = record.LoadedPhaseCount;
    return (phases == 1 ? "1 phase, " : Label(phases) + " phases, ") +
           ScaleName(record.RecordScale) +
           (ReferenceOf(record).isEmpty() ? ", no stratigraphic file" : ", stratigraphic file ");
}

Head HeadOf(const EditorState& record, const QString& name, PageNumber page, const Columns& columns,
            Lettering& lettering) {
    constexpr double left = Sheet::Margin;
    constexpr double gap = 3;
    const double right = columns.End();
    const TextStyle& style = page.number == 1 ? Heading : Sheet::Plain;
    std::vector<PlacedText> line;
    double room = right - left;
    if (page.pages > 1) {
        const QString label = "page " + Label(page.number) + " of " + Label(page.pages);
        line.push_back({label, right, Anchor::Right, Sheet::Quiet});
        room -= lettering.Width(label, Sheet::Quiet) + gap;
    }
    line.push_back({lettering.Elided(Shortened(name), Qt::ElideMiddle, room, style), left,
                    Anchor::Left, style});
    Head head;
    head.bottom = AddLine(line, Sheet::Margin, style.size * 1.3, head.group, lettering);
    if (page.number == 1) {
        const QString summary = SummaryOf(record);
        const QString file =
            lettering.Elided(Shortened(ReferenceOf(record)), Qt::ElideLeft,
                             right - left - lettering.Width(summary, Sheet::Plain), Sheet::Plain);
        head.bottom = AddLine({{summary + file, left, Anchor::Left, Sheet::Plain}}, head.bottom,
                              Sheet::Plain.size * 1.5, head.group, lettering);
    }
    head.bottom += HeadGap;
    return head;
}
