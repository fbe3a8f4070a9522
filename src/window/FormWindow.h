// The window that carries the form: it makes the views as the catalogue says and leads the
// toolkit's events and the form's changes together. How one control looks is in Views.
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

/// The form's icon, which serves all windows of the program.
QIcon FormIcon();

class FormWindow : public QWidget, public Window {
    Q_OBJECT

public:
    /// The form has to outlive the window, which becomes its observer.
    explicit FormWindow(RecordEdit& ownForm);
    ~FormWindow() override;

    Extent ScreenSize() override;
    /// With the window's frame, as far as it is known.
    Extent FormSize() override;
    /// On a screen smaller than the form the window goes where all of it can be seen.
    void Move(int left, int top) override;
    void Show() override;
    void RunPendingEvents() override;
    /// Closes the window. Its first closing, by whatever way, raises the form's Unload.
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
    void StackViews();
    void ChainTabs();
    void NameViews();
    void FollowFocus(QWidget* now);
    void TakeKeysBack();
    View& FocusHeir() const;
    void FitToScreen();
    void FitToNewScreen();
    void PutFrame(const QPoint& corner);
    void CountFrame();

    View* Find(std::string_view name) const;
    int Pixels(int twips) const;
    Extent Twips(QSize pixels) const;

    RecordEdit& form;
    FormArea* area;
    SizeLimits* limits;
    Mirror mirror;
    Views views;
    std::unordered_map<const Control*, View*> byControl;
    double scale = 0;             // logical pixels to the twip
    std::optional<QPoint> place;  // of the form with its frame
    QMargins frame;               // none until the window manager has made it
    bool unloaded = false;
};
