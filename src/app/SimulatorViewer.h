#pragma once
// The simulator lent to the backgrounds manager as a viewer of a background.

#include <QPointer>
#include <functional>

#include "editor/BackgroundPreview.h"
#include "simulator/installPreview.h"

namespace orvanta {

class SimulatorViewer : public BackgroundPreview {
public:
    // `openSimulator` makes and loads a simulator over the open project; nullptr when it cannot.
    explicit SimulatorViewer(std::function<installPreview*()> openSimulator);

    bool open(const std::string& picture) override;
    void showPicture(const std::string& picture) override;
    void close() override;
    bool isOpen() const override;
    QWidget* window() override;

private:
    std::function<installPreview*()> openSimulator_;
    QPointer<installPreview> simulator_;
};

}  // namespace orvanta
