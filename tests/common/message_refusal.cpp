// Messages that the compiler must accept (CASE 0) and must refuse (all others);
// compiled, never run, by message_refusal.cmake.
#include "common/messages.h"

using sys_context::Message;
using sys_context::PartialMessage;

#if CASE == 0
constexpr Message<> kNone("\r\nnothing");
constexpr Message<int32_t> kSigned("\r\nnumber = %d");
constexpr Message<uint32_t> kUnsigned("\r\nnumber = %d, MAX = 200");
constexpr Message<uint32_t> kHexadecimal("\r\npointer = 0x%x");
constexpr Message<const char*> kText("\r\nname = %s");
constexpr Message<uint32_t, uint32_t, const char*> kWidths("%2d. length = %13d, name = %-6s");
constexpr PartialMessage<uint32_t, const char*> kBoth("\r\nnumber = %d, name = %s");
constexpr PartialMessage<uint32_t, const char*> kFirst("\r\nnumber = %d");
constexpr PartialMessage<uint32_t, const char*> kNeither("\r\nnothing");
#elif CASE == 1
constexpr Message<int32_t, int32_t> kTooFewPlaces("\r\nerr! %d");
#elif CASE == 2
constexpr Message<int32_t> kTooManyPlaces("\r\nerr! %d %d");
#elif CASE == 3
constexpr Message<int32_t> kTextPlaceForNumber("\r\nerr! %s");
#elif CASE == 4
constexpr Message<const char*> kNumberPlaceForText("\r\nerr! %d");
#elif CASE == 5
constexpr Message<int32_t, const char*> kSwapped("\r\nerr! %s %d");
#elif CASE == 6
constexpr Message<int32_t> kWiderPlace("\r\nerr! %ld");
#elif CASE == 7
constexpr Message<int32_t> kUnfinishedPlace("\r\nerr! 100%");
#elif CASE == 8
constexpr Message<> kPlaceForNothing("\r\nerr! %d");
#elif CASE == 9
constexpr Message<int32_t> kNoPlace("\r\nerr!");
#elif CASE == 10
constexpr PartialMessage<uint32_t, const char*> kLeavesOutTheFirst("\r\nname = %s");
#elif CASE == 11
constexpr PartialMessage<uint32_t> kShowsMore("\r\nerr! %d %d");
#else
#error "no such case"
#endif
