#include "pictures.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>
#include <cmath>
#include <functional>

#include "image/widget/aicAlphaImage.h"

namespace orvanta {
namespace {

// A sunset disc with a soft edge on a clear ground: alpha, colour and shape all show.
std::vector<std::uint8_t> sunPicture(int side) {
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(side * side) * 4, 0);
    const double centre = side / 2.0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(x + 0.5 - centre, y + 0.5 - centre) / centre;
            const double alpha = std::clamp((1.0 - distance) * 6.0, 0.0, 1.0);
            const double red = 250, green = 90 + 130.0 * y / side, blue = 40 + 60.0 * x / side;
            std::uint8_t* p = &bits[static_cast<std::size_t>(y * side + x) * 4];
            p[0] = static_cast<std::uint8_t>(blue * alpha);
            p[1] = static_cast<std::uint8_t>(green * alpha);
            p[2] = static_cast<std::uint8_t>(red * alpha);
            p[3] = static_cast<std::uint8_t>(255 * alpha);
        }
    }
    return bits;
}

}  // namespace

QWidget* pictureControls() {
    auto* box = new QGroupBox(QStringLiteral("aicAlphaImage"));
    auto* grid = new QGridLayout(box);
    const std::vector<std::uint8_t> sun = sunPicture(96);
    const std::pair<const char*, std::function<void(aicAlphaImage&)>> states[] = {
        {"Plain", [](aicAlphaImage&) {}},
        {"Opacity 40", [](aicAlphaImage& c) { c.setOpacity(40); }},
        {"Rotation 30",
         [](aicAlphaImage& c) {
             c.setRotateEnabled(true);
             c.setRotation(30);
         }},
        {"Gray scale", [](aicAlphaImage& c) { c.setgrayScale(1); }},
        {"Lighter by 50", [](aicAlphaImage& c) { c.setIntensityOffset(50); }},
        {"Drop shadow",
         [](aicAlphaImage& c) {
             c.setScaleMethod(kScaleActualSize);  // room for the shadow inside the control
             c.setShadowEnabled(true);
             c.setShadowDepth(4);
             c.OffsetShadow(5, 5);
         }},
        {"Mirrored", [](aicAlphaImage& c) { c.setMirror(1); }},
        {"Stretched", [](aicAlphaImage& c) { c.setScaleMethod(kScaleStretch); }},
    };
    int index = 0;
    for (const auto& [caption, apply] : states) {
        auto* picture = new aicAlphaImage;
        picture->setFixedSize(index == 7 ? 150 : 110, 110);
        picture->SetImageBytes(sun, 96, 96, true, false);
        apply(*picture);
        grid->addWidget(new QLabel(QString::fromLatin1(caption)), (index / 4) * 2, index % 4);
        grid->addWidget(picture, (index / 4) * 2 + 1, index % 4);
        ++index;
    }
    return box;
}

}  // namespace orvanta
