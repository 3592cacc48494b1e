#pragma once

#include <array>
#include <optional>

#include "platform/Platform.h"
#include "state/Settings.h"
#include "ui/DYXStatusLineView.h"
#include "ui/WindowViews.h"

namespace talvex {

class DYXCalculator;

// What the status fields say about the control under the pointer.
class StatusTexts final : public DYXStatusLineProtocol {
  public:
    // All have to outlive it.
    StatusTexts(WindowViews& views, const HotKeys& hotKeys, const DYXCalculator& calculator,
                const Settings& settings, const BundlePort& titles);

    // Says it, or keeps silent, by the setting.
    void showStatusLines();
    // Around a change of the place of the view's keys.
    void untrack(DYXStatusLineView& view) const { view.removeTrackingRects(); }
    void track(DYXStatusLineView& view) const;

    // The value of a memory register, and the exponent that a key enters.
    [[nodiscard]] std::optional<NSAttributedString> statusLineForView(
        const NSView& view) const override;

  private:
    [[nodiscard]] std::array<DYXStatusLineView*, 4> panels() const;

    WindowViews& views_;
    const HotKeys& hotKeys_;
    const DYXCalculator& calculator_;
    const Settings& settings_;
    const BundlePort& titles_;
};

}  // namespace talvex
