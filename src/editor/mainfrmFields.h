#pragma once
// The editor window's controls as the loader and the saver reach them: a field name ("appName")
// finds its control ("Text1"), any other name the control of that name, and "noway" with an
// index an element of the window's control array.

#include <functional>
#include <string>

#include "project/ProjectFields.h"

class QWidget;

namespace orvanta {

class mainfrm;

class mainfrmFields : public ProjectFields {
public:
    // `startLoading` shows a progress text in the project index window; empty: nowhere.
    explicit mainfrmFields(mainfrm& window, std::function<void(const std::string&)> startLoading = {});

    // The control behind a name; null for a name the window does not have.
    QWidget* find(ControlName control) const;

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

private:
    // The control of that name and type; a missing one is a fault of the caller, reported by name.
    template <typename T>
    T& as(ControlName control) const;

    mainfrm& window_;
    std::function<void(const std::string&)> startLoading_;
};

}  // namespace orvanta
