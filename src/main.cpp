// The program: the form, its services on this platform, and the window around it.
#include <QApplication>
#include <QFile>
#include <QLocale>
#include <memory>

#include "form/RecordEdit.h"
#include "form/Wiring.h"
#include "shell/Startup.h"
#include "window/FileChooser.h"
#include "window/FileDevice.h"
#include "window/FormWindow.h"
#include "window/HelpWindow.h"
#include "window/IniSettings.h"
#include "window/MessageDialogs.h"
#include "window/PlainPaths.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("tephrexedit");
    QApplication::setDesktopFileName("tephrexedit");
    QApplication::setWindowIcon(FormIcon());

    const auto form = std::make_unique<RecordEdit>();  // half a megabyte
    FormWindow window(*form);
    MessageDialogs messages(window);
    FileChooser dialogs(window);
    HelpWindow help(window);
    FileDevice device;
    form->services = {
        .messages = &messages,
        .dialogs = &dialogs,
        .help = &help,
        .device = &device,
        .window = &window,
        .createPathHelper = [] { return std::make_unique<PlainPaths>(); },
        .createSettingsStore = [] { return std::make_unique<IniSettings>(); },
        .programFolder = QFile::encodeName(QApplication::applicationDirPath()).toStdString(),
    };
    form->separators = {
        .decimal = QLocale().decimalPoint().toStdString(),
        .thousands = QLocale().groupSeparator().toStdString(),
    };

    Wire(*form);
    window.setUpdatesEnabled(false);  // or the form would appear before it is filled
    Form_Load(*form);
    window.setUpdatesEnabled(true);
    // The user may have closed the window while the form was loading.
    return window.isVisible() ? QApplication::exec() : 0;
}
