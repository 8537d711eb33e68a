// Walking the tables.
#include "support/leaks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace test {
namespace {

using Blocks = std::set<void*>;

void Add(Blocks& blocks, void* block) {
  if (block != nullptr) {
    blocks.insert(block);
  }
}

template <typename Record>
void AddRecords(Blocks& blocks, uint32_t count, Record** records) {
  Add(blocks, records);
  for (uint32_t i = 0; records != nullptr && i < count; ++i) {
    Add(blocks, records[i]);
  }
}

Blocks ReachableBlocks() {
  Blocks blocks;
  AddRecords(blocks, gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray);
  AddRecords(blocks, gstSupportedOltPortType.ulSupportedOltPortTypeNum,
             gstSupportedOltPortType.pOltPortTypeArray);
  AddRecords(blocks, gstSupportedMainBoardType.ulSupportedBoardTypeNum,
             gstSupportedMainBoardType.pBoardTypeArray);
  const SupportedBoardType& boards = gstSupportedBoardType;
  AddRecords(blocks, boards.ulSupportedBoardTypeNum, boards.pBoardTypeArray);
  for (uint32_t i = 0; boards.pBoardTypeArray != nullptr && i < boards.ulSupportedBoardTypeNum;
       ++i) {
    if (const BoardInformation* const board = boards.pBoardTypeArray[i]; board != nullptr) {
      AddRecords(blocks, board->ulTotalServePortNum, board->pPortArray);
      AddRecords(blocks, board->ulTotalSpecialPortNum, board->pSpecialPortArray);
    }
  }
  Add(blocks, gstFrame.pstSlotArray);
  AddRecords(blocks, gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
             gstSupportedOnuPonType.pOnuPonTypeArray);
  AddRecords(blocks, gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
             gstSupportedOnuLanType.pOnuLanTypeArray);
  AddRecords(blocks, gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
             gstSupportedOnuPotsType.pOnuPotsTypeArray);
  AddRecords(blocks, gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
             gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray);
  const SupportedOnuType& onus = gstSupportedOnuType;
  AddRecords(blocks, onus.ulSupportedOnuTypeNum, onus.pOnuTypeArray);
  for (uint32_t i = 0; onus.pOnuTypeArray != nullptr && i < onus.ulSupportedOnuTypeNum; ++i) {
    if (const OnuInformation* const onu = onus.pOnuTypeArray[i]; onu != nullptr) {
      AddRecords(blocks, onu->ulTotalPonNum, onu->pOnuPonArray);
      AddRecords(blocks, onu->ulTotalLanPortNum, onu->pOnuLanPortArray);
      AddRecords(blocks, onu->ulTotalPotsNum, onu->pOnuPotsPortArray);
      AddRecords(blocks, onu->ulTotalSpecialPortNum, onu->pOnuSpecialPortArray);
    }
  }
  const OptModuleInfoList& modules = g_optmdule_infolist;
  AddRecords(blocks, modules.listnum, modules.objlist);
  for (uint16_t i = 0; modules.objlist != nullptr && i < modules.listnum; ++i) {
    if (const OptModuleInfo* const module = modules.objlist[i]; module != nullptr) {
      AddRecords(blocks, module->pathnum, module->pathinfo);
    }
  }
  return blocks;
}

template <typename Record>
void CountRecords(const Faults& faults, Record** records, uint32_t& count) {
  const auto array = faults.blocks.find(records);
  if (count != 0 || array == faults.blocks.end()) {
    return;
  }
  const size_t places = array->second / sizeof *records;
  count = static_cast<uint32_t>(std::find(records, records + places, nullptr) - records);
}

}  // namespace

std::set<void*> LostBlocks(const Faults& faults) {
  const Blocks reachable = ReachableBlocks();
  Blocks lost;
  for (const auto& [block, size] : faults.blocks) {
    if (reachable.count(block) == 0) {
      lost.insert(block);
    }
  }
  return lost;
}

void CountForgotten(const Faults& faults) {
  CountRecords(faults, gstSupportedBoardType.pBoardTypeArray,
               gstSupportedBoardType.ulSupportedBoardTypeNum);
  CountRecords(faults, gstSupportedOnuType.pOnuTypeArray,
               gstSupportedOnuType.ulSupportedOnuTypeNum);
}

std::vector<size_t> ReleaseLost(Faults& faults) {
  std::vector<size_t> sizes;
  for (void* const block : LostBlocks(faults)) {
    sizes.push_back(faults.blocks.at(block));
    std::free(block);
  }
  return sizes;
}

void ExpectNoLeak(const Faults& faults) {
  EXPECT_EQ(LostBlocks(faults), Blocks());
  for (void* const block : ReachableBlocks()) {
    EXPECT_EQ(faults.blocks.count(block), 1u) << "a table leads to a block that was freed";
  }
}

void ExpectAndReleaseLost(Faults& faults, size_t lost) {
  EXPECT_EQ(ReleaseLost(faults).size(), lost);
}

}  // namespace test
