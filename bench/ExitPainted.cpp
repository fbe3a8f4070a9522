// Linked into a program with a window, this ends the program as soon as the window is painted and
// nothing is left to do. The program's own code needs no change.

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>
#include <QTimer>

namespace {

class Watch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            quietRounds = 0;
            if (!rounds.isActive()) {
                rounds.callOnTimeout(this, [this] { CountRound(); });
                rounds.start(0);
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // While the form is loading, events are processed but the event loop does not run yet.
    void CountRound() {
        constexpr int enough = 3;
        if (thread()->loopLevel() > 0 && ++quietRounds == enough) {
            _exit(0);
        }
    }

    QTimer rounds;
    int quietRounds = 0;
};

void StartWatch() {
    QCoreApplication* const application = QCoreApplication::instance();
    application->installEventFilter(new Watch(application));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(StartWatch)
