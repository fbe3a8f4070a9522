#include "draw/Svg.h"

#include <array>
#include <charconv>
#include <cmath>

#include "draw/Lettering.h"

namespace {

constexpr double Units = 100;  // per millimetre, so that all numbers are whole

class Writer {
public:
    explicit Writer(QByteArray& target) : out(target) {}

    Writer& operator<<(const char* text) {
        out += text;
        return *this;
    }
    Writer& operator<<(const QByteArray& text) {
        out += text;
        return *this;
    }
    Writer& operator<<(double millimetres) {
        std::array<char, 24> digits{};
        char* const end =
            std::to_chars(digits.begin(), digits.end(), std::lround(millimetres * Units)).ptr;
        out.append(digits.begin(), end - digits.begin());
        return *this;
    }
    Writer& operator<<(QPointF point) { return *this << point.x() << " " << point.y(); }

private:
    QByteArray& out;
};

QByteArray Escaped(const QString& text) { return text.toHtmlEscaped().toUtf8(); }

QByteArray ColourName(QRgb colour) {
    return qAlpha(colour) == 0
               ? QByteArray("none")
               : '#' + QByteArray::number(colour & 0xFFFFFFU, 16).rightJustified(6, '0');
}

void WritePath(const QPainterPath& path, Writer& out) {
    QPointF last;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const QPointF point = element;
        if (element.isMoveTo()) {
            out << "M" << point;
        } else if (element.isCurveTo()) {
            out << "C" << point << " " << QPointF(path.elementAt(i + 1)) << " "
                << QPointF(path.elementAt(i + 2));
            i += 2;
        } else if (point.x() == last.x()) {
            out << "V" << point.y();
        } else if (point.y() == last.y()) {
            out << "H" << point.x();
        } else {
            out << "L" << point;
        }
        last = path.elementAt(i);
    }
}

void Write(const Shape& shape, Writer& out) {
    out << "<path fill=\"" << ColourName(shape.style.fill) << "\"";
    if (shape.style.width > 0) {
        out << " stroke=\"" << ColourName(shape.style.line) << "\" stroke-width=\""
            << shape.style.width << "\"";
    }
    out << " d=\"";
    WritePath(shape.path, out);
    out << "\"/>\n";
}

void Write(const Text& text, Writer& out) {
    constexpr std::array anchors{"", " text-anchor=\"middle\"", " text-anchor=\"end\""};
    out << "<text x=\"" << text.at.x() << "\" y=\"" << text.at.y() << "\" font-size=\"" << text.size
        << "\"" << anchors[static_cast<std::size_t>(text.anchor)];
    if (text.colour != 0xFF000000) {
        out << " fill=\"" << ColourName(text.colour) << "\"";
    }
    out << ">" << Escaped(text.text) << "</text>\n";
}

void Write(const Group& group, Writer& out) {
    out << "<g>\n";
    if (!group.title.isEmpty()) {
        out << "<title>" << Escaped(group.title) << "</title>\n";
    }
    for (const Shape& shape : group.shapes) {
        Write(shape, out);
    }
    for (const Text& text : group.texts) {
        Write(text, out);
    }
    out << "</g>\n";
}

}  // namespace

QByteArray SvgOf(const Drawing& drawing) {
    const Page& page = drawing.pages.front();
    QByteArray document;
    Writer out(document);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" fill-rule=\"evenodd\" width=\""
        << QByteArray::number(page.size.width()) << "mm\" height=\""
        << QByteArray::number(page.size.height()) << "mm\" viewBox=\"0 0 " << page.size.width()
        << " " << page.size.height() << "\" font-family=\"" << FontFamilies << "\">\n<title>"
        << Escaped(drawing.title) << "</title>\n<desc>" << Escaped(drawing.description)
        << "</desc>\n<path fill=\"#ffffff\" d=\"M0 0H" << page.size.width() << "V"
        << page.size.height() << "H0\"/>\n";
    for (const Group& group : page.groups) {
        Write(group, out);
    }
    out << "</svg>\n";
    return document;
}
