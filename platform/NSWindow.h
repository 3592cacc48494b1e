#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/NSGeometry.h"
#include "platform/NSView.h"

namespace talvex {

struct NSEvent;

// What a window's content hands on, the keys and the modifier keys, and what the window reports.
class NSResponder {
  public:
    // Whether the key was taken.
    virtual bool keyDown(const NSEvent& event) = 0;
    virtual void flagsChanged(const NSEvent& event) = 0;
    virtual void windowDidResize() {}

  protected:
    ~NSResponder() = default;
};

class NSWindow;

// Whether a window stands among the others, or above them all.
enum class NSWindowLevel { normal, floating };

class NSWindowObserver {
  public:
    virtual void windowDidChange(const NSWindow& window) = 0;
    // The window is to come to the front of the others.
    virtual void windowDidOrderFront(const NSWindow& /*window*/) {}
    virtual void windowDidChangeLevel(const NSWindow& /*window*/) {}
    // The next change is to be a motion.
    virtual void windowWillAnimate(const NSWindow& /*window*/) {}

  protected:
    ~NSWindowObserver() = default;
};

// The record of a window: its content, its place on the screen, its title, and where its key events
// go first.
class NSWindow {
  public:
    // The bar with the title and the window's buttons stands above the content.
    static constexpr double kTitleBarHeight = 22.0;

    static NSRect frameRectForContentRect(const NSRect& content);

    [[nodiscard]] const std::u16string& title() const { return title_; }
    void setTitle(std::u16string title);

    [[nodiscard]] const NSRect& frame() const { return frame_; }
    // Places the window; its content takes the size below the title bar.
    void setFrame(const NSRect& frame);
    void setFrameDisplayAnimate(const NSRect& frame, bool animate);
    void setFrameTopLeftPoint(const NSPoint& point);

    // How large the window is to be on the screen, in percent; 0 as it goes with the desktop. The
    // frame is in points whatever that is.
    [[nodiscard]] std::int32_t size() const { return size_; }
    void setSize(std::int32_t percent);

    [[nodiscard]] NSWindowLevel level() const { return level_; }
    void setLevel(NSWindowLevel level);

    // All of the window, title bar included.
    [[nodiscard]] NSView& frameView() { return *frameView_; }
    [[nodiscard]] NSView* contentView() const { return contentView_.get(); }
    void setContentView(std::shared_ptr<NSView> view);

    [[nodiscard]] NSResponder* delegate() const { return delegate_; }
    void setDelegate(NSResponder* delegate) { delegate_ = delegate; }

    // Whether the window is on the screen, which it isn't at first.
    [[nodiscard]] bool isVisible() const { return visible_; }
    void makeKeyAndOrderFront();
    void orderOut();

    void makeFirstResponder(NSView* view) { firstResponder_ = view; }
    // Hands a key event to the first responder. Whether a key was taken; changes of the modifier
    // keys always are.
    bool sendEvent(const NSEvent& event);

    void setObserver(NSWindowObserver* observer) { observer_ = observer; }

  private:
    void notify();

    std::u16string title_;
    bool visible_ = false;
    NSWindowLevel level_ = NSWindowLevel::normal;
    NSRect frame_;
    std::int32_t size_ = 0;
    std::shared_ptr<NSView> frameView_ = std::make_shared<NSView>();
    std::shared_ptr<NSView> contentView_;
    NSResponder* delegate_ = nullptr;
    NSView* firstResponder_ = nullptr;
    NSWindowObserver* observer_ = nullptr;
};

}  // namespace talvex
