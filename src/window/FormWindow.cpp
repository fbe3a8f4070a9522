#include "window/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "form/Catalogue.h"
#include "window/Access.h"
#include "window/FormScale.h"
#include "window/PlainLabels.h"
#include "window/ScreenText.h"
#include "window/Shortcuts.h"
#include "window/SizeLimits.h"
#include "window/Views.h"

namespace {

bool TakesFocus(const View& view) {
    return view.Row().kind != ControlKind::Label && view.Row().kind != ControlKind::Frame;
}

std::vector<View*> InTabOrder(const Views& views) {
    std::vector<View*> sorted;
    for (const auto& view : views) {
        if (TakesFocus(*view)) {
            sorted.push_back(view.get());
        }
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const View* one, const View* other) { return one->Row().tab < other->Row().tab; });
    return sorted;
}

}  // namespace

QIcon FormIcon() {
    QIcon icon;
    for (const char* const size : {"16.xpm", "24.png", "32.xpm", "48.png", "64.png"}) {
        icon.addFile(QString(":/window/form-") + size);
    }
    return icon;
}

FormWindow::FormWindow(RecordEdit& ownForm)
    : form(ownForm),
      area(new FormArea(this)),
      limits(new SizeLimits(*this, QGuiApplication::platformName())) {
    DescribeWidgets();
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setWindowTitle(ToScreen(FormCaption));

    area->Page()->setPalette(ReadableWhenGreyed(palette()));
    KeepLabelsPlain(*this);
    MakeViews();
    scale = FittingScale(views, form);
    area->Page()->resize(Pixels(FormWidth), Pixels(FormHeight));
    PlaceViews();
    ChainTabs();
    NameViews();
    AddShortcuts(*this, form, mirror);

    form.Observer = [this](Control& control) {
        if (const auto found = byControl.find(&control); found != byControl.end()) {
            mirror.Mark(*found->second);
        }
    };
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { FollowFocus(now); });
}

FormWindow::~FormWindow() {
    form.Observer = nullptr;
    disconnect(qApp, nullptr, this, nullptr);  // destroying the widgets changes the focus
}

void FormWindow::MakeViews() {
    for (const CatalogueRow& row : Catalogue()) {
        View* const enclosing = Find(row.frame);
        QWidget* const parent = enclosing != nullptr ? &enclosing->Widget() : area->Page();
        Control& control = *form.Find(row.name);
        if (auto view = NewView({control, row, parent, mirror, form.separators})) {
            mirror.Mark(*view);
            byControl.emplace(&control, view.get());
            views.push_back(std::move(view));
        }
    }
}

void FormWindow::PlaceViews() {
    for (const auto& view : views) {
        const CatalogueRow& row = view->Row();
        view->Widget().setContentsMargins(0, 0, Pixels(CoveredWidth(row)), 0);
        view->Widget().setGeometry(Pixels(row.left), Pixels(row.top), Pixels(row.width),
                                   Pixels(row.height));
    }
}

void FormWindow::ChainTabs() {
    const std::vector<View*> chain = InTabOrder(views);
    for (std::size_t i = 1; i < chain.size(); ++i) {
        setTabOrder(&chain[i - 1]->Widget(), &chain[i]->Widget());
    }
}

// For screen readers: gives controls without a caption a label or name, and some a description.
void FormWindow::NameViews() {
    for (const NamedText& row : ControlLabels()) {
        if (auto* const label = qobject_cast<QLabel*>(&Find(row.text)->Widget())) {
            label->setBuddy(&Find(row.control)->Widget());
        }
    }
    for (const NamedText& row : AccessibleNames()) {
        SetSpokenName(Find(row.control)->Widget(), ToScreen(row.text));
    }
    for (const NamedText& row : AccessibleDescriptions()) {
        Find(row.control)->Widget().setAccessibleDescription(ToScreen(row.text));
    }
}

Extent FormWindow::ScreenSize() { return Twips(screen()->geometry().size()); }

Extent FormWindow::FormSize() { return Twips(area->Page()->size().grownBy(frame)); }

void FormWindow::Move(int left, int top) {
    place = screen()->geometry().topLeft() + QPoint(Pixels(left), Pixels(top));
    FitToScreen();
}

void FormWindow::Show() {
    mirror.BringUpToDate();
    FitToScreen();
    limits->Lift();
    show();
    connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::FitToNewScreen,
            Qt::UniqueConnection);
}

void FormWindow::RunPendingEvents() {
    mirror.BringUpToDate();
    QApplication::processEvents();
}

void FormWindow::Unload() { close(); }

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        mirror.BringUpToDate();  // the form is visible around the modal box
    }
    if (event->type() == QEvent::Move || event->type() == QEvent::WindowActivate) {
        AllowForFrame();
    }
    if (event->type() == QEvent::WindowUnblocked) {
        // When two dialogs close at once, some window managers leave no window active.
        QMetaObject::invokeMethod(this, &FormWindow::RegainKeyboard, Qt::QueuedConnection);
    }
    return QWidget::event(event);
}

void FormWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        area->Page()->setPalette(ReadableWhenGreyed(palette()));
    }
    QWidget::changeEvent(event);
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) { area->setGeometry(rect()); }

void FormWindow::RegainKeyboard() {
    if (QApplication::activeModalWidget() == nullptr) {
        activateWindow();
    }
}

void FormWindow::closeEvent(QCloseEvent* /*event*/) {
    const Mirror::UserAction action(mirror);
    if (!std::exchange(unloaded, true) && form.Unload) {
        form.Unload();
    }
}

void FormWindow::FollowFocus(QWidget* now) {
    const auto holds = [now](const auto& view) {
        return TakesFocus(*view) && view->Widget().isAncestorOf(now);
    };
    const auto found = std::find_if(views.begin(), views.end(), holds);
    if (found != views.end()) {
        const Mirror::UserAction action(mirror);
        mirror.Mark(**found);  // a box shows its selection only while it has the focus
        area->Reveal((*found)->Widget());
        (*found)->ShownControl().TakeFocus();
    }
}

// Called for the Tab key, and to move the focus away from a widget that is being disabled.
bool FormWindow::focusNextPrevChild(bool next) {
    const QWidget* const now = focusWidget();
    const bool loading = !updatesEnabled();  // no user action yet
    if (now == nullptr || now->isEnabled() || loading) {
        return QWidget::focusNextPrevChild(next);
    }
    ViewToFocus().Widget().setFocus();
    return true;
}

// A box where the next key does no harm, or the Help button, which is always enabled.
View& FormWindow::ViewToFocus() const {
    for (const Control* box : {mirror.LastBox(), static_cast<const Control*>(&form.cmbPhase)}) {
        if (box != nullptr && box->AcceptsUserActions()) {
            return *byControl.at(box);
        }
    }
    return *byControl.at(&form.cmdHelp);
}

// The window gets the size of the form, or of the screen without its panels if that is smaller.
void FormWindow::FitToScreen() {
    const QRect room = screen()->availableGeometry();
    setFixedSize(area->SizeWithin(room.marginsRemoved(frame).size()));
    if (place) {
        const QSize whole = size().grownBy(frame);
        const QPoint last = room.bottomRight() - QRect(QPoint(), whole).bottomRight();
        MoveFrame({std::max(room.left(), std::min(place->x(), last.x())),
                   std::max(room.top(), std::min(place->y(), last.y()))});
    }
    connect(screen(), &QScreen::availableGeometryChanged, this, &FormWindow::FitToNewScreen,
            Qt::UniqueConnection);
}

// QWidget::move could still assume an empty frame, although `frame` is already known.
void FormWindow::MoveFrame(const QPoint& corner) {
    if (frame.isNull()) {
        move(corner);
    } else {
        windowHandle()->setPosition(corner + QPoint(frame.left(), frame.top()));
    }
}

// A window that already has the right size is not moved: the user may have placed it.
void FormWindow::FitToNewScreen() {
    const QSize room = screen()->availableGeometry().marginsRemoved(frame).size();
    const bool imposed = isMaximized() || isFullScreen();
    if (!imposed && area->SizeWithin(room) != size()) {
        place = pos();
        FitToScreen();
    }
}

// `place` was computed for a window without a frame. The frame must not move the window's centre.
void FormWindow::AllowForFrame() {
    const QMargins now = isVisible() ? windowHandle()->frameMargins() : QMargins();
    if (now.isNull() || now == frame) {
        return;
    }
    const bool first = std::exchange(frame, now).isNull();
    if (first && place) {
        *place -= QPoint(now.left() + now.right(), now.top() + now.bottom()) / 2;
        FitToScreen();
    } else {
        FitToNewScreen();
    }
}

View* FormWindow::Find(std::string_view name) const {
    const auto found = std::find_if(views.begin(), views.end(),
                                    [name](const auto& view) { return view->Row().name == name; });
    return found == views.end() ? nullptr : found->get();
}

int FormWindow::Pixels(int twips) const { return ToPixels(twips, scale); }

Extent FormWindow::Twips(QSize pixels) const {
    return {static_cast<int>(std::lround(pixels.width() / scale)),
            static_cast<int>(std::lround(pixels.height() / scale))};
}
