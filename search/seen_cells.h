// The cells that a search has been in, as their numbers: a set that takes little room.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace search {

class SeenCells {
 public:
  /// False when the number was there already.
  bool Insert(uint64_t number) {
    if (number == 0) number = 1;  // 0 stands for nothing
    if (2 * (count_ + 1) > slots_.size()) Grow();
    uint64_t& slot = SlotFor(number);
    if (slot == number) return false;
    slot = number;
    ++count_;
    return true;
  }

 private:
  uint64_t& SlotFor(uint64_t number) {
    const size_t mask = slots_.size() - 1;
    size_t at = static_cast<size_t>(number) & mask;
    while (slots_[at] != 0 && slots_[at] != number) at = (at + 1) & mask;
    return slots_[at];
  }
  void Grow() {
    std::vector<uint64_t> old(slots_.empty() ? 1024 : 2 * slots_.size());
    old.swap(slots_);
    for (const uint64_t number : old) {
      if (number != 0) SlotFor(number) = number;
    }
  }

  std::vector<uint64_t> slots_;
  size_t count_ = 0;
};

}  // namespace search
