// The layout of drawings, and their output as SVG and PNG.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QXmlStreamReader>
#include <algorithm>
#include <limits>
#include <memory>
#include <random>
#include <set>

#include "draw/Columns.h"
#include "draw/Head.h"
#include "draw/Layout.h"
#include "draw/Lettering.h"
#include "draw/Paint.h"
#include "draw/Svg.h"
#include "record/RecordFile.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

namespace {

constexpr double AnyHeight = 1e9;

// A record without phases at first.
struct TestRecord {
    std::unique_ptr<EditorState> state = std::make_unique<EditorState>();

    TestRecord() { state->RecordScale = ScaleCode::Normal; }

    // Adds a phase of this type in the middle of the map, with flow durations from 21 upwards. Save
    // would accept it, except a collapse, whose scarp must be set first.
    PhaseRecord& Add(Integer type) {
        const int number = ++state->LoadedPhaseCount;
        PhaseRecord& phase = state->LoadedPhases[number];
        phase = {.ventLocation = static_cast<Single>(0.64 * state->RecordScale),
                 .eruptionType = type,
                 .strength = 0.2F,
                 .massFlux = 20,
                 .calderaStyle = CalderaStyle::Mazama,
                 .burstCount = 5,
                 .erosionCycles = 3,
                 .flowLength = 6};
        for (int flow = 1; flow <= MaxFlows; ++flow) {
            state->LoadedFlows[number][flow] = static_cast<Single>(20 + flow);
        }
        return phase;
    }
};

// The shapes with this mark in the row of a phase; for phase 0, outside the rows.
std::vector<Shape> ShapesOf(const Drawing& drawing, int phase, Mark mark) {
    std::vector<Shape> shapes;
    for (const Page& page : drawing.pages) {
        for (const Group& group : page.groups) {
            std::copy_if(
                group.shapes.begin(), group.shapes.end(), std::back_inserter(shapes),
                [&](const Shape& shape) { return group.phase == phase && shape.mark == mark; });
        }
    }
    return shapes;
}

// What a text covers if the font is a tenth wider.
QRectF WideRoom(const Text& text) {
    const double more = text.room.width() * 0.1;
    const double left = text.anchor == Anchor::Left    ? 0
                        : text.anchor == Anchor::Right ? more
                                                       : more / 2;
    return text.room.adjusted(-left, 0, more - left, 0);
}

Drawing Draw(const TestRecord& record) {
    return DrawRecord(*record.state, "test.rec", {180, AnyHeight});
}

// A record of random values that a file can hold but Save would mostly refuse.
TestRecord RandomRecord(int phases) {
    std::mt19937 random(static_cast<unsigned>(phases));
    TestRecord record;
    const auto any = [&random](auto... values) {
        const std::array all{static_cast<double>(values)...};
        return all[random() % all.size()];
    };
    for (int i = 0; i < phases; ++i) {
        PhaseRecord& phase =
            record.Add(static_cast<Integer>(any(-1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 42, -32768)));
        ForEachField(phase, [&](auto index, auto& value) {
            if (PhaseFields[index].name != "eruptionType") {
                using Value = std::remove_reference_t<decltype(value)>;
                const double most = std::numeric_limits<Value>::max();
                value = static_cast<Value>(any(0, 1, 1, 2, 12, -7, 24.6, 50, -most, most, 100.5));
            }
        });
        phase.burstCount = static_cast<Integer>(HasFlows(phase) ? any(0, 1, 7, 100, -32768)
                                                                : any(0, 3, -32768, 32767));
    }
    return record;
}

// Expects texts not to overlap, even in a wider font, and texts and shapes to be inside the page.
void ExpectInPlace(const Page& page) {
    const QRectF paper(QPointF(0, 0), page.size);
    std::vector<std::pair<QRectF, QString>> rooms;
    for (const Group& group : page.groups) {
        for (const Shape& shape : group.shapes) {
            const double pen = shape.style.width / 2;
            EXPECT_TRUE(paper.contains(shape.path.boundingRect().adjusted(-pen, -pen, pen, pen)))
                << "phase " << group.phase << " mark " << static_cast<int>(shape.mark);
        }
        for (const Text& text : group.texts) rooms.emplace_back(WideRoom(text), text.text);
    }
    std::sort(rooms.begin(), rooms.end(),
              [](const auto& a, const auto& b) { return a.first.top() < b.first.top(); });
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        const auto& [room, text] = rooms[i];
        EXPECT_TRUE(paper.contains(room)) << text.toStdString();
        for (std::size_t j = i + 1; j < rooms.size() && rooms[j].first.top() < room.bottom(); ++j) {
            EXPECT_FALSE(room.intersects(rooms[j].first))
                << text.toStdString() << " and " << rooms[j].second.toStdString();
        }
    }
}

// Expects each phase once, from the bottom upwards, and an axis on each page.
void ExpectWhole(const Drawing& drawing, int phases) {
    int next = 1;
    for (const Page& page : drawing.pages) {
        double previous = page.size.height();
        bool axis = false;
        for (const Group& group : page.groups) {
            axis = axis || std::any_of(group.texts.begin(), group.texts.end(),
                                       [](const Text& text) { return text.text == "Time"; });
            if (group.phase != 0) {
                EXPECT_EQ(group.phase, next++);
                EXPECT_LT(group.texts.front().at.y(), previous);
                previous = group.texts.front().at.y();
            }
        }
        EXPECT_TRUE(axis);
    }
    EXPECT_EQ(next, phases + 1);
}

}  // namespace

TEST(DrawTest, NoTextOverlapsAnotherOrLeavesThePage) {
    const std::string name(5000, 'W');
    std::string stacked = "e";
    for (int i = 0; i < 30; ++i) {
        stacked += "\xCC\x81";  // one more acute accent above the e
    }
    struct Row {
        int phases;
        std::string name, reference;
        Integer scale;
        double width, tallest;
    };
    const Row rows[]{
        {0, "a", "", 0, NarrowestSheet, AnyHeight},
        {0, name, name, 4, NarrowestSheet, 170},
        {1, stacked + ".rec", stacked, 100, 180, AnyHeight},
        {40, "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E.rec", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xFF",
         -32768, 180, 255},
        {40, "a\nb\xE2\x80\xAE.rec", stacked + name, 32767, NarrowestSheet, 170},
        {500, name, "C:\\a.str", 20, 180, 255},
        {500, "b.rec", name, 7, 2000, AnyHeight},
        {9, "b.rec", "", 20, 180, 1},  // less than a row needs
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("row " + std::to_string(&row - rows));
        const TestRecord record = RandomRecord(row.phases);
        record.state->RecordScale = row.scale;
        record.state->StratFile = row.reference;
        const Drawing drawing = DrawRecord(*record.state, row.name, {row.width, row.tallest});
        ExpectWhole(drawing, row.phases);
        EXPECT_EQ(drawing.pages.size() > 1, row.tallest < AnyHeight && row.phases > 1);
        for (const Page& page : drawing.pages) ExpectInPlace(page);
    }
}

TEST(DrawTest, ARowShowsOnlyWhatTheTypeUses) {
    struct Row {
        PhaseRecord phase;     // its fields other than 0 replace those of a good phase
        std::set<Mark> marks;  // except the frame
    };
    using namespace EruptionType;
    using enum Mark;
    const Row rows[]{
        {{.eruptionType = None, .wind = 5}, {}},
        {{.eruptionType = 42, .wind = 5}, {}},
        {{.eruptionType = Vulcanian}, {Symbol}},
        {{.eruptionType = Vulcanian, .wind = -5, .directedFlag = 1, .burstFlag = 1},
         {Symbol, Wind, Blast}},
        {{.eruptionType = Vulcanian, .calderaFlag = 1}, {Symbol, Diatreme}},
        {{.eruptionType = Vulcanian, .strength = 0.3F, .calderaFlag = 1}, {Symbol, Diatreme}},
        {{.eruptionType = Vulcanian, .strength = 0.4F, .calderaFlag = 1}, {Symbol, Caldera}},
        {{.eruptionType = Strombolian, .calderaFlag = 1, .directedFlag = 1}, {Symbol, Diatreme}},
        {{.eruptionType = Strombolian, .strength = 0.3F, .calderaFlag = 1}, {Symbol}},
        {{.eruptionType = Hawaiian, .calderaFlag = 1}, {Symbol, Flows}},
        {{.eruptionType = Pelean, .burstCount = -1}, {Symbol}},
        {{.eruptionType = Plinian, .calderaFlag = 1}, {Symbol, Caldera}},
        {{.eruptionType = Plinian, .strength = 1.5F}, {Symbol, Refused}},
        {{.eruptionType = Collapse, .wind = 9, .scarpTop = 3, .scarpBase = 9}, {Scarp}},
        {{.eruptionType = Collapse, .scarpTop = 3, .scarpBase = 99}, {Scarp, OffMap, Refused}},
        {{.eruptionType = Fumarolic, .calderaFlag = 1, .burstFlag = 1}, {Symbol, Bursts}},
        {{.ventLocation = 0.5F, .eruptionType = Fumarolic}, {Symbol, OffMap, Refused}},
        {{.faultDownSide = 1}, {Erosion}},
        {{.tectonicKind = 1, .faultMagnitude = 4, .faultDownSide = 1}, {FaultLine, Throw, Ground}},
        {{.tectonicKind = 1, .faultDip = 4, .faultDownSide = 1}, {FaultLine}},
        {{.tectonicKind = 1}, {FaultLine, Refused}},
    };
    for (const Row& row : rows) {
        TestRecord record;
        PhaseRecord& phase = record.Add(row.phase.eruptionType);
        ForEachField(phase, [&row](auto index, auto& value) {
            const Single other = ValueOf(row.phase, PhaseFields[index]);
            value = other == 0 ? value : static_cast<std::decay_t<decltype(value)>>(other);
        });
        const Drawing drawing = Draw(record);
        std::set<Mark> drawn;
        for (int mark = static_cast<int>(Symbol); mark <= static_cast<int>(Refused); ++mark) {
            if (!ShapesOf(drawing, 1, static_cast<Mark>(mark)).empty()) {
                drawn.insert(static_cast<Mark>(mark));
            }
        }
        EXPECT_EQ(drawn, row.marks) << "row " << &row - rows;
    }
    EXPECT_EQ(TypeName({.eruptionType = EruptionType::None}), QStringList("No type"));
}

TEST(DrawTest, UnusedColumnsTakeNoRoom) {
    Lettering lettering;
    const TestRecord record;
    const double whole = ColumnsOf(*record.state, {}, 180, lettering).mapEnd;
    for (const Contents& used :
         {Contents{true}, Contents{false, true}, Contents{false, false, 1}}) {
        EXPECT_LT(ColumnsOf(*record.state, used, 180, lettering).mapEnd, whole);
    }
}

TEST(DrawTest, TheLegendListsOnlyWhatOccurs) {
    TestRecord record;
    record.Add(EruptionType::Tectonic);
    record.Add(EruptionType::Hawaiian);
    const Drawing drawing = Draw(record);
    QStringList legend;
    for (const Text& text : drawing.pages[0].groups.back().texts) legend += text.text;
    EXPECT_EQ(legend.join("; ").toStdString(),
              "Hawaiian; Erosion; one wave per cycle; Flow durations against their ceilings");
}

TEST(DrawTest, ShapesAndTextsArePaintedAtTheirPlaces) {
    QPainterPath box;
    box.addRect(10, 5, 20, 2.5);
    QPainterPath line(QPointF(2, 2));
    line.lineTo(2, 8);
    Lettering lettering;
    const Group group{
        1,
        {},
        {{Mark::Symbol, box, {0, 0, 0xFF0000FF}}, {Mark::Wind, line, {0xFF123456, 0.5, 0}}},
        {lettering.Put("H", {40, 12}, Anchor::Left, {5}),
         lettering.Put("M", {50, 12}, Anchor::Middle, {5, 0xFF00FF00})}};
    const QImage image = QImage::fromData(PngOf({{}, {}, {{{70, 20.5}, {group}}}}, 254));
    EXPECT_EQ(image.size(), QSize(700, 205));
    EXPECT_EQ(image.dotsPerMeterX(), 10000);
    // The rectangle around all pixels of a colour.
    const auto ink = [&image](QRgb colour) {
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                found |= image.pixel(x, y) == colour ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return found;
    };
    EXPECT_EQ(ink(0xFF0000FF), QRect(100, 50, 200, 25));
    EXPECT_EQ(ink(0xFF123456), QRect(18, 20, 4, 60));  // half-covered pixels have another colour
    EXPECT_NEAR(ink(0xFF00FF00).center().x(), 500, 4);
    EXPECT_NEAR(ink(0xFF00FF00).bottom(), 120, 1);
    EXPECT_NEAR(ink(0xFF00FF00).height(), 36, 4);
}

TEST(DrawTest, PagesHoldAsManyRowsAsFit) {
    struct Row {
        int phases;
        double tallest;
        std::vector<int> counts;
    };
    const Row rows[]{{0, AnyHeight, {0}},       {3, AnyHeight, {3}},      {13, 146.95, {13}},
                     {14, 146.93, {12, 2}},     {27, 146.95, {13, 14}},   {28, 149.13, {13, 15}},
                     {29, 149.13, {13, 15, 1}}, {30, 149.11, {13, 14, 3}}};
    for (const auto& [phases, tallest, counts] : rows) {
        TestRecord record;
        for (int i = 0; i < phases; ++i) {
            record.Add(EruptionType::Tectonic).tectonicKind = TectonicKind::Erosion;
        }
        std::vector<int> drawn;
        for (const Page& page : DrawRecord(*record.state, "a", {180, tallest}).pages) {
            const int count = static_cast<int>(
                std::count_if(page.groups.begin(), page.groups.end(),
                              [](const Group& group) { return group.phase != 0; }));
            drawn.push_back(count);
            const QRectF frame = page.groups[1].shapes[1].path.boundingRect();
            EXPECT_NEAR(frame.top(), drawn.size() == 1 ? 25.54 : 20.12, 0.01);
            EXPECT_NEAR(frame.height(), std::max(1, count) * 8, 1e-9);
            for (int i = 0; i < count; ++i) {
                const Group& row = page.groups[static_cast<std::size_t>(2 + i)];
                EXPECT_NEAR(row.texts[0].at.y(), frame.bottom() - 8 * i - 3.15, 1e-9);
            }
            double end = frame.bottom() + 5;
            if (const auto& legend = page.groups.back(); drawn.size() == 1) {
                EXPECT_TRUE(phases == 0 || std::abs(legend.texts[0].at.y() - end - 5.9) < 1e-9);
                end += phases == 0 ? 2 : 8.4;
            }
            EXPECT_NEAR(page.size.height(), counts.size() > 1 ? tallest : end + 4, 1e-9);
        }
        EXPECT_EQ(drawn, counts);
    }
}

TEST(DrawTest, NamesSummariesAndNumbersAreReadable) {
    const std::pair<std::string, const char*> names[]{
        {"a\x1F\x7F z", "a?? z"},
        {"\u2027\u2028\u202E\u202F", "\u2027??\u202F"},
        {"\u2065\u2066\u2069\u206A", "\u2065??\u206A"},
        {"\uFFFD\uFFFE\uFFFF", "???"},
        {"Pel\xE9\x85", "Pelé…"},
    };
    for (const auto& [bytes, text] : names) {
        EXPECT_EQ(Readable(bytes).replace(QChar::ReplacementCharacter, '?'), QString(text));
    }
    const std::pair<Integer, const char*> summaries[]{
        {100, "0 phases, scale 100 (large), no stratigraphic file"},
        {20, "1 phase, scale 20 (normal), no stratigraphic file"},
        {4, "2 phases, scale 4 (small), stratigraphic file "},
        {0, "3 phases, scale not set, drawn as 20, stratigraphic file "},
        {-7, "4 phases, scale \u22127, stratigraphic file "},
    };
    TestRecord record;
    for (const auto& [scale, text] : summaries) {
        record.state->RecordScale = scale;
        EXPECT_EQ(SummaryOf(*record.state), text);
        record.Add(EruptionType::Tectonic);
        record.state->StratFile = record.state->LoadedPhaseCount > 1 ? "a" : NoFileText;
    }
    EXPECT_EQ(Label(-12345), "\u221212345");
    EXPECT_EQ(Label(123456, true), "+1.2346e+05");
    EXPECT_EQ(Label(0, true) + Label(-1, true), "0\u22121");
}

TEST(DrawTest, AnSvgIsWellFormedAndHasEachTextAsText) {
    TestRecord record = RandomRecord(30);
    record.state->StratFile = "<&>\"\x01\xEF\xBF\xBF";
    const Drawing drawing = DrawRecord(*record.state, "]]><b>.rec", {180, AnyHeight});
    const QByteArray bytes = SvgOf(drawing);
    EXPECT_EQ(bytes, SvgOf(DrawRecord(*record.state, "]]><b>.rec", {180, AnyHeight})));
    QXmlStreamReader xml(bytes);
    QStringList shown;
    QStringList titles;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"text") {
            shown += xml.readElementText();
        } else if (xml.isStartElement() && (xml.name() == u"title" || xml.name() == u"desc")) {
            titles += xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    QStringList drawn;
    for (const Group& group : drawing.pages[0].groups) {
        for (const Text& text : group.texts) drawn += text.text;
    }
    EXPECT_EQ(shown, drawn);
    EXPECT_EQ(titles.value(0), drawing.title);
    EXPECT_EQ(titles.value(1), drawing.description);
}
