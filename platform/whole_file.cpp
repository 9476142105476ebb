#include "platform/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <new>

#include "platform/error_text.h"
#include "platform/retry.h"

namespace {

std::string ReadOpened(int file, std::string& bytes) {
  struct stat status {};
  if (fstat(file, &status) != 0) return ErrorText(errno);
  if (std::string reason = NoFileReason(status.st_mode); !reason.empty()) return reason;
  if (status.st_size > kGreatestFile) return "it is too large";
  bytes.resize(static_cast<size_t>(status.st_size));
  size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got =
        RetryInterrupted([&] { return read(file, &bytes[filled], bytes.size() - filled); });
    if (got < 0) return ErrorText(errno);
    if (got == 0) break;
    filled += static_cast<size_t>(got);
  }
  bytes.resize(filled);
  return {};
}

}  // namespace

std::string NoFileReason(mode_t mode) {
  if (S_ISREG(mode)) return {};
  return S_ISDIR(mode) ? "it is a folder" : "it is not a regular file";
}

std::string ReadWholeFile(const std::string& path, std::string& bytes) {
  bytes.clear();
  // A pipe without a writer would keep a plain open waiting.
  const int file =
      RetryInterrupted([&] { return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); });
  if (file < 0) return ErrorText(errno);
  std::string reason;
  try {
    reason = ReadOpened(file, bytes);
  } catch (const std::bad_alloc&) {
    reason = ErrorText(ENOMEM);
  }
  close(file);
  return reason;
}
