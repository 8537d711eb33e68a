// The calls that the library makes to the C library: counted, and made to fail
// on demand. They are reached by the linker's --wrap, so the library itself
// knows nothing of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace test {

// Counts one kind of call, and decides which of them fail.
class FaultPlan {
 public:
  static constexpr int kForEver = std::numeric_limits<int>::max();

  // The call number `first` (from 1) and the `calls` - 1 after it fail.
  void FailFrom(int first, int calls) {
    first_ = first;
    calls_ = calls;
  }
  bool NextFails() {
    ++count_;
    const bool fails = first_ != 0 && count_ >= first_ && count_ - first_ < calls_;
    failed_ += fails ? 1 : 0;
    return fails;
  }
  int count() const { return count_; }
  int failed() const { return failed_; }

 private:
  int count_ = 0;
  int failed_ = 0;
  int first_ = 0;
  int calls_ = 0;
};

// What is watched and made to fail while a Faults object lives. There is one at
// a time; without one the C library is called as ever.
struct Faults {
  Faults();
  ~Faults();
  Faults(const Faults&) = delete;
  Faults& operator=(const Faults&) = delete;

  FaultPlan allocations;  // malloc and calloc
  FaultPlan opens;
  FaultPlan reads;        // a failing read gives no byte and sets the stream's error
  FaultPlan short_reads;  // such a read gives half of the bytes that there are, and no error
  FaultPlan seeks;
  FaultPlan stream_closes;  // a failing close closes the stream all the same
  int frees = 0;
  int closes = 0;
  size_t bytes_read = 0;

  // Blocks of the library that are not freed yet, by their address.
  std::map<void*, size_t> blocks;

  // Paths that the library opens, and what is opened instead.
  std::map<std::string, std::string> paths;

  // Paths that the library opens, and the bytes that it finds there. No file of
  // that name is needed. Reading at byte `unreadable_from` of them fails.
  std::map<std::string, std::string_view> contents;
  size_t unreadable_from = std::numeric_limits<size_t>::max();

  // Files that the library opens by descriptor: nothing of them is real. `descriptor_calls`
  // names every call in order: "open PATH FLAGS MODE" (octal), "write 1000 LENGTH",
  // "close 1000"; `written` is what was written to each path. The descriptors count from
  // 1000; a failing call returns -1, and a write takes at most `write_room` bytes.
  FaultPlan descriptor_opens;
  FaultPlan writes;
  FaultPlan descriptor_closes;
  size_t write_room = std::numeric_limits<size_t>::max();
  std::vector<std::string> descriptor_calls;
  std::map<std::string, std::string> written;
  std::vector<std::string> descriptors;  // the path of each
  std::vector<size_t> blocks_at_closes;  // how many were not freed at each "close"

  // Called when a block of the library is freed, before that is done.
  void (*on_free)(void* block, size_t size) = nullptr;
};

// A way in which a file fails, and the code of the lookup that meets it.
struct FileFault {
  const char* name;
  FaultPlan Faults::*plan;
  const char* code;
  int not_closed;  // streams that a failing call leaves unopened
  friend std::ostream& operator<<(std::ostream& out, const FileFault& fault) {
    return out << fault.name;
  }
};
inline constexpr FileFault kOpenFails = {"Open", &Faults::opens, "-10", 1};
inline constexpr FileFault kSeekFails = {"Seek", &Faults::seeks, "-12", 0};
inline constexpr FileFault kReadFails = {"Read", &Faults::reads, "-12", 0};

// Each lookup opens the file, seeks its position once, and closes it.
void ExpectAllClosed(const Faults& faults);

}  // namespace test
