// Category "conv": the keys of the units.

#include "core/DYXCalculator.h"
#include "core/converter_table.h"

namespace talvex {

// The first unit key of a group takes X as a quantity in that unit; the next one of the same group
// expresses the quantity in its own unit. Any command between them makes the next one a first one
// again, and an armed store or recall overrules both.
bool DYXCalculator::readsConverted(const Comand& command) const {
    if (recall_) {
        return true;
    }
    return store_ != kPlainStore && lastCommand_.category == fourCC("conv") &&
           lastCommand_.group == command.group;
}

bool DYXCalculator::doCommandConvert(const Comand& command) {
    const ConverterRow* const row = findConverter(command.group, command.action);
    if (row == nullptr) {
        return false;
    }
    updateRegister();
    double& quantity = converted_.at(row->group.index);
    if (readsConverted(command)) {
        stack_.x() = row->fromBase(*this, quantity);
    } else {
        quantity = row->toBase(*this, stack_.x());
    }
    inputState_ = InputState::lifting;
    return true;
}

}  // namespace talvex
