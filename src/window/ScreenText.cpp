#include "window/ScreenText.h"

#include <QUtf8StringView>
#include <algorithm>
#include <array>

namespace {

// Windows-1252 from 0x80 to 0x9F; elsewhere a byte is the character of the same number. The five
// bytes without a character stay control characters.
constexpr std::array<char16_t, 32> Windows1252{
    u'\u20AC', u'\u0081', u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\u008D', u'\u017D', u'\u008F',
    u'\u0090', u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\u009D', u'\u017E', u'\u0178',
};

bool IsUtf8(std::string_view bytes) {
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

QChar FromWindows1252(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code <= 0x9F ? QChar(Windows1252[code - 0x80U]) : QChar(code);
}

}  // namespace

QString ToScreen(std::string_view bytes) {
    if (IsUtf8(bytes)) {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    QString shown;
    for (const char byte : bytes) {
        shown += FromWindows1252(byte);
    }
    return shown;
}

std::string FromScreen(const QString& shown) { return shown.toStdString(); }

int ScreenPlace(std::string_view bytes, std::size_t place) {
    const std::string_view front = bytes.substr(0, place);
    return static_cast<int>(IsUtf8(bytes) ? ToScreen(front).size()
                                          : static_cast<qsizetype>(front.size()));
}

std::size_t BytePlace(std::string_view bytes, int place) {
    const std::size_t count = IsUtf8(bytes) ? FromScreen(ToScreen(bytes).left(place)).size()
                                            : static_cast<std::size_t>(place);
    return std::min(count, bytes.size());
}

QSize RoomToEdit(const QString& shown, const QFontMetrics& metrics) {
    constexpr int sideMargins = 4;  // that the toolkit keeps free beside the text
    constexpr int caret = 1;
    return {metrics.horizontalAdvance(shown) + sideMargins + caret, metrics.height()};
}
