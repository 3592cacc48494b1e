// Category "conv": the keys of the units.

#include "core/DYXCalculator.h"
#include "core/converter_table.h"

namespace talvex {

// The first unit key of a group takes X as a quantity in that unit; the next one of the same group
// expresses the quantity in its own unit. Any command between them makes the next one a first one
// again, and an armed store or recall overrules both.
bool DYXCalculator::readsConverted(const Comand& command) const {
    if (now_.modifiers.recall) {
        return true;
    }
    return now_.modifiers.store != Store::plain && now_.lastCommand.category == fourCC("conv") &&
           now_.lastCommand.group == command.group;
}

bool DYXCalculator::doCommandConvert(const Comand& command) {
    const ConverterRow* const row = findConverter(command.group, command.action);
    if (row == nullptr) {
        return false;
    }
    updateRegister();
    double& quantity = now_.converted.at(row->group.index);
    if (readsConverted(command)) {
        now_.stack.x() = row->fromBase(context(), quantity);
    } else {
        quantity = row->toBase(context(), now_.stack.x());
    }
    now_.inputState = InputState::lifting;
    return true;
}

}  // namespace talvex
