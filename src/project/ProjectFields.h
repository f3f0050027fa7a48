#pragma once
// The editor's controls as the loader and the saver see them. While a project is open the controls
// are its data; this interface lets the Qt window, a command-line builder and the tests hold them.
//
// A control is named as in the window: by its field's name where it holds a project field
// ("appName", "registryLocations"), by its own name otherwise ("Check23", "Command35"), with an
// index for a control array ("noway" 1). The names in use are in EditorControls.h.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

struct ControlName {
    std::string_view name;
    int index = -1;  // the element of a control array; -1 for a control of its own

    friend bool operator==(const ControlName&, const ControlName&) = default;
};

struct ListItem {
    std::string text;
    bool selected = false;  // the item's check or selection mark

    friend bool operator==(const ListItem&, const ListItem&) = default;
};

// Where a progress text goes: the editor's title line, or the label of the project index
// window that shows the progress of a load.
enum class StatusLabel { ControlTips, StartLoading };

class ProjectFields {
public:
    virtual ~ProjectFields() = default;

    // Text boxes and the text of combo boxes; multi-line texts hold CR LF.
    virtual std::string text(ControlName control) const = 0;
    virtual void setText(ControlName control, const std::string& text) = 0;
    // Check boxes hold 0 or 1; an option button is 1 when selected, and selecting one clears
    // the others of its group.
    virtual int value(ControlName control) const = 0;
    virtual void setValue(ControlName control, int value) = 0;
    virtual bool enabled(ControlName control) const = 0;
    virtual void setEnabled(ControlName control, bool enabled) = 0;
    virtual bool visible(ControlName control) const = 0;
    virtual void setVisible(ControlName control, bool visible) = 0;
    // On: italic and grey (0x808080), the look of a box that shows its placeholder. Off: upright
    // in the system's text colour.
    virtual void setPlaceholderLook(ControlName control, bool on) = 0;
    // Buttons, labels and the window's title.
    virtual void setCaption(ControlName control, const std::string& caption) = 0;

    // List boxes. An index of -1 selects nothing.
    virtual void clearList(ControlName list) = 0;
    virtual void addListItem(ControlName list, const std::string& text, bool selected) = 0;
    // Adds unmarked items in order; the lists of the application's files take 100,000 at once.
    virtual void addListItems(ControlName list, const std::vector<std::string>& texts) = 0;
    virtual std::vector<ListItem> listItems(ControlName list) const = 0;
    virtual std::size_t listCount(ControlName list) const = 0;
    virtual void setListIndex(ControlName list, int index) = 0;

    // Picture controls; false when the file cannot be shown, and the control keeps its picture.
    virtual bool loadPicture(ControlName picture, const std::string& path) = 0;
    virtual void clearPicture(ControlName picture) = 0;

    // Progress texts, and the points at which long work lets pending window events run.
    virtual void showStatus(StatusLabel label, const std::string& text) = 0;
    virtual void processPendingEvents() = 0;
};

}  // namespace orvanta
