#pragma once

#include <memory>
#include <string>
#include <vector>

#include "keyboard/HotKey.h"
#include "platform/NSAttributedString.h"
#include "platform/NSTextField.h"
#include "platform/NSView.h"

namespace talvex {

// What there is to say about one control while the pointer is over it.
class DYXStatusLine {
  public:
    // The control's hint, behind the hot keys of its command if it is a button that has any. Takes
    // the hint away from the control, which would show it itself.
    static std::unique_ptr<DYXStatusLine> statusLineForView(NSView& view, const HotKeys& hotKeys);

    explicit DYXStatusLine(NSView& view) : view_(&view) {}

    [[nodiscard]] NSView& view() const { return *view_; }
    // Of the tracking rectangle while there is one.
    [[nodiscard]] int tag() const { return tag_; }
    void setTag(int tag) { tag_ = tag; }
    [[nodiscard]] const NSAttributedString& statusString() const { return statusString_; }
    void setStatusString(NSAttributedString string) { statusString_ = std::move(string); }

  private:
    NSView* view_;
    int tag_ = 0;
    NSAttributedString statusString_;
};

using DYXStatusLines = std::vector<std::unique_ptr<DYXStatusLine>>;

// Shows in one field what there is to say about the control under the pointer.
class DYXStatusLineTracker : public NSTrackingOwner {
  public:
    [[nodiscard]] NSTextField* statusField() const { return statusField_.get(); }
    void setStatusField(std::shared_ptr<NSTextField> field) { statusField_ = std::move(field); }

    // What is said of a record; its own text unless somebody knows better.
    [[nodiscard]] virtual NSAttributedString stringForStatusLine(const DYXStatusLine& line) const {
        return line.statusString();
    }

    void mouseEntered(const void* userData) override;
    // Clears the field, unless the pointer is over another control by now.
    void mouseExited(const void* userData) override;
    void clearStatusField();

  protected:
    ~DYXStatusLineTracker() = default;

    // One rectangle for each record, however often it is asked for.
    void install(const DYXStatusLines& lines);
    // What is said of one of the records goes with its rectangle: nobody would hear of the
    // pointer leaving it.
    void uninstall(const DYXStatusLines& lines);

  private:
    std::shared_ptr<NSTextField> statusField_;
    const DYXStatusLine* currrentStatusLine_ = nullptr;
};

}  // namespace talvex
