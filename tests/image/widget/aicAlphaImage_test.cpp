#include <gtest/gtest.h>

#include <QCursor>
#include <QImage>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <cstring>

#include "../surface_test_support.h"
#include "image/widget/aicAlphaImage.h"
#include "support/Sandbox.h"

namespace orvanta {
namespace {

using testing::fillSurface;

// A picture whose left half is clear and whose right half is a gradient of solid and half-solid
// pixels, so that shape, alpha and scaling all show.
std::vector<std::uint32_t> halfClearPicture(std::int32_t width, std::int32_t height) {
    std::vector<std::uint32_t> words;
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) {
            if (x < width / 2) {
                words.push_back(0);
                continue;
            }
            const std::uint32_t alpha = y % 2 == 0 ? 255u : 128u;
            const std::uint32_t red = static_cast<std::uint32_t>(x * 255 / width) * alpha / 255;
            const std::uint32_t green = static_cast<std::uint32_t>(y * 255 / height) * alpha / 255;
            words.push_back(alpha << 24 | red << 16 | green << 8 | (alpha / 3));
        }
    return words;
}

void loadPicture(aicAlphaImage& control, std::int32_t width, std::int32_t height) {
    c32bppDIB picture;
    fillSurface(picture, width, height, halfClearPicture(width, height));
    std::vector<std::uint8_t> bits(picture.BitsPointer(), picture.BitsPointer() + width * height * 4);
    ASSERT_TRUE(control.SetImageBytes(bits, width, height));
}

// What the control paints, without any background, as a top-down premultiplied image.
QImage painted(aicAlphaImage& control) {
    QImage image(control.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    control.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

// A surface is stored bottom row first, in the byte order of a premultiplied QImage.
QImage asImage(const c32bppDIB& surface) {
    return QImage(surface.BitsPointer(), surface.Width(), surface.Height(), surface.scanWidth(),
                  QImage::Format_ARGB32_Premultiplied)
        .mirrored(false, true);
}

TEST(AlphaImage, SettersKeepTheirLimitsAndNameEachChange) {
    aicAlphaImage control;
    QSignalSpy names(&control, &aicAlphaImage::PropertyChanged);
    control.setOpacity(200);
    EXPECT_EQ(control.Opacity(), 100);  // 200 mod 100 is 0, which means full: no change
    control.setOpacity(-250);
    EXPECT_EQ(control.Opacity(), 50);
    control.setOpacity(0);
    EXPECT_EQ(control.Opacity(), 0);
    control.setRotation(725);
    EXPECT_EQ(control.Rotation(), 5);
    control.setgrayScale(3);
    control.setgrayScale(9);
    EXPECT_EQ(control.grayScale(), 3);
    control.setHitTest(4);
    control.setMirror(-1);
    control.setShadowDepth(11);
    control.setShadowOpacity(101);
    control.setIntensityOffset(100.5f);
    control.setScaleMethod(5);
    control.setShadowOffsetX(2);  // the default: no change
    EXPECT_EQ(control.HitTest(), kHitControl);
    EXPECT_EQ(control.Mirror(), 0);
    EXPECT_EQ(control.ShadowDepth(), 2);
    EXPECT_EQ(control.ShadowOpacity(), 50);
    EXPECT_EQ(control.IntensityOffset(), 0.0f);
    control.setScaleMethod(kScaleStretch);
    control.setIntensityOffset(-100);
    QStringList seen;
    for (const QList<QVariant>& call : names) seen << call.at(0).toString();
    EXPECT_EQ(seen, QStringList({"Opacity", "Opacity", "Rotation", "GrayScale", "Stretch", "Intensity"}));

    // The gray-scale code kept is one less than the value set.
    PropertyBag bag;
    control.WriteProperties(bag);
    EXPECT_EQ(bag.ReadProperty("GrayScale", 0), 2);
}

TEST(AlphaImage, WritesOnlyWhatDiffersFromTheDefaultsAndReadsItBack) {
    aicAlphaImage original;
    original.resize(40, 30);
    PropertyBag plain;
    original.WriteProperties(plain);
    std::vector<std::string> keys;
    for (const auto& entry : plain.written()) keys.push_back(entry.first);
    EXPECT_EQ(keys, (std::vector<std::string>{"MaskColor", "ShadowColor"}));

    // Solid pixels, which a saved file keeps exactly.
    std::vector<std::uint8_t> solid(8 * 6 * 4, 0xFF);
    for (std::size_t at = 0; at < solid.size(); at += 4) solid[at] = static_cast<std::uint8_t>(at);
    ASSERT_TRUE(original.SetImageBytes(solid, 8, 6));
    original.setOpacity(60);
    original.setMirror(3);
    original.setAutoRedraw(true);
    original.setInversedImage(true);
    original.setShadowOpacity(20);
    original.setIntensityOffset(12.5f);
    original.setScaleMethod(kScaleCustom);
    PropertyBag bag;
    original.WriteProperties(bag);
    keys.clear();
    for (const auto& entry : bag.written()) keys.push_back(entry.first);
    EXPECT_EQ(keys,
              (std::vector<std::string>{"Image", "Scaler", "Opacity", "Mirror", "Props", "MaskColor",
                                        "ScaleCx", "ScaleCy", "ShadowColor", "ShadowOpacity", "Intensity"}));
    EXPECT_EQ(bag.ReadProperty("Props", 0),
              static_cast<int>(kStretchQualityBit | kAutoRedrawBit | kInversedImageBit));

    aicAlphaImage copy;
    copy.resize(40, 30);
    copy.ReadProperties(bag);
    EXPECT_EQ(copy.Opacity(), 60);
    EXPECT_EQ(copy.Mirror(), 3);
    EXPECT_TRUE(copy.AutoRedraw());
    EXPECT_TRUE(copy.InversedImage());
    EXPECT_EQ(copy.ShadowOpacity(), 20);
    EXPECT_EQ(copy.IntensityOffset(), 12.5f);
    // The inverse is applied once, on the picture as loaded, not again on top of a saved inverse.
    ASSERT_EQ(copy.image().Width(), 8);
    EXPECT_EQ(0, std::memcmp(copy.image().BitsPointer(), original.image().BitsPointer(), 8 * 6 * 4));
}

TEST(AlphaImage, FadesStepByStepAndEndOnce) {
    aicAlphaImage control;
    QSignalSpy ended(&control, &aicAlphaImage::FadeTerminated);
    control.setOpacity(50);
    control.FadeInOut(52, 5, 0);  // the first step overshoots: the final value is taken instead
    EXPECT_EQ(control.Opacity(), 52);
    ASSERT_EQ(ended.count(), 1);
    EXPECT_EQ(ended.at(0).at(0).toInt(), 52);
    EXPECT_FALSE(control.fadeTimer().isActive());

    control.FadeInOut(52, 5, 0);  // already there: no fade, no event
    EXPECT_EQ(ended.count(), 1);

    control.setOpacity(100);
    control.FadeInOut(0, 5, 0);
    EXPECT_EQ(control.Opacity(), 95);  // the first step runs at once
    EXPECT_TRUE(control.fadeTimer().isActive());
    EXPECT_EQ(control.fadeTimer().interval(), 10);
    control.fadeTick();
    control.FadeInOut(30, 0, 500);  // a step of 0 stops the fade where it stands
    EXPECT_FALSE(control.fadeTimer().isActive());
    control.fadeTick();
    EXPECT_EQ(control.Opacity(), 90);

    // Driven by the real timer to its end.
    control.FadeInOut(70, -7, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ended.count() == 2; }, 2000));
    EXPECT_EQ(control.Opacity(), 70);
    EXPECT_EQ(ended.at(1).at(0).toInt(), 70);
}

TEST(AlphaImage, LoadsFilesThroughTheHostAndALostFileLeavesItBlank) {
    testing::Sandbox sandbox;
    cCrossComm::instance().setHost(&sandbox.host());
    aicAlphaImage control;
    control.resize(50, 50);
    c32bppDIB picture;
    fillSurface(picture, 4, 3, halfClearPicture(4, 3));
    std::vector<std::uint8_t> png;
    ASSERT_TRUE(picture.SaveToStream_PNG(png));
    sandbox.writeFile("logo.png", std::string(png.begin(), png.end()));

    EXPECT_TRUE(control.LoadImage_FromFile(sandbox.windowsPath("logo.png")));
    EXPECT_EQ(control.image().Width(), 4);
    EXPECT_EQ(control.ImageType(), kImagePng);
    control.setKeepOriginalFormat(true);
    EXPECT_TRUE(control.LoadImage_FromFile(sandbox.windowsPath("LOGO.PNG")));
    std::vector<std::uint8_t> bytes;
    std::int32_t scanWidth = 0;
    EXPECT_TRUE(control.GetImageBytes(bytes, scanWidth, true, true, true, true));
    EXPECT_EQ(bytes, png);

    EXPECT_FALSE(control.LoadImage_FromFile(sandbox.windowsPath("missing.png")));
    EXPECT_EQ(control.image().Handle(), 0u);
    EXPECT_EQ(control.ImageType(), 0);
    sandbox.writeFile("damaged.png", std::string(png.begin(), png.begin() + 40));
    EXPECT_FALSE(control.LoadImage_FromFile(sandbox.windowsPath("damaged.png")));
    EXPECT_TRUE(painted(control).isNull() == false);
    cCrossComm::instance().setHost(nullptr);
}

// The control draws exactly what Render draws into a surface of its size, with or without the
// auto-redraw buffer (which decides whether a scaled copy is kept).
TEST(AlphaImage, PaintsWhatTheEngineRendersPixelForPixel) {
    for (const bool autoRedraw : {false, true}) {
        for (const int rotation : {0, 30}) {
            if (rotation != 0 && !autoRedraw) continue;  // a turned scaled copy is a second resampling
            SCOPED_TRACE(::testing::Message() << "auto-redraw " << autoRedraw << ", rotation " << rotation);
            aicAlphaImage control;
            control.resize(64, 48);
            loadPicture(control, 200, 100);
            control.setAutoRedraw(autoRedraw);
            control.setOpacity(60);
            control.setgrayScale(2);
            control.setIntensityOffset(-20);
            control.setRotateEnabled(rotation != 0);
            control.setRotation(rotation);
            control.OffsetImage(3, 5);

            c32bppDIB expected;
            ASSERT_TRUE(expected.InitializeDIB(64, 48));
            const ScaleSize scale = control.GetImageScales(-1, 0, 0, rotation != 0);
            const QPoint place = rotation != 0 ? QPoint(32 + 3, 24 + 5) : QPoint(3, 5);
            control.image().Render(nullptr, place.x(), place.y(), scale.width, scale.height, 0, 0, 0, 0, 60,
                                   true, true, &expected, 1, -20, static_cast<float>(rotation),
                                   rotation != 0);
            const QImage first = painted(control);
            EXPECT_TRUE(first == asImage(expected));
            EXPECT_TRUE(painted(control) == first);  // again, from what was kept
        }
    }
}

TEST(AlphaImage, ARepaintThatChangesNothingReusesTheBuffer) {
    aicAlphaImage control;
    control.resize(64, 48);
    loadPicture(control, 200, 100);
    control.setAutoRedraw(true);
    painted(control);
    painted(control);
    EXPECT_EQ(control.bufferBuilds(), 1u);
    control.setOpacity(40);
    painted(control);
    control.setOpacity(40);
    painted(control);
    EXPECT_EQ(control.bufferBuilds(), 2u);
    control.resize(60, 48);
    painted(control);
    EXPECT_EQ(control.bufferBuilds(), 3u);
}

TEST(AlphaImage, HitTestFollowsTheStyleAndTheShape) {
    aicAlphaImage control;
    control.resize(100, 100);
    loadPicture(control, 20, 10);  // scaled to fit: 100 x 50, right half solid, rows alternate alpha
    control.setScaleMethod(kScaleToFit);
    const QPoint clearPart(10, 10), solidPart(80, 20), belowPicture(80, 80);
    EXPECT_TRUE(control.hitTest(clearPart));
    EXPECT_TRUE(control.hitTest(belowPicture));

    control.setHitTest(kHitBoundingBox);
    EXPECT_FALSE(control.hitTest(clearPart));
    EXPECT_TRUE(control.hitTest(solidPart));
    EXPECT_FALSE(control.hitTest(belowPicture));

    control.setHitTest(kHitShape);
    EXPECT_FALSE(control.hitTest(clearPart));
    EXPECT_TRUE(control.hitTest(solidPart));
    control.OffsetImage(-60, 0);  // the shape moves with the picture
    EXPECT_FALSE(control.hitTest(solidPart));
    EXPECT_TRUE(control.hitTest(QPoint(20, 20)));

    // Without alpha the exact shape is the whole picture, not the whole control.
    control.OffsetImage(0, 0);
    std::vector<std::uint8_t> opaque(20 * 10 * 4, 0xFF);
    ASSERT_TRUE(control.SetImageBytes(opaque, 20, 10));
    EXPECT_TRUE(control.hitTest(clearPart));
    EXPECT_FALSE(control.hitTest(belowPicture));

    // A press outside the shape belongs to what lies behind.
    QSignalSpy downs(&control, &aicAlphaImage::MouseDown);
    QTest::mousePress(&control, Qt::LeftButton, {}, belowPicture);
    QTest::mousePress(&control, Qt::LeftButton, {}, clearPart);
    EXPECT_EQ(downs.count(), 1);
}

TEST(AlphaImage, MouseEntersAndLeavesOnceAndOneControlOwnsIt) {
    QWidget window;
    window.resize(300, 100);
    aicAlphaImage first(&window), second(&window);
    first.setGeometry(0, 0, 100, 100);
    second.setGeometry(150, 0, 100, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QSignalSpy firstEnter(&first, &aicAlphaImage::MouseEnter), firstExit(&first, &aicAlphaImage::MouseExit);
    QSignalSpy secondEnter(&second, &aicAlphaImage::MouseEnter);

    QCursor::setPos(first.mapToGlobal(QPoint(50, 50)));
    QTest::mouseMove(&first, QPoint(50, 50));
    QTest::mouseMove(&first, QPoint(60, 50));
    EXPECT_EQ(firstEnter.count(), 1);
    EXPECT_TRUE(first.isMouseOver());
    EXPECT_TRUE(first.mouseWatchTimer().isActive());
    EXPECT_EQ(first.mouseWatchTimer().interval(), 100);
    first.mouseWatchTick();  // still there
    EXPECT_EQ(firstExit.count(), 0);

    // The cursor leaves with no mouse message: the watch sees it.
    QCursor::setPos(window.mapToGlobal(QPoint(125, 50)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return firstExit.count() == 1; }, 1000));
    EXPECT_FALSE(first.mouseWatchTimer().isActive());

    // Another control taking the mouse ends the first one's hold.
    QTest::mouseMove(&first, QPoint(50, 50));
    EXPECT_EQ(cCrossComm::instance().CapturedControl(), &first);
    QTest::mouseMove(&second, QPoint(50, 50));
    EXPECT_EQ(firstExit.count(), 2);
    EXPECT_EQ(secondEnter.count(), 1);
    EXPECT_EQ(cCrossComm::instance().CapturedControl(), &second);
}

}  // namespace
}  // namespace orvanta
