#pragma once

#include "platform/NSButton.h"
#include "qt/ControlButton.h"
#include "qt/RecordObserver.h"
#include "qt/palette.h"

namespace talvex {

// A key of the key pad on the screen.
class KeyButton final : public ControlButton {
  public:
    KeyButton(NSButton& record, KeyGroup group, QWidget* parent);

    [[nodiscard]] const NSButton& record() const { return record_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    // The record's state decides whether the key is on.
    void nextCheckState() override {}

  private:
    [[nodiscard]] bool isModifier() const;
    void paintTitle(QPainter& painter, const QRectF& rect, const QColor& color) const;

    NSButton& record_;
    KeyGroup group_;
    RecordObserver observer_;
};

}  // namespace talvex
