// Linked to the program, closes its window as soon as it is visible, while the form is still
// loading. An event loop that starts after that would never end.
#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

static void CloseEarly() {
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [] {
        if (QThread::currentThread()->loopLevel() > 0) std::_Exit(EXIT_FAILURE);
        for (QWidget* const window : QApplication::topLevelWidgets()) window->close();
    });
    timer->start();
}
Q_COREAPP_STARTUP_FUNCTION(CloseEarly)
