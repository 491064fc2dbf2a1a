#ifndef KAVRIX_TOOLS_ORDERED_PIPELINE_H_
#define KAVRIX_TOOLS_ORDERED_PIPELINE_H_

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace kavrix::tools {

// Takes batches from a source, works on them on several threads at once and puts them to a sink in the order
// of taking. One thread at a time takes, one puts. Each thread holds one batch until that is put, so the
// memory does not grow with the length of the source. The batch that `take` fills is empty.
//
// A batch whose take or work throws is still put, with what it holds by then; nothing follows it.
template <class Batch>
class OrderedPipeline {
 public:
  struct Stages {
    std::function<bool(Batch&)> take;  // false at the end of the source
    std::function<void(Batch&)> work;
    std::function<void(Batch&)> put;
    std::function<void()> stop;  // makes a take that waits on another thread return soon, whatever with
  };

  explicit OrderedPipeline(Stages stages) : stages_(std::move(stages)) {}

  // Returns when all is put and all threads are joined. Throws what a stage threw first in the order of the
  // source. Runs once. The calling thread is one of the threads.
  void Run(int thread_count) {
    std::vector<std::thread> threads;
    for (int i = 1; i < thread_count; ++i) {
      try {
        threads.emplace_back([this] { RunThread(); });
      } catch (const std::system_error&) {
        break;  // the system gives no more threads: those that there are do all the work
      }
    }
    RunThread();
    for (std::thread& thread : threads) thread.join();
    if (error_) std::rethrow_exception(error_);
  }

 private:
  void RunThread() {
    std::exception_ptr error;
    while (!error) {
      Batch batch;
      std::size_t turn = 0;
      if (!Take(batch, turn, error)) return;
      if (!error) error = Caught([&] { stages_.work(batch); });
      if (!AwaitTurn(turn)) return;
      const std::exception_ptr put_error = Caught([&] { stages_.put(batch); });
      if (put_error) error = put_error;
      error ? Stop(error) : NextTurn();
    }
  }

  bool Take(Batch& batch, std::size_t& turn, std::exception_ptr& error) {
    const std::lock_guard<std::mutex> lock(take_mutex_);
    if (at_end_ || stopped_) return false;
    bool taken = true;
    error = Caught([&] { taken = stages_.take(batch); });
    at_end_ = !taken || error;
    turn = taken_count_++;
    return taken;
  }

  bool AwaitTurn(std::size_t turn) {
    std::unique_lock<std::mutex> lock(put_mutex_);
    turn_changed_.wait(lock, [&] { return stopped_ || put_count_ == turn; });
    return !stopped_;
  }

  void NextTurn() {
    {
      const std::lock_guard<std::mutex> lock(put_mutex_);
      ++put_count_;
    }
    turn_changed_.notify_all();
  }

  void Stop(const std::exception_ptr& error) {
    {
      const std::lock_guard<std::mutex> lock(put_mutex_);
      error_ = error;
      stopped_ = true;
    }
    turn_changed_.notify_all();
    stages_.stop();
  }

  template <class Stage>
  static std::exception_ptr Caught(Stage stage) {
    try {
      stage();
      return nullptr;
    } catch (...) {
      return std::current_exception();
    }
  }

  const Stages stages_;
  std::mutex take_mutex_;
  bool at_end_ = false;          // guarded by take_mutex_
  std::size_t taken_count_ = 0;  // guarded by take_mutex_
  std::mutex put_mutex_;
  std::condition_variable turn_changed_;
  std::size_t put_count_ = 0;  // guarded by put_mutex_
  std::exception_ptr error_;   // guarded by put_mutex_
  std::atomic<bool> stopped_{false};
};

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_ORDERED_PIPELINE_H_
