// An install folder of the benchmark's own, so that nothing it writes reaches the real one.
#pragma once

#include <string>

namespace bench {

/// A temporary folder with the real one's pictures and models, made the program's install folder;
/// removed in the end.
class PrivateInstall {
 public:
  PrivateInstall();
  ~PrivateInstall();
  PrivateInstall(const PrivateInstall&) = delete;
  PrivateInstall& operator=(const PrivateInstall&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace bench
