// How a failure that nothing can mend ends the program.
#pragma once

#include <cstdlib>
#include <functional>

/// Ends the program at once, without clean-up; replaceable, so that a test outlives it.
inline std::function<void()> EndProgram = [] { std::_Exit(EXIT_FAILURE); };
