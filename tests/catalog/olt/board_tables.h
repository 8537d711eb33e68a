// The board tables as a query may find them.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "support/asking.h"
#include "support/records.h"
#include "sys_context/olt.h"

namespace test {

constexpr std::nullopt_t kNull = std::nullopt;  // an empty place of an array

// A table: what its places hold, and what is wrong with it.
template <typename Record>
struct PlacedRecords {
  std::vector<std::optional<Record>> places = {};
  bool has_array = true;
  std::optional<uint32_t> count = {};  // announced, if it is not the number of places
};

// A board's ports by their types. Without places there is no array.
struct Ports {
  std::vector<std::optional<uint32_t>> types = {};
  std::optional<uint32_t> count = {};  // announced, if it is not the number of places
};

// A service board or, without ports, a main board. A name of 60 characters fills
// its field, and its length does not fit.
struct PlacedBoard {
  uint32_t type;
  std::string name;
  Ports serving = {};
  Ports special = {};
  std::optional<uint32_t> name_length = {};  // stored, if it is not the name's
};
using PlacedBoards = PlacedRecords<PlacedBoard>;

struct PlacedPortType {
  uint32_t type;
  uint32_t ratio;
};
using PlacedPortTypes = PlacedRecords<PlacedPortType>;

// A port of each type from 1 to `count`.
inline Ports PortsOfTypes1To(uint32_t count) {
  Ports ports;
  for (uint32_t type = 1; type <= count; ++type) {
    ports.types.push_back(type);
  }
  return ports;
}

class BoardTablesTest : public AskingTest {
 protected:
  void TearDown() override {
    for (; !undo_.empty(); undo_.pop_back()) {
      undo_.back()();
    }
    AskingTest::TearDown();
  }

  void PutMainBoards(const PlacedBoards& boards) {
    Put(boards, gstSupportedMainBoardType.ulSupportedBoardTypeNum,
        gstSupportedMainBoardType.pBoardTypeArray,
        [](const PlacedBoard& board) { return NewNamed<MainBoardInformation>(board); });
  }

  void PutBoards(const PlacedBoards& boards) {
    Put(boards, gstSupportedBoardType.ulSupportedBoardTypeNum,
        gstSupportedBoardType.pBoardTypeArray,
        [this](const PlacedBoard& board) { return NewServiceBoard(board); });
  }

  void PutPortTypes(const PlacedPortTypes& types) {
    Put(types, gstSupportedOltPortType.ulSupportedOltPortTypeNum,
        gstSupportedOltPortType.pOltPortTypeArray,
        [](const PlacedPortType& type) { return NewPort(type.type, type.ratio); });
  }

  // Changes a word of the tables until the end of the test: they could not be
  // released otherwise.
  template <typename Word>
  void Overwrite(Word& word, std::type_identity_t<Word> value) {
    undo_.push_back([&word, before = word] { word = before; });
    word = value;
  }

 private:
  template <typename Record>
  static Record* New(size_t count) {
    return static_cast<Record*>(std::calloc(count, sizeof(Record)));
  }

  template <typename Record>
  static Record* NewNamed(const PlacedBoard& board) {
    Record* const record = New<Record>(1);
    record->ulType = board.type;
    StoreName(board.name, record->acName, record->ulNameLen);
    record->ulNameLen = board.name_length.value_or(record->ulNameLen);
    return record;
  }

  static OltPortInformation* NewPort(uint32_t type, uint32_t ratio) {
    OltPortInformation* const port = New<OltPortInformation>(1);
    port->ulPortType = type;
    port->ulSplittingRatio = ratio;
    return port;
  }

  template <typename Place, typename Record, typename Make>
  void Put(const PlacedRecords<Place>& table, uint32_t& count, Record**& array, Make make) {
    if (table.has_array) {
      count = static_cast<uint32_t>(table.places.size());
      array = New<Record*>(count);
      for (size_t i = 0; i < table.places.size(); ++i) {
        array[i] = table.places[i] ? make(*table.places[i]) : nullptr;
      }
    }
    Overwrite(count, table.count.value_or(count));
  }

  void PutPorts(const Ports& ports, uint32_t& count, OltPortInformation**& array) {
    Put(PlacedRecords<uint32_t>{ports.types, !ports.types.empty(), ports.count}, count, array,
        [](uint32_t type) { return NewPort(type, 0); });
  }

  BoardInformation* NewServiceBoard(const PlacedBoard& board) {
    BoardInformation* const record = NewNamed<BoardInformation>(board);
    PutPorts(board.serving, record->ulTotalServePortNum, record->pPortArray);
    PutPorts(board.special, record->ulTotalSpecialPortNum, record->pSpecialPortArray);
    return record;
  }

  std::vector<std::function<void()>> undo_;
};

}  // namespace test
