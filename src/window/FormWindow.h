// The window of the form: makes the views from the catalogue, forwards the focus and the closing of
// the window to the form, and marks the views of controls that change. The views show the single
// controls.
#pragma once

#include <QIcon>
#include <QMargins>
#include <QWidget>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "form/RecordEdit.h"
#include "shell/Services.h"
#include "window/FormArea.h"
#include "window/Mirror.h"
#include "window/SizeLimits.h"
#include "window/View.h"

/// The icon of all windows of the program.
QIcon FormIcon();

class FormWindow : public QWidget, public Window {
    Q_OBJECT

public:
    /// The form has to outlive the window, which sets its observer.
    explicit FormWindow(RecordEdit& ownForm);
    ~FormWindow() override;

    /// In twips at the form's scale.
    Extent ScreenSize() override;
    /// In twips at the form's scale, including the window's frame once that is known.
    Extent FormSize() override;
    /// Moves the top left corner to this place on the screen, in twips, or to the nearest place at
    /// which the whole window is visible.
    void Move(int left, int top) override;
    /// Brings the views up to date, fits the window to its screen and shows it.
    void Show() override;
    /// Brings the views up to date, then handles the pending events.
    void RunPendingEvents() override;
    /// Closes the window. The first time it closes, in whatever way, the form's Unload is raised.
    void Unload() override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void MakeViews();
    void PlaceViews();
    void ChainTabs();
    void NameViews();
    void FollowFocus(QWidget* now);
    void RegainKeyboard();
    View& ViewToFocus() const;
    void FitToScreen();
    void FitToNewScreen();
    void MoveFrame(const QPoint& corner);
    void AllowForFrame();

    View* Find(std::string_view name) const;
    int Pixels(int twips) const;
    Extent Twips(QSize pixels) const;

    RecordEdit& form;
    FormArea* area;
    SizeLimits* limits;
    Mirror mirror;
    Views views;
    std::unordered_map<const Control*, View*> byControl;
    double scale = 0;             // logical pixels per twip
    std::optional<QPoint> place;  // top left corner of the window's frame, in logical pixels
    QMargins frame;               // null until the window manager has set it
    bool unloaded = false;
};
