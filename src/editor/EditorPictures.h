#pragma once
// The editor's own pictures, drawn at start rather than shipped as files: the faces of the image
// buttons, the header picture of each page, the empty-picture placeholder and the highlight.

#include <QImage>
#include <QString>

namespace orvanta {

enum class ButtonFace { Package, Save, Simulate, Folder };

QImage buttonPicture(ButtonFace face, int size);
QImage bannerPicture(const QString& title, const QString& subtitle, QSize size);
QImage placeholderPicture(QSize size);
QImage shadePicture(QSize size);

}  // namespace orvanta
