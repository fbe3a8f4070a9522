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
    : form(ownForm), area(new FormArea(this)), limits(new SizeLimits(*this)) {
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
    StackViews();
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
    disconnect(qApp, nullptr, this, nullptr);  // the widgets lose the focus as they go
}

void FormWindow::MakeViews() {
    for (const CatalogueRow& row : Catalogue()) {
        View* const around = Find(row.frame);
        QWidget* const parent = around != nullptr ? &around->Widget() : area->Page();
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
        if (const int covered = CoveredWidth(row); covered > 0) {
            view->Widget().setContentsMargins(0, 0, Pixels(covered), 0);
        }
        view->Widget().setGeometry(Pixels(row.left), Pixels(row.top), Pixels(row.width),
                                   Pixels(row.height));
    }
}

// Labels lie beneath all else; of two others the one later in the tab order lies above.
void FormWindow::StackViews() {
    for (const View* view : InTabOrder(views)) {
        view->Widget().raise();
    }
}

void FormWindow::ChainTabs() {
    const std::vector<View*> chain = InTabOrder(views);
    for (std::size_t i = 1; i < chain.size(); ++i) {
        setTabOrder(&chain[i - 1]->Widget(), &chain[i]->Widget());
    }
}

// What a screen reader says of the controls that their captions and tips say nothing of.
void FormWindow::NameViews() {
    for (const NamedText& row : LabelsOf()) {
        if (auto* const label = qobject_cast<QLabel*>(&Find(row.text)->Widget())) {
            label->setBuddy(&Find(row.control)->Widget());
        }
    }
    for (const NamedText& row : SpokenNames()) {
        NameAloud(Find(row.control)->Widget(), ToScreen(row.text));
    }
    for (const NamedText& row : SpokenDescriptions()) {
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
        mirror.BringUpToDate();  // the user sees the form behind the modal box
    }
    if (event->type() == QEvent::Move || event->type() == QEvent::WindowActivate) {
        CountFrame();
    }
    if (event->type() == QEvent::WindowUnblocked) {
        // When two dialogs go at once, some window managers give the keys to nobody.
        QMetaObject::invokeMethod(this, &FormWindow::TakeKeysBack, Qt::QueuedConnection);
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

void FormWindow::TakeKeysBack() {
    if (QApplication::activeModalWidget() == nullptr) {
        activateWindow();
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    const Mirror::UserAction action(mirror);
    if (!std::exchange(unloaded, true) && form.Unload) {
        form.Unload();
    }
    QWidget::closeEvent(event);
}

void FormWindow::FollowFocus(QWidget* now) {
    const auto holds = [now](const auto& view) {
        return TakesFocus(*view) && (&view->Widget() == now || view->Widget().isAncestorOf(now));
    };
    const auto found = std::find_if(views.begin(), views.end(), holds);
    if (found != views.end()) {
        const Mirror::UserAction action(mirror);
        mirror.Mark(**found);  // a box shows its selection only while it has the focus
        area->Reveal((*found)->Widget());
        (*found)->Original().TakeFocus();
    }
}

// The toolkit comes here for the Tab key, and to hand on the focus of a widget that it disables.
bool FormWindow::focusNextPrevChild(bool next) {
    const QWidget* const now = focusWidget();
    const bool loading = !updatesEnabled();  // when nothing is the user's doing yet
    if (now == nullptr || now->isEnabled() || loading) {
        return QWidget::focusNextPrevChild(next);
    }
    FocusHeir().Widget().setFocus();
    return true;
}

// Where the next key does no harm. Help is open at all times.
View& FormWindow::FocusHeir() const {
    for (const Control* heir : {mirror.LastBox(), static_cast<const Control*>(&form.cmbPhase)}) {
        if (heir != nullptr && heir->OpenToUser()) {
            return *byControl.at(heir);
        }
    }
    return *byControl.at(&form.cmdHelp);
}

// The window is as large as the form, or as the screen has room, and clear of its panels.
void FormWindow::FitToScreen() {
    const QRect room = screen()->availableGeometry();
    setFixedSize(area->SizeWithin(room.marginsRemoved(frame).size()));
    if (place) {
        const QSize whole = size().grownBy(frame);
        const QPoint last = room.bottomRight() - QRect(QPoint(), whole).bottomRight();
        PutFrame({std::max(room.left(), std::min(place->x(), last.x())),
                  std::max(room.top(), std::min(place->y(), last.y()))});
    }
    connect(screen(), &QScreen::availableGeometryChanged, this, &FormWindow::FitToNewScreen,
            Qt::UniqueConnection);
}

// The widget itself can still reckon with a frame of no size when the window knows better.
void FormWindow::PutFrame(const QPoint& corner) {
    if (frame.isNull()) {
        move(corner);
    } else {
        windowHandle()->setPosition(corner + QPoint(frame.left(), frame.top()));
    }
}

// A window that has the right size already stays where the user has put it.
void FormWindow::FitToNewScreen() {
    const QSize room = screen()->availableGeometry().marginsRemoved(frame).size();
    const bool imposed = isMaximized() || isFullScreen();
    if (!imposed && area->SizeWithin(room) != size()) {
        place = pos();
        FitToScreen();
    }
}

// The place was computed for a form without a frame; its middle is to stay where it is.
void FormWindow::CountFrame() {
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
