// The views of the two kinds of control that hold a text of the user's: the text box and the
// combo box.
#pragma once

#include "window/LineBox.h"
#include "window/ListBox.h"
#include "window/View.h"

class TextBoxView : public ViewOf<TextBox, LineBox> {
public:
    explicit TextBoxView(const ViewParts& parts);

    void Update() override;
    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool ShowsText() const;
    std::string TextOnShow() const;
    void TakeKey();
    void TakeEdit();
    void TakeSelection();
    void ShowSelection();
};

class ComboBoxView : public ViewOf<ComboBox, ListBox> {
public:
    explicit ComboBoxView(const ViewParts& parts);

    void Update() override;
    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

private:
    bool ShowsText() const;
    void TakeText();
    void TakePick(int position);
};
