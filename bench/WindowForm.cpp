#include "WindowForm.h"

#include <QPushButton>

WindowForm::WindowForm() { platform.Load(form, window); }

void WindowForm::Open(const std::string& path) {
    platform.answer = path;
    window.findChild<QPushButton*>("cmdOpen")->click();
}
