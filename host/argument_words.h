// The words that stand for the arguments of queries: numbers, and records of the
// library's tables.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace sysctx {

class BadArgument : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A number from `least` to `most`, decimal or "0x..." in hexadecimal, with "-" in
// front of a negative one. Throws BadArgument with the argument's name.
int64_t ParseNumber(const char* name, const std::string& word, int64_t least, int64_t most);

// How a record of the library's tables is told from others by a word. Find throws
// BadArgument when there is none; it is asked when the tables are loaded. Hint says
// what words there are.
template <typename Record>
struct RecordWord;

template <>
struct RecordWord<SlotClassInformation> {
  static const char* Hint();
  static const SlotClassInformation* Find(const char* name, const std::string& word);
};

template <>
struct RecordWord<PortMap> {
  static const char* Hint();
  static const PortMap* Find(const char* name, const std::string& word);
};

// Which record it is, and its sizes.
std::string DescribeRecord(const MainBoardInformation& board);
std::string DescribeRecord(const PortMap& map);
std::string DescribeRecord(const OltPortInformation& port_type);
std::string DescribeRecord(const OnuPortTypeInformation& port_type);
std::string DescribeRecord(const OptModuleThreshold& path);

}  // namespace sysctx
