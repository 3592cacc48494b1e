#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "platform/NSAttributedString.h"
#include "platform/NSView.h"

namespace talvex {

// How a button shows that it is pressed or on; flags to be combined.
enum NSCellMask : std::uint32_t {
    NSNoCellMask = 0,
    NSPushInCellMask = 1,
    NSContentsCellMask = 2,
    NSChangeGrayCellMask = 4,
    NSChangeBackgroundCellMask = 8,
};

// The record of a button. A click sends its action; images go by their resource names.
class NSButton : public NSView {
  public:
    using NSView::NSView;

    [[nodiscard]] const std::u16string& title() const { return title_; }
    void setTitle(std::u16string title);

    // The title as rich text; empty when only the plain title counts.
    [[nodiscard]] const NSAttributedString& attributedTitle() const { return attributedTitle_; }
    void setAttributedTitle(NSAttributedString title);

    [[nodiscard]] const std::u16string& image() const { return image_; }
    void setImage(std::u16string name);
    [[nodiscard]] const std::u16string& alternateImage() const { return alternateImage_; }
    void setAlternateImage(std::u16string name);

    // 1 on, 0 off.
    [[nodiscard]] int state() const { return state_; }
    void setState(int state);

    [[nodiscard]] const NSFont& font() const { return font_; }
    void setFont(const NSFont& font);

    [[nodiscard]] std::uint32_t highlightsBy() const { return highlightsBy_; }
    void setHighlightsBy(std::uint32_t mask) { highlightsBy_ = mask; }
    [[nodiscard]] std::uint32_t showsStateBy() const { return showsStateBy_; }
    void setShowsStateBy(std::uint32_t mask) { showsStateBy_ = mask; }

    // A toggling button turns its state over before it sends its action.
    [[nodiscard]] bool toggles() const { return toggles_; }
    void setToggles(bool toggles) { toggles_ = toggles; }

    // A button that looks as if it did nothing, and still can be clicked.
    [[nodiscard]] bool appearsDisabled() const { return appearsDisabled_; }
    void setAppearsDisabled(bool appearsDisabled) { update(appearsDisabled_, appearsDisabled); }

    void setAction(std::function<void(NSButton&)> action) { action_ = std::move(action); }
    // The mouse went down on the button, before any click.
    virtual void mouseDown() {}
    void performClick();

  private:
    std::u16string title_;
    NSAttributedString attributedTitle_;
    std::u16string image_;
    std::u16string alternateImage_;
    int state_ = 0;
    NSFont font_{.name = u"Lucida Grande", .size = 11.0};
    std::uint32_t highlightsBy_ = NSPushInCellMask;
    std::uint32_t showsStateBy_ = NSNoCellMask;
    bool toggles_ = false;
    bool appearsDisabled_ = false;
    std::function<void(NSButton&)> action_;
};

}  // namespace talvex
