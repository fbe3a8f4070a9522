#include "DrawTest.h"

#include <QGuiApplication>
#include <QImage>
#include <QXmlStreamReader>
#include <algorithm>
#include <limits>
#include <map>
#include <random>
#include <set>

#include "draw/Columns.h"
#include "draw/Paint.h"
#include "draw/Signs.h"
#include "draw/Svg.h"
#include "record/RecordFile.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

PhaseRecord& TestRecord::Add(Integer type) {
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

QRectF WideRoom(const Text& text) {
    const double more = text.room.width() * 0.1;
    const double left = text.anchor == Anchor::Left    ? 0
                        : text.anchor == Anchor::Right ? more
                                                       : more / 2;
    return text.room.adjusted(-left, 0, more - left, 0);
}

namespace {

Drawing Draw(const TestRecord& record) {
    return DrawRecord(*record.state, "test.rec", {180, AnyHeight});
}

// The place of a point along the map, as a map position.
double PositionOf(const Drawing& drawing, double x) {
    QRectF map;
    for (const Shape& shape : ShapesOf(drawing, 0, Mark::Frame)) {
        map |= shape.path.elementCount() == 5 &&
                       QPointF(shape.path.elementAt(4)) == shape.path.elementAt(0)
                   ? shape.path.boundingRect()
                   : QRectF();
    }
    return 50 + (x - map.left()) / map.width() * 1180;
}

// Values that a file can bring, few of which may be saved.
TestRecord Wild(int phases) {
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

// Texts keep clear of each other and of the edges, with room for another font; shapes too.
void ExpectInPlace(const Page& page) {
    const QRectF paper(QPointF(0, 0), page.size);
    std::vector<std::pair<QRectF, QString>> rooms;
    for (const Group& group : page.groups) {
        for (const Shape& shape : group.shapes) {
            const double pen = shape.style.width / 2;
            EXPECT_TRUE(paper.contains(shape.path.boundingRect().adjusted(-pen, -pen, pen, pen)))
                << "phase " << group.phase << " mark " << static_cast<int>(shape.mark);
        }
        for (const Text& text : group.texts) {
            rooms.emplace_back(WideRoom(text), text.text);
        }
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

// Each phase once, from the bottom upwards, and an axis on each page.
void ExpectWhole(const Drawing& drawing, int phases) {
    int next = 1;
    for (const Page& page : drawing.pages) {
        double above = page.size.height();
        bool axis = false;
        for (const Group& group : page.groups) {
            axis = axis || std::any_of(group.texts.begin(), group.texts.end(),
                                       [](const Text& text) { return text.text == "Time"; });
            if (group.phase != 0) {
                EXPECT_EQ(group.phase, next++);
                EXPECT_LT(group.texts.front().at.y(), above);
                above = group.texts.front().at.y();
            }
        }
        EXPECT_TRUE(axis);
    }
    EXPECT_EQ(next, phases + 1);
}

}  // namespace

TEST(DrawTest, NoTextOverlapsAnotherOrLeavesThePageHoweverMuchThereIs) {
    const std::string name(5000, 'W');
    std::string stacked = "e";
    for (int i = 0; i < 30; ++i) {
        stacked += "\xCC\x81";  // an acute accent above the last one
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
        const TestRecord record = Wild(row.phases);
        record.state->RecordScale = row.scale;
        record.state->StratFile = row.reference;
        const Drawing drawing = DrawRecord(*record.state, row.name, {row.width, row.tallest});
        ExpectWhole(drawing, row.phases);
        EXPECT_EQ(drawing.pages.size() > 1, row.tallest < AnyHeight && row.phases > 1);
        for (const Page& page : drawing.pages) {
            ExpectInPlace(page);
        }
    }
}

TEST(DrawTest, APhaseIsDrawnByWhatItsTypeUses) {
    using P = PhaseRecord;
    struct Row {
        Integer type;
        void (*make)(P& phase);
        std::set<Mark> marks;  // but for the frame
    };
    using enum Mark;
    const Row rows[]{
        {EruptionType::None, [](P& p) { p.wind = 5; }, {}},
        {42, [](P& p) { p.wind = 5; }, {}},
        {EruptionType::Vulcanian, [](P&) {}, {Sign}},
        {EruptionType::Vulcanian,
         [](P& p) {
             p.wind = -5;
             p.directedFlag = 1;
             p.burstFlag = 1;
         },
         {Sign, Wind, Blast}},
        {EruptionType::Vulcanian, [](P& p) { p.calderaFlag = 1; }, {Sign, Diatreme}},
        {EruptionType::Vulcanian,
         [](P& p) {
             p.calderaFlag = 1;
             p.strength = 0.3F;
         },
         {Sign, Diatreme}},
        {EruptionType::Vulcanian,
         [](P& p) {
             p.calderaFlag = 1;
             p.strength = 0.4F;
         },
         {Sign, Caldera}},
        {EruptionType::Strombolian,
         [](P& p) {
             p.calderaFlag = 1;
             p.directedFlag = 1;
         },
         {Sign, Diatreme}},
        {EruptionType::Strombolian,
         [](P& p) {
             p.calderaFlag = 1;
             p.strength = 0.3F;
         },
         {Sign}},
        {EruptionType::Hawaiian, [](P& p) { p.calderaFlag = 1; }, {Sign, Flows}},
        {EruptionType::Pelean, [](P& p) { p.burstCount = 0; }, {Sign}},
        {EruptionType::Plinian, [](P& p) { p.calderaFlag = 1; }, {Sign, Caldera}},
        {EruptionType::Plinian, [](P& p) { p.strength = 1.5F; }, {Sign, Refused}},
        {EruptionType::Collapse,
         [](P& p) {
             p.scarpTop = 3;
             p.scarpBase = 9;
             p.wind = 9;
         },
         {Scarp}},
        {EruptionType::Collapse,
         [](P& p) {
             p.scarpTop = 3;
             p.scarpBase = 99;
         },
         {Scarp, OffMap, Refused}},
        {EruptionType::Fumarolic,
         [](P& p) {
             p.burstFlag = 1;
             p.calderaFlag = 1;
         },
         {Sign, Bursts}},
        {EruptionType::Fumarolic, [](P& p) { p.ventLocation = 0.5F; }, {Sign, OffMap, Refused}},
        {EruptionType::Tectonic, [](P& p) { p.faultDownSide = 1; }, {Erosion}},
        {EruptionType::Tectonic,
         [](P& p) {
             p.tectonicKind = 1;
             p.faultMagnitude = 4;
             p.faultDownSide = 1;
         },
         {FaultLine, Throw, Ground}},
        {EruptionType::Tectonic,
         [](P& p) {
             p.tectonicKind = 1;
             p.faultDip = 4;
             p.faultDownSide = 1;
         },
         {FaultLine}},
        {EruptionType::Tectonic, [](P& p) { p.tectonicKind = 1; }, {FaultLine, Refused}},
    };
    for (const Row& row : rows) {
        TestRecord record;
        row.make(record.Add(row.type));
        const Drawing drawing = Draw(record);
        std::set<Mark> drawn;
        for (int mark = static_cast<int>(Sign); mark <= static_cast<int>(Refused); ++mark) {
            if (!ShapesOf(drawing, 1, static_cast<Mark>(mark)).empty()) {
                drawn.insert(static_cast<Mark>(mark));
            }
        }
        EXPECT_EQ(drawn, row.marks) << "row " << &row - rows;
    }
    EXPECT_EQ(TypeName({.eruptionType = EruptionType::None}), QStringList("No type"));
}

TEST(DrawTest, SignsAreAtTheirLocationsAndHaveTheirSizes) {
    struct Row {
        Integer scale;
        Single location;
        double position;
    };
    const Row rows[]{{20, 12, 600},   {0, 12, 600},    {100, 12.5F, 125},
                     {4, 4.9F, 1225}, {-20, -12, 600}, {20, 1, 50},
                     {20, 0.5F, 50},  {20, 99, 1230},  {100, 12, 120}};
    for (const Row& row : rows) {
        TestRecord record;
        record.Add(EruptionType::Pelean).ventLocation = row.location;
        record.Add(EruptionType::Collapse).scarpTop = row.location;
        record.state->LoadedPhases[2].scarpBase = row.location;
        record.state->RecordScale = row.scale;
        const Drawing drawing = Draw(record);
        for (const auto& [phase, mark] : {std::pair{1, Mark::Sign}, {2, Mark::Scarp}}) {
            const QRectF sign = ShapesOf(drawing, phase, mark).at(0).path.boundingRect();
            EXPECT_NEAR(PositionOf(drawing, sign.center().x()), row.position, 0.1)
                << "row " << &row - rows;
        }
    }
    TestRecord sizes;
    for (const Single strength : {0.1F, 0.5F, 2.0F, -9.0F, 3e38F}) {
        sizes.Add(EruptionType::Strombolian).strength = strength;
    }
    const Drawing drawing = Draw(sizes);
    std::vector<double> heights;
    for (int phase = 1; phase <= 5; ++phase) {
        heights.push_back(ShapesOf(drawing, phase, Mark::Sign).at(0).path.boundingRect().height());
    }
    EXPECT_LT(heights[0], heights[1]);
    EXPECT_LT(heights[1], heights[2]);
    EXPECT_LT(heights[3], heights[0]);
    EXPECT_EQ(heights[4], heights[2]);
}

TEST(DrawTest, WhatNoPhaseHasTakesNoRoom) {
    Lettering lettering;
    const TestRecord record;
    const double whole = ColumnsOf(*record.state, {}, 180, lettering).mapEnd;
    for (const Contents& had : {Contents{true}, Contents{false, true}, Contents{false, false, 1}}) {
        EXPECT_LT(ColumnsOf(*record.state, had, 180, lettering).mapEnd, whole);
    }
}

TEST(DrawTest, NoPointOfASignHasMovedUnnoticed) {
    std::vector<Shape> shapes{DiatremeMark({}), BlastMark({}, 1),
                              BurstMark({}, 1), RefusedMark({}),
                              Wave({}, 4, 2),   Arrow(Mark::Wind, {}, 3, Palette::Ink)};
    for (Integer type = 0; type <= LastEruptionType; ++type) {
        shapes.push_back(SignOf(type, {}, 1));
    }
    for (Integer style = 0; style <= CalderaStyle::Valles; ++style) {
        shapes.push_back(CalderaMark({}, style));
    }
    double sum = 0;
    int weight = 0;
    for (const Shape& shape : shapes) {
        sum += ++weight * shape.style.width;
        for (int i = 0; i < shape.path.elementCount(); ++i) {
            const QPointF point = shape.path.elementAt(i);
            sum += ++weight * (point.x() + 2 * point.y());
        }
    }
    EXPECT_NEAR(sum, -891.0842770, 0.001);
}

TEST(DrawTest, WindFaultsScarpsAndFlowsPointTheirWay) {
    TestRecord record;
    record.Add(EruptionType::Plinian).wind = 20;
    record.Add(EruptionType::Plinian).wind = -40;
    PhaseRecord& edge = record.Add(EruptionType::Plinian);  // no room on the side it blows to
    edge.wind = 50;
    edge.ventLocation = 24.5F;
    for (const Integer side : {DownSide::Left, DownSide::Right}) {
        PhaseRecord& fault = record.Add(EruptionType::Tectonic);
        fault.tectonicKind = TectonicKind::Faulting;
        fault.faultMagnitude = 10;
        fault.faultDownSide = side;
    }
    PhaseRecord& flows = record.Add(EruptionType::Hawaiian);
    flows.burstCount = 3;
    record.state->LoadedFlows[6][1] = 600;
    record.state->LoadedFlows[6][2] = 1200;
    record.state->LoadedFlows[6][3] = 9000;
    PhaseRecord& overflowing = record.Add(EruptionType::Hawaiian);
    overflowing.burstCount = 1;
    overflowing.flowLength = 32767;
    const Drawing drawing = Draw(record);
    const auto wind = [&drawing](int phase) {
        const QPainterPath path = ShapesOf(drawing, phase, Mark::Wind).at(0).path;
        return path.elementAt(1).x - path.elementAt(0).x;
    };
    EXPECT_GT(wind(1), 0);
    EXPECT_LT(wind(2), -wind(1));
    EXPECT_GT(wind(3), -wind(2));
    const QRectF sign = ShapesOf(drawing, 3, Mark::Sign).at(0).path.boundingRect();
    EXPECT_LT(ShapesOf(drawing, 3, Mark::Wind).at(0).path.boundingRect().right(), sign.left());
    for (const int phase : {4, 5}) {  // the lower of the two pieces of ground is on that side
        const QPainterPath ground = ShapesOf(drawing, phase, Mark::Ground).at(0).path;
        const auto lower = ground.elementAt(0).y > ground.elementAt(2).y ? 0 : 2;
        EXPECT_EQ(ground.elementAt(lower).x < ground.elementAt(2 - lower).x, phase == 4);
    }
    const QPainterPath bars = ShapesOf(drawing, 6, Mark::Flows).at(0).path;
    const auto height = [&bars](int bar) {
        return bars.elementAt(2 * bar).y - bars.elementAt(2 * bar + 1).y;
    };
    EXPECT_NEAR(height(0), LargestSign / 2, 1e-6);
    EXPECT_NEAR(height(1), LargestSign, 1e-6);
    EXPECT_GT(height(2), LargestSign);
    EXPECT_TRUE(ShapesOf(drawing, 7, Mark::Flows).empty()) << "has no ceiling";
}

TEST(DrawTest, ARefusedPhaseHasTheFirstMessageOfSaveAndTheNumberOfTheOthers) {
    TestRecord record;
    PhaseRecord& phase = record.Add(EruptionType::Hawaiian);
    phase.leftAngle = 5;
    phase.rightAngle = 5;
    record.Add(EruptionType::Pelean).flowLength = 32767;
    record.Add(EruptionType::Plinian);
    const Drawing drawing = Draw(record);
    std::map<int, QString> texts;
    for (const Group& group : drawing.pages[0].groups) {
        for (const Text& text : group.texts) {
            texts[group.phase] += text.text + ' ';
        }
    }
    EXPECT_TRUE(texts[1].endsWith("Right angle must be <= 4 +1 ")) << texts[1].toStdString();
    EXPECT_TRUE(texts[2].endsWith("Overflow ")) << texts[2].toStdString();
    EXPECT_TRUE(texts[3].endsWith("5 ")) << texts[3].toStdString();
}

TEST(DrawTest, TheLegendHasWhatOccursAndNothingElse) {
    TestRecord record;
    record.Add(EruptionType::Tectonic);
    record.Add(EruptionType::Hawaiian);
    const Drawing drawing = Draw(record);
    QStringList legend;
    for (const Text& text : drawing.pages[0].groups.back().texts) {
        legend += text.text;
    }
    EXPECT_EQ(legend.join("; ").toStdString(),
              "Hawaiian; Erosion; a wave a cycle; Flow durations against their ceilings");
}

TEST(DrawTest, AnSvgIsWellFormedAndHasEachTextAsText) {
    TestRecord record = Wild(30);
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
        } else if (xml.isStartElement() && xml.name() == u"path") {
            EXPECT_TRUE(xml.attributes().value("d").startsWith(u'M'));
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    QStringList drawn;
    for (const Group& group : drawing.pages[0].groups) {
        for (const Text& text : group.texts) {
            drawn += text.text;
        }
    }
    EXPECT_EQ(shown, drawn);
    EXPECT_EQ(titles.value(0), drawing.title);
    EXPECT_EQ(titles.value(1), drawing.description);
    EXPECT_TRUE(bytes.contains("fill=\"none\""));
    const QImage picture = QImage::fromData(PngOf(drawing, 100));
    QImage empty = picture;
    empty.fill(Qt::white);
    EXPECT_NE(picture, empty);
}
