// A form that is on the screen. Tests act on its widgets as a user does.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "../TestForm.h"
#include "window/FormWindow.h"

class WindowTest : public FormTest {
protected:
    FormWindow window{form};

    void SetUp() override {
        Load();
        window.Show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class WidgetKind = QWidget>
    WidgetKind* Find(const char* name) {
        return window.findChild<WidgetKind*>(name);
    }

    void OpenPhase(Integer eruptionType) {
        Open({GoodPhase(eruptionType)});
        window.RunPendingEvents();
    }

    static void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(widget, key, with);
    }
};
