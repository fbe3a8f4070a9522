// The form on other screens, in windows of other sizes, and in other styles, fonts and colours.
#include <qtestspontaneevent.h>

#include <QProxyStyle>

#include "WindowTest.h"
#include "form/Catalogue.h"
#include "window/FormArea.h"
#include "window/View.h"
#include "window/WidestTexts.h"

class ScreenTest : public WindowTest {
protected:
    QScreen& large = *QGuiApplication::screens().first();
    QScreen& small = *QGuiApplication::screens().last();
    const QSize formSize = Page(window).size();

    /// A new window on the screen, centred as when the form loads.
    std::unique_ptr<FormWindow> Centred(QScreen& screen) {
        auto centred = std::make_unique<FormWindow>(form);
        centred->setScreen(&screen);
        const Extent whole = centred->ScreenSize();
        const Extent size = centred->FormSize();
        centred->Move((whole.width - size.width) / 2, (whole.height - size.height) / 2);
        centred->Show();
        centred->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(centred.get()));
        return centred;
    }

    static QWidget& Page(const FormWindow& shown) {
        return *shown.findChild<QScrollArea*>()->widget();
    }

    /// Whether the widget shows more than one colour in this part of it.
    static bool IsDrawn(QWidget& widget, const QRect& part) {
        const QImage drawn = widget.grab(part).toImage();
        QImage empty = drawn;
        empty.fill(drawn.pixel(0, 0));
        return drawn != empty;
    }

    static bool IsFullyVisible(const QWidget& widget) {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }
};

TEST_F(ScreenTest, TheWindowIsCentredWithItsFrameOrFillsASmallScreen) {
    const auto centred = Centred(large);
    const QPoint middle = centred->frameGeometry().center();
    EXPECT_LE((middle - large.geometry().center()).manhattanLength(), 1);
    EXPECT_GT(centred->frameGeometry().height(), formSize.height()) << "has no frame";
    EXPECT_EQ(centred->minimumSize(), formSize);
    EXPECT_EQ(centred->maximumSize(), formSize);

    const auto fitted = Centred(small);
    EXPECT_EQ(fitted->frameGeometry(), small.availableGeometry());
    EXPECT_EQ(Page(*fitted).size(), formSize);
    fitted->windowHandle()->setScreen(&large);
    EXPECT_EQ(fitted->size(), formSize);
}

TEST_F(ScreenTest, ASmallWindowScrollsToTheFocusAndByTheWheelWhichChangesNoValue) {
    const auto fitted = Centred(small);
    for (Control* control : form.Controls()) control->SetEnabled(true);
    fitted->RunPendingEvents();
    const QScrollBar& bar = *fitted->findChild<QScrollArea*>()->verticalScrollBar();
    const auto values = [&fitted] {
        QStringList all;
        for (const auto* const box : fitted->findChildren<QLineEdit*>()) all += box->text();
        for (const auto* const mark : fitted->findChildren<QAbstractButton*>())
            all += QString::number(mark->isChecked());
        return all;
    };
    const QStringList before = values();
    auto* const first = fitted->findChild<QWidget*>("cmbPhase");
    first->setFocus();
    do {
        QWidget* const now = QApplication::focusWidget();
        EXPECT_TRUE(IsFullyVisible(*now)) << now->objectName().toStdString();
        const int turn = bar.value() > 0 ? 120 : -120;
        QWheelEvent wheel({5, 5}, now->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        const int height = bar.value();
        QSpontaneKeyEvent::setSpontaneous(&wheel);  // otherwise it would not reach the scroll area
        qApp->notify(now, &wheel);
        EXPECT_NE(bar.value(), height) << now->objectName().toStdString();
        keyClick(now, Qt::Key_Tab);
    } while (!first->hasFocus());
    EXPECT_EQ(values(), before);
}

TEST_F(ScreenTest, AtAnyImposedSizeTheFormIsCentredOrScrolls) {
    EXPECT_EQ(window.size(), formSize);
    const QPoint place = window.pos();
    window.Move(9000, 6000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.pos() != place; }));
    const auto resize = [this](int width, int height) {
        return [this, width, height] { window.windowHandle()->resize(width, height); };
    };
    const std::function<void()> impositions[]{
        [this] { window.showMaximized(); },
        [this] { window.showFullScreen(); },
        resize(formSize.width() + 300, formSize.height() + 200),
        resize(formSize.width() + 300, 200),
        resize(400, formSize.height() + 200),
    };
    for (const auto& impose : impositions) {
        impose();
        window.RunPendingEvents();
        ASSERT_NE(window.size(), formSize);
        EXPECT_EQ(Page(window).size(), formSize);
        const QPoint off = Page(window).mapTo(&window, Page(window).rect().center()) -
                           Page(window).parentWidget()->rect().center();
        EXPECT_TRUE(window.width() < formSize.width() || std::abs(off.x()) <= 1) << off.x();
        EXPECT_TRUE(window.height() < formSize.height() || std::abs(off.y()) <= 1) << off.y();
        for (const char* const corner : {"cmdOpen", "cmdHelp"}) {
            Find(corner)->setFocus();
            EXPECT_TRUE(IsFullyVisible(*Find(corner))) << corner << &impose - impositions;
        }
        window.showNormal();
    }
    EXPECT_EQ(window.minimumSize(), formSize);
}

TEST(FormAreaTest, AsksForRoomForItsScrollBarsAndRevealsAWidgetWithItsLabel) {
    FormArea area(nullptr);
    area.Page()->resize(300, 200);
    const int bar = area.verticalScrollBar()->sizeHint().width();
    const std::pair<QSize, QSize> rows[]{
        {{400, 400}, {300, 200}},       {{300, 200}, {300, 200}}, {{400, 100}, {300 + bar, 100}},
        {{200, 400}, {200, 200 + bar}}, {{301, 100}, {301, 100}}, {{100, 100}, {100, 100}}};
    for (const auto& [room, size] : rows) EXPECT_EQ(area.SizeWithin(room), size);
    QWidget box(area.Page());
    QLabel label(area.Page());
    label.setBuddy(&box);
    label.setGeometry(150, 100, 20, 10);
    box.setGeometry(180, 110, 41, 31);
    area.resize(150, 100);
    area.show();
    area.Reveal(box);
    auto &across = *area.horizontalScrollBar(), &down = *area.verticalScrollBar();
    EXPECT_EQ(QPoint(across.value(), down.value()) + area.viewport()->rect().bottomRight(),
              QPoint(220 + 11, 140 + 11));
    down.setValue(200);
    across.setValue(300);
    area.Reveal(box);
    EXPECT_EQ(QPoint(across.value(), down.value()), QPoint(150 - 12, 100 - 12));
}

// Passes for the platform's window under Wayland, which calls itself to apply an imposed size.
class PlatformWindow : public QObject {
public:
    void* qt_metacast(const char* name) override {
        return qstrcmp(name, "QtWaylandClient::QWaylandWindow") == 0 ? this : nullptr;
    }
};

TEST(SizeLimitsTest, AreLiftedWhileASizeIsImposedUnderWaylandAndReturnAfterwards) {
    const QSize own(300, 200);
    for (const char* const platform : {"wayland", "wayland-egl", "xcb"}) {
        const bool needed = QString(platform) != "xcb";
        QWidget window;
        PlatformWindow platformWindow;
        SizeLimits limits(window, platform);
        window.setFixedSize(own);
        limits.Lift();
        window.show();
        QWindow& handle = *window.windowHandle();
        EXPECT_EQ(handle.minimumSize() == QSize(0, 0), needed) << platform;
        EXPECT_EQ(handle.maximumSize() == QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), needed);
        const auto expose = [&] {
            QApplication::processEvents();
            QExposeEvent event(QRect(QPoint(), own));
            QApplication::sendEvent(&handle, &event);
        };
        handle.resize(310, 210);  // by an edge that can be dragged
        expose();
        EXPECT_EQ(window.size() == own, needed);
        EXPECT_EQ(handle.minimumSize(), own);
        EXPECT_EQ(handle.maximumSize(), own);
        for (const auto impose : {&QWidget::showMaximized, &QWidget::showFullScreen}) {
            const auto call = [&window, impose] { (window.*impose)(); };
            QMetaObject::invokeMethod(&platformWindow, call, Qt::QueuedConnection);
            QApplication::processEvents();
            EXPECT_NE(window.size(), own);
            EXPECT_EQ(handle.minimumSize() == own, !needed);
            window.showNormal();
            const auto hasLimits = [&] { return handle.minimumSize() == own; };
            EXPECT_TRUE(QTest::qWaitFor(hasLimits));
            QMetaObject::invokeMethod(
                &platformWindow, [] {}, Qt::QueuedConnection);
            QApplication::processEvents();
            EXPECT_TRUE(QTest::qWaitFor(hasLimits));
        }
    }
}

double Brightness(const QColor& color) {
    return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
           0.0722 * std::pow(color.blueF(), 2.2) + 0.05;
}

void ExpectContrast(const QWidget& field, QPalette::ColorGroup group, QPalette::ColorRole text,
                    QPalette::ColorRole back, double least) {
    const double one = Brightness(field.palette().color(group, text));
    const double other = Brightness(field.palette().color(group, back));
    EXPECT_GE(std::max(one / other, other / one), least)
        << group << text << field.objectName().toStdString();
}

TEST_F(ScreenTest, FieldsAreReadableInLightAndDarkAndWhenGreyed) {
    const QPalette usual = QApplication::palette();
    FormWindow themed(form);
    const QPalette pale = PalePalette(QPalette(QColor(35, 35, 35)), Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        EXPECT_EQ(pale.color(QPalette::Active, role), Qt::black);
    for (const int grey : {35, 239}) {
        QPalette desktop(QColor(grey, grey, grey));
        desktop.setColor(QPalette::HighlightedText, Qt::black);
        QApplication::setPalette(desktop);
        QApplication::processEvents();  // the widgets follow then
        QWidgetList coloured{themed.findChild<QWidget*>("labPhases")};
        for (auto* const list : themed.findChildren<QComboBox*>()) {
            coloured << list->lineEdit() << list->view();
        }
        for (const QWidget* field : coloured) {
            ExpectContrast(*field, QPalette::Active, QPalette::Text, QPalette::Base, 4.5);
            ExpectContrast(*field, QPalette::Active, QPalette::WindowText, QPalette::Window, 4.5);
            if (field->focusPolicy() != Qt::NoFocus)
                ExpectContrast(*field, QPalette::Active, QPalette::HighlightedText,
                               QPalette::Highlight, 4.5);
        }
        for (const QLineEdit* box : themed.findChildren<QLineEdit*>())
            ExpectContrast(*box, QPalette::Disabled, QPalette::Text, QPalette::Base, 3);
        for (const QLabel* label : themed.findChildren<QLabel*>())
            ExpectContrast(*label, QPalette::Disabled, QPalette::WindowText, QPalette::Window, 3);
    }
    const auto expectColour = [](const QWidget* field, QPalette::ColorGroup group,
                                 QPalette::ColorRole role, QRgb colour) {
        EXPECT_EQ(field->palette().color(group, role).rgb(), colour) << group << role;
    };
    const auto* const output = themed.findChild<QWidget*>("labPhases");
    for (const auto role : {QPalette::Base, QPalette::Window})
        expectColour(output, QPalette::Active, role, 0xFFC0FFFF);
    expectColour(output, QPalette::Disabled, QPalette::Text, 0xFF707070);
    const auto* const list = themed.findChild<QComboBox*>("cmbType");
    for (const QWidget* field : {(const QWidget*)list->view(), (const QWidget*)list->lineEdit()}) {
        expectColour(field, QPalette::Active, QPalette::Base, 0xFFFFFFC0);
        expectColour(field, QPalette::Active, QPalette::Highlight, 0xFF005493);
        expectColour(field, QPalette::Active, QPalette::HighlightedText, 0xFFFFFFFF);
    }
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        expectColour(&Page(themed), QPalette::Disabled, role, 0xFF606060);  // from black, on 239
    expectColour(&Page(themed), QPalette::Disabled, QPalette::Base, 0xFFEFEFEF);
    QApplication::setPalette(usual);
}

TEST_F(ScreenTest, WidgetsAndTheWindowHaveTheirMarksAlignmentsPointersAndIcons) {
    QApplication::setFont(QFont(QApplication::font().family(), 24));
    const FormWindow sized(form);
    for (QAbstractButton* button : sized.findChildren<QAbstractButton*>()) {
        if (!button->isCheckable()) continue;
        QStyleOptionButton option;
        option.initFrom(button);
        const bool check = qobject_cast<QCheckBox*>(button);
        // In a left-to-right layout: a check box is mirrored.
        const auto part = [&](QStyle::SubElement of) {
            return QStyle::visualRect(option.direction, option.rect,
                                      button->style()->subElementRect(of, &option, button));
        };
        const QRect mark =
            part(check ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator);
        const QRect text =
            part(check ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents);
        const int size = button->fontMetrics().ascent();
        EXPECT_EQ(mark.size(), QSize(size, size));
        const QRect words = button->style()->itemTextRect(
            button->fontMetrics(), {}, Qt::TextShowMnemonic, false, button->text());
        EXPECT_EQ(button->sizeHint(), QSize(size + size / 3 + words.width(), words.height()));
        EXPECT_LE(std::abs(mark.center().y() - button->rect().center().y()), 1);
        EXPECT_EQ(mark.left(), 0);
        EXPECT_EQ(text.left() - mark.right(), size / 3 + 1);
        EXPECT_EQ(text.right(), button->width() - 1);
        const QRect corner(mark.topLeft(), QSize(size / 8, size / 8));  // empty for a circle
        const QRect between(mark.right() + 2, 0, size / 3 - 2, button->height());
        for (const auto& [rect, drawn] :
             {std::pair{mark, true}, {corner, check}, {text, true}, {between, false}}) {
            const QRect shown = QStyle::visualRect(option.direction, option.rect, rect);
            EXPECT_EQ(IsDrawn(*button, shown), drawn);
        }
    }
    for (const CatalogueRow& row : Catalogue()) {
        auto* const widget = sized.findChild<QWidget*>(row.name.data());
        if (const auto* const label = qobject_cast<QLabel*>(widget)) {
            const bool output = row.look == Look::OutputField;
            EXPECT_EQ(label->alignment() & Qt::AlignHorizontal_Mask, output ? Qt::AlignHCenter
                                                                     : row.look == Look::LeftAligned
                                                                         ? Qt::AlignLeft
                                                                         : Qt::AlignRight);
            EXPECT_TRUE(label->alignment().testFlag(Qt::AlignVCenter));
            EXPECT_EQ(label->frameShape(), output ? QFrame::Box : QFrame::NoFrame);
            EXPECT_EQ(label->autoFillBackground(), output);
        } else if (const auto* const list = qobject_cast<QComboBox*>(widget)) {
            const bool own = row.look == Look::CustomPointer;
            EXPECT_EQ(list->lineEdit()->cursor().hotSpot() == QPoint(12, 1), own);
            EXPECT_EQ(list->cursor().hotSpot() == QPoint(12, 1), own);
            EXPECT_EQ(list->cursor().pixmap().width(), own ? 32 : 0);
        } else if (const auto* const box = qobject_cast<QLineEdit*>(widget)) {
            EXPECT_EQ(box->alignment(), Qt::AlignCenter);
        }
        EXPECT_TRUE(widget == nullptr || widget->hasMouseTracking());
    }
    EXPECT_TRUE(sized.windowFlags().testFlags(Qt::WindowMinimizeButtonHint |
                                              Qt::WindowCloseButtonHint | Qt::WindowTitleHint |
                                              Qt::WindowSystemMenuHint));
    EXPECT_FALSE(sized.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(sized.windowTitle(), "Edit Tephrex Record");
    const auto sizes = [](const QIcon& icon) {
        QList<int> all;
        for (const QSize& size : icon.availableSizes()) all += size.width();
        return all;
    };
    EXPECT_EQ(sizes(FormIcon()), QList({16, 24, 32, 48, 64}));
    const auto* const open = sized.findChild<QPushButton*>("cmdOpen");
    EXPECT_EQ(sizes(open->icon()), QList({16, 20, 24, 32, 2 * open->iconSize().width()}));
    EXPECT_EQ(open->iconSize().width(), open->fontMetrics().ascent() * 4 / 3);
}

// Arrows as wide as they are high, wide margins, much space below the title of a frame, and borders
// of the given width.
class OddStyle : public QProxyStyle {
public:
    explicit OddStyle(int ownBorder) : border(ownBorder) {}
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_DefaultFrameWidth ? border
                                              : QProxyStyle::pixelMetric(metric, option, widget);
    }
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const QRect whole = option->rect;
        if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
            return whole.adjusted(6, 2, -whole.height(), -2);
        }
        const QRect usual = QProxyStyle::subControlRect(control, option, part, widget);
        const bool title = control == CC_GroupBox && part == SC_GroupBoxLabel;
        return title ? usual.adjusted(0, 0, 0, 20) : usual;
    }
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override {
        const QRect usual = QProxyStyle::subElementRect(element, option, widget);
        return element == SE_LineEditContents ? usual.adjusted(6, 2, -6, -2) : usual;
    }

private:
    int border;
};

// The lowest line of the title of a frame.
int EndOfTitle(const QGroupBox& frame) {
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const auto title = QStyle::SC_GroupBoxLabel;
    return frame.style()->subControlRect(QStyle::CC_GroupBox, &option, title, &frame).bottom();
}

// Whether a box is too narrow for its text: it then scrolls between the end and the beginning.
bool Scrolls(QLineEdit& box) {
    const auto caret = [&box] {
        box.grab();
        return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().x();
    };
    const int end = caret();
    box.home(false);
    return end - caret() < box.fontMetrics().horizontalAdvance(box.text()) - 1;
}

TEST_F(ScreenTest, TheFormHasRoomForTheWidestTextsThatItShowsLater) {
    QString later;
    const auto all = TextsToFit(form);
    for (const CatalogueRow& row : Catalogue()) {
        const QStringList texts = all.at(form.Find(row.name)).mid(1);  // the first is the caption
        if (!texts.isEmpty()) later += QString(row.name.data()) + ' ' + texts.join('|') + "; ";
    }
    EXPECT_EQ(later.toStdString(),
              "Command1 Close; Command2 Save; labPhases 500; cmbPhase Add Phase|Phase 500; "
              "cmbStyle Valles Type|Mazama Type; chkCald Caldera|Diatreme; txtMag 0|20; cmbType "
              "Hawaiian|Peléean|Strombolian|Plinian|Vulcanian/Surtseyan|Fumarolic/Phreatic|Sector "
              "Collapse|Faulting|Erosion; txtLoc 5.00|123.00; txtStr 0.10|2.00; txtWind -50|50; "
              "txtPart 1|50|49.99999; txtBurst 32767; txtCtop 5.00|123.00; txtCbase 5.00|123.00; "
              "txtDip -10|10; txtErode 32767; cmbDown Left side down|Right side down; cmbFlow "
              "Flow 100 Duration; txtLava 1800.0; txtSlide1 1|11; txtSlide3 0|40; txtSlide5 0|9; "
              "labSlide4 Vent Position|Burst Frequency; txtSlide2 1|11; txtSlide4 1|11; txtSlide6 "
              "1|11; txtMap1 640; txtMap3 -4.00|4.00; txtMap2 -1.00|1.00; txtMap4 -4.00|4.00; ");
}

// Runs once for each scale factor of the screen.
TEST_F(ScreenTest, NothingIsCutOffInAnyFontAndStyle) {
    struct Row {
        int points, width, border = 0;
    };
    for (const Row row :
         {Row{4, 511}, {20, 1547}, {20, 1868, 1}, {9, 1962, 24}, {9, 1013, 1}, {9, 740}}) {
        const int points = row.points;
        QApplication::setStyle(row.border ? new OddStyle(row.border)
                                          : QStyleFactory::create("fusion"));
        QApplication::setFont(QFont(QApplication::font().family(), points));
        FormWindow sized(form);
        sized.Show();
        const int margin = points == 4 ? 0 : sized.devicePixelRatio() == 1 ? 2 : 25;
        EXPECT_NEAR(Page(sized).width(), row.width, margin);
        const auto expectRoom = [&](std::string_view name, const QString& text) {
            auto* const widget = sized.findChild<QWidget*>(name.data());
            auto* const list = qobject_cast<QComboBox*>(widget);
            QSize wanted = widget->fontMetrics().size(0, text);
            if (qobject_cast<QAbstractButton*>(widget) && widget->property("checkable").toBool()) {
                const auto mark = QStyle::PM_IndicatorWidth;
                const int size = widget->style()->pixelMetric(mark, nullptr, widget);
                EXPECT_GE(size, widget->fontMetrics().ascent()) << name << points;
                EXPECT_TRUE(IsDrawn(*widget, widget->rect())) << name << points;
                wanted.rwidth() += size;
            }
            if (auto* const box = list ? list->lineEdit() : qobject_cast<QLineEdit*>(widget)) {
                const QSignalBlocker noEdit(box);
                box->setText(text);
                EXPECT_FALSE(Scrolls(*box)) << name << points << text.toStdString();
            }
            EXPECT_TRUE(widget->size().boundedTo(wanted) == wanted) << name << points;
        };
        for (const auto& [control, texts] : TextsToFit(form)) {
            for (const QString& text : control == &form.CD1 ? QStringList() : texts) {
                expectRoom(control->Name(), text);
            }
        }
        for (std::size_t type = form.cmbType.Entries().size(); type-- > 0;) {
            form.cmbType.Pick(type);  // Hawaiian, picked last, has flows
            expectRoom("chkCald", form.chkCald.Caption().data());
            expectRoom("labSlide4", form.labSlide4.Caption().data());
        }
        form.txtBurst.SetText("100");
        for (const ComboBox* list : {&form.cmbType, &form.cmbStyle, &form.cmbDown, &form.cmbFlow}) {
            for (const auto& entry : list->Entries()) expectRoom(list->Name(), entry.data());
        }
        for (const auto* const frame : sized.findChildren<QGroupBox*>()) {
            for (const auto* const inside : frame->findChildren<QWidget*>()) {
                EXPECT_GT(inside->mapTo(frame, QPoint()).y(), EndOfTitle(*frame));
            }
        }
        const auto* const open = sized.findChild<QPushButton*>("cmdOpen");
        EXPECT_GE(open->iconSize().height(), open->fontMetrics().ascent()) << "the folder";
        const auto* const flow = sized.findChild<QComboBox*>("cmbFlow");
        const int textEnd = flow->x() + flow->lineEdit()->geometry().right();
        EXPECT_GE(sized.findChild<QWidget*>("txtLava")->x() - textEnd, 20) << "the arrow";
    }
}
