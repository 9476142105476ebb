#include "platform/dialogs.h"

#include <exception>

namespace dialogs {
namespace {

Backend*& Current() {
  static Backend* backend = nullptr;
  return backend;
}

bool open = true;

}  // namespace

void Use(Backend* backend) {
  Current() = backend;
  open = true;
}

void CloseDoor() { open = false; }

void ShowMessage(const std::string& text) {
  if (Current() != nullptr) Current()->ShowMessage(text, kApplicationTitle);
}

std::optional<std::string> OpenFile(const FileDialog& dialog) {
  return Current() != nullptr ? Current()->OpenFile(dialog) : std::nullopt;
}

std::optional<std::string> SaveFile(const FileDialog& dialog) {
  return Current() != nullptr ? Current()->SaveFile(dialog) : std::nullopt;
}

void Enter(const std::function<void()>& handler) {
  if (!handler || !open) return;
  try {
    handler();
  } catch (const std::exception& failure) {
    ShowMessage(failure.what());
  }
}

}  // namespace dialogs
