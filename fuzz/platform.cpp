// Answers of the platform, drawn with the bytes' number.
#include "fuzz/platform.h"

#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "support/fake_platform.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"

namespace fuzz {
namespace {

using test::FakePlatform;
using Draw = std::minstd_rand;

struct Chassis {
  int32_t device_type;
  const char* section;
};
constexpr Chassis kChassis[] = {
    {6, "[KT2200-A_FrameInfomation]"},   {11, "[KT2200-B_FrameInfomation]"},
    {12, "[KT2200-C_FrameInfomation]"},  {13, "[KT2200-BX_FrameInfomation]"},
    {14, "[KT2200-CX_FrameInfomation]"}, {15, "[KT3300-L_FrameInfomation]"},
    {16, "[KT3301-M_FrameInfomation]"},  {17, "[KT3300-N_FrameInfomation]"},
    {18, "[KT3300-P_FrameInfomation]"},  {1520, "[KT3300-Q_FrameInfomation]"},
};
constexpr int32_t kUnknownDeviceType = 99;  // taken for a KT3300-L

constexpr uint32_t kOnuNumbers[] = {0,  1,  2,   5,   6,      24,
                                    25, 99, 100, 101, 0xffff, std::numeric_limits<uint32_t>::max()};

template <typename List>
auto OneOf(const List& list, Draw& draw) {
  return std::data(list)[draw() % std::size(list)];
}

bool Coin(Draw& draw) {
  return draw() / 16 % 2 == 0;
}

}  // namespace

uint32_t SeedOf(std::string_view bytes) {
  uint32_t seed = 1;
  for (const char byte : bytes) {
    seed = seed * 31 + static_cast<unsigned char>(byte);
  }
  return seed;
}

void PreparePlatform(std::string_view bytes, uint32_t seed) {
  FakePlatform& platform = FakePlatform::Get();
  platform.device_type = kUnknownDeviceType;
  for (const Chassis& chassis : kChassis) {
    if (bytes.find(chassis.section) != std::string_view::npos) {
      platform.device_type = chassis.device_type;
    }
  }
  Draw draw(seed);
  platform.onu_result = Coin(draw) ? 0 : -1;
  platform.onu_number = OneOf(kOnuNumbers, draw);
  platform.onu_stores = Coin(draw) || Coin(draw);
  platform.onu_name = std::string(draw() % MAX_ONU_NAME_LEN, 'N');
  platform.onu_list.assign(draw() % 101, platform.onu_number);
}

void FitCards(uint32_t seed) {
  Draw draw(seed);
  FakePlatform& platform = FakePlatform::Get();
  std::vector<int32_t> types = {0, 598, 624, -1};
  const auto add = [&](uint32_t type) {
    types.push_back(static_cast<int32_t>(type));
    for (auto* const kind : {&platform.pon_cards, &platform.ethernet_cards, &platform.service_cards,
                             &platform.uplink_cards}) {
      if (Coin(draw)) {
        kind->insert(static_cast<int16_t>(type));
      }
    }
  };
  const SupportedMainBoardType& main_boards = gstSupportedMainBoardType;
  for (uint32_t i = 0; i < main_boards.ulSupportedBoardTypeNum; ++i) {
    add(main_boards.pBoardTypeArray[i]->ulType);
    platform.main_card = types.back();
  }
  for (uint32_t i = 0; i < gstSupportedBoardType.ulSupportedBoardTypeNum; ++i) {
    add(gstSupportedBoardType.pBoardTypeArray[i]->ulType);
  }
  if (Coin(draw)) {
    platform.own_slot = static_cast<int32_t>(gstFrame.stMainSlot.ulSlotStart);
  }
  for (uint32_t slot = 0; slot <= MAX_SLOT_END; ++slot) {
    platform.configured_cards[slot] = OneOf(types, draw);
  }
  const SupportedOnuType& onus = gstSupportedOnuType;
  if (onus.ulSupportedOnuTypeNum != 0 && Coin(draw)) {
    const OnuInformation* const onu = onus.pOnuTypeArray[draw() % onus.ulSupportedOnuTypeNum];
    platform.fitted_onu = static_cast<int32_t>(onu->ulOnuType);
  }
}

}  // namespace fuzz
