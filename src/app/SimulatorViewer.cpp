#include "app/SimulatorViewer.h"

namespace orvanta {

SimulatorViewer::SimulatorViewer(std::function<installPreview*()> openSimulator)
    : openSimulator_(std::move(openSimulator)) {}

bool SimulatorViewer::open(const std::string& picture) {
    close();
    simulator_ = openSimulator_();
    if (simulator_ == nullptr) return false;
    simulator_->lockAsViewer();
    simulator_->showBackground(picture);
    simulator_->show();
    return true;
}

void SimulatorViewer::showPicture(const std::string& picture) {
    if (simulator_ != nullptr) simulator_->showBackground(picture);
}

void SimulatorViewer::close() {
    if (simulator_ != nullptr) simulator_->closeWindow();
    simulator_ = nullptr;
}

bool SimulatorViewer::isOpen() const {
    return simulator_ != nullptr;
}

QWidget* SimulatorViewer::window() {
    return simulator_;
}

}  // namespace orvanta
