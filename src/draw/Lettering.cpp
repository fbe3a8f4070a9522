#include "draw/Lettering.h"

#include <QStringDecoder>
#include <QTextLayout>
#include <algorithm>

namespace {

bool IsReplaced(QChar character) {
    const char16_t code = character.unicode();
    return character.category() == QChar::Other_Control || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069) || code >= 0xFFFE;
}

QString Decoded(std::string_view bytes) {
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (QUtf8StringView(view.data(), view.size()).isValidUtf8()) {
        return QString::fromUtf8(view);
    }
    QStringDecoder windows("windows-1252");
    return windows.isValid() ? QString(windows(view)) : QString::fromLatin1(view);
}

// These characters are known to be no taller than a line; others are measured, which takes longer.
bool FitsLine(QChar character) {
    constexpr char16_t minus = 0x2212;
    const char16_t code = character.unicode();
    return code < 0x7F || code == u'\u00E9' || code == minus;
}

QTextOption WrapAnywhere() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

}  // namespace

QFont MeasuredFont() {
    QFont font;
    font.setFamilies(QString(FontFamilies).split(", "));
    font.setPixelSize(MeasuredSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

const Lettering::TextExtent& Lettering::Measure(const QString& text) {
    auto found = known.find(text);
    if (found == known.end()) {
        const bool fitsLine = std::all_of(text.begin(), text.end(), FitsLine);
        found = known.insert(text, {metrics.horizontalAdvance(text),
                                    fitsLine ? lineBounds : metrics.tightBoundingRect(text)});
    }
    return *found;
}

double Lettering::Width(const QString& text, const TextStyle& style) {
    return Measure(text).advance * style.size / MeasuredSize * RoomForOtherFonts;
}

Text Lettering::Put(const QString& text, QPointF at, Anchor anchor, const TextStyle& style) {
    const TextExtent& extent = Measure(text);
    const double scale = style.size / MeasuredSize;
    const double width = extent.advance * scale;
    const double left = anchor == Anchor::Left ? 0 : anchor == Anchor::Right ? width : width / 2;
    const QRectF room(at.x() - left, at.y() + extent.bounds.top() * scale, width,
                      extent.bounds.height() * scale);
    return {text, at, anchor, style.size, style.colour, room};
}

QString Lettering::Elided(const QString& text, Qt::TextElideMode mode, double width,
                          const TextStyle& style) {
    const double measured = width / RoomForOtherFonts * MeasuredSize / style.size;
    return metrics.elidedText(text, mode, measured);
}

QStringList Lettering::Wrapped(const QString& text, double width, const TextStyle& style) {
    QTextLayout layout(text, font);
    layout.setTextOption(WrapAnywhere());
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width / RoomForOtherFonts * MeasuredSize / style.size);
        lines += text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

QString Readable(std::string_view bytes) {
    QString text = Decoded(bytes);
    std::replace_if(text.begin(), text.end(), IsReplaced, QChar(QChar::ReplacementCharacter));
    return text;
}

QString Label(double number, bool showsPlus) {
    constexpr int digits = 5;
    const QString plain = QString::number(number, 'g', digits).replace(u'-', u'\u2212');
    return showsPlus && number > 0 ? u'+' + plain : plain;
}
