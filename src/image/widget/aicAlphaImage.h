#pragma once
// The picture control of every window: one c32bppDIB drawn through the engine's Render, scaled,
// faded, turned, mirrored, greyed, lit and shadowed, with shaped hit testing, mouse enter and
// exit events and fades. The widget draws nothing of its own beyond that picture.

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "controls/PropertyBag.h"
#include "image/ImageRegion.h"
#include "image/ImageScales.h"
#include "image/c32bppDIB.h"
#include "image/widget/cCrossComm.h"

class QMimeData;

namespace orvanta {

// The property bits, as persisted under "Props".
inline constexpr std::uint32_t kStretchQualityBit = 1;
inline constexpr std::uint32_t kAutoSizeBit = 4;
inline constexpr std::uint32_t kAutoRedrawBit = 8;
inline constexpr std::uint32_t kKeepOriginalFormatBit = 16;
inline constexpr std::uint32_t kRegionBuildingBit = 32;
inline constexpr std::uint32_t kInversedImageBit = 64;
inline constexpr std::uint32_t kShadowEnabledBit = 128;
inline constexpr std::uint32_t kRotateEnabledBit = 256;

// Hit-test styles.
inline constexpr std::int32_t kHitControl = 0;
inline constexpr std::int32_t kHitBoundingBox = 1;
inline constexpr std::int32_t kHitRows = 2;
inline constexpr std::int32_t kHitShape = 3;

class aicAlphaImage : public QWidget, public ICrossComm {
    Q_OBJECT
public:
    explicit aicAlphaImage(QWidget* parent = nullptr);
    ~aicAlphaImage() override;

    // ---- Loading; each is true if a picture now stands in the control. A size below 1 is the
    // control's, a bit depth below 1 is 32.
    bool LoadImage_FromFile(const std::string& FileName, std::int32_t desiredIconWidth = 0,
                            std::int32_t desiredIconHeight = 0, std::int32_t desiredIconBitDepth = 0);
    bool LoadImage_FromArray(const std::vector<std::uint8_t>& inStream, std::int32_t desiredIconWidth = 0,
                             std::int32_t desiredIconHeight = 0, std::int32_t desiredIconBitDepth = 0);
    bool LoadImage_FromStdPicture(const QPixmap& stdPic);
    bool LoadImage_FromHandle(const QImage& Handle);
    bool LoadImage_FromClipboard();
    // A Qt resource path (":/...") takes the place of a resource section and number.
    bool LoadImage_FromResource(const QString& ResID, std::int32_t desiredIconWidth = 0,
                                std::int32_t desiredIconHeight = 0, std::int32_t desiredIconBitDepth = 0);
    bool LoadImage_FromOrignalBytes(std::int32_t desiredIconWidth = 0, std::int32_t desiredHeight = 0,
                                    std::int32_t desiredIconBitDepth = 0);
    void ClearImage();
    void Refresh();

    // The pixels (rows of scanWidth bytes), or with asFileFormat the picture's file bytes.
    bool GetImageBytes(std::vector<std::uint8_t>& imgBytes, std::int32_t& scanWidth, bool asBGRformat = true,
                       bool asBottomUp = true, bool asPreMultiplied = true, bool asFileFormat = false);
    bool SetImageBytes(const std::vector<std::uint8_t>& imgBytes, std::int32_t Width, std::int32_t Height,
                       bool isBGRformat = true, bool isBottomUp = true, bool asPreMultiplied = true);
    // A negative method is the current one; a size below 1 is the control's.
    ScaleSize GetImageScales(std::int32_t ScaleMethod = -1, std::int32_t desiredWidth = 0,
                             std::int32_t desiredHeight = 0, bool asRotatedImage = false) const;
    std::int32_t ImageType() const;
    const c32bppDIB& image() const { return image_; }

    void FadeInOut(std::int32_t FinalOpacity, std::int32_t FadeStepPercent, std::int32_t FadeDelayInterval);
    void OffsetShadow(std::int32_t ShadowX, std::int32_t ShadowY, bool SetOffsets = true);
    void OffsetImage(std::int32_t x, std::int32_t y);
    bool isMouseOver() const { return mouseOver_; }
    bool GDIplusInitialized() const { return cCrossComm::instance().gdiToken() != 0; }
    bool GDIplusEnabled() const { return image_.isGDIplusEnabled(); }

    // ---- Properties
    bool AutoRedraw() const { return bit(kAutoRedrawBit); }
    void setAutoRedraw(bool value);
    std::int32_t HitTest() const { return hitTestStyle_; }
    void setHitTest(std::int32_t value);
    std::int32_t MaskColor() const { return maskColor_; }
    void setMaskColor(std::int32_t value);
    bool MaskUsed() const { return maskUsed_; }
    void setMaskUsed(bool value);
    bool InversedImage() const { return bit(kInversedImageBit); }
    void setInversedImage(bool value);
    bool AutoSize() const { return bit(kAutoSizeBit); }
    void setAutoSize(bool value);
    std::int32_t ScaleMethod() const { return scaleMethod_; }
    void setScaleMethod(std::int32_t value);
    bool StretchQuality() const { return bit(kStretchQualityBit); }
    void setStretchQuality(bool value);
    std::int32_t Opacity() const { return opacity_; }
    void setOpacity(std::int32_t value);
    std::int32_t Mirror() const { return mirror_; }
    void setMirror(std::int32_t value);
    bool KeepOriginalFormat() const { return bit(kKeepOriginalFormatBit); }
    void setKeepOriginalFormat(bool value);
    // Set with 0 (none) to 8; the gray-scale code kept is one less.
    std::int32_t grayScale() const { return grayScale_ + 1; }
    void setgrayScale(std::int32_t value);
    bool RotateEnabled() const { return bit(kRotateEnabledBit); }
    void setRotateEnabled(bool value);
    std::int32_t Rotation() const { return angle_; }
    void setRotation(std::int32_t value);
    bool Enabled() const { return isEnabled(); }
    void setEnabled(bool value);
    bool ShadowEnabled() const { return bit(kShadowEnabledBit); }
    void setShadowEnabled(bool value);
    std::int32_t ShadowColor() const { return shadowColor_; }
    void setShadowColor(std::int32_t value);
    std::int32_t ShadowOffsetX() const { return shadowX_; }
    void setShadowOffsetX(std::int32_t value);
    std::int32_t ShadowOffsetY() const { return shadowY_; }
    void setShadowOffsetY(std::int32_t value);
    std::int32_t ShadowDepth() const { return shadowDepth_; }
    void setShadowDepth(std::int32_t value);
    std::int32_t ShadowOpacity() const { return shadowOpacity_; }
    void setShadowOpacity(std::int32_t value);
    std::int32_t MousePointer() const { return mousePointer_; }
    void setMousePointer(std::int32_t value);
    // The picture bytes of a custom pointer (an icon or cursor file), shown with MousePointer 99.
    const std::vector<std::uint8_t>& MouseIcon() const { return mouseIcon_; }
    void setMouseIcon(const std::vector<std::uint8_t>& value);
    std::int32_t OLEDropMode() const { return oleDropMode_; }
    void setOLEDropMode(std::int32_t value);
    float IntensityOffset() const { return intensity_; }
    void setIntensityOffset(float value);

    void WriteProperties(PropertyBag& bag);
    void ReadProperties(PropertyBag& bag);

    // ---- Hit testing, in control coordinates.
    bool hitTest(QPoint point);
    // How many times the auto-redraw buffer was drawn anew; a repaint that changed nothing keeps it.
    std::uint64_t bufferBuilds() const { return bufferBuilds_; }
    // The picture as the control paints it, at the control's size.
    void renderPicture(c32bppDIB& target);

    void ReleaseMouseCapture() override;
    const QTimer& fadeTimer() const { return fadeTimer_; }
    const QTimer& mouseWatchTimer() const { return mouseWatch_; }

public slots:
    // Timer ticks, public so that tests can drive them.
    void fadeTick();
    void mouseWatchTick();

signals:
    void Click();
    void DblClick();
    void MouseExit();
    void MouseEnter();
    void MouseUp(int button, int shift, int x, int y);
    void MouseMove(int button, int shift, int x, int y);
    void MouseDown(int button, int shift, int x, int y);
    void KeyDown(int keyCode, int shift);
    void KeyPress(int keyAscii);
    void KeyUp(int keyCode, int shift);
    void OLEDragDrop(const QMimeData* data, int x, int y);
    void OLEDragOver(const QMimeData* data, int x, int y);
    void FadeTerminated(int CurrentOpacity);
    // A setter changed the property of that name.
    void PropertyChanged(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool bit(std::uint32_t mask) const { return (properties_ & mask) != 0; }
    void setBit(std::uint32_t mask, bool value, const char* name);
    void changed(const char* name);
    // Takes a new value of a property that only changes the drawing, marking it by its name.
    template <typename T>
    void redrawOnChange(T& property, T value, const char* name) {
        if (property == value) return;
        property = value;
        changed(name);
        pictureChanged();
    }
    void pictureChanged();
    void imageChanged();
    bool afterLoad(bool loaded);
    // The picture as a file: PNG when a codec can write one, else a bitmap.
    bool saveFileForm(c32bppDIB& picture, std::vector<std::uint8_t>& bytes) const;
    std::int32_t desiredSize(std::int32_t requested, std::int32_t controlSize) const;

    // Painting
    const c32bppDIB& sourceAt(ScaleSize scale);
    void drawShadow(const c32bppDIB& source, ScaleSize scale, QPoint place, c32bppDIB& target);
    QPoint picturePlace() const;
    bool rotated() const { return RotateEnabled() && angle_ != 0; }

    // Hit testing and the mouse
    void ensureHitArea();
    void enterMouse();
    void leaveMouse();
    void applyPointer();

    std::uint32_t properties_ = kStretchQualityBit;
    std::int32_t angle_ = 0;
    std::int32_t hitTestStyle_ = kHitControl;
    ImageRegion hitRegion_;
    QRect hitRect_;
    std::int32_t scaleMethod_ = kScaleToFit;
    std::int32_t mirror_ = 0;
    std::int32_t opacity_ = 100;
    float intensity_ = 0;
    bool maskUsed_ = false;
    std::int32_t maskColor_ = 0;
    std::int32_t maskSource_ = 0;
    ScaleSize custom_;
    std::int32_t grayScale_ = -1;
    QPoint offset_;

    c32bppDIB image_;
    // Kept results, each with the key it was made for; a key that no longer matches remakes it.
    std::unique_ptr<c32bppDIB> buffer_;
    bool bufferCurrent_ = false;
    std::uint64_t bufferBuilds_ = 0;
    std::unique_ptr<c32bppDIB> scaled_;
    std::unique_ptr<c32bppDIB> shadow_;
    std::vector<std::int64_t> shadowKey_;
    std::vector<std::int64_t> hitKey_;
    std::uint64_t imageGeneration_ = 0;

    QTimer fadeTimer_;
    std::int32_t fadeStep_ = 0;
    std::int32_t fadeInterval_ = 0;
    std::int32_t fadeFinal_ = 0;

    std::int32_t shadowColor_ = 0;
    std::int32_t shadowX_ = 2;
    std::int32_t shadowY_ = 2;
    std::int32_t shadowDepth_ = 2;
    std::int32_t shadowOpacity_ = 50;

    std::int32_t mousePointer_ = 0;
    std::vector<std::uint8_t> mouseIcon_;
    std::int32_t oleDropMode_ = 0;
    QTimer mouseWatch_;
    bool mouseOver_ = false;
    bool pressed_ = false;
};

}  // namespace orvanta
