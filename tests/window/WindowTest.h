// A form shown in its window. Tests operate its widgets as a user does.
#pragma once

#include <QTest>
#include <QtWidgets>

#include "../TestForm.h"
#include "window/FormWindow.h"

using QTest::keyClick, QTest::mouseClick;

class WindowTest : public FormTest {
protected:
    FormWindow window{form};

    void SetUp() override {
        Load();
        Open({GoodPhase(EruptionType::Strombolian)});
        window.Show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <class WidgetKind = QWidget>
    WidgetKind* Find(const char* name) {
        return window.findChild<WidgetKind*>(name);
    }
};
