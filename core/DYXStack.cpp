#include "core/DYXStack.h"

#include <algorithm>
#include <utility>

namespace talvex {

void DYXStack::pushOntoStack() {
    lastX = reg[0];
    reg = {reg[0], reg[0], reg[1], reg[2]};
}

void DYXStack::dropOntoXReg(unsigned count) {
    if (count == 1) {
        reg = {reg[0], reg[2], reg[3], reg[3]};
    } else if (count > 1) {
        reg = {reg[0], reg[3], reg[3], reg[3]};
    }
}

void DYXStack::rollDown() { std::rotate(reg.begin(), reg.begin() + 1, reg.end()); }
void DYXStack::rollUp() { std::rotate(reg.begin(), reg.begin() + 3, reg.end()); }
void DYXStack::swapXY() { std::swap(reg[0], reg[1]); }

void DYXStack::recallLastX() {
    reg = {lastX, reg[0], reg[1], reg[2]};
    lastX = reg[1];
}

}  // namespace talvex
