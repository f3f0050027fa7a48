#pragma once
// The picture control's page of the gallery.

class QWidget;

namespace orvanta {

QWidget* pictureControls();

}  // namespace orvanta
