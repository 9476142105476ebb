#include "platform/background_worker.h"

#include <pthread.h>
#include <sched.h>

#include <utility>

BackgroundWorker::~BackgroundWorker() {
  {
    const std::lock_guard lock(mutex_);
    end_ = true;
    stop_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void BackgroundWorker::Start(Task task) {
  {
    const std::lock_guard lock(mutex_);
    waiting_ = std::move(task);
    stop_ = true;
  }
  wake_.notify_one();
  if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
}

void BackgroundWorker::Stop() {
  const std::lock_guard lock(mutex_);
  waiting_ = nullptr;
  stop_ = true;
}

void BackgroundWorker::Work() {
  // Where the system refuses, the thread is one like any other.
  const sched_param parameters{};
  pthread_setschedparam(pthread_self(), SCHED_IDLE, &parameters);
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return end_ || waiting_; });
    if (end_) return;
    const Task task = std::exchange(waiting_, nullptr);
    stop_ = false;
    lock.unlock();
    task(stop_);
    lock.lock();
  }
}
