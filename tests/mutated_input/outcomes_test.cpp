// What some changes of a line come to, written out.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "mutated_input/contents.h"
#include "mutated_input/lines.h"
#include "mutated_input/samples.h"
#include "mutated_input/start.h"

namespace {

using mutated::Files;
using mutated::LineChange;
using mutated::Lines;
using std::string;

constexpr LineChange kDelete = LineChange::kDelete;
constexpr LineChange kDouble = LineChange::kDouble;
constexpr LineChange kSwap = LineChange::kSwap;
constexpr LineChange kCut = LineChange::kCut;

// A line of the small sample: the header of a section, or the first line behind it that begins
// with a key.
struct Case {
  const char* header;
  const char* key;  // "": the header itself
  LineChange change;
  const char* outcome;  // code and loader of a failure; else the tables of another length
  friend std::ostream& operator<<(std::ostream& out, const Case& each) {
    return out << each.header << " " << each.key;
  }
};

size_t LineOf(const Lines& lines, const Case& each) {
  size_t i = 0;
  while (i < lines.size() && lines.at(i) != each.header) {
    ++i;
  }
  while (i < lines.size() && *each.key != '\0' && !lines.at(i).starts_with(each.key)) {
    ++i;
  }
  return i;
}

string Tables(const std::vector<mutated::Count>& clean, const std::vector<mutated::Count>& counts) {
  string text;
  for (size_t i = 0; i < counts.size(); ++i) {
    if (counts[i].count != clean[i].count) {
      text += (text.empty() ? "" : ", ") + std::to_string(counts[i].count) + " " + counts[i].table;
    }
  }
  return text;
}

std::vector<mutated::Count> CountsOf(const Files& files, mutated::Outcome& outcome) {
  std::vector<mutated::Count> counts;
  outcome = mutated::Start(files, mutated::kSmallSample.device_type, 0, {},
                           [&] { counts = mutated::Counts(); });
  EXPECT_EQ(outcome.wrong, std::vector<string>());
  return counts;
}

string OutcomeOf(const Case& each) {
  const Files original = FilesOf(mutated::kSmallSample);
  Files files = original;
  string& text = original.device.find(each.header) != string::npos ? files.device : files.optical;
  const Lines lines(text);
  const size_t line = LineOf(lines, each);
  if (line == lines.size()) {
    return "no such line";
  }
  text = lines.With(each.change, line);
  mutated::Outcome outcome;
  const auto clean = CountsOf(original, outcome);
  const auto counts = CountsOf(files, outcome);
  if (outcome.code != 0) {
    return std::to_string(outcome.code) + " " + string(mutated::LoaderAt(outcome.failed).name);
  }
  return Tables(clean, counts);
}

class MutatedLine : public testing::TestWithParam<Case> {};

TEST_P(MutatedLine, HasItsOutcome) {
  EXPECT_EQ(OutcomeOf(GetParam()), GetParam().outcome);
}

INSTANTIATE_TEST_SUITE_P(
    Deleted, MutatedLine,
    testing::Values(
        // What a loader cannot do without ends the start with its code.
        Case{"[Version]", "SupportedSoftwareVer", kDelete, "-31 ddReadVersionInformation"},
        Case{"[ModuleTypeList]", "ModuleNum", kDelete, "-31 ddReadAllModuleInformation"},
        Case{"[SupportedSysFunctionType]", "SupportedSysFunctionTypeNum", kDelete,
             "-31 ddReadSysSupportFuncInformation"},
        Case{"[SupportedOltPortType]", "SupportedOltPortTypeNum", kDelete,
             "-31 ddReadAllSupportedOltPortInformation"},
        Case{"[SupportedMainBoardType]", "SupportedMainBoardTypeNum", kDelete,
             "-31 ddReadAllSupportedMainBoardInformation"},
        Case{"[SupportedBoardType]", "SupportedBoardTypeNum", kDelete,
             "-31 ddReadAllSupportedBoardInformation"},
        Case{"[Board_EP16A]", "", kDelete, "-31 ddReadAllSupportedBoardInformation"},
        Case{"[Board_EP16A]", "Type", kDelete, "-31 ddReadAllSupportedBoardInformation"},
        Case{"[KT2200-A_FrameInfomation]", "", kDelete, "-31 ddReadFrameInformation"},
        Case{"[KT2200-A_FrameInfomation]", "Name", kDelete, "-31 ddReadFrameInformation"},
        Case{"[KT2200-A_FrameInfomation]", "HcuSlotNum", kDelete, "-31 ddReadFrameInformation"},
        Case{"[KT2200-A_FrameInfomation]", "FanSlotList", kDelete, "-2 ddReadFrameInformation"},
        Case{"[KT2200-A_FrameInfomation]", "SwitchChipLogicPortNum", kDelete,
             "-31 ddReadFrameInformation"},
        Case{"[SupportedOnuPonType]", "SupportedOnuPonTypeNum", kDelete,
             "-31 ddReadAllSupportedOnuPonInformation"},
        Case{"[SupportedOnuLanType]", "SupportedOnuLanTypeNum", kDelete,
             "-31 ddReadAllSupportedOnuLanInformation"},
        Case{"[SupportedOnuPotsType]", "SupportedOnuPotsTypeNum", kDelete,
             "-31 ddReadAllSupportedOnuPotsInformation"},
        Case{"[SupportedOnuSpecialPortType]", "SupportedOnuSpecialPortTypeNum", kDelete,
             "-31 ddReadAllSupportedOnuSpecialPortInformation"},
        Case{"[SupportedOnuType]", "SupportedOnuTypeNum", kDelete,
             "-31 ddReadAllSupportedOnuInformation"},
        Case{"[Onu_KT-G142]", "Type", kDelete, "-31 ddReadAllSupportedOnuInformation"},
        Case{"[SupportedOptModuleInfo]", "SupportedOptModuleInfoNum", kDelete,
             "-1 optmodule_infolist_read"},
        // Anything else costs its entry, and what refers to it by name.
        Case{"[ModuleTypeList]", "Module2", kDelete, "7 modules, 5 functions"},
        Case{"[Module_OMCI]", "Size", kDelete, "7 modules, 5 functions"},
        Case{"[Module_QINQ]", "Size", kDelete, "7 modules"},
        Case{"[SupportedSysFunctionType]", "SupportedSysFunction6", kDelete, "5 functions"},
        Case{"[OltPort_XGSPON]", "SplittingRatio", kDelete, "3 OLT port types, 5 boards"},
        Case{"[MainBoard_MCSA]", "SwitchChipLogicPort22", kDelete, "0 main boards"},
        Case{"[MainBoard_MCSA]", "SpecialChipLogicPortMapPhyPortCardNum", kDelete, "0 main boards"},
        Case{"[Board_EP16A]", "NameKeyPort16", kDelete, "5 boards"},
        Case{"[Board_PWDA]", "SpecialPortNum", kDelete, "5 boards"},
        Case{"[KT2200-A_FrameInfomation]", "SupportedBoardTypeSlot3", kDelete, ""},
        Case{"[KT2200-A_FrameInfomation]", "SwitchChipLogicPort7", kDelete, ""},
        Case{"[OnuPots_FXS]", "Name", kDelete, "0 POTS types, 9 ONU types"},
        Case{"[OnuLan_FE]", "", kDelete, "2 LAN types, 11 ONU types"},
        Case{"[Onu_KT-E208]", "PonNum", kDelete, "11 ONU types"},
        Case{"[OnuGpon]", "", kDelete, "7 optical modules"},
        Case{"[OnuGpon]", "Path1", kDelete, "7 optical modules"}));

INSTANTIATE_TEST_SUITE_P(
    Doubled, MutatedLine,
    testing::Values(
        // The first entry of a key holds.
        Case{"[ModuleTypeList]", "ModuleNum", kDouble, ""},
        Case{"[MainBoard_MCSA]", "SwitchChipLogicPort1 ", kDouble, ""},
        Case{"[OnuGpon]", "Path1", kDouble, ""},
        // So does the first section of a name, which is empty then.
        Case{"[Version]", "", kDouble, "-31 ddReadVersionInformation"},
        Case{"[Module_OMCI]", "", kDouble, "7 modules, 5 functions"},
        Case{"[Board_GP08A]", "", kDouble, "-31 ddReadAllSupportedBoardInformation"},
        Case{"[Onu_KT-G101]", "", kDouble, "-31 ddReadAllSupportedOnuInformation"},
        Case{"[OnuGpon]", "", kDouble, "7 optical modules"}));

INSTANTIATE_TEST_SUITE_P(Swapped, MutatedLine,
                         testing::Values(Case{"[Module_OMCI]", "Type", kSwap, ""},
                                         Case{"[OnuGpon]", "PathNum", kSwap, ""},
                                         // The first entry goes to the section above.
                                         Case{"[Version]", "", kSwap,
                                              "-31 ddReadVersionInformation"},
                                         Case{"[Module_OMCI]", "", kSwap, "7 modules, 5 functions"},
                                         Case{"[OnuGpon]", "", kSwap, "7 optical modules"}));

INSTANTIATE_TEST_SUITE_P(
    Cut, MutatedLine,
    testing::Values(
        // A header without its bracket is in the way of every section behind it.
        Case{"[Version]", "", kCut, "-31 ddReadVersionInformation"},
        Case{"[OltPort_EPON]", "", kCut, "-31 ddReadAllSupportedMainBoardInformation"},
        Case{"[OltEponPx20]", "", kCut, "0 optical modules"},
        // A line without "=" is in the way of every key behind it.
        Case{"[ModuleTypeList]", "ModuleNum", kCut, "-31 ddReadAllModuleInformation"},
        Case{"[Board_EP16A]", "NameKeyPort16", kCut, "5 boards"},
        // The value is gone: no digits are 0.
        Case{"[KT2200-A_FrameInfomation]", "MaxOnuNum", kCut, "-31 ddReadFrameInformation"},
        Case{"[SupportedOnuType]", "SupportedOnuTypeNum", kCut,
             "-31 ddReadAllSupportedOnuInformation"},
        // The value is shorter.
        Case{"[Version]", "SupportedSoftwareVer", kCut, "1 versions"}));

}  // namespace
