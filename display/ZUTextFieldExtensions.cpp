#include "display/ZUTextFieldExtensions.h"

namespace talvex::ZUTextFieldExtensions {
namespace {

constexpr double kGap = 3.0;

}  // namespace

std::shared_ptr<NSTextField> copy(const NSTextField& field) {
    NSRect frame = field.frame();
    frame.y += frame.height + kGap;
    auto result = std::make_shared<NSTextField>(frame);
    result->setStringValue(field.stringValue());
    result->setTextColor(field.textColor());
    result->setFont(field.font());
    result->setAlignment(field.alignment());
    result->setHidden(field.isHidden());
    result->setAutoresizingMask(field.autoresizingMask());
    if (field.superview() != nullptr) {
        field.superview()->addSubview(result);
    }
    return result;
}

}  // namespace talvex::ZUTextFieldExtensions
