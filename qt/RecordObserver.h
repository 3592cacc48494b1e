#pragma once

#include <QWidget>
#include <functional>
#include <utility>

#include "platform/NSView.h"
#include "qt/Scale.h"
#include "qt/conversions.h"

namespace talvex {

// Keeps a widget in step with one record: place, visibility, hint and accessible name. The widget
// paints the rest from the record whenever this asks for it.
class RecordObserver final : public NSViewObserver, public ScaleFollower {
  public:
    struct Place {
        // The view that the widget's parent stands for, if not for the record's superview.
        const NSView* within = nullptr;
        // In points, whatever the record has: the widget is larger around the same centre.
        double leastSide = 0.0;
    };
    // `changed` runs ahead of each repaint, for what the widget keeps besides.
    RecordObserver(QWidget& widget, Scale& scale, NSView& record, std::function<void()> changed,
                   const Place& place);
    RecordObserver(QWidget& widget, Scale& scale, NSView& record,
                   std::function<void()> changed = {})
        : RecordObserver(widget, scale, record, std::move(changed), Place{}) {}
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
    Place place_;
};

}  // namespace talvex
