// The queries by name; see the header.
#include "fuzz/hostile_names.h"

#include <string>

#include "sys_context/context.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "threads/ask.h"

namespace fuzz {

void AskHostileNames() {
  const std::string longest(59, 'n');
  const std::string too_long(60, 'n');
  const std::string huge(5000, 'n');
  const test::Names names = {longest.c_str(), too_long.c_str(), huge.c_str(),
                             "%s%n%1000000d", "\xff\x01",       nullptr};
  test::Answers answers;
  for (const auto query : {ddGetModuleTypeByName, ddGetMainBoardTypeByName, ddGetBoardTypeByName,
                           ddGetCardTypeByName, ddGetCardTypeByNocaseName, ddGetOnuTypeByName}) {
    test::Ask(query, names)(answers);
  }
  for (const auto query : {ddIsOltPortTypeSupportedByName, ddIsBoardTypeSupportedByName,
                           ddIsOnuPonTypeSupportedByName, ddIsOnuLanTypeSupportedByName,
                           ddIsOnuPotsTypeSupportedByName, ddIsOnuSpecialPortTypeSupportedByName}) {
    test::Ask(query, names)(answers);
  }
}

}  // namespace fuzz
