#include "window/IniSettings.h"

#include <QIODevice>
#include <QSettings>
#include <QStandardPaths>

namespace {

// The toolkit's own INI format interprets backslashes, commas and quotes in a value, which would
// corrupt a path.
bool ReadLines(QIODevice& file, QSettings::SettingsMap& values) {
    QString group;
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r')) {
            line.chop(1);
        }
        const QByteArray bare = line.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (bare.startsWith('[') && bare.endsWith(']')) {
            group = QString::fromUtf8(bare.mid(1, bare.size() - 2)) + '/';
        } else if (equals > 0) {
            // Nothing asks for the key of a comment, which begins with the comment's sign.
            const QString key = group + QString::fromUtf8(line.left(equals).trimmed());
            values[key.toLower()] = line.mid(equals + 1);
        }
    }
    return true;
}

QSettings::Format RawIni() {
    static const QSettings::Format format = QSettings::registerFormat("ini", ReadLines, nullptr);
    return format;
}

}  // namespace

std::string IniSettings::Read(const std::string& section, const std::string& key,
                              const std::string& fallback) {
    const QString group = QString::fromStdString(section).section('\\', -1);
    const QString path = (group + '/' + QString::fromStdString(key)).toLower();
    // locateAll() finds regular files only: opening a pipe would wait for a writer.
    const QStringList files =
        QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, "Tephrex3.ini");
    for (const QString& file : files) {
        const QSettings settings(file, RawIni());
        const QVariant value = settings.value(path);
        if (value.isValid()) {
            return value.toByteArray().toStdString();
        }
    }
    return fallback;
}
