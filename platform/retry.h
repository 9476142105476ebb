// System calls that a signal may interrupt.
#pragma once

#include <cerrno>

/// Calls again until no signal came in between. Not for close: the file is closed all the same.
template <typename Call>
auto RetryInterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}
