#include "draw/Layout.h"

#include <algorithm>

#include "draw/Axis.h"
#include "draw/Head.h"
#include "draw/Legend.h"
#include "draw/Rows.h"

namespace {

constexpr double AroundRows = Sheet::AxisHead + Sheet::AxisFoot + Sheet::Margin;
constexpr double LegendGap = 2;

// What the pages are made of.
struct Parts {
    const EditorState& record;
    QString name;
    Lettering lettering = {};
    Contents contents = {};
    Columns columns = {};
    std::vector<Group> rows = {};
    Legend legend = {};

    int Count() const { return static_cast<int>(rows.size()); }
    Head HeadOn(PageNumber page) { return HeadOf(record, name, page, columns, lettering); }
};

std::vector<Refusal> RefusalsOf(const EditorState& record) {
    std::vector<Refusal> refusals;
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        refusals.push_back(
            RefusalOf(record.LoadedPhases[i], record.LoadedFlows[i], ScaleOf(record.RecordScale)));
    }
    return refusals;
}

void MakeParts(double width, Parts& parts) {
    const EditorState& record = parts.record;
    const std::vector<Refusal> refusals = RefusalsOf(record);
    parts.contents = ContentsOf(record);
    parts.contents.refused = std::any_of(refusals.begin(), refusals.end(),
                                         [](const Refusal& each) { return each.faults > 0; });
    parts.columns = ColumnsOf(record, parts.contents, width, parts.lettering);
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        parts.rows.push_back(RowOf(record, i, refusals[static_cast<std::size_t>(i - 1)],
                                   parts.columns, parts.lettering));
    }
    parts.legend = LegendOf(record, parts.rows, parts.columns, parts.lettering);
}

// Adds a group that is laid out from 0 downwards.
void Place(Group group, double top, Page& page) {
    MoveDown(group, top);
    page.groups.push_back(std::move(group));
}

// Adds the rows from `first` up to but not including `end`, counted from 0, from the bottom up, and
// the axes around them. Returns the lower edge of the axes.
double AddRows(Parts& parts, int first, int end, double top, Page& page) {
    const double rowsTop = top + Sheet::AxisHead;
    const double bottom = rowsTop + std::max(1, end - first) * Sheet::RowHeight;
    page.groups.push_back(AxesOf(rowsTop, bottom, parts.columns, parts.contents, parts.lettering));
    for (int i = first; i < end; ++i) {
        Place(std::move(parts.rows[static_cast<std::size_t>(i)]),
              bottom - (i - first + 1) * Sheet::RowHeight, page);
    }
    return bottom + Sheet::AxisFoot;
}

// A page with up to `capacity` rows from `first` on; the first page has the legend.
Page MakePage(Parts& parts, PageNumber number, int first, int capacity) {
    Page page;
    Head head = parts.HeadOn(number);
    page.groups.push_back(std::move(head.group));
    double y = AddRows(parts, first, std::min(parts.Count(), first + capacity), head.bottom, page);
    if (number.number == 1) {
        Place(std::move(parts.legend.group), y + LegendGap, page);
        y += LegendGap + parts.legend.height;
    }
    page.size = {parts.columns.width, y + Sheet::Margin};
    return page;
}

}  // namespace

Drawing DrawRecord(const EditorState& record, std::string_view name, SheetSize sheet) {
    Parts parts{record, Readable(name)};
    MakeParts(sheet.width, parts);
    const double firstHead =
        parts.HeadOn({1, 2}).bottom + LegendGap + parts.legend.height + AroundRows;
    const double nextHead = parts.HeadOn({2, 2}).bottom + AroundRows;
    const double tallest =
        std::max(sheet.tallest, std::max(firstHead, nextHead) + 2 * Sheet::RowHeight);
    const auto fit = [tallest](double head) {
        return static_cast<int>((tallest - head) / Sheet::RowHeight);
    };
    const int next = fit(nextHead);
    int capacity = fit(firstHead);
    const int pages = 1 + std::max(0, parts.Count() - capacity + next - 1) / next;

    Drawing drawing{parts.name,
                    SummaryOf(record) + ReferenceOf(record) +
                        ". Each row is a phase, the first at the bottom; the location on the map "
                        "runs from left to right.",
                    {}};
    for (int number = 1, first = 0; number <= pages; ++number) {
        drawing.pages.push_back(MakePage(parts, {number, pages}, first, capacity));
        first += capacity;
        capacity = next;
        if (pages > 1) {
            drawing.pages.back().size.setHeight(tallest);
        }
    }
    return drawing;
}
