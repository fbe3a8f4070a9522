#include "draw/Paint.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "draw/Lettering.h"

namespace {

constexpr double MillimetresPerInch = 25.4;

void Paint(const Shape& shape, QPainter& painter) {
    const Style& style = shape.style;
    painter.setPen(style.width > 0 ? QPen(QColor::fromRgb(style.line), style.width, Qt::SolidLine,
                                          Qt::FlatCap, Qt::MiterJoin)
                                   : QPen(Qt::NoPen));
    painter.setBrush(qAlpha(style.fill) == 0 ? QBrush(Qt::NoBrush)
                                             : QBrush(QColor::fromRgb(style.fill)));
    painter.drawPath(shape.path);
}

void Paint(const Text& text, QPainter& painter) {
    const double scale = text.size / MeasuredSize;
    painter.save();
    painter.translate(text.room.left(), text.at.y());
    painter.scale(scale, scale);
    painter.setFont(MeasuredFont());
    painter.setPen(QColor::fromRgb(text.colour));
    painter.drawText(QPointF(0, 0), text.text);
    painter.restore();
}

void Paint(const Page& page, double dotsPerInch, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerInch / MillimetresPerInch, dotsPerInch / MillimetresPerInch);
    for (const Group& group : page.groups) {
        for (const Shape& shape : group.shapes) {
            Paint(shape, painter);
        }
        for (const Text& text : group.texts) {
            Paint(text, painter);
        }
    }
    painter.restore();
}

// The size of a page in pixels. The painter paints nothing beyond `longest`.
QSize PixelsOf(const Page& page, double dotsPerInch) {
    constexpr double longest = 32767;
    constexpr double most = 1 << 28;  // pixels: a gigabyte
    const double width = std::ceil(page.size.width() * dotsPerInch / MillimetresPerInch);
    const double height = std::ceil(page.size.height() * dotsPerInch / MillimetresPerInch);
    if (std::max(width, height) > longest || width * height > most) {
        throw PaintError("the picture has more pixels than can be painted; try a smaller --dpi");
    }
    return {static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

QByteArray PngOf(const Drawing& drawing, double dotsPerInch) {
    const Page& page = drawing.pages.front();
    QImage image(PixelsOf(page, dotsPerInch), QImage::Format_RGB32);
    if (image.isNull()) {
        throw PaintError("the picture needs more memory than there is; try a smaller --dpi");
    }
    image.fill(Qt::white);
    image.setDotsPerMeterX(qRound(dotsPerInch / MillimetresPerInch * 1000));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    Paint(page, dotsPerInch, painter);
    painter.end();
    QByteArray bytes;
    QBuffer target(&bytes);
    if (!image.save(&target, "PNG")) {
        throw PaintError("the picture cannot be converted to PNG");
    }
    return bytes;
}

QByteArray PdfOf(const Drawing& drawing) {
    constexpr int resolution = 1200;
    QByteArray bytes;
    QBuffer target(&bytes);
    target.open(QIODevice::WriteOnly);
    QPdfWriter writer(&target);
    writer.setResolution(resolution);
    writer.setTitle(drawing.title);
    writer.setCreator("tephrexdraw");
    const QSizeF size = drawing.pages.front().size;
    writer.setPageLayout({QPageSize(size, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                          QPageLayout::Portrait,
                          {}});
    QPainter painter(&writer);
    for (const Page& page : drawing.pages) {
        if (&page != &drawing.pages.front()) {
            writer.newPage();
        }
        Paint(page, resolution, painter);
    }
    painter.end();
    return bytes;
}
