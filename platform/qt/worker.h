// One background thread that does jobs in order. Only the inside of a machine may use it; the suite has one thread.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace cserko {

class Worker {
 public:
  using Job = std::function<void()>;
  /// Runs after each job and whenever the time that it returned has passed; nothing returned means: wait for a job.
  using Upkeep = std::function<std::optional<std::chrono::milliseconds>()>;

  explicit Worker(Upkeep upkeep) : upkeep_(std::move(upkeep)), thread_([this] { run(); }) {}
  ~Worker() { stop(nullptr); }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  /// Appends a job; after `stop` it is dropped.
  void post(Job job) {
    {
      const std::lock_guard lock(mutex_);
      if (stopping_) return;
      jobs_.push_back(std::move(job));
    }
    wake_.notify_one();
  }

  /// Drops the jobs that wait, runs one last job (if any) on the thread and ends it. A second call does nothing.
  void stop(Job last) {
    {
      const std::lock_guard lock(mutex_);
      if (stopping_) return;
      stopping_ = true;
      jobs_.clear();
      last_ = std::move(last);
    }
    wake_.notify_one();
    thread_.join();
  }

 private:
  void run() {
    std::unique_lock lock(mutex_);
    while (!stopping_) {
      if (jobs_.empty()) {
        lock.unlock();
        const auto pause = upkeep_();
        lock.lock();
        const auto due = [this] { return stopping_ || !jobs_.empty(); };
        if (pause)
          wake_.wait_for(lock, *pause, due);
        else
          wake_.wait(lock, due);
        continue;
      }
      const Job job = std::move(jobs_.front());
      jobs_.pop_front();
      lock.unlock();
      job();
      lock.lock();
    }
    lock.unlock();
    if (last_) last_();
  }

  Upkeep upkeep_;
  Job last_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Job> jobs_;
  bool stopping_ = false;
  std::thread thread_; // last: it runs on all the others
};

} // namespace cserko
