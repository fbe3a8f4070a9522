// The reference for tephrexdraw: a program that paints one text into an SVG, PNG or PDF file,
// depending on the ending of the name that it is given, on a page of the same size.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr double Width = 180;  // millimetres
constexpr double Height = 120;

void PaintOn(QPaintDevice& device) {
    QPainter painter(&device);
    painter.drawText(100, 100, "One text");
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QString name = QString::fromLocal8Bit(argv[1]);
    if (name.endsWith(".svg")) {
        QSvgGenerator svg;
        svg.setFileName(name);
        svg.setSize(QSize(680, 454));
        PaintOn(svg);
    } else if (name.endsWith(".png")) {
        constexpr double dots = 200 / 25.4;
        QImage image(static_cast<int>(Width * dots), static_cast<int>(Height * dots),
                     QImage::Format_RGB32);
        image.fill(Qt::white);
        PaintOn(image);
        image.save(name);
    } else {
        QPdfWriter pdf(name);
        pdf.setPageSize(QPageSize(QSizeF(Width, Height), QPageSize::Millimeter));
        PaintOn(pdf);
    }
}
