#include "level/backdrop.h"

#include "level/globals.h"
#include "platform/error.h"

namespace {

bool TryBackdrop(const std::string& name) {
  try {
    Document.Background.create(Document.BackgroundDir + name);
    return true;
  } catch (const PlatformError&) {
    return false;
  }
}

}  // namespace

bool ShowBackdrop(const std::string& name) {
  if (TryBackdrop(name)) return true;
  return name.starts_with("_bk") && TryBackdrop(name.substr(1));
}
