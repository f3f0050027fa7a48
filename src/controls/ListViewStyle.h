#pragma once
// The list view's settings as the bits of its two style words, so that a setting made before the
// view exists is kept and given to the view when it is made.

#include <cstdint>

namespace orvanta {

// View codes of the low two style bits.
inline constexpr int LVS_ICON = 0;
inline constexpr int LVS_REPORT = 1;
inline constexpr int LVS_SMALLICON = 2;
inline constexpr int LVS_LIST = 3;

inline constexpr std::uint32_t LVS_SINGLESEL = 0x4;
inline constexpr std::uint32_t LVS_SHOWSELALWAYS = 0x8;
inline constexpr std::uint32_t LVS_NOLABELWRAP = 0x80;
inline constexpr std::uint32_t LVS_EDITLABELS = 0x200;
inline constexpr std::uint32_t LVS_NOCOLUMNHEADER = 0x4000;

inline constexpr std::uint32_t LVS_EX_GRIDLINES = 0x1;
inline constexpr std::uint32_t LVS_EX_CHECKBOXES = 0x4;
inline constexpr std::uint32_t LVS_EX_TRACKSELECT = 0x8;  // hot tracking
inline constexpr std::uint32_t LVS_EX_HEADERDRAGDROP = 0x10;
inline constexpr std::uint32_t LVS_EX_FULLROWSELECT = 0x20;
inline constexpr std::uint32_t LVS_EX_ONECLICKACTIVATE = 0x40;  // hover selection
inline constexpr std::uint32_t LVS_EX_FLATSB = 0x100;

// Child, visible, tab stop, always show selection, single selection.
inline constexpr std::uint32_t kListViewCreateStyle = 0x5001000C;

struct ListViewStyle {
    std::uint32_t style = kListViewCreateStyle;
    std::uint32_t extended = 0;

    int View() const { return static_cast<int>(style & 3u); }
    void setView(int view) { style = (style & ~3u) | (static_cast<std::uint32_t>(view) & 3u); }

    bool MultiSelect() const { return !has(style, LVS_SINGLESEL); }
    void setMultiSelect(bool on) { put(style, LVS_SINGLESEL, !on); }
    bool HideSelection() const { return !has(style, LVS_SHOWSELALWAYS); }
    void setHideSelection(bool on) { put(style, LVS_SHOWSELALWAYS, !on); }
    bool LabelEdit() const { return has(style, LVS_EDITLABELS); }
    void setLabelEdit(bool on) { put(style, LVS_EDITLABELS, on); }
    bool HideColumnHeaders() const { return has(style, LVS_NOCOLUMNHEADER); }
    void setHideColumnHeaders(bool on) { put(style, LVS_NOCOLUMNHEADER, on); }
    bool LabelWrap() const { return !has(style, LVS_NOLABELWRAP); }
    void setLabelWrap(bool on) { put(style, LVS_NOLABELWRAP, !on); }

    bool GridLines() const { return has(extended, LVS_EX_GRIDLINES); }
    void setGridLines(bool on) { put(extended, LVS_EX_GRIDLINES, on); }
    bool Checkboxes() const { return has(extended, LVS_EX_CHECKBOXES); }
    void setCheckboxes(bool on) { put(extended, LVS_EX_CHECKBOXES, on); }
    bool HotTracking() const { return has(extended, LVS_EX_TRACKSELECT); }
    void setHotTracking(bool on) { put(extended, LVS_EX_TRACKSELECT, on); }
    bool AllowColumnReorder() const { return has(extended, LVS_EX_HEADERDRAGDROP); }
    void setAllowColumnReorder(bool on) { put(extended, LVS_EX_HEADERDRAGDROP, on); }
    bool FullRowSelect() const { return has(extended, LVS_EX_FULLROWSELECT); }
    void setFullRowSelect(bool on) { put(extended, LVS_EX_FULLROWSELECT, on); }
    bool HoverSelection() const { return has(extended, LVS_EX_ONECLICKACTIVATE); }
    void setHoverSelection(bool on) { put(extended, LVS_EX_ONECLICKACTIVATE, on); }
    bool FlatScrollbar() const { return has(extended, LVS_EX_FLATSB); }
    void setFlatScrollbar(bool on) { put(extended, LVS_EX_FLATSB, on); }

private:
    static bool has(std::uint32_t word, std::uint32_t bit) { return (word & bit) != 0; }
    static void put(std::uint32_t& word, std::uint32_t bit, bool on) {
        word = on ? (word | bit) : (word & ~bit);
    }
};

}  // namespace orvanta
