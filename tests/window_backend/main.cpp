#include <gtest/gtest.h>

#include "tests/window_backend/fixture.h"

namespace fixture {
namespace {
qt::Application* running = nullptr;
}  // namespace

qt::Application& Toolkit() { return *running; }
}  // namespace fixture

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qt::Application application(argc, argv);
  fixture::running = &application;
  dialogs::Use(&application.Dialogs());
  return RUN_ALL_TESTS();
}
