#pragma once

#include <memory>

#include "platform/NSGeometry.h"
#include "platform/NSView.h"

namespace talvex {

class NSDrawer;

// The side of a rectangle, by numbers: odd edges are
// level, and what moves there is a height.
enum NSRectEdge : int { NSMinXEdge = 0, NSMinYEdge = 1, NSMaxXEdge = 2, NSMaxYEdge = 3 };

enum NSDrawerState : int {
    NSDrawerClosedState = 0,
    NSDrawerOpeningState = 1,
    NSDrawerOpenState = 2,
    NSDrawerClosingState = 3,
};

class NSDrawerDelegate {
  public:
    // The size that the drawer's content takes where the user asks for `size`.
    virtual NSSize drawerWillResizeContentsToSize(NSDrawer& drawer, const NSSize& size) = 0;
    virtual void drawerDidClose(NSDrawer& drawer) = 0;
    virtual void drawerStateDidChange(NSDrawer& drawer) = 0;

  protected:
    ~NSDrawerDelegate() = default;
};

// Who slides a drawer. It calls `finishSliding` at the end of the way.
class NSDrawerObserver {
  public:
    virtual void drawerDidChange(const NSDrawer& drawer) = 0;

  protected:
    ~NSDrawerObserver() = default;
};

// The record of a drawer of a window: a panel that slides out of one side. Without an observer it
// is where it is going at once.
class NSDrawer {
  public:
    // What stands around the content: along the edge that it slides out of, on its two ends
    // together, and beyond its outer edge.
    static constexpr double kEnds = 15.0;
    static constexpr double kOuterBorder = 8.0;

    NSDrawer(const NSSize& contentSize, NSRectEdge preferredEdge);
    NSDrawer(const NSDrawer&) = delete;
    NSDrawer& operator=(const NSDrawer&) = delete;

    [[nodiscard]] NSDrawerState state() const { return state_; }
    [[nodiscard]] bool isOpenOrOpening() const {
        return state_ == NSDrawerOpenState || state_ == NSDrawerOpeningState;
    }
    void openOnEdge(NSRectEdge edge);
    void close();
    // The drawer has come to the end of its way: it is open or closed.
    void finishSliding();

    [[nodiscard]] NSRectEdge edge() const { return edge_; }
    [[nodiscard]] NSRectEdge preferredEdge() const { return preferredEdge_; }
    // Whether the drawer moves by its height.
    [[nodiscard]] bool isLevel() const { return edge_ % 2 == 1; }

    [[nodiscard]] const NSSize& contentSize() const { return contentSize_; }
    void setContentSize(const NSSize& size);
    [[nodiscard]] const NSSize& minContentSize() const { return minContentSize_; }
    [[nodiscard]] const NSSize& maxContentSize() const { return maxContentSize_; }
    // The user drags the outer edge: the content takes the size within its bounds that the
    // delegate allows.
    void dragContentsToSize(const NSSize& size);

    // How far the drawer stays away from the ends of the window's side: leading is left or top.
    [[nodiscard]] double leadingOffset() const { return leadingOffset_; }
    void setLeadingOffset(double offset);
    [[nodiscard]] double trailingOffset() const { return trailingOffset_; }
    void setTrailingOffset(double offset);

    [[nodiscard]] NSView* contentView() const { return contentView_.get(); }
    void setContentView(std::shared_ptr<NSView> view);
    void setDelegate(NSDrawerDelegate* delegate) { delegate_ = delegate; }
    void setObserver(NSDrawerObserver* observer) { observer_ = observer; }

  private:
    void setState(NSDrawerState state);
    void finishUnlessObserved();
    void notify();

    NSDrawerState state_ = NSDrawerClosedState;
    NSRectEdge edge_;
    NSRectEdge preferredEdge_;
    NSSize contentSize_;
    NSSize minContentSize_;
    NSSize maxContentSize_;
    double leadingOffset_ = 0.0;
    double trailingOffset_ = 0.0;
    std::shared_ptr<NSView> contentView_;
    NSDrawerDelegate* delegate_ = nullptr;
    NSDrawerObserver* observer_ = nullptr;
};

}  // namespace talvex
