#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#include "tests/drive/seeds.h"

namespace {
int asked = 0;
}

int Seeds(int usually) { return asked > 0 ? asked : usually; }

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::string_view(argv[i]) == "--seeds") asked = std::atoi(argv[i + 1]);
  }
  return RUN_ALL_TESTS();
}
