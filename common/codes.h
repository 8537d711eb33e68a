// The library's return codes. Some numbers have several senses; each sense has a
// name.
#pragma once

#include <cstdint>

namespace sys_context {

constexpr int32_t kOk = 0;

// What a lookup in a definition file answers.
constexpr int32_t kNoSection = -1;
constexpr int32_t kNoKey = -2;
constexpr int32_t kNoFile = -10;
constexpr int32_t kReadError = -12;
constexpr int32_t kSyntaxError = -14;
constexpr int32_t kEntryTooLong = -22;

// What loaders, queries and commands answer.
constexpr int32_t kNoWorkBuffer = -1;
constexpr int32_t kNotRegistered = -1;
constexpr int32_t kVersionNotSupported = -1;
constexpr int32_t kPortNotLoaded = -1;
constexpr int32_t kNoMainBoard = -1;
constexpr int32_t kAboveFrameLimit = -1;
constexpr int32_t kNoSuchEntry = -1;
constexpr int32_t kMainBoardWithoutMaps = -1;
constexpr int32_t kPotsServiceFailed = -1;
constexpr int32_t kNotClosed = -1;
constexpr int32_t kNoFtpBuffer = -1;
constexpr int32_t kUploadNotTried = -1;
constexpr int32_t kEmptyPlace = -2;
constexpr int32_t kNoPortOfThatNumber = -2;
constexpr int32_t kNullArgument = -2;
constexpr int32_t kBadSlot = -3;
constexpr int32_t kBadSlotRange = -3;
constexpr int32_t kCorruptFrame = -3;
constexpr int32_t kEmptyList = -3;
constexpr int32_t kTooManySlots = -4;
constexpr int32_t kNoRealSlot = -4;
constexpr int32_t kNotOfThatClass = -4;
constexpr int32_t kBadSlotPort = -5;
constexpr int32_t kNoSuchPonPort = -5;
constexpr int32_t kNoSuchPonOrLanPort = -8;
constexpr int32_t kListTooSmall = -9;
constexpr int32_t kNoTable = -10;
constexpr int32_t kHoleAmongPorts = -10;
constexpr int32_t kTooManyPortTypes = -11;
constexpr int32_t kNoPortTypes = -11;
constexpr int32_t kNoSuchPortType = -12;
constexpr int32_t kBadPortNumber = -13;
constexpr int32_t kTooManyPorts = -13;
constexpr int32_t kCorruptPorts = -13;
constexpr int32_t kCorruptOnuPorts = -14;
constexpr int32_t kCorruptOnuPortTypes = -14;
constexpr int32_t kNoSuchOnuPortType = -15;
constexpr int32_t kTooManyOnuPortTypes = -16;
constexpr int32_t kNoPonBoard = -17;
constexpr int32_t kOnuPortCountNotAllowed = -17;
constexpr int32_t kNoSuchPotsOrSpecialPort = -17;
constexpr int32_t kBadMaxLanPorts = -17;
constexpr int32_t kNoSuchBoard = -18;
constexpr int32_t kNoSpecialMap = -18;
constexpr int32_t kBoardNotAllowed = -18;
constexpr int32_t kTooManyBoards = -19;
constexpr int32_t kOnuServiceFailed = -20;
constexpr int32_t kTooManyOnuTypes = -21;
constexpr int32_t kNoSuchOnuIndex = -21;
constexpr int32_t kCountAboveOnuTypes = -21;
constexpr int32_t kNoSuchLogicPort = -22;
constexpr int32_t kTooManyLogicPorts = -22;
constexpr int32_t kBadChipPort = -23;
constexpr int32_t kNotWired = -23;
constexpr int32_t kNoSuchChipPort = -23;
constexpr int32_t kNoMapGiven = -23;
constexpr int32_t kTooManyChipPorts = -24;
constexpr int32_t kTooManyMaps = -24;
constexpr int32_t kCorruptLogicPorts = -24;
constexpr int32_t kBadLogicPortIndex = -24;
constexpr int32_t kSlotListTooSmall = -25;
constexpr int32_t kCorruptSlotClass = -25;
constexpr int32_t kTypeListTooSmall = -25;
constexpr int32_t kTooManySpecialMaps = -26;
constexpr int32_t kNoSuchBalancePort = -26;
constexpr int32_t kNoEthernetPort = -26;
constexpr int32_t kNoMemory = -27;
constexpr int32_t kLanPortNotLoaded = -27;
constexpr int32_t kTooManyModules = -28;
constexpr int32_t kNoSuchModule = -29;
constexpr int32_t kTooManyVersions = -30;
constexpr int32_t kKeyUnreadable = -31;
constexpr int32_t kNoSuchName = -32;
constexpr int32_t kOnuPortTypeNotSupported = -32;
constexpr int32_t kMapNameTooLong = -32;
constexpr int32_t kOwnFrameNameTooLong = -32;
constexpr int32_t kTextTooLong = -33;
constexpr int32_t kRatioTooLarge = -34;
constexpr int32_t kNoHigigPort = -36;

// What the functions of the optical modules answer, numbers of their own: the loaders,
constexpr int32_t kNoOptModuleCount = -1;
constexpr int32_t kNoPortKind = -1;
constexpr int32_t kNoPortType = -2;
constexpr int32_t kNoPhyType = -3;
constexpr int32_t kNoPathNum = -4;
constexpr int32_t kNoPath = -6;
constexpr int32_t kBadPath = -7;
constexpr int32_t kTooManyOptModules = -15;
constexpr int32_t kNegativeStart = -18;
constexpr int32_t kNoOptModuleMemory = -22;
constexpr int32_t kBadOptModuleArgument = -24;
constexpr int32_t kPathTooLong = -33;

// and the queries and the show command.
constexpr int32_t kNoSuchOptModule = -1;
constexpr int32_t kPortTypeUnknown = -5;
constexpr int32_t kNoSuchOptModuleIndex = -10;
constexpr int32_t kNoOptModuleThere = -24;
constexpr int32_t kTooFewPathEntries = -35;
constexpr int32_t kCardTypeUnknown = -101;
constexpr int32_t kNoOpticalCard = -102;

}  // namespace sys_context
