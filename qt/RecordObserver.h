#pragma once

#include <QWidget>
#include <functional>

#include "platform/NSView.h"
#include "qt/Scale.h"
#include "qt/conversions.h"

namespace talvex {

// Keeps a widget in step with one record: place, visibility, hint and accessible name. The widget
// paints the rest from the record whenever this asks for it.
class RecordObserver final : public NSViewObserver, public ScaleFollower {
  public:
    // `changed` runs ahead of each repaint, for what the widget keeps besides. The widget's parent
    // stands for the record's superview, or else for the view `within` that it is in.
    RecordObserver(QWidget& widget, Scale& scale, NSView& record,
                   std::function<void()> changed = {}, const NSView* within = nullptr);
    RecordObserver(const RecordObserver&) = delete;
    RecordObserver& operator=(const RecordObserver&) = delete;
    ~RecordObserver();

    void viewDidChange(const NSView& view) override;
    void scaleDidChange() override { viewDidChange(record_); }

  private:
    QWidget& widget_;
    Scale& scale_;
    NSView& record_;
    std::function<void()> changed_;
    const NSView* within_;
};

}  // namespace talvex
