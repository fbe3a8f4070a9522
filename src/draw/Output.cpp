#include "draw/Output.h"

#include <QFile>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace {

void WriteToStandardOutput(const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.data(), 1, size, stdout) != size || std::fflush(stdout) != 0) {
        throw OutputError("standard output: " + std::generic_category().message(errno));
    }
}

}  // namespace

void WriteWhole(const std::string& name, const QByteArray& bytes) {
    if (name.empty()) {
        WriteToStandardOutput(bytes);
        return;
    }
    const QString path = QFile::decodeName(name.c_str());
    if (QFile::encodeName(path).toStdString() != name) {
        throw OutputError(name + ": the name is not UTF-8");
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw OutputError(name + ": " + file.errorString().toStdString());
    }
}
