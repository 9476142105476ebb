#include "bench/report.h"

#include <algorithm>
#include <cstdio>

namespace bench {

bool Report::Wants(std::initializer_list<std::string_view> names) const {
  return std::ranges::any_of(names, [this](std::string_view name) {
    return Asked(name) || std::string_view(only_).starts_with(name);
  });
}

void Report::Ratio(const std::string& name, double value) const {
  if (!Asked(name)) return;
  std::printf("ratio %s %.3f\n", name.c_str(), value);
  std::fflush(stdout);
}

void Report::Figure(const std::string& name, double value, const char* unit) const {
  if (!Asked(name)) return;
  std::printf("figure %s %.6g %s\n", name.c_str(), value, unit);
  std::fflush(stdout);
}

}  // namespace bench
