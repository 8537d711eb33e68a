// Reading the slots of one class.
#include <cstdio>

#include "catalog/frame/pieces.h"
#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/numbers.h"
#include "sys_context/frame.h"

namespace sys_context {
namespace {

constexpr KeyMessage kUnreadable =
    "\r\nddReadOneSlotClass err! iResult = %d, section = %s, key = %s";

// A key of the class: its word and an ending.
struct ClassKey {
  ClassKey(const char* word, const char* ending) {
    std::snprintf(text, sizeof text, "%s%s", word, ending);
  }
  char text[CFG_VALUE_SIZE];
};

int32_t ReadAmount(const char* file, const char* section, const char* word, uint32_t& amount) {
  Value value;
  if (ReadKey(file, section, ClassKey(word, "Num").text, value, kUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  const uint32_t announced = ParseUnsigned(value.text);
  if (announced > MAX_SLOT_END) {
    Console("\r\nddReadOneSlotClass err! ulSlotAmount = %d, MAX_SLOT_END = %d", announced,
            MAX_SLOT_END);
    return kTooManySlots;
  }
  amount = announced;
  return kOk;
}

// kept as is: the number of slots listed is not compared with the amount, and
// returns the lookup's own code.
int32_t ReadList(const char* file, const char* section, const char* word,
                 SlotClassInformation& slots) {
  Value value;
  if (const int32_t code = ReadKey(file, section, ClassKey(word, "List").text, value, kUnreadable);
      code != kOk) {
    return code;
  }
  ForEachPiece(value.text, ',', [&](const char* slot, uint32_t place, bool) {
    if (place < MAX_SLOT_END) {
      slots.ucSlotArray[place] = ParseUnsigned(slot);
    }
  });
  slots.ulSlotStart = slots.ucSlotArray[0];
  slots.ulSlotEnd = slots.ucSlotArray[slots.ulSlotAmount - 1];
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadOneSlotClass(const char* strFileName, const char* strSectionFrameName,
                           const char* strSlotClass, SlotClassInformation* pstSlotClass) {
  using namespace sys_context;
  if (strFileName == nullptr || strSectionFrameName == nullptr || strSlotClass == nullptr ||
      pstSlotClass == nullptr) {
    Console(
        "\r\nddReadOneSlotClass err!, strFileName = 0x%x, strSectionFrameName = 0x%x, strSlotClass = 0x%x, pstSlotClass = 0x%x",
        LowBits(strFileName), LowBits(strSectionFrameName), LowBits(strSlotClass),
        LowBits(pstSlotClass));
    return kNullArgument;
  }
  if (const int32_t code =
          ReadAmount(strFileName, strSectionFrameName, strSlotClass, pstSlotClass->ulSlotAmount);
      code != kOk) {
    return code;
  }
  if (pstSlotClass->ulSlotAmount == 0) {
    *pstSlotClass = {};
    return kOk;
  }
  return ReadList(strFileName, strSectionFrameName, strSlotClass, *pstSlotClass);
}
