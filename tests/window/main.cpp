// Runs the tests of the window without a real screen, and with temporary settings files. There are
// two screens, neither at the origin: a large one and one smaller than the form.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    const QTemporaryDir settings;
    QFile screens(settings.filePath("screens.json"));
    screens.open(QIODevice::WriteOnly);
    const double factor = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    screens.write(QString(R"({"screens": [
        {"name": "large", "x": 300, "y": 200, "width": 5600, "height": 4200},
        {"name": "small", "x": 7000, "y": 100, "width": %1, "height": %2}]})")
                      .arg(640 * factor)
                      .arg(480 * factor)
                      .toLatin1());
    screens.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
    qputenv("FONTCONFIG_FILE", TEPHREX_FONTS);  // sizes depend on the font
    qputenv("XDG_CACHE_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", settings.filePath("system").toLocal8Bit());
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
