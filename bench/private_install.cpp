#include "bench/private_install.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "platform/paths.h"

namespace bench {

namespace fs = std::filesystem;

PrivateInstall::PrivateInstall() {
  path_ = (fs::temp_directory_path() / "vorbilax-bench-XXXXXX").string();
  if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error(path_ + " cannot be made");
  const fs::path real = paths::ProgramFolder(), own = path_;
  for (const char* const kind : {"textures", "backgrounds", "models", "skins", "misc"}) {
    fs::create_directory_symlink(real / kind, own / kind);
  }
  fs::create_directory(own / "levels");
  paths::InstallFolder(path_);
}

PrivateInstall::~PrivateInstall() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace bench
