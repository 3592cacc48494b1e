#pragma once

#include "qt/ControlButton.h"
#include "qt/RecordObserver.h"
#include "qt/palette.h"
#include "ui/Panel.h"

namespace talvex {

// A key of the key pad on the screen.
class KeyButton final : public ControlButton {
  public:
    KeyButton(const Key& key, Scale& scale, QWidget* parent);

    [[nodiscard]] const CommandButton& record() const { return record_; }
    // Whether the help has something on what the key does.
    [[nodiscard]] bool hasHelp() const { return keyClass_ != KeyClass::drawer; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    // The record's state decides whether the key is on.
    void nextCheckState() override {}

  private:
    [[nodiscard]] bool showsState() const;
    void paintTitle(QPainter& painter, const QRectF& rect, const QColor& color) const;

    CommandButton& record_;
    KeyGroup group_;
    KeyClass keyClass_;
    RecordObserver observer_;
};

}  // namespace talvex
