#include "window/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/Access.h"
#include "window/Pictures.h"
#include "window/Scale.h"
#include "window/ScreenText.h"
#include "window/Shortcuts.h"

namespace {

bool TakesFocus(const Picture& picture) {
    return picture.Row().kind != Kind::Label && picture.Row().kind != Kind::Frame;
}

std::vector<Picture*> InTabOrder(const Pictures& pictures) {
    std::vector<Picture*> sorted;
    for (const auto& picture : pictures) {
        if (TakesFocus(*picture)) {
            sorted.push_back(picture.get());
        }
    }
    std::sort(sorted.begin(), sorted.end(), [](const Picture* one, const Picture* other) {
        return one->Row().tab < other->Row().tab;
    });
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

FormWindow::FormWindow(RecordEdit& ownForm) : form(ownForm) {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setWindowTitle(ToScreen(FormCaption));

    DescribeWidgets();
    MakePictures();
    scale = FittingScale(pictures);
    setFixedSize(Pixels(FormWidth), Pixels(FormHeight));
    PlacePictures();
    StackPictures();
    ChainTabs();
    NamePictures();
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

void FormWindow::MakePictures() {
    for (const CatalogueRow& row : Catalogue()) {
        Picture* const frame = Find(row.frame);
        QWidget* const parent = frame != nullptr ? &frame->Widget() : this;
        Control& control = *form.Find(row.name);
        if (auto picture = NewPicture({control, row, parent, mirror})) {
            mirror.Mark(*picture);
            byControl.emplace(&control, picture.get());
            pictures.push_back(std::move(picture));
        }
    }
}

void FormWindow::PlacePictures() {
    for (const auto& picture : pictures) {
        const CatalogueRow& row = picture->Row();
        if (const int covered = CoveredWidth(row); covered > 0) {
            picture->Widget().setContentsMargins(0, 0, Pixels(covered), 0);
        }
        picture->Widget().setGeometry(Pixels(row.left), Pixels(row.top), Pixels(row.width),
                                      Pixels(row.height));
    }
}

// Labels lie beneath all else; of two others the one later in the tab order lies above.
void FormWindow::StackPictures() {
    for (const Picture* picture : InTabOrder(pictures)) {
        picture->Widget().raise();
    }
}

void FormWindow::ChainTabs() {
    const std::vector<Picture*> chain = InTabOrder(pictures);
    for (std::size_t i = 1; i < chain.size(); ++i) {
        setTabOrder(&chain[i - 1]->Widget(), &chain[i]->Widget());
    }
}

// By these names a reader of the screen calls the controls that have no caption.
void FormWindow::NamePictures() {
    for (const NamedText& row : LabelsOf()) {
        if (auto* const label = qobject_cast<QLabel*>(&Find(row.text)->Widget())) {
            label->setBuddy(&Find(row.control)->Widget());
        }
    }
    for (const NamedText& row : SpokenNames()) {
        NameAloud(Find(row.control)->Widget(), ToScreen(row.text));
    }
}

Extent FormWindow::ScreenSize() { return Twips(screen()->geometry().size()); }

Extent FormWindow::FormSize() { return Twips(frameGeometry().size()); }

void FormWindow::Move(int left, int top) {
    move(screen()->geometry().topLeft() + QPoint(Pixels(left), Pixels(top)));
}

void FormWindow::Show() {
    mirror.BringUpToDate();
    show();
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
    return QWidget::event(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    const Mirror::Act act(mirror);
    if (!std::exchange(unloaded, true) && form.Unload) {
        form.Unload();
    }
    QWidget::closeEvent(event);
}

void FormWindow::FollowFocus(QWidget* now) {
    const auto holds = [now](const auto& picture) {
        return TakesFocus(*picture) &&
               (&picture->Widget() == now || picture->Widget().isAncestorOf(now));
    };
    const auto found = std::find_if(pictures.begin(), pictures.end(), holds);
    if (found != pictures.end()) {
        const Mirror::Act act(mirror);
        mirror.Mark(**found);  // a box shows its selection only while it has the focus
        (*found)->Original().TakeFocus();
    }
}

Picture* FormWindow::Find(std::string_view name) const {
    const auto found = std::find_if(pictures.begin(), pictures.end(), [name](const auto& picture) {
        return picture->Row().name == name;
    });
    return found == pictures.end() ? nullptr : found->get();
}

int FormWindow::Pixels(int twips) const { return static_cast<int>(std::lround(twips * scale)); }

Extent FormWindow::Twips(QSize pixels) const {
    return {static_cast<int>(std::lround(pixels.width() / scale)),
            static_cast<int>(std::lround(pixels.height() / scale))};
}
