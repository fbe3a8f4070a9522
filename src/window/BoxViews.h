// The views of the two kinds of control that the user can type in: the text box and the combo box.
// Their widgets are in LineBox and ListBox.
#pragma once

#include "window/LineBox.h"
#include "window/ListBox.h"
#include "window/View.h"

/// Shows a text box, and forwards key presses, edits and selections to it.
class TextBoxView : public ViewOf<TextBox, LineBox> {
public:
    explicit TextBoxView(const ViewParts& parts);

    void Update() override;
    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool ShowsText() const;
    std::string ShownText() const;
    void ForwardKey();
    void ForwardEdit();
    void ForwardSelection();
    void ShowSelection();
};

/// Shows a combo box with its entries, and forwards picks and changes of its text.
class ComboBoxView : public ViewOf<ComboBox, ListBox> {
public:
    explicit ComboBoxView(const ViewParts& parts);

    void Update() override;
    QSize SizeWith(const QString& text) override { return widget.SizeFor(text); }

private:
    bool ShowsText() const;
    void ForwardText();
    void ForwardPick(int position);
};
