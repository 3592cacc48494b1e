#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/NSGeometry.h"

namespace talvex {

class NSGraphicsContext;
class NSView;
class NSWindow;
struct NSEvent;

// Who draws a record. A record calls its one observer when it changes, and knows nothing else of
// it.
class NSViewObserver {
  public:
    virtual void viewDidChange(const NSView& view) = 0;

  protected:
    ~NSViewObserver() = default;
};

// Hears of the pointer at the rectangles that it asked a view to track.
class NSTrackingOwner {
  public:
    virtual void mouseEntered(const void* userData) = 0;
    virtual void mouseExited(const void* userData) = 0;

  protected:
    ~NSTrackingOwner() = default;
};

// Autoresizing: which margins and sizes take up a change of the superview's size.
enum NSAutoresizingMask : std::uint32_t {
    NSViewNotSizable = 0,
    NSViewMinXMargin = 1,
    NSViewWidthSizable = 2,
    NSViewMaxXMargin = 4,
    NSViewMinYMargin = 8,
    NSViewHeightSizable = 16,
    NSViewMaxYMargin = 32,
};

// The record of a rectangular piece of the window: where it is, whether it shows, what it is
// called, and what it holds. It draws nothing by itself unless a subclass says how.
class NSView {
  public:
    NSView() = default;
    explicit NSView(const NSRect& frame) : frame_(frame) {}
    NSView(const NSView&) = delete;
    NSView& operator=(const NSView&) = delete;
    virtual ~NSView() = default;

    [[nodiscard]] const NSRect& frame() const { return frame_; }
    // Moves or resizes the view; its subviews follow by their autoresizing masks.
    virtual void setFrame(const NSRect& frame);
    [[nodiscard]] NSRect bounds() const { return {.width = frame_.width, .height = frame_.height}; }

    [[nodiscard]] bool isHidden() const { return hidden_; }
    void setHidden(bool hidden);

    [[nodiscard]] std::uint32_t autoresizingMask() const { return autoresizingMask_; }
    virtual void setAutoresizingMask(std::uint32_t mask) { autoresizingMask_ = mask; }

    [[nodiscard]] const std::u16string& toolTip() const { return toolTip_; }
    void setToolTip(std::u16string toolTip);

    // What the view is called where it can't be seen, in words.
    [[nodiscard]] const std::u16string& accessibilityLabel() const { return accessibilityLabel_; }
    void setAccessibilityLabel(std::u16string label);

    [[nodiscard]] NSView* superview() const { return superview_; }
    [[nodiscard]] const std::vector<std::shared_ptr<NSView>>& subviews() const { return subviews_; }
    // Puts the view on top of the other subviews. A view has one superview at most.
    void addSubview(std::shared_ptr<NSView> view);
    // Does nothing without a superview; the view goes if nobody else holds it.
    void removeFromSuperview();

    // The window that the view is in, if it is in one.
    [[nodiscard]] NSWindow* window() const;

    // Calls the owner when the pointer enters and leaves the rectangle, with the data given here.
    // The tag names the rectangle. The pointer counts as outside at first unless `assumeInside`
    // says otherwise.
    int addTrackingRect(const NSRect& rect, NSTrackingOwner& owner, const void* userData,
                        bool assumeInside);
    void removeTrackingRect(int tag);
    [[nodiscard]] std::size_t numberOfTrackingRects() const { return trackingRects_.size(); }
    // Where the pointer is over the view now, or that it isn't over it any more.
    void pointerMoved(const std::optional<NSPoint>& place);

    // What an event meets on its way: a view that has no use for it hands it to its superview. A
    // key that nobody took answers false.
    virtual bool keyDown(const NSEvent& event);
    virtual void flagsChanged(const NSEvent& event);

    void setObserver(NSViewObserver* observer) { observer_ = observer; }
    void setNeedsDisplay();

    // Draws the view's own part into the context; the plain view has none.
    virtual void drawRect(NSGraphicsContext& context) const;

  protected:
    // Stores a value, and calls the observer if it was another one.
    template <class Value>
    void update(Value& field, Value value) {
        if (!(field == value)) {
            field = std::move(value);
            setNeedsDisplay();
        }
    }

  private:
    friend class NSWindow;
    void resizeWithOldSuperviewSize(const NSSize& oldSize, const NSSize& newSize);

    NSRect frame_;
    bool hidden_ = false;
    std::uint32_t autoresizingMask_ = NSViewNotSizable;
    std::u16string toolTip_;
    std::u16string accessibilityLabel_;
    NSView* superview_ = nullptr;
    NSWindow* window_ = nullptr;  // of a content view
    std::vector<std::shared_ptr<NSView>> subviews_;
    NSViewObserver* observer_ = nullptr;

    struct TrackingRect {
        int tag;
        NSRect rect;
        NSTrackingOwner* owner;
        const void* userData;
        bool isInside;
    };
    std::vector<TrackingRect> trackingRects_;
    int lastTag_ = 0;
};

}  // namespace talvex
