#pragma once

#include <QLabel>
#include <QWidget>
#include <vector>

#include "qt/RecordObserver.h"
#include "ui/Panel.h"

namespace talvex {

// A field that says what the key under the pointer does.
class StatusFieldWidget final : public QLabel {
  public:
    // The parent stands for the view `within`, or else for the field's superview.
    StatusFieldWidget(NSTextField& record, Scale& scale, QWidget* parent,
                      const NSView* within = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    NSTextField& record_;
    const Scale& scale_;
    RecordObserver observer_;
};

// The keys on a view of the window.
class PanelWidget : public QWidget {
  public:
    PanelWidget(NSView& view, const std::vector<Key>& keys, Scale& scale, QWidget* parent);

  private:
    RecordObserver observer_;
};

// A panel as a drawer holds it, with its status field.
QWidget* makePanelWidget(const Panel& panel, Scale& scale, QWidget* parent);

// The pages of unit keys below their tab buttons.
QWidget* makeConversionWidget(const ConversionPanel& panel, Scale& scale, QWidget* parent);

}  // namespace talvex
