// ONU tables to print. Their records are the fixture's.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "cli/frame_printer_test.h"
#include "support/records.h"
#include "sys_context/onu.h"

namespace test {

using PortRecords = std::vector<OnuPortTypeInformation*>;

class OnuPrinterTest : public FramePrinterTest {
 protected:
  void TearDown() override {
    gstSupportedOnuPonType = {};
    gstSupportedOnuLanType = {};
    gstSupportedOnuPotsType = {};
    gstSupportedOnuSpecialPortType = {};
    gstSupportedOnuType = {};
    FramePrinterTest::TearDown();
  }

  // A port type; also what an ONU type keeps of one for each of its ports.
  OnuPortTypeInformation* OnuPort(uint32_t type, const std::string& name) {
    OnuPortTypeInformation& port = onu_ports_.emplace_back();
    port.ulPortType = type;
    StoreName(name, port.acName, port.ulNameLen);
    return &port;
  }
  // So many ports of one type.
  PortRecords OnuPortsOf(uint32_t count, uint32_t type, const std::string& name) {
    return PortRecords(count, OnuPort(type, name));
  }

  OnuInformation* Onu(uint32_t type, const std::string& name, const PortRecords& pon,
                      const PortRecords& lan, const PortRecords& pots, const PortRecords& special) {
    OnuInformation& onu = onus_.emplace_back();
    onu.ulOnuType = type;
    StoreName(name, onu.acName, onu.ulNameLen);
    SetPorts(pon, onu.ulTotalPonNum, onu.pOnuPonArray);
    SetPorts(lan, onu.ulTotalLanPortNum, onu.pOnuLanPortArray);
    SetPorts(pots, onu.ulTotalPotsNum, onu.pOnuPotsPortArray);
    SetPorts(special, onu.ulTotalSpecialPortNum, onu.pOnuSpecialPortArray);
    return &onu;
  }
  void AddOnu(OnuInformation* onu) {
    onu_places_.push_back(onu);
    gstSupportedOnuType.ulSupportedOnuTypeNum = static_cast<uint32_t>(onu_places_.size());
    gstSupportedOnuType.pOnuTypeArray = onu_places_.data();
  }

 private:
  void SetPorts(const PortRecords& ports, uint32_t& count, OnuPortTypeInformation**& array) {
    count = static_cast<uint32_t>(ports.size());
    array = ports.empty() ? nullptr : onu_port_lists_.emplace_back(ports).data();
  }

  std::deque<OnuPortTypeInformation> onu_ports_;
  std::deque<PortRecords> onu_port_lists_;
  std::deque<OnuInformation> onus_;
  std::vector<OnuInformation*> onu_places_;
};

// A number in a field of that width.
inline std::string Padded(uint32_t number, size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width > digits.size() ? width - digits.size() : 0, ' ') + digits;
}

}  // namespace test
