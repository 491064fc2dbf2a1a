// A client may fork: the child of a process with one thread decodes as its parent does, and the child of one
// with several may call exec, whatever the other threads do in the library at that moment.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "map_resource/map_resource_transform.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

constexpr char kName[] = R"(kavrix://resource/{"content":"Jam","mode":0}.trafficBubble)";

bool Decodes(MapResourceTransform& transform) {
  std::shared_ptr<BubbleDrawDescriptor> out;
  transform.GetBubbleDrawDescriptor(kName, out);
  return out != nullptr && out->content == "Jam";
}

// Returns the exit status of a child, -1 when a signal ended it.
int StatusOf(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class CountingSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord&) override { ++count; }
  std::atomic<std::size_t> count{0};
};

TEST(ForkTest, ChildOfAProcessWithOneThreadDecodesAndLogs) {
  MapResourceTransform transform(std::make_shared<KavrixContext>("ctx"));
  const auto sink = std::make_shared<CountingSink>();
  logging::SetLoggerInstance(0, {sink, logging::LogLevel::kRoutine, {}});
  ASSERT_TRUE(Decodes(transform));
  const std::size_t before = sink->count;
  ASSERT_GT(before, 0U);
  const pid_t child = fork();
  if (child == 0) _exit(Decodes(transform) && sink->count == 2 * before ? 0 : 1);
  EXPECT_EQ(StatusOf(child), 0);
  EXPECT_EQ(sink->count, before);
  logging::SetLoggerInstance(0, {});
}

TEST(ForkTest, ChildMayCallExecWhileOtherThreadsDecode) {
  const auto context = std::make_shared<KavrixContext>("ctx");
  MapResourceTransform transform(context);
  logging::SetLoggerInstance(0, {std::make_shared<CountingSink>(), logging::LogLevel::kRoutine, {}});
  std::atomic<bool> stop{false};
  std::atomic<int> failed{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([&] {
      while (!stop) {
        if (!Decodes(transform)) ++failed;
        context->SetBubbleLayerConfig({});
      }
    });
  }
  constexpr int kForks = 50;
  int done = 0;
  for (int i = 0; i < kForks; ++i) {
    const pid_t child = fork();
    if (child == 0) {
      execl("/bin/true", "true", static_cast<char*>(nullptr));
      _exit(1);
    }
    done += StatusOf(child) == 0 ? 1 : 0;
  }
  stop = true;
  for (std::thread& thread : threads) thread.join();
  logging::SetLoggerInstance(0, {});
  EXPECT_EQ(done, kForks);
  EXPECT_EQ(failed, 0);
}

}  // namespace
}  // namespace kavrix::test
