#include "tools/ordered_pipeline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <set>
#include <stdexcept>

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using tools::OrderedPipeline;

struct Batch {
  int number = -1;
  int result = -1;
};

// Takes the numbers from 0 and collects those that are put.
class OrderedPipelineTest : public ::testing::TestWithParam<int> {
 protected:
  bool Take(Batch& batch) {
    const bool alone = !taking_.exchange(true);
    EXPECT_TRUE(alone);
    EXPECT_EQ(batch.number, -1);
    if (taken_ < end_) batch.number = taken_++;
    EXPECT_LE(taken_ - static_cast<int>(put_.size()), 2 * GetParam());
    taking_ = false;
    return batch.number >= 0;
  }

  static void Work(Batch& batch) {
    std::this_thread::sleep_for(std::chrono::microseconds((batch.number * 7919) % 300));
    batch.result = batch.number;
  }

  void Put(const Batch& batch) {
    const bool alone = !putting_.exchange(true);
    EXPECT_TRUE(alone);
    results_.push_back(batch.result);
    put_.push_back(batch.number);
    putting_ = false;
  }

  OrderedPipeline<Batch>::Stages Stages() {
    return {[this](Batch& batch) { return Take(batch); }, Work, [this](Batch& batch) { Put(batch); }, [] {}};
  }

  void Run(OrderedPipeline<Batch>::Stages stages) {
    OrderedPipeline<Batch>(std::move(stages)).Run(GetParam());
  }

  std::string ErrorOf(OrderedPipeline<Batch>::Stages stages) {
    try {
      Run(std::move(stages));
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "none";
  }

  // `Take` looks at how many are put while another thread may put one more.
  struct Numbers {
    void push_back(int number) {
      const std::lock_guard<std::mutex> lock(mutex);
      numbers.push_back(number);
    }
    std::size_t size() const {
      const std::lock_guard<std::mutex> lock(mutex);
      return numbers.size();
    }
    std::vector<int> numbers;
    mutable std::mutex mutex;
  };

  int end_ = 500;
  int taken_ = 0;
  Numbers put_;
  std::vector<int> results_;
  std::atomic<bool> taking_{false};
  std::atomic<bool> putting_{false};
};

TEST_P(OrderedPipelineTest, PutsEachBatchOnceInTheOrderOfTaking) {
  Run(Stages());
  ASSERT_EQ(results_.size(), 500U);
  for (int i = 0; i < 500; ++i) EXPECT_EQ(results_[static_cast<std::size_t>(i)], i);
}

TEST_P(OrderedPipelineTest, EmptySourcePutsNothing) {
  end_ = 0;
  Run(Stages());
  EXPECT_EQ(put_.size(), 0U);
}

TEST_P(OrderedPipelineTest, WorksOnAsManyThreadsAsAskedForAndTheCallersIsOne) {
  std::mutex mutex;
  std::condition_variable all_there;
  std::set<std::thread::id> threads;
  auto stages = Stages();
  stages.work = [&](Batch&) {
    std::unique_lock<std::mutex> lock(mutex);
    threads.insert(std::this_thread::get_id());
    all_there.notify_all();
    all_there.wait(lock, [&] { return threads.size() == static_cast<std::size_t>(GetParam()); });
  };
  Run(std::move(stages));
  EXPECT_EQ(threads.count(std::this_thread::get_id()), 1U);
}

TEST_P(OrderedPipelineTest, SlowBatchHoldsUpTheOthersOnlyWhenThereIsNoRoomLeft) {
  if (GetParam() == 1) return;
  std::atomic<int> worked{0};
  auto stages = Stages();
  stages.work = [&](Batch& batch) {
    while (batch.number == 0 && worked < 2 * GetParam() - 1) std::this_thread::yield();
    ++worked;
  };
  Run(std::move(stages));
  EXPECT_EQ(worked, 500);
}

TEST_P(OrderedPipelineTest, ErrorOfTheWorkComesAfterAllBatchesBeforeIt) {
  auto stages = Stages();
  stages.work = [](Batch& batch) {
    if (batch.number % 100 == 10) throw std::runtime_error("work " + std::to_string(batch.number));
    Work(batch);
  };
  EXPECT_EQ(ErrorOf(std::move(stages)), "work 10");
  EXPECT_THAT(put_.numbers, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
  EXPECT_EQ(results_.back(), -1);
}

TEST_P(OrderedPipelineTest, ErrorOfTheSourceComesAfterAllBatchesBeforeIt) {
  auto stages = Stages();
  stages.take = [this](Batch& batch) {
    if (taken_ == 3) throw std::runtime_error("take");
    return Take(batch);
  };
  EXPECT_EQ(ErrorOf(std::move(stages)), "take");
  EXPECT_THAT(put_.numbers, ElementsAre(0, 1, 2, -1));
}

TEST_P(OrderedPipelineTest, ErrorOfTheSinkEndsTheRun) {
  auto stages = Stages();
  stages.put = [this](Batch& batch) {
    if (batch.number == 3) throw std::runtime_error("put");
    Put(batch);
  };
  EXPECT_EQ(ErrorOf(std::move(stages)), "put");
  EXPECT_THAT(put_.numbers, ElementsAre(0, 1, 2));
}

TEST_P(OrderedPipelineTest, ErrorOfTheSinkEndsATakeThatWaits) {
  std::promise<void> stopped;
  auto stages = Stages();
  stages.take = [&](Batch& batch) {
    if (taken_ < 1) return Take(batch);
    stopped.get_future().wait();
    return false;
  };
  stages.put = [](Batch&) { throw std::runtime_error("put"); };
  stages.stop = [&] { stopped.set_value(); };
  EXPECT_EQ(ErrorOf(std::move(stages)), "put");
}

INSTANTIATE_TEST_SUITE_P(Threads, OrderedPipelineTest, ::testing::Values(1, 2, 4, 16));

}  // namespace
}  // namespace kavrix::test
