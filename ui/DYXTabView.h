#pragma once

#include <memory>
#include <vector>

#include "platform/NSMatrix.h"
#include "platform/NSTabView.h"
#include "ui/DYXStatusLine.h"

namespace talvex {

// A tab view with a matrix of small buttons above it in place of tabs, numbered in reading order.
// Its status field says what the control under the pointer does.
class DYXTabView : public NSTabView, public DYXStatusLineTracker {
  public:
    static constexpr double kTabHeight = 16.0;
    static constexpr double kTabOverlap = 1.0;  // of the frames of neighbours
    static constexpr double kTabPitch = kTabHeight - kTabOverlap;

    // The hot keys have to outlive the view.
    DYXTabView(const NSRect& frame, std::vector<NSTabViewItem> items, const HotKeys& hotKeys);

    [[nodiscard]] NSMatrix& matrix() { return *matrix_; }
    [[nodiscard]] const NSMatrix& matrix() const { return *matrix_; }

    // As many columns as there is room for.
    void setupDefaultMatrix();
    // In so many rows, 0 counting as 1; as few columns as will do.
    void setNumberOfRows(int rows);
    void setMatrixRowsColumns(int rows, int columns);
    // A click on a tab button.
    void matrixAction(NSMatrix& matrix);

    // Changes nothing if there is no such page.
    void selectTabViewItemAtIndex(int index) override;
    void setFrame(const NSRect& frame) override;
    void setAutoresizingMask(std::uint32_t mask) override;
    void drawRect(NSGraphicsContext& context) const override;

    void setShowStatusLines(bool show);
    [[nodiscard]] bool showStatusLines() const { return showStatusLines_; }
    // Takes the texts of all pages, the first time only.
    void buildStatusLineArrays();
    void addTrackingRects();
    void removeTrackingRects();

  private:
    [[nodiscard]] NSButtonCell cellForTab(int index) const;

    const HotKeys& hotKeys_;
    std::shared_ptr<NSMatrix> matrix_;
    std::vector<DYXStatusLines> statusLineArrays_;
    bool showStatusLines_ = false;
};

}  // namespace talvex
