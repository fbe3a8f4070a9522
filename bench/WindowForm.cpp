#include "WindowForm.h"

#include <QPushButton>

#include "form/Wiring.h"
#include "shell/Startup.h"

WindowForm::WindowForm() {
    form.services.messages = &platform;
    form.services.dialogs = &platform;
    form.services.help = &platform;
    form.services.window = &window;
    Wire(form);
    Form_Load(form);
}

void WindowForm::Open(const std::string& path) {
    platform.answer = path;
    window.findChild<QPushButton*>("cmdOpen")->click();
}
