// A value that lives beside its owner: what is seldom read, so that owners stand close together.
#pragma once

#include <memory>
#include <utility>

/// Copies with its owner. Moved from, it is empty until it is assigned to.
template <typename T>
class Indirect {
 public:
  Indirect() : value_(std::make_unique<T>()) {}
  Indirect(const Indirect& other)
      : value_(other.value_ ? std::make_unique<T>(*other.value_) : nullptr) {}
  Indirect(Indirect&&) noexcept = default;
  Indirect& operator=(const Indirect& other) {
    if (this != &other) *this = Indirect(other);
    return *this;
  }
  Indirect& operator=(Indirect&&) noexcept = default;
  ~Indirect() = default;

  T& operator*() { return *value_; }
  const T& operator*() const { return *value_; }
  T* operator->() { return value_.get(); }
  const T* operator->() const { return value_.get(); }

 private:
  std::unique_ptr<T> value_;
};
