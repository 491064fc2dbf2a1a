#include "util/tagged_log.h"

#include <cstddef>
#include <iomanip>
#include <locale>
#include <map>
#include <mutex>
#include <new>
#include <utility>

#include "util/muted_logs.h"

namespace kavrix::logging {

std::atomic<std::uint32_t> kavrix_log_instance_id_{0};

namespace {

thread_local bool are_muted = false;  // see MutedLogs

using InstancePointer = std::shared_ptr<const LoggerInstance>;

// The lock covers only the look-up: no sink and no filter runs under it, nor is one destroyed.
class InstanceTable {
 public:
  void Set(std::uint32_t id, InstancePointer instance) {
    const std::lock_guard<std::mutex> lock(mutex_);
    instances_[id].swap(instance);  // the parameter destroys the old instance, after the lock
    is_empty_ = false;
  }

  void Remove(std::uint32_t id) {
    InstancePointer removed;  // destroyed after the lock
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = instances_.find(id);
    if (found == instances_.end()) return;
    removed = std::move(found->second);
    instances_.erase(found);
    is_empty_ = instances_.empty();
  }

  // Whether no record of this thread is taken by anybody. Spares the lock when nobody logs.
  bool IsSilent() const { return is_empty_ || are_muted; }

  InstancePointer Find(std::uint32_t id) {
    if (IsSilent()) return nullptr;
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = instances_.find(id);
    return found == instances_.end() ? nullptr : found->second;
  }

  // Whether the instance takes records of the level; in `filtering` it is returned only if its filter must be
  // asked too: the count of its owners is shared by all threads that log.
  bool Takes(std::uint32_t id, LogLevel level, InstancePointer& filtering) {
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = instances_.find(id);
    if (found == instances_.end() || level < found->second->least_level) return false;
    if (found->second->tag_filter) filtering = found->second;
    return true;
  }

 private:
  std::atomic<bool> is_empty_{true};
  std::mutex mutex_;
  std::map<std::uint32_t, InstancePointer> instances_;
};

// Never destroyed, because the destructor of a static object may decode. Built in static storage, so that no
// decode has to allocate it.
InstanceTable& Instances() {
  alignas(InstanceTable) static std::byte place[sizeof(InstanceTable)];
  static InstanceTable& table = *new (place) InstanceTable;
  return table;
}

}  // namespace

MutedLogs::MutedLogs() : were_muted_(are_muted) { are_muted = true; }

MutedLogs::~MutedLogs() { are_muted = were_muted_; }

void SetLoggerInstance(std::uint32_t instance_id, LoggerInstance instance) {
  if (instance.sink == nullptr) return Instances().Remove(instance_id);
  Instances().Set(instance_id, std::make_shared<const LoggerInstance>(std::move(instance)));
}

// Here, so that the library has the only vtable of the class.
LogSink::~LogSink() = default;

bool Logger::TestLogLevelAndTag(std::uint32_t instance_id, LogLevel level, const std::string& tag) noexcept {
  try {
    if (Instances().IsSilent()) return false;
    InstancePointer filtering;
    if (!Instances().Takes(instance_id, level, filtering)) return false;
    return filtering == nullptr || filtering->tag_filter(tag);
  } catch (...) {
    return false;
  }
}

MessageBuffer::MessageBuffer() {
  constexpr std::size_t kLengthOfMost = 512;
  text_.reserve(kLengthOfMost);  // spares most messages the growing
}

std::streambuf::int_type MessageBuffer::overflow(int_type c) {
  LetThrough([&] { text_ += traits_type::to_char_type(c); });
  return c;
}

std::streamsize MessageBuffer::xsputn(const char* bytes, std::streamsize count) {
  LetThrough([&] { text_.append(bytes, static_cast<std::size_t>(count)); });
  return count;
}

// Sets the stream's exception mask only at the first exception: inserters that copy the stream's format copy
// the mask too, and would throw where nothing failed.
template <class Append>
void MessageBuffer::LetThrough(Append append) {
  try {
    append();
  } catch (...) {
    stream_.exceptions(std::ios::badbit | std::ios::failbit);
    throw;
  }
}

Record::Record(LogLevel level, const char* function, unsigned long line, const char* file,
               std::uint32_t instance_id, const std::string& tag)
    : level_(level),
      function_(function),
      line_(line),
      file_(file),
      tag_(tag),
      instance_id_(instance_id),
      instance_(Instances().Find(instance_id)) {
  // Most programs never change the global locale, and setting one costs a third of making the stream.
  if (Stream().getloc() != std::locale::classic()) Stream().imbue(std::locale::classic());
}

std::ostream& Record::Begin(const std::string& context_name) {
  constexpr int kDecimals = 6;
  return Stream() << "[Kavrix][" << context_name << "]" << std::fixed << std::setprecision(kDecimals);
}

Record::~Record() {
  if (instance_ == nullptr) return;
  try {
    instance_->sink->Write({level_, tag_, function_, file_, line_, message_.text(), instance_id_});
  } catch (...) {  // NOLINT(bugprone-empty-catch): a failing sink costs its log record, never the decode
  }
}

}  // namespace kavrix::logging
