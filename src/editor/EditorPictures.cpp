#include "editor/EditorPictures.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace orvanta {

namespace {

QImage transparent(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void drawPackage(QPainter& painter, double s) {
    painter.setBrush(QColor(0xd9, 0x8c, 0x3f));
    painter.drawRect(QRectF(s * 0.18, s * 0.38, s * 0.64, s * 0.48));
    painter.setBrush(QColor(0xf0, 0xb0, 0x60));
    QPolygonF lid;
    lid << QPointF(s * 0.18, s * 0.38) << QPointF(s * 0.32, s * 0.16) << QPointF(s * 0.68, s * 0.16)
        << QPointF(s * 0.82, s * 0.38);
    painter.drawPolygon(lid);
    painter.drawLine(QPointF(s * 0.5, s * 0.38), QPointF(s * 0.5, s * 0.86));
}

void drawSave(QPainter& painter, double s) {
    painter.setBrush(QColor(0x2f, 0x6f, 0xb5));
    painter.drawRoundedRect(QRectF(s * 0.16, s * 0.16, s * 0.68, s * 0.68), s * 0.06, s * 0.06);
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(s * 0.28, s * 0.16, s * 0.44, s * 0.24));
    painter.setBrush(QColor(0xdd, 0xe6, 0xf0));
    painter.drawRect(QRectF(s * 0.26, s * 0.54, s * 0.48, s * 0.30));
}

void drawSimulate(QPainter& painter, double s) {
    painter.setBrush(QColor(0x3c, 0x9a, 0x4a));
    painter.drawEllipse(QRectF(s * 0.14, s * 0.14, s * 0.72, s * 0.72));
    painter.setBrush(Qt::white);
    QPolygonF play;
    play << QPointF(s * 0.42, s * 0.32) << QPointF(s * 0.68, s * 0.5) << QPointF(s * 0.42, s * 0.68);
    painter.drawPolygon(play);
}

void drawFolder(QPainter& painter, double s) {
    painter.setBrush(QColor(0xe8, 0xbe, 0x4a));
    painter.drawRect(QRectF(s * 0.14, s * 0.24, s * 0.3, s * 0.12));
    painter.setBrush(QColor(0xf5, 0xd0, 0x65));
    painter.drawRoundedRect(QRectF(s * 0.14, s * 0.32, s * 0.72, s * 0.48), s * 0.04, s * 0.04);
}

}  // namespace

QImage buttonPicture(ButtonFace face, int size) {
    QImage image = transparent(QSize(size, size));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x30, 0x30, 0x30), size / 24.0));
    const double s = size;
    switch (face) {
        case ButtonFace::Package:
            drawPackage(painter, s);
            break;
        case ButtonFace::Save:
            drawSave(painter, s);
            break;
        case ButtonFace::Simulate:
            drawSimulate(painter, s);
            break;
        case ButtonFace::Folder:
            drawFolder(painter, s);
            break;
    }
    return image;
}

QImage bannerPicture(const QString& title, const QString& subtitle, QSize size) {
    QImage image = transparent(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fill(0, 0, size.width(), 0);
    fill.setColorAt(0, QColor(0x1f, 0x4e, 0x79));
    fill.setColorAt(1, QColor(0x4a, 0x8c, 0xc8));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(0, 0, size.width(), size.height()), 6, 6);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(size.height() * 2 / 5);
    painter.setFont(font);
    painter.drawText(QRect(12, 2, size.width() - 16, size.height() * 3 / 5), Qt::AlignLeft | Qt::AlignVCenter,
                     title);
    font.setBold(false);
    font.setPixelSize(size.height() / 4);
    painter.setFont(font);
    painter.drawText(QRect(12, size.height() * 3 / 5, size.width() - 16, size.height() * 2 / 5 - 2),
                     Qt::AlignLeft | Qt::AlignVCenter, subtitle);
    return image;
}

QImage placeholderPicture(QSize size) {
    QImage image = transparent(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0xee, 0xee, 0xee));
    painter.setPen(QPen(QColor(0x99, 0x99, 0x99), 1, Qt::DashLine));
    painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    painter.setPen(QColor(0x88, 0x88, 0x88));
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("no image"));
    return image;
}

QImage shadePicture(QSize size) {
    QImage image = transparent(size);
    QPainter painter(&image);
    QRadialGradient glow(QPointF(size.width() / 2.0, size.height() / 2.0), size.width() / 2.0);
    glow.setColorAt(0, QColor(0x6f, 0xb3, 0xff, 0xc0));
    glow.setColorAt(1, QColor(0x6f, 0xb3, 0xff, 0));
    painter.fillRect(image.rect(), glow);
    return image;
}

}  // namespace orvanta
