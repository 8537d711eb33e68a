// Standing in front of the library's lookups, by the linker's --wrap.
#include "faults/tape.h"

#include <algorithm>
#include <cstring>

#include "sys_context/cfgfile.h"

namespace faults {

Calls Calls::Of(const test::Faults& faults) {
  return {faults.allocations.count(), faults.opens.count(), faults.seeks.count(),
          faults.reads.count(), faults.closes};
}

Tape& Tape::Get() {
  static Tape tape;
  return tape;
}

void Tape::Record(const test::Faults& faults) {
  lookups_.clear();
  recorded_ = &faults;
}

void Tape::Replay(size_t first, size_t end) {
  recorded_ = nullptr;
  first_ = first;
  end_ = end;
  next_ = 0;
  first_answers_.clear();
}

// The lookup's number; the tape's end if it is not on what is left of the tape.
size_t Tape::Find(const Question& question) {
  const auto found =
      std::find_if(lookups_.begin() + static_cast<std::ptrdiff_t>(next_), lookups_.end(),
                   [&](const Lookup& lookup) { return lookup.question == question; });
  const auto number = static_cast<size_t>(found - lookups_.begin());
  if (found != lookups_.end()) {
    next_ = number + 1;
  }
  return number;
}

template <typename Make>
int32_t Tape::LookUp(const Question& question, char* value, int32_t* header, Make make) {
  const auto make_it = [&] {
    const int32_t code = make();
    return Answer{code, code == 0 ? value : "", header != nullptr ? *header : 0};
  };
  if (recorded_ != nullptr) {
    const Calls before = Calls::Of(*recorded_);
    const Answer answer = make_it();
    lookups_.push_back({question, answer, before, Calls::Of(*recorded_)});
    return answer.code;
  }
  const size_t number = Find(question);
  if (number == lookups_.size()) {
    return make();
  }
  if (number >= first_ && number < end_) {
    const Answer answer = make_it();
    if (number == first_) {
      first_answers_.push_back(answer);
    }
    return answer.code;
  }
  const Answer& answer = lookups_[number].answer;
  if (answer.code == 0) {
    std::memcpy(value, answer.value.c_str(), answer.value.size() + 1);
  }
  if (header != nullptr) {
    *header = answer.header;
  }
  return answer.code;
}

}  // namespace faults

extern "C" {

int32_t __real_CFG_get_key(const char* file, const char* section, const char* key, char* value);
int32_t __real_CFG_get_key_offset(const char* file, const char* section, const char* key,
                                  char* value, int32_t start, int32_t* header);
int32_t __wrap_CFG_get_key(const char* file, const char* section, const char* key, char* value);
int32_t __wrap_CFG_get_key_offset(const char* file, const char* section, const char* key,
                                  char* value, int32_t start, int32_t* header);

int32_t __wrap_CFG_get_key(const char* file, const char* section, const char* key, char* value) {
  return faults::Tape::Get().LookUp({section, key, faults::kFromTheTop}, value, nullptr,
                                    [&] { return __real_CFG_get_key(file, section, key, value); });
}

int32_t __wrap_CFG_get_key_offset(const char* file, const char* section, const char* key,
                                  char* value, int32_t start, int32_t* header) {
  return faults::Tape::Get().LookUp({section, key, start}, value, header, [&] {
    return __real_CFG_get_key_offset(file, section, key, value, start, header);
  });
}

}  // extern "C"
