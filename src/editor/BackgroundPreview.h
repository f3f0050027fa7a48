#pragma once
// The simulator as a viewer of a background: the backgrounds manager opens it, shows another
// picture in it and closes it. Opening plays the simulator's load over the open project and then
// shows `picture` in its panels as the project's own background would be; as a viewer it cannot
// be closed by its frame and its Exit button is disabled.

#include <string>

class QWidget;

namespace orvanta {

class BackgroundPreview {
public:
    virtual ~BackgroundPreview() = default;
    // False when the project cannot be played; the viewer is then closed.
    virtual bool open(const std::string& picture) = 0;
    virtual void showPicture(const std::string& picture) = 0;  // the open viewer, another picture
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    virtual QWidget* window() = 0;  // for placing; nullptr when closed
};

}  // namespace orvanta
