#include "window/ScreenText.h"

#include <QTextBoundaryFinder>
#include <QUtf8StringView>
#include <algorithm>
#include <array>

namespace {

// Windows-1252 from 0x80 to 0x9F; any other byte is the character with the same code. The five
// bytes without a character become control characters.
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

QString Decoded(std::string_view bytes) {
    if (IsUtf8(bytes)) {
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    QString text;
    for (const char byte : bytes) {
        text += FromWindows1252(byte);
    }
    return text;
}

// Unicode line ends, and the characters that embed, override or isolate a writing direction. Plain
// direction marks are ordinary parts of names and are left alone.
bool BreaksOrReordersLine(char16_t code) {
    return (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool NeedsStandIn(QChar character) {
    return character.category() == QChar::Other_Control ||
           BreaksOrReordersLine(character.unicode());
}

// A stand-in is a low surrogate without its high one: fonts show it as a replacement character. Its
// low bits are those of the original. Those bits alone are the original if that needs a stand-in;
// otherwise the original is 0x2000 higher.
constexpr char16_t LoneSurrogate = 0xDC00;
constexpr char16_t LowBits = 0x3FF;

char16_t Original(char16_t standIn) {
    const auto code = static_cast<char16_t>(standIn & LowBits);
    return NeedsStandIn(code) ? code : static_cast<char16_t>(0x2000 | code);
}

}  // namespace

QString WithStandIns(QString text) {
    for (QChar& character : text) {
        if (NeedsStandIn(character)) {
            character = QChar(LoneSurrogate | (character.unicode() & LowBits));
        }
    }
    return text;
}

QString WithoutStandIns(QString shown) {
    bool paired = false;
    for (QChar& character : shown) {
        if (!paired && character.isLowSurrogate()) {
            character = QChar(Original(character.unicode()));
        }
        paired = character.isHighSurrogate();
    }
    return shown;
}

QString NameInMessage(const QString& name) {
    constexpr qsizetype line = 60;
    constexpr QChar mayBreak(0x200B);
    const QString shown = WithStandIns(name);
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, shown);
    QString broken;
    qsizetype from = 0;
    while (shown.size() - from > line) {
        letters.setPosition(from + line);
        const qsizetype to = letters.isAtBoundary() ? from + line : letters.toNextBoundary();
        broken += shown.mid(from, to - from) + mayBreak;
        from = to;
    }
    return broken + shown.mid(from);
}

QString ToScreen(std::string_view bytes) { return WithStandIns(Decoded(bytes)); }

std::string FromScreen(const QString& shown) { return WithoutStandIns(shown).toStdString(); }

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
    constexpr int sideMargins = 4;  // between the text and the toolkit's frame, in pixels
    constexpr int caret = 1;
    return {metrics.horizontalAdvance(shown) + sideMargins + caret, metrics.height()};
}
