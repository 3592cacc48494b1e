#pragma once

#include <optional>

#include "ui/DYXStatusLine.h"

namespace talvex {

// Who knows what to say about a control at this moment.
class DYXStatusLineProtocol {
  public:
    // Nothing if the control's own text is to be shown.
    [[nodiscard]] virtual std::optional<NSAttributedString> statusLineForView(
        const NSView& view) const = 0;

  protected:
    ~DYXStatusLineProtocol() = default;
};

// A panel whose status field says what the control under the pointer does.
class DYXStatusLineView : public NSView, public DYXStatusLineTracker {
  public:
    using NSView::NSView;

    void setDelegate(const DYXStatusLineProtocol* delegate) { delegate_ = delegate; }

    // Takes the texts of all subviews, the first time only.
    void buildStatusLines(const HotKeys& hotKeys);
    // Takes the text of one control anew.
    void renewStatusLine(NSView& view, const HotKeys& hotKeys);
    void addTrackingRects(const HotKeys& hotKeys);
    void removeTrackingRects();

    [[nodiscard]] NSAttributedString stringForStatusLine(const DYXStatusLine& line) const override;

  private:
    const DYXStatusLineProtocol* delegate_ = nullptr;
    DYXStatusLines statusLines_;
};

}  // namespace talvex
