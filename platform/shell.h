// The desktop's "open" operation.
#pragma once

#include <string>

class Shell {
 public:
  virtual ~Shell() = default;
  /// Shows the document in the desktop's viewer for it; a failure is not reported.
  virtual void Open(const std::string& path) = 0;
};
