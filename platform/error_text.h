// The system's error numbers in words.
#pragma once

#include <string>

/// What the error number (an errno value) means, in English whatever the locale.
std::string ErrorText(int number);
