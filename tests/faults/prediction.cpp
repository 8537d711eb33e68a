// Going along the events of a clean start, leaving out what fails.
#include "faults/prediction.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace faults {
namespace {

using LeftOut = std::set<Place>;

bool IsSlotList(const std::string& key) {
  constexpr std::string_view kEnding = "SlotList";
  return key.size() > kEnding.size() && key.substr(key.size() - kEnding.size()) == kEnding;
}

// The code of ddInit when the event ends the load.
int32_t EndingCode(const Event& event, int32_t lookup_code) {
  if (event.is_allocation) {
    return event.number == 1 ? -1 : event.loader == kOpticalModules ? -22 : -27;
  }
  if (event.loader == kOpticalModules) {
    return -1;
  }
  return IsSlotList(Tape::Get().lookups()[event.lookup].question.key) ? lookup_code : -31;
}

// kept as is in the library: the serving ports are lost of a board of which a special port
// cannot be had.
size_t LostWith(const Event& event) {
  const std::string& key = Tape::Get().lookups()[event.lookup].question.key;
  return event.loader == kBoards && IsNumbered(key, "NameKeySpecialPort")
             ? CleanStart::Get().serving_ports[event.record->record]
             : 0;
}

Table Without(const LeftOut& left_out, Loader loader, const Table& table, size_t end) {
  Table rest = {table.has_array, {}};
  for (size_t i = 0; i < std::min(end, table.records.size()); ++i) {
    if (left_out.count({loader, i}) == 0) {
      rest.records.push_back(table.records[i]);
    }
  }
  return rest;
}

uint32_t TypeOf(const Record& card) {
  uint32_t type = 0;
  std::memcpy(&type, card.bytes.data(), sizeof type);
  return type;
}

// A slot's row of board types without those of the cards that are left out.
std::string RowWithout(const std::set<uint32_t>& types, const std::string& row) {
  std::string rest;
  for (size_t i = 0; i < row.size(); i += sizeof(uint32_t)) {
    uint32_t type = 0;
    std::memcpy(&type, row.data() + i, sizeof type);
    if (types.count(type) == 0) {
      rest.append(row, i, sizeof type);
    }
  }
  rest.resize(row.size());
  return rest;
}

// The frame as far as its keys before `end` go.
Table FrameUpTo(size_t end, bool has_array, const LeftOut& left_out) {
  const Contents& clean = CleanStart::Get().contents;
  std::set<uint32_t> types;
  for (const Place& place : left_out) {
    if (place.loader == kMainBoards || place.loader == kBoards) {
      types.insert(TypeOf(clean.tables[place.loader].records[place.record]));
    }
  }
  Table frame = clean.tables[kFrame];
  frame.has_array = has_array;
  for (size_t i = 0; i < frame.records.size(); ++i) {
    Record& record = frame.records[i];
    if (i >= end || left_out.count({kFrame, i}) != 0) {
      record.bytes.assign(record.bytes.size(), '\0');
    } else if (IsNumbered(record.name, "SupportedBoardTypeSlot")) {
      record.bytes = RowWithout(types, record.bytes);
    }
  }
  return frame;
}

// How many keys of the frame are read before the event, and whether its rows are there.
struct FrameProgress {
  size_t keys = 0;
  bool has_rows = false;
};
FrameProgress ProgressAt(const Event* end) {
  FrameProgress progress;
  for (const Event& event : CleanStart::Get().events) {
    if (&event == end) {
      break;
    }
    if (event.loader == kFrame) {
      progress.keys += event.is_allocation ? 0 : 1;
      progress.has_rows |= event.is_allocation;
    }
  }
  return progress;
}

Contents ContentsAt(const Event* end, const LeftOut& left_out) {
  const Contents& clean = CleanStart::Get().contents;
  Contents contents;
  const size_t failing = end == nullptr ? kLoaderCount : end->loader;
  for (size_t i = 0; i < kLoaderCount; ++i) {
    const auto loader = static_cast<Loader>(i);
    if (loader == kFrame) {
      const FrameProgress progress = ProgressAt(end);
      contents.tables[i] = FrameUpTo(progress.keys, progress.has_rows, left_out);
    } else if (i < failing) {
      contents.tables[i] = Without(left_out, loader, clean.tables[i], Tape::kToTheEnd);
    } else if (i == failing && end->forgets()) {
      contents.tables[i] = Without(left_out, loader, clean.tables[i], end->record->record);
    }
  }
  return contents;
}

}  // namespace

Prediction Predict(const std::function<bool(const Event&)>& fails, int32_t lookup_code) {
  Prediction prediction;
  LeftOut left_out;
  const Event* end = nullptr;
  for (const Event& event : CleanStart::Get().events) {
    if (event.record && left_out.count(*event.record) != 0) {
      continue;
    }
    const bool lacks = event.needs && left_out.count(*event.needs) != 0;
    if (!lacks && !fails(event)) {
      continue;
    }
    if (event.ends_load) {
      end = &event;
      break;
    }
    left_out.insert(*event.record);
    prediction.lost += LostWith(event);
  }
  prediction.code = end == nullptr ? 0 : EndingCode(*end, lookup_code);
  prediction.forgets = end != nullptr && end->forgets();
  prediction.contents = ContentsAt(end, left_out);
  return prediction;
}

}  // namespace faults
