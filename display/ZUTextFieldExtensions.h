#pragma once

#include <memory>

#include "platform/NSTextField.h"

namespace talvex::ZUTextFieldExtensions {

// A new field like this one, directly above it in the same superview.
std::shared_ptr<NSTextField> copy(const NSTextField& field);

}  // namespace talvex::ZUTextFieldExtensions
