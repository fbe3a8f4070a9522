// The window that carries the form: it makes the views as the catalogue says and leads the
// toolkit's events and the form's changes together. How one control looks stands in Views.
#pragma once

#include <QIcon>
#include <QWidget>
#include <string_view>
#include <unordered_map>

#include "form/RecordEdit.h"
#include "shell/Services.h"
#include "window/Mirror.h"
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
    Extent FormSize() override;
    void Move(int left, int top) override;
    void Show() override;
    void RunPendingEvents() override;
    /// Closes the window. Its first closing, by whatever way, raises the form's Unload.
    void Unload() override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void MakeViews();
    void PlaceViews();
    void StackViews();
    void ChainTabs();
    void NameViews();
    void FollowFocus(QWidget* now);
    View& FocusHeir() const;

    View* Find(std::string_view name) const;
    int Pixels(int twips) const;
    Extent Twips(QSize pixels) const;

    RecordEdit& form;
    Mirror mirror;
    Views views;
    std::unordered_map<const Control*, View*> byControl;
    double scale = 0;  // logical pixels to the twip
    bool unloaded = false;
};
