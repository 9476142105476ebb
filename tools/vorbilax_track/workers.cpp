#include "tools/vorbilax_track/workers.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "platform/error_text.h"
#include "platform/retry.h"

namespace track_tool {
namespace {

struct Worker {
  size_t index = 0;
  pid_t process = 0;
  int pipe = -1;
  std::string bytes;
};

bool WriteAll(int file, const std::string& bytes) {
  size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t count = RetryInterrupted(
        [&] { return write(file, bytes.data() + written, bytes.size() - written); });
    if (count < 0) return false;
    written += static_cast<size_t>(count);
  }
  return true;
}

/// The worker's whole life. What the process would do at its end is the parent's to do.
[[noreturn]] void Live(int pipe, size_t index, const std::function<std::string(size_t)>& work) {
  constexpr int kFailed = 1;
  try {
    _exit(WriteAll(pipe, work(index)) ? 0 : kFailed);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    _exit(kFailed);
  }
}

/// False when the system has no room for another process.
bool Start(size_t index, const std::function<std::string(size_t)>& work,
           std::vector<Worker>& workers) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return false;
  std::fflush(nullptr);  // or both would write it
  const pid_t process = fork();
  if (process == 0) {
    close(ends[0]);
    Live(ends[1], index, work);
  }
  const int failure = errno;
  close(ends[1]);
  if (process < 0) {
    close(ends[0]);
    errno = failure;
    return false;
  }
  workers.push_back({index, process, ends[0], {}});
  return true;
}

std::string DeathOf(pid_t process) {
  int status = 0;
  if (RetryInterrupted([&] { return waitpid(process, &status, 0); }) < 0) return ErrorText(errno);
  if (WIFSIGNALED(status)) return strsignal(WTERMSIG(status));
  if (WEXITSTATUS(status) == 0) return {};
  return "exit status " + std::to_string(WEXITSTATUS(status));
}

/// Takes what the worker has written; false when there will be no more.
bool Read(Worker& worker) {
  std::array<char, 65536> part{};
  const ssize_t count =
      RetryInterrupted([&] { return read(worker.pipe, part.data(), part.size()); });
  if (count <= 0) return false;
  worker.bytes.append(part.data(), static_cast<size_t>(count));
  return true;
}

/// Waits until some have written or ended.
std::vector<pollfd> Wait(const std::vector<Worker>& workers) {
  std::vector<pollfd> waiting;
  waiting.reserve(workers.size());
  for (const Worker& worker : workers) waiting.push_back({worker.pipe, POLLIN, 0});
  RetryInterrupted([&] { return poll(waiting.data(), waiting.size(), -1); });
  return waiting;
}

}  // namespace

void RunWorkers(size_t count, size_t jobs, const std::function<std::string(size_t)>& work,
                const std::function<void(size_t, const Handed&)>& ended) {
  std::vector<Worker> workers;
  for (size_t next = 0; next < count || !workers.empty();) {
    while (next < count && workers.size() < jobs && Start(next, work, workers)) ++next;
    if (workers.empty()) {
      throw std::runtime_error("no process could be started: " + ErrorText(errno));
    }
    const std::vector<pollfd> waiting = Wait(workers);
    for (size_t i = waiting.size(); i-- > 0;) {
      if (waiting[i].revents == 0 || Read(workers[i])) continue;
      const Worker worker = std::move(workers[i]);
      workers.erase(workers.begin() + static_cast<ptrdiff_t>(i));
      close(worker.pipe);
      ended(worker.index, {worker.bytes, DeathOf(worker.process)});
    }
  }
}

}  // namespace track_tool
