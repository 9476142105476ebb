// The lines that the benchmark prints.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace bench {

class Report {
 public:
  Report(std::string only, bool quick) : only_(std::move(only)), quick_(quick) {}

  /// Whether a figure with one of these names, or with a name that begins so, is asked for.
  bool Wants(std::initializer_list<std::string_view> names) const;
  /// The first, or in a quick run the second.
  template <typename T>
  T Choose(T usually, T quick) const {
    return quick_ ? quick : usually;
  }

  /// Each prints its line unless it is not asked for.
  void Ratio(const std::string& name, double value) const;
  void Figure(const std::string& name, double value, const char* unit) const;

 private:
  bool Asked(std::string_view name) const { return name.starts_with(only_); }

  std::string only_;
  bool quick_;
};

}  // namespace bench
