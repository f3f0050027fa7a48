#pragma once
// The editor's controls held in memory, starting from the values a newly opened editor shows.
// Tests load and save through it, and so can a builder that runs without windows.
//
// It knows only the controls of EditorControls.h: any other name is recorded in unknownNames()
// and refused with std::out_of_range, so a misspelt name cannot pass for a working control.

#include <cstddef>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ProjectFields.h"

namespace orvanta {

class MemoryProjectFields : public ProjectFields {
public:
    struct Control {
        std::string text;
        std::string caption;
        int value = 0;
        bool enabled = true;
        bool visible = true;
        bool placeholderLook = false;
        std::vector<ListItem> items;
        int listIndex = -1;
        std::string picture;  // the file shown; empty: none

        friend bool operator==(const Control&, const Control&) = default;
    };

    // With a host a picture loads only from a file that exists, as a picture control's would.
    explicit MemoryProjectFields(Host* host = nullptr);

    std::string text(ControlName control) const override;
    void setText(ControlName control, const std::string& text) override;
    int value(ControlName control) const override;
    void setValue(ControlName control, int value) override;
    bool enabled(ControlName control) const override;
    void setEnabled(ControlName control, bool enabled) override;
    bool visible(ControlName control) const override;
    void setVisible(ControlName control, bool visible) override;
    void setPlaceholderLook(ControlName control, bool on) override;
    void setCaption(ControlName control, const std::string& caption) override;

    void clearList(ControlName list) override;
    void addListItem(ControlName list, const std::string& text, bool selected) override;
    void addListItems(ControlName list, const std::vector<std::string>& texts) override;
    std::vector<ListItem> listItems(ControlName list) const override;
    std::size_t listCount(ControlName list) const override;
    void setListIndex(ControlName list, int index) override;

    bool loadPicture(ControlName picture, const std::string& path) override;
    void clearPicture(ControlName picture) override;

    void showStatus(StatusLabel label, const std::string& text) override;
    void processPendingEvents() override;

    // Every property of a control, for tests to read and preset.
    const Control& control(ControlName control) const;
    Control& control(ControlName control);
    // All controls by key ("appName", "noway(1)"), for comparing two editors.
    const std::map<std::string, Control>& controls() const { return controls_; }

    // The current texts of the two status labels.
    const std::string& status(StatusLabel label) const;
    // Status texts ("start.loading: ...", "controlTips: ...") and "events" for each point at
    // which pending events ran, in order.
    const std::vector<std::string>& journal() const { return journal_; }
    const std::vector<std::string>& unknownNames() const { return unknownNames_; }

    // Runs where a window would let pending events run: what a click at that moment would do.
    std::function<void()> onPendingEvents;

private:
    void addDefaults();
    Control& add(ControlName name);
    void selectOption(ControlName option);

    Host* host_;
    std::map<std::string, Control> controls_;
    std::string controlTips_;
    std::string startLoading_;
    std::vector<std::string> journal_;
    mutable std::vector<std::string> unknownNames_;
};

}  // namespace orvanta
