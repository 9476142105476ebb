// The help text that lies beside the program.
#pragma once

#include <string>

namespace art {

std::string ReadmeText();

}  // namespace art
