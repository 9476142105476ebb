// One thread for what may take its time: it gets what the rest of the machine leaves.
#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

class BackgroundWorker {
 public:
  /// A task ends soon after `stop` has been set.
  using Task = std::function<void(const std::atomic<bool>& stop)>;

  BackgroundWorker() = default;
  /// Stops what runs and waits for its end.
  ~BackgroundWorker();
  BackgroundWorker(const BackgroundWorker&) = delete;
  BackgroundWorker& operator=(const BackgroundWorker&) = delete;

  /// Runs the task; one that runs or waits is stopped or dropped.
  void Start(Task task);
  void Stop();

 private:
  void Work();

  std::mutex mutex_;
  std::condition_variable wake_;
  Task waiting_;
  std::atomic<bool> stop_ = false;  ///< for the task that runs
  bool end_ = false;
  std::thread thread_;  ///< since the first task
};
