// Telling what each lookup and each allocation is for; see the header.
#include "faults/clean_start.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "fuzz/show.h"
#include "support/fake_platform.h"
#include "support/tables.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/olt.h"

namespace faults {
namespace {

// The sections with which the loaders begin.
constexpr const char* kListSections[] = {"Version",
                                         "ModuleTypeList",
                                         "SupportedSysFunctionType",
                                         "SupportedOltPortType",
                                         "SupportedMainBoardType",
                                         "SupportedBoardType",
                                         "KT3300-L_FrameInfomation",
                                         "SupportedOnuPonType",
                                         "SupportedOnuLanType",
                                         "SupportedOnuPotsType",
                                         "SupportedOnuSpecialPortType",
                                         "SupportedOnuType",
                                         "SupportedOptModuleInfo"};
static_assert(std::size(kListSections) == kLoaderCount);

// Keys whose values name records of other tables.
struct Reference {
  Loader from;
  const char* prefix;
  Loader to;
};
constexpr Reference kReferences[] = {
    {kFunctions, "SupportedSysFunction", kModules},
    {kBoards, "NameKeyPort", kPortTypes},
    {kBoards, "NameKeySpecialPort", kPortTypes},
    {kOnus, "NameKeyPon", kOnuPonTypes},
    {kOnus, "NameKeyLanPort", kOnuLanTypes},
    {kOnus, "NameKeyPotsPort", kOnuPotsTypes},
    {kOnus, "NameKeySpecialPort", kOnuSpecialPortTypes},
};

std::optional<Place> Needs(Loader loader, const Lookup& lookup, const Contents& contents) {
  for (const Reference& reference : kReferences) {
    if (reference.from == loader && IsNumbered(lookup.question.key, reference.prefix)) {
      const std::vector<Record>& records = contents.tables[reference.to].records;
      const auto found = std::find_if(records.begin(), records.end(), [&](const Record& record) {
        return record.name == lookup.answer.value;
      });
      return Place{reference.to, static_cast<size_t>(found - records.begin())};
    }
  }
  return {};
}

// The entries of the frame without which it is still a frame.
bool CanBeLeftOut(const std::string& frame_key) {
  return IsNumbered(frame_key, "SupportedBoardTypeSlot") ||
         IsNumbered(frame_key, "SwitchChipLogicPort") ||
         IsNumbered(frame_key, "Type2SwitchChipLogicPort");
}

// Goes along the tape.
class Events {
 public:
  explicit Events(CleanStart& start) : start_(start) {
    AddAllocations(0, 0, 1);  // the work buffer
    const std::vector<Lookup>& lookups = Tape::Get().lookups();
    for (size_t i = 0; i < lookups.size(); ++i) {
      AddLookup(i, lookups[i]);
      const int end =
          i + 1 < lookups.size() ? lookups[i + 1].before.allocations : start.start_allocations;
      AddAllocations(i, lookups[i].behind.allocations, end);
    }
    start_.events = std::move(events_);
  }

 private:
  void AddLookup(size_t number, const Lookup& lookup) {
    const std::string& section = lookup.question.section;
    const auto* const list = std::find(std::begin(kListSections), std::end(kListSections), section);
    const bool is_list = list != std::end(kListSections);
    if (is_list && (number == 0 || list != kListSections + loader_)) {
      loader_ = static_cast<Loader>(list - kListSections);
      records_ = 0;  // this one asks how many entries there are
    } else {
      records_ += is_list ? 1 : 0;
    }
    // Boards and ONU types: what finds the section of an entry.
    const bool finds_section = !is_list && was_list_ && (loader_ == kBoards || loader_ == kOnus);
    AddEvent(number, lookup, finds_section);
    was_list_ = is_list;
  }

  void AddEvent(size_t number, const Lookup& lookup, bool finds_section) {
    Event event = {.loader = loader_,
                   .is_allocation = false,
                   .lookup = number,
                   .number = 0,
                   .record = CurrentRecord(),
                   .needs = Needs(loader_, lookup, start_.contents),
                   .ends_load = finds_section};
    if (loader_ == kFrame) {
      if (CanBeLeftOut(lookup.question.key)) {
        event.record = Place{kFrame, start_.frame_keys.size()};
      }
      start_.frame_keys.push_back(lookup.question.key);
    }
    event.ends_load |= !event.record.has_value();
    events_.push_back(event);
  }

  void AddAllocations(size_t lookup, int first, int end) {
    for (int number = first + 1; number <= end; ++number) {
      const std::optional<Place> record = CurrentRecord();
      events_.push_back({.loader = loader_,
                         .is_allocation = true,
                         .lookup = lookup,
                         .number = number,
                         .record = record,
                         .needs = {},
                         .ends_load = !record.has_value()});
    }
  }

  std::optional<Place> CurrentRecord() const {
    return loader_ == kFrame || records_ == 0 ? std::nullopt
                                              : std::optional<Place>({loader_, records_ - 1});
  }

  CleanStart& start_;
  std::vector<Event> events_;
  Loader loader_ = kVersions;
  size_t records_ = 0;  // of the loader, so far
  bool was_list_ = false;
};

CleanStart Make() {
  CleanStart start;
  PreparePlatform();
  test::Faults faults;
  GiveSample(faults);
  Tape::Get().Record(faults);
  EXPECT_EQ(ddInit(), 0);
  start.start_allocations = faults.allocations.count();
  start.contents = Contents::Take({});
  const Events events(start);
  start.contents = Contents::Take(start.frame_keys);
  for (uint32_t i = 0; i < gstSupportedBoardType.ulSupportedBoardTypeNum; ++i) {
    start.serving_ports.push_back(gstSupportedBoardType.pBoardTypeArray[i]->ulTotalServePortNum);
  }
  Tape::Get().Replay(Tape::kNone, Tape::kNone);
  EXPECT_EQ(ShowAll(), 0);
  start.allocations = faults.allocations.count();
  test::ResetTables();
  EXPECT_TRUE(faults.blocks.empty());
  return start;
}

void Run(CommandRecord& command, std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  command.func(&command, nullptr, static_cast<int32_t>(arguments.size()), arguments.data());
}

}  // namespace

const CleanStart& CleanStart::Get() {
  static const CleanStart start = Make();
  return start;
}

void GiveSample(test::Faults& faults) {
  for (const char* const file : {"device_definition.ini", "optmodule_definition.ini"}) {
    faults.paths[std::string("/mnt/work/") + file] = std::string(SAMPLE_FOLDER "/") + file;
  }
}

void PreparePlatform() {
  test::FakePlatform::Reset();
  test::FakePlatform& platform = test::FakePlatform::Get();
  platform.pon_cards = {3101, 3102, 3103, 3104, 3105, 3106, 3107, 3111, 3112, 3113, 3114};
  platform.flash = "[Version]\nSupportedSoftwareVer=KT2200V4.0\n";
}

int32_t ShowAll() {
  ddCmdInit(0, 0, 0);
  fuzz::ShowEverything();
  Run(ddShowContextFile_CMD, {});
  Run(ddUploadContextFile_CMD, {"10.0.0.1", "user", "word", "file"});
  return ddReadContextFileToBuf();
}

}  // namespace faults
